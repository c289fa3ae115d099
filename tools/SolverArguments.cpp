// Reading the command lines of the solver's tools.
#include "SolverArguments.h"

#include <charconv>
#include <cstdio>
#include <exception>
#include <sstream>

#include <fmt/format.h>

#include "engine/catalogue/families.h"
#include "engine/state/mRandom.h"
#include "solver/Games.h"

namespace {

template <typename Number>
Number ReadNumber(const std::string& what, const std::string& text, Number least) {
    Number number{};
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (fault != std::errc{} || end != text.data() + text.size() || !(number >= least)) {
        throw ArgumentError(what + " takes a number, not \"" + text + "\".");
    }
    return number;
}

}  // namespace

SolverArguments::SolverArguments(int count, char** arguments, std::size_t numbers,
                                 const std::string& deckOption) {
    const std::vector<std::string> words(arguments + 1, arguments + count);
    std::vector<std::string> plain;
    bool homeSingly = false;
    const auto value = [&](std::size_t& i) -> const std::string& {
        if (++i == words.size()) throw ArgumentError(words[i - 1] + " wants something after it.");
        return words[i];
    };
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == deckOption) {
            Decks = value(i);
        } else if (word == "--limit") {
            Limits.States = ReadNumber<std::size_t>(word, value(i), 1);
        } else if (word == "--memory") {
            Limits.MemoryMB = ReadNumber<std::size_t>(word, value(i), 1);
        } else if (word == "--no-return") {
            Switches.NoReturn = true;
        } else if (word == "--single") {
            Switches.SingleCards = true;
        } else if (word == "--autoplay") {
            Switches.Autoplay = true;
        } else if (numbers == 2 && word == "--jobs") {
            Jobs = ReadNumber<int>(word, value(i), 1);
        } else if (numbers == 2 && word == "--each") {
            Each = true;
        } else if (numbers == 2 && word == "--replay") {
            Replay = true;
        } else if (numbers == 2 && word == "--home-singly") {
            homeSingly = true;
        } else if (word.starts_with("--")) {
            throw ArgumentError("There is no option " + word + ".");
        } else {
            plain.push_back(word);
        }
    }
    if (plain.empty()) throw ArgumentError("Which game?");
    Game = mFamilies::Find(plain[0]);
    if (Game == nullptr) throw ArgumentError("There is no game \"" + plain[0] + "\".");
    Definition rules = *Game;
    if (homeSingly) {
        if (Replay || rules.Kind != GameType::CompleteRuns)
            throw ArgumentError(
                "--home-singly is for games of complete runs, and not what the engine plays.");
        rules.Kind = GameType::Plain;
    }
    Numbers = Solver::NumbersOf(rules);
    const std::size_t wanted = Decks ? 0 : numbers;
    if (plain.size() != wanted + 1) throw ArgumentError("Which deals?");
    for (std::size_t i = 1; i < plain.size(); ++i) {
        GameNumbers.push_back(ReadNumber<double>("The game number", plain[i], 0));
    }
}

std::vector<int> ReadDeck(const std::string& text, const cGames& game) {
    std::istringstream words(text);
    std::vector<int> deck;
    for (int value = 0; words >> value;) deck.push_back(value);
    if (!words.eof() || !Solver::IsDeck(deck, game.TotalCards())) {
        throw ArgumentError("A deck of this game is each number from 0 to " +
                            std::to_string(game.TotalCards() - 1) + " once, with blanks between.");
    }
    return deck;
}

mDeal::Opening DealDeck(const cGames& game, const std::vector<int>& deck) {
    RandomSource source;
    static_cast<void>(mDeal::Shuffle(game.TotalCards(), 0, source));
    return mDeal::Deal(game, std::vector<short>(deck.begin(), deck.end()), source);
}

int RunTool(int count, char** arguments, std::size_t numbers, const std::string& deckOption,
            int (*run)(const SolverArguments&)) {
    constexpr int BadArguments = 64;
    try {
        return run(SolverArguments(count, arguments, numbers, deckOption));
    } catch (const ArgumentError& error) {
        fmt::print(stderr, "{}\n", error.what());
        return BadArguments;
    } catch (const std::exception& error) {
        fmt::print(stderr, "{}\n", error.what());
        return OwnFault;
    }
}
