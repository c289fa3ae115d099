// The fuzzer's kept inputs, replayed whole and damaged: among them is everything that it has ever found.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include <gtest/gtest.h>

#include "fuzz/Targets.h"

namespace {

// Some bytes left out, doubled or replaced by such as mean something.
std::string Damaged(std::string bytes, std::mt19937& random) {
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

TEST(Corpora, EveryKeptInputIsTakenWellWholeAndDamaged) {
    constexpr int Rounds = 40;
    std::mt19937 random(20040105);  // NOLINT: the same cases at every run
    for (const mFuzz::Target& target : mFuzz::Targets) {
        int inputs = 0;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::path(TARNIVAL_CORPORA) / target.Name)) {
            SCOPED_TRACE(entry.path());
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(file), {}};
            EXPECT_NO_THROW(target.Run(bytes));
            EXPECT_NO_THROW(target.Run(std::string_view(bytes).substr(0, bytes.size() / 2)));
            for (int round = 0; round < Rounds; ++round) EXPECT_NO_THROW(target.Run(Damaged(bytes, random)));
            ++inputs;
        }
        EXPECT_GT(inputs, 0) << target.Name;
    }
}

}  // namespace
