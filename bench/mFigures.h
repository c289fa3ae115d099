// The lines that all benchmarks print, which bench/limits.py holds against bench/limits.txt.
#pragma once

#include <cstdio>
#include <string>
#include <utility>

namespace mFigures {

/// A figure that has a limit. The name is the one under which bench/limits.txt knows it, and stands once in
/// all benchmarks.
inline void Print(const std::string& name, double value, const char* unit) {
    std::printf("  %-62s %12.3f %s\n", name.c_str(), value, unit);
}

/// One of those of which the longest counts.
inline void Detail(const std::string& name, double value, const char* unit) {
    std::printf("    %-60s %12.3f %s\n", name.c_str(), value, unit);
}

/// Shows each as a detail, and the longest of them as a figure.
class Longest {
public:
    explicit Longest(std::string name) : name_(std::move(name)) {}
    ~Longest() { Print(name_, longest_, "ms"); }
    Longest(const Longest&) = delete;
    Longest& operator=(const Longest&) = delete;

    void Add(const std::string& name, double milliseconds) {
        Detail(name, milliseconds, "ms");
        longest_ = milliseconds > longest_ ? milliseconds : longest_;
    }

private:
    std::string name_;
    double longest_ = 0;
};

}  // namespace mFigures
