// The kept inputs of the fuzzer, replayed whole and damaged.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "tools/fuzz/Targets.h"

namespace mFuzz {

/// Some bytes left out, doubled or replaced by such as mean something.
inline std::string Damaged(std::string bytes, std::mt19937& random) {
    const std::string telling = std::string("\",\r\n0-9/:. \xFF\xC3=") + '\0';
    const auto below = [&](std::size_t limit) { return static_cast<std::size_t>(random() % limit); };
    for (std::size_t change = below(8) + 1; change > 0; --change) {
        const std::size_t at = below(bytes.size() + 1);
        const std::string some =
            below(2) == 0 ? bytes.substr(0, below(30)) : telling.substr(below(telling.size()), 1);
        bytes.replace(at, below(3) * below(8), some);
    }
    return bytes;
}

/// Gives a target each of its inputs, half of it, and it with so many damages.
inline void Replay(const Target& target, const std::string& corpora, int rounds) {
    std::mt19937 random(20040105);  // NOLINT: the same cases at every run
    int inputs = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::path(corpora) / target.Name)) {
        SCOPED_TRACE(entry.path());
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        EXPECT_NO_THROW(target.Run(bytes));
        EXPECT_NO_THROW(target.Run(std::string_view(bytes).substr(0, bytes.size() / 2)));
        for (int round = 0; round < rounds; ++round) EXPECT_NO_THROW(target.Run(Damaged(bytes, random)));
        ++inputs;
    }
    EXPECT_GT(inputs, 0) << target.Name;
}

}  // namespace mFuzz
