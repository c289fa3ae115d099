// What is told to the solver's tools on their command lines.
#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/catalogue/definition.h"
#include "engine/state/cGames.h"
#include "engine/state/mDeal.h"
#include "solver/Search.h"

/// A bad command line; what() is a sentence for whoever typed it.
class ArgumentError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The exit status of a tool that found a fault in itself.
inline constexpr int OwnFault = 70;

struct SolverArguments {
    /// Reads NAME, `numbers` game numbers or an option with a deck or decks in their place (`deckOption`),
    /// and the options; throws ArgumentError.
    SolverArguments(int count, char** arguments, std::size_t numbers, const std::string& deckOption);

    const Definition* Game = nullptr;
    cGames Numbers;
    std::vector<double> GameNumbers;
    std::optional<std::string> Decks;  ///< what followed the option
    Solver::Switches Switches;
    Solver::Limits Limits;
    int Jobs = 1;
    bool Each = false;
    bool Replay = false;
};

/// Reads a deck of the game: card values by PicID, separated by blanks; throws ArgumentError.
[[nodiscard]] std::vector<int> ReadDeck(const std::string& text, const cGames& game);

/// The opening from a deck; what the deal draws goes on from where a shuffle with the number 0 leaves the
/// source.
[[nodiscard]] mDeal::Opening DealDeck(const cGames& game, const std::vector<int>& deck);

/// What main does in each of the tools: reads the command line and calls `run` for the exit status. Errors go
/// to standard error; after a bad command line the status is 64.
[[nodiscard]] int RunTool(int count, char** arguments, std::size_t numbers, const std::string& deckOption,
                          int (*run)(const SolverArguments&));
