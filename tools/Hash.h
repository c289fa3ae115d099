// Many values in one number, the same on every machine.
#pragma once

#include <cstdint>
#include <string_view>

class Hash {
public:
    void Fold(int value) {
        value_ = (value_ ^ static_cast<std::uint32_t>(value)) * 1099511628211U;
        value_ ^= value_ >> 29;
    }
    void Fold(std::string_view text) {
        for (const char letter : text) Fold(letter);
        Fold(-1);
    }
    [[nodiscard]] std::uint64_t Value() const { return value_; }

private:
    std::uint64_t value_ = 14695981039346656037U;
};
