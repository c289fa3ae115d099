// What the dialog "More Statistics" shows of careers: its choices, tables and charts, and the same tables as
// comma-separated values.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/records/Career.h"
#include "engine/records/mStatistics.h"

namespace mCareerTables {

/// As it is shown, in the way of the region, and as a file of comma-separated values has it: numbers plain,
/// times in seconds, dates as yyyy-MM-dd.
struct Cell {
    std::string Shown;
    std::string Plain;
};
struct Heading {
    const char* Shown;
    const char* Plain;  ///< tells columns apart that look alike on the screen, and says units
};
struct Table {
    std::vector<Heading> Headings;
    std::vector<std::vector<Cell>> Rows;
};
[[nodiscard]] std::vector<mStatistics::Row> ShownRows(const Table& table);
[[nodiscard]] std::string Csv(const Table& table);

inline constexpr const char* AllPlayers = "All Players";
inline constexpr const char* AllGroups = "All Groups";
/// The periods that can be chosen, up to today; the first keeps all records.
inline constexpr std::array Periods{"All Dates",      "Last 7 Days", "Last 30 Days", "Last 3 Months",
                                    "Last 12 Months", "This Year",   "Last Year"};
/// The days of one of them; another text throws std::out_of_range.
[[nodiscard]] std::optional<mDates::DayRange> Days(std::string_view period);

/// "Played 120, won 43 of 350 games." of the games that the filter leaves.
[[nodiscard]] std::string Progress(const Career::Result& result, const CareerFilter& filter);

/// Streaks and bests over all games, each with the record behind it.
[[nodiscard]] Table Summary(const Career& career, const Career::Result& result);
/// How many games of each group were played and won; of several groups their sum at the end.
[[nodiscard]] Table Groups(const Career::Result& result, const CareerFilter& filter);

enum class GameChoice { All, Played, Won, NeverWon, NeverPlayed };
/// In the order of the values.
inline constexpr std::array GameChoices{"All Games", "Played", "Won", "Played, Never Won", "Never Played"};
[[nodiscard]] Table Games(const Career& career, const Career::Result& result, const CareerFilter& filter,
                          GameChoice choice);
[[nodiscard]] Table Players(const Career& career, const Career::Result& result, const CareerFilter& filter);

enum class Unit { Week, Month };
inline constexpr std::array Units{"By Week", "By Month"};
/// The weeks, from Monday on, or months that have games, the oldest first.
[[nodiscard]] Table Times(const Career::Result& result, Unit unit);
[[nodiscard]] Table Hours(const Career::Result& result);

/// Charts of the last periods without a gap, at most 60, and of the hours: games played and won, and the
/// share of games won in percent. A period without a game has no share.
struct Charts {
    mStatistics::ChartData Played;
    mStatistics::ChartData Share;
};
[[nodiscard]] Charts TimeCharts(const Career::Result& result, Unit unit);
[[nodiscard]] Charts HourCharts(const Career::Result& result);

/// Answers a percentage of the work with whether to go on.
using GoOn = std::function<bool(int percent)>;
/// The single records as comma-separated values, which ImportedRecords reads back; cut off where it is not to
/// go on. `records` are those of cScore::GetScore.
[[nodiscard]] std::string RecordsCsv(const ScoreStore& store, const std::vector<int>& records,
                                     const GoOn& goOn);
/// The columns of that table, in their order.
inline constexpr std::array RecordColumns{"Date",  "Player",  "Game",  "Game Number",
                                          "Score", "Seconds", "Moves", "Status"};

using MakeText = std::function<std::string(const GoOn&)>;
/// Asks for a file, writes comma-separated values to it, the whole file in one step, and tells so. `name` is
/// offered.
void Export(const std::string& name, const MakeText& make);

}  // namespace mCareerTables
