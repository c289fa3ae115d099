// What the log dialog shows: stored games one by one, filtered by player, game and date.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/records/RegionalDates.h"
#include "engine/records/tScore.h"

namespace mLog {

inline constexpr std::array Columns{"Date", "Player", "Game",   "Score",
                                    "Time", "Moves",  "Status", "Game Number"};
inline constexpr const char* AllPlayers = "All Players";
/// The blank puts it before every name in a sorted list.
inline constexpr const char* AllGames = " All Games";
inline constexpr const char* ShowAll = "Show All";

struct DateChoice {
    const char* Text;
    const char* Key;  ///< empty: no filter
    char Unit;        ///< 'd' days or 'm' months
    int Most;         ///< boundaries of that unit between the record and now, at most
};
inline constexpr std::array<DateChoice, 7> DateChoices{{
    {"Show Today", "t", 'd', 0},
    {"Last 3 Days", "3d", 'd', 3},
    {"Last 7 Days", "7d", 'd', 7},
    {"Last 30 Days", "30d", 'd', 30},
    {"Last 3 Months", "3m", 'm', 3},
    {"Last 5 Months", "5m", 'm', 5},
    {ShowAll, "", ' ', 0},
}};

/// The store indexes of the records that three selections keep, by the texts of the selected items. A
/// date text that is none of the choices throws std::out_of_range.
[[nodiscard]] std::vector<int> Select(const std::string& player, const std::string& game,
                                      std::string_view date);

/// The cells of a record; `dates` is the region's format, made once for a whole list.
[[nodiscard]] std::vector<std::string> Row(const tScore& record, const RegionalDates& dates);

/// Numbers for names, by which these sort.
using Ranks = std::function<std::vector<double>(const std::vector<std::string>& names)>;
/// What these records sort by in a column, mSorting::None where nothing can be read. Records of one day sort
/// by the time of day.
[[nodiscard]] std::vector<double> Keys(const std::vector<int>& indexes, int column, const Ranks& ranks);

}  // namespace mLog
