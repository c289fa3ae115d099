// Solves one deal, with all cards seen.
//
//   tarnival-solve NAME NUMBER [options]
//   tarnival-solve NAME --deck "v0 v1 ..." [options]
//
// A deck is the card values by PicID. Prints "won STATES MOVES", "lost STATES" (it cannot be won) or "unknown
// STATES" (a limit was reached), and leaves with 0, 1 or 2; after a win the moves as lines for a fresh
// tarnival-lab. The engine has played them then. Options:
//
//   --limit N      at most N states
//   --memory MB    at most so much memory for the states; 512 where not given
//   --no-return    no card comes back from a foundation
//   --single       only top cards are lifted, one at a time
//   --autoplay     cards go to the foundations by themselves, as in the program with Autoplay on
#include <cstdio>

#include <fmt/format.h>

#include "SolutionReplay.h"
#include "SolverArguments.h"

namespace {

int Solve(const SolverArguments& arguments) {
    SolutionReplay::Deal deal;
    mDeal::Opening opening;
    if (arguments.Decks) {
        const std::vector<int> deck = ReadDeck(*arguments.Decks, arguments.Numbers);
        opening = DealDeck(arguments.Numbers, deck);
        deal = deck;
    } else {
        opening = mDeal::Deal(arguments.Numbers, arguments.GameNumbers[0]);
        deal = arguments.GameNumbers[0];
    }
    Solver::Search search(arguments.Numbers, arguments.Switches);
    const Solver::Result result = search.Solve(opening, arguments.Limits);
    if (result.Answer != Solver::Answer::Won) {
        const bool lost = result.Answer == Solver::Answer::Lost;
        fmt::print("{} {}\n", lost ? "lost" : "unknown", result.States);
        return lost ? 1 : 2;
    }
    SolutionReplay replay(arguments.Switches.Autoplay);
    if (!replay.Wins(std::string(arguments.Game->Name), deal, result.Moves)) {
        throw std::logic_error("The engine refuses the moves found.");
    }
    fmt::print("won {} {}\n", result.States, result.Moves.size());
    for (const std::string& line : replay.Lines()) fmt::print("{}\n", line);
    return 0;
}

}  // namespace

int main(int argc, char** argv) { return RunTool(argc, argv, 1, "--deck", Solve); }
