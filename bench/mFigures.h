// The table that all benchmarks print: a figure, its limit, and whether it is kept.
#pragma once

#include <cstdio>

namespace mFigures {

inline bool missed = false;

/// A figure without a limit.
inline void Print(const char* what, double value, const char* unit) {
    std::printf("  %-58s %12.3f %s\n", what, value, unit);
}

/// A figure that should not be above its limit. A machine's mood is allowed a quarter.
inline void Print(const char* what, double value, const char* unit, double limit) {
    constexpr double Leeway = 1.25;
    const bool tooMuch = value > limit * Leeway;
    std::printf("  %-58s %12.3f %-6s limit %-8g%s\n", what, value, unit, limit,
                tooMuch ? "MISSED" : (value > limit ? "over" : ""));
    missed = missed || tooMuch;
}

/// What the program leaves with.
inline int ExitCode() { return missed ? 1 : 0; }

}  // namespace mFigures
