// Score files of any size, the same at every run: for measuring, and for looking at full dialogs.
#pragma once

#include <string>

#include "engine/records/mDates.h"

struct RecordPlan {
    int Players = 20;
    int RecordsEach = 50000;
    CivilTime Until{.Year = 2023, .Month = 12, .Day = 31};  ///< the day of the last games
    bool Regional = false;  ///< dates in the way of the United States instead of the fixed form
};

namespace mRecordMaker {

/// "Player1" and so on.
[[nodiscard]] std::string PlayerName(int i);
/// The content of a player's score file: games of twenty years, oldest first. The catalogue must stand.
[[nodiscard]] std::string ScoreFile(const RecordPlan& plan, int player);

}  // namespace mRecordMaker
