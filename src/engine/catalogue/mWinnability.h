// How often the games can be won: what a solver, which sees all cards, found over the first deals of each.
// The figures are measured by hand and lie here as data; nothing is searched while one plays.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

/// What was found for one game. Won, Lost and Unknown add up to Deals.
struct Winnability {
    std::string_view Game;
    std::uint64_t Signature;  ///< of the rules that were tried: with others the figures say nothing
    int States;               ///< after how many states a deal was given up; 0 where none was
    int Deals;                ///< tried: those with the numbers 1 to Deals
    int Won;
    int Lost;     ///< they cannot be won, however they are played
    int Unknown;  ///< given up
    int Moves;    ///< half of the wins found take the player so many moves or fewer; 0 without a win
};

namespace mWinnability {

/// A row for each game that was tried, in the order of the catalogue.
[[nodiscard]] std::span<const Winnability> All();
/// The row of a game, or nullptr where it was not tried.
[[nodiscard]] const Winnability* Find(std::string_view game);

/// At least so many percent of the deals were won: the game is mostly winnable.
inline constexpr int MostlyPercent = 80;
[[nodiscard]] bool IsMostlyWinnable(const Winnability& found);
/// At most so many percent of the deals can be won, those without an answer counted as won: the game is hard.
inline constexpr int HardPercent = 20;
[[nodiscard]] bool IsHard(const Winnability& found);

}  // namespace mWinnability
