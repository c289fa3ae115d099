// What the statistics dialog shows: texts, rows and the data of its charts.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/records/tScore.h"

namespace mStatistics {

using Row = std::vector<std::string>;

/// The data of a chart: a row a point, a column a series, a label a column. An empty cell is not plotted.
struct ChartData {
    std::vector<std::string> Labels;
    std::vector<std::vector<std::optional<int>>> Rows;
    std::vector<std::string> Points{};  ///< what each row is called; none where there is one row only
    std::vector<int> Games{};  ///< how many are behind each row; none where a row without a game is empty
    bool operator==(const ChartData&) const = default;
};

/// "Won" for 1, "Lost" for anything else.
[[nodiscard]] const char* StatusStr(int Won);

/// A quotient as a text of at most two decimals, as many as it needs; halves go to the even digit. The
/// divisor is above 0.
[[nodiscard]] std::string Round(long long dividend, long long divisor);

/// All names of games, sorted without regard to capitals.
[[nodiscard]] std::vector<std::string> SortedGames();

/// One point: how many won, how many lost.
[[nodiscard]] ChartData ResultChart(const tStat& stat);
/// One point: score (0 where it is negative), moves, seconds.
[[nodiscard]] ChartData EffortChart(const tStat& stat);

// General Summary: totals and rates of the whole store. Its charts are the two above of TotalStat.
[[nodiscard]] std::vector<std::string> GeneralLines(const tStat& total);

// Game-wise: Game, Played, Won, Lost, Time, Moves, Score, Perc.
inline constexpr std::array GameColumns{"Game", "Played", "Won", "Lost", "Time", "Moves", "Score", "Perc"};
/// A row for every game of the catalogue.
[[nodiscard]] std::vector<Row> GameRows();
/// Score, moves and seconds of the first records of a game, at most 50, from row 1 on; row 0 is empty.
[[nodiscard]] ChartData RecordsChart(const std::string& gName);

// Date-wise.
struct DateRange {
    const char* Text;
    const char* Key;
    const char* Tag;     ///< the interval given to DateStat
    int Back;            ///< periods before the present one
    const char* Header;  ///< of the first column; the others are "Played" and "Won"
};
inline constexpr std::array<DateRange, 6> DateRanges{{
    {"Last 5 Days", "5d", "d", 4, "Day"},
    {"Last 10 Days", "10d", "d", 9, "Day"},
    {"Last 30 Days", "30d", "d", 29, "Day"},
    {"Last 5 Months", "5m", "m", 4, "Month"},
    {"Last 10 Months", "10m", "m", 9, "Month"},
    {"Last 5 Years", "5y", "yyyy", 4, "Year"},
}};
struct DateView {
    std::vector<Row> Rows;  ///< label, played, won; the oldest period first
    ChartData Played;       ///< columns "Played", "Won"
    ChartData Effort;       ///< columns "Score", "Moves", "Time"
};
[[nodiscard]] DateView Dates(const DateRange& range);

// Player-wise: Player, Played, Won, Lost, Time, Moves, Score, Perc.
inline constexpr std::array PlayerColumns{"Player", "Played", "Won",   "Lost",
                                          "Time",   "Moves",  "Score", "Perc"};
/// A row for every player. The percentages are whole here.
[[nodiscard]] std::vector<Row> PlayerRows();

}  // namespace mStatistics
