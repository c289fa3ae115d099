// The fuzzer's kept inputs, replayed: among them is everything that it has ever found.
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "fuzz/Targets.h"

namespace {

TEST(Corpora, EveryKeptInputIsTakenWell) {
    for (const mFuzz::Target& target : mFuzz::Targets) {
        int inputs = 0;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::path(TARNIVAL_CORPORA) / target.Name)) {
            SCOPED_TRACE(entry.path());
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(file), {}};
            EXPECT_NO_THROW(target.Run(bytes));
            // A shorter input is another one.
            EXPECT_NO_THROW(target.Run(std::string_view(bytes).substr(0, bytes.size() / 2)));
            ++inputs;
        }
        EXPECT_GT(inputs, 0) << target.Name;
    }
}

}  // namespace
