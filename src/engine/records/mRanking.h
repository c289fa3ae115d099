// What the high score dialog shows: a ranking of at most 20 records in each of its lists.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace mRanking {

using Row = std::vector<std::string>;

inline constexpr std::array TopColumns{"Game",  "Player", "Score", "Time",
                                       "Moves", "Status", "Date",  "Game No."};
inline constexpr std::array GameColumns{"S No.", "Player", "Score", "Time",
                                        "Moves", "Status", "Date",  "Game No."};
inline constexpr std::array PlayerColumns{"S No.", "Game",   "Score", "Time",
                                          "Moves", "Status", "Date",  "Game No."};
inline constexpr std::array FinishedColumns{"S No.", "Game",  "Player", "Score",
                                            "Time",  "Moves", "Date",   "Game No."};
/// What finished games are ranked by; the column of that name is the emphasised one.
inline constexpr std::array FinishedKeys{"Score", "Moves", "Time"};

/// Best scores of all games and players, of a game, of a player.
[[nodiscard]] std::vector<Row> TopRows();
[[nodiscard]] std::vector<Row> GameRows(const std::string& gName);
[[nodiscard]] std::vector<Row> PlayerRows(const std::string& Player);
/// Won games by one of FinishedKeys; another key throws std::out_of_range.
[[nodiscard]] std::vector<Row> FinishedRows(std::string_view key);

}  // namespace mRanking
