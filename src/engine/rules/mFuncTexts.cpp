// Times and numbers as texts, apart from the rules: the module of the charts takes no more of the engine.
#include <cstdint>
#include <cstdlib>
#include <string>

#include <fmt/format.h>

#include "engine/rules/mFunc.h"

namespace mFunc {

std::string FormatTime(int seconds) {
    // The sign once, before the whole; in 64 bits, where the least number has a positive one.
    const std::int64_t all = std::abs(std::int64_t{seconds});
    return fmt::format("{}{}:{:02}:{:02}", seconds < 0 ? "-" : "", all / 3600, all / 60 % 60, all % 60);
}

std::string Grouped(double number) {
    std::string digits = fmt::format("{:.0f}", number);
    const std::size_t first = !digits.empty() && digits[0] == '-' ? 1 : 0;
    for (std::size_t at = digits.size(); at > first + 3;) {
        at -= 3;
        digits.insert(at, ",");
    }
    return digits;
}

}  // namespace mFunc
