// The fuzzer's kept inputs: among them is everything that it has ever found.
#include <gtest/gtest.h>

#include "fuzz/Replay.h"

namespace {

TEST(Corpora, EveryKeptInputIsTakenWellWholeAndDamaged) {
    constexpr int Rounds = 40;
    for (const mFuzz::Target& target : mFuzz::Targets) mFuzz::Replay(target, TARNIVAL_CORPORA, Rounds);
}

}  // namespace
