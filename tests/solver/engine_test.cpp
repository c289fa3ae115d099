// The solver's rules against the engine's: in random positions of every game the same moves, and after each
// the same table; every win that the solver finds is one for the engine.
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "SolutionReplay.h"
#include "engine/catalogue/families.h"
#include "engine/commands/mGen.h"
#include "engine/state/RunningGame.h"
#include "engine/state/cData.h"
#include "engine/state/mDeal.h"
#include "solver/Games.h"
#include "solver/Search.h"
#include "solver/Table.h"
#include "support/Fixture.h"
#include "support/FromEnvironment.h"

namespace {

// Plays a game at random on both tables. Empty where no difference was found in so many positions.
std::string PlayBoth(const Definition& game, bool autoplay, int positions, std::uint32_t seed) {
    const std::string name(game.Name);
    const cGames numbers = Solver::NumbersOf(game);
    const Solver::Rules fixed(numbers, {.Autoplay = autoplay});
    gData->Set(Setting::Autoplay, autoplay ? 1 : 0);
    std::mt19937 random(seed);
    constexpr int LongestGame = 150;
    while (positions > 0) {
        const auto number = static_cast<double>(random() % 100000 + 1);
        const mDeal::Opening opening = mDeal::Deal(numbers, number);
        Solver::Rules rules = fixed;
        rules.SetBase(opening.Base, opening.EmptyNum);
        const Solver::Weights weights(rules);
        Solver::Position position(rules, weights);
        position.Begin(opening);
        mGen::StartGame(name, number);
        std::string last = "the deal";
        for (int i = 0; i < LongestGame && positions > 0; ++i, --positions) {
            const std::string where =
                name + " " + std::to_string(static_cast<int>(number)) + " after " + last + ": ";
            if (position.Won() == gData->Figures.GameRunning) return where + "won only for one of both";
            if (position.Won()) break;
            if (const auto difference = EngineTable::Difference(position); !difference.empty())
                return where + difference;
            const std::vector<Solver::Move> moves = EngineTable::Moves();
            if (Sorted(LegalMoves(position)) != moves) return where + "other moves";
            if (moves.empty()) break;
            const Solver::Move move = moves[random() % moves.size()];
            // Taken back and made again it must come to the same.
            const Solver::Position::Mark mark = position.Here();
            const std::uint64_t hash = position.Hash();
            position.Make(move);
            position.TakeBack(mark);
            if (position.Hash() != hash) return where + Text(move) + " is not taken back";
            position.Make(move);
            EngineTable::Make(move);
            last = Text(move);
        }
        if (gData->Figures.GameRunning) mGen::CloseGame(0);
    }
    return {};
}

TEST(SolverAndEngine, HaveTheSameMovesInAllGames) {
    const Engine engine;
    gRunning.Quiet = true;
    const int positions = FromEnvironment("TARNIVAL_SOLVER_POSITIONS", 15);
    std::uint32_t seed = 1;
    for (const Definition* game : mFamilies::All()) {
        EXPECT_EQ(PlayBoth(*game, false, positions, ++seed), "");
        EXPECT_EQ(PlayBoth(*game, true, positions / 3, ++seed), "");
    }
}

}  // namespace
