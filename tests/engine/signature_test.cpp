// The behavior of all games, a number a game: a fixed player plays a fixed deal of each, and every position
// is folded into a hash. It tells which games something changed; the other tests tell what. Whoever changes
// it on purpose says in the commit which rule it was.
#include <cstdint>
#include <fstream>
#include <set>

#include "support/EngineTest.h"
#include "tools/mSignature.h"

namespace {

TEST(Signature, OfEachGame) {
    std::set<std::string> expected;
    std::ifstream file(TARNIVAL_SIGNATURES);
    for (std::string line; std::getline(file, line);) expected.insert(line);

    const Engine engine;
    std::ofstream written(TARNIVAL_SIGNATURES_NOW);
    std::string changed;
    const std::string first = gData->GetGame(1);
    const std::uint64_t alone = mSignature::Of(first);
    long moves = 0;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        const std::string line = mSignature::Line(gData->GetGame(SiD), mSignature::Of(gData->GetGame(SiD)));
        written << line << '\n';
        if (expected.erase(line) == 0) changed += "\n    " + line;
        moves += gTrans->GetTransID();
    }
    EXPECT_EQ(mSignature::Of(first), alone) << "what was played before counts";
    std::string gone;
    for (const std::string& line : expected) gone += "\n    " + line;
    EXPECT_GT(moves, gData->TotalGames() * 20) << "the player hardly moves";
    EXPECT_TRUE(changed.empty() && gone.empty())
        << "These games play otherwise than they did, or are new:" << changed
        << "\nTheir old lines, or those of games that are gone:" << gone << "\nWhere that is meant: cp "
        << TARNIVAL_SIGNATURES_NOW << ' ' << TARNIVAL_SIGNATURES;
}

}  // namespace
