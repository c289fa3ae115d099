// The fuzzer's kept inputs for what lies on a real disk.
#include <gtest/gtest.h>

#include "fuzz/Replay.h"
#include "tools/fuzz/HomeTargets.h"

namespace {

TEST(HomeCorpora, EveryKeptInputIsTakenWellWholeAndDamaged) {
    constexpr int Rounds = 2;  // each is a whole start on a real disk
    for (const mFuzz::Target& target : mFuzz::HomeTargets) mFuzz::Replay(target, TARNIVAL_CORPORA, Rounds);
}

}  // namespace
