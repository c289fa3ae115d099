// What the session dialog shows: the games that ended in this run, and the running game beside them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/records/mStatistics.h"

namespace mSession {

using Row = std::vector<std::string>;

inline constexpr std::array Columns{"Game", "Game No", "Player", "Time", "Moves", "Status", "Score"};
inline constexpr std::array ChartColumns{"No.", "Time", "Moves", "Score"};

/// The texts of the frame "This Session", from lblSesStarted to lblSesElapsedTime.
[[nodiscard]] std::vector<std::string> SessionLines();
/// The texts of the frame "This Game": started, name, number, score, moves, time, player.
[[nodiscard]] std::vector<std::string> GameLines();

/// A row a game; the running game, if there is one, is the last.
[[nodiscard]] std::vector<Row> SessionRows();
[[nodiscard]] std::vector<Row> ChartRows();
/// One point: how many won, how many lost in this session.
[[nodiscard]] mStatistics::ChartData SummaryChart();
/// Score, moves and seconds of each game and, in the last row, of the running one; without one that row
/// is empty.
[[nodiscard]] mStatistics::ChartData GamesChart();

/// The texts that change while the dialog is open.
struct Tick {
    std::string Elapsed;  ///< lblSesElapsedTime
    // Of the running game; empty where none runs.
    std::string Time;       ///< the cells in both lists
    std::string Score;      ///< the cells in both lists
    std::string GameScore;  ///< lblGameScore
    std::string GameTime;   ///< lblGameTime
};
[[nodiscard]] Tick TickTexts();

}  // namespace mSession
