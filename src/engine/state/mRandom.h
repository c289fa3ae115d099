// The pseudo-random source of the shuffle and the deal, and the rounding that goes with it.
#pragma once

#include <cmath>
#include <cstdint>

/// A repeatable source. Integer arithmetic only, so that a game number gives the same deal on every
/// compiler and machine: a player's favourite deal must never change.
class RandomSource {
public:
    /// Restarts the source from x, a negative number: all that follows depends on x alone.
    void SeedNegative(double x);
    /// Folds the full value of v into the state without restarting: 12 and 12.5 differ.
    void Mix(double v);
    /// At least 0 and below 1, with the 24 bits of a single-precision number.
    [[nodiscard]] float Next();

    bool operator==(const RandomSource&) const = default;

private:
    std::uint64_t state_ = 0;
};

/// The nearest whole number, ties to the even one. The value must fit an int.
[[nodiscard]] inline int RoundToEven(double value) {
    const double whole = std::floor(value);
    const double rest = value - whole;
    const int low = static_cast<int>(whole);
    if (rest < 0.5) return low;
    if (rest > 0.5) return low + 1;
    return low % 2 == 0 ? low : low + 1;
}
