// The records of games and what is added up from them.
#pragma once

#include <string>

#include "engine/state/GameNumber.h"

/// The record of a game.
struct tScore {
    std::string Date;  ///< as it stands in the file; empty in session records
    std::string gName;
    GameNumber GameNo = 0.0;
    int Time = 0;  ///< seconds
    int Moves = 0;
    int Score = 0;
    int Won = 0;  ///< 1 won, 0 lost
    std::string Player;
    bool operator==(const tScore&) const = default;
};

/// Totals of records. A sum that leaves 32 bits stops at their limit.
struct tStat {
    int Played = 0;
    int Won = 0;
    int Lost = 0;  ///< Played - Won
    int Score = 0;
    int Moves = 0;
    int Time = 0;  ///< seconds
    bool operator==(const tStat&) const = default;
};

/// Totals of a day, a month or a year.
struct tDateStat {
    int Played = 0;
    int Won = 0;
    int Lost = 0;
    std::string Label;
    int Score = 0;
    int Moves = 0;
    int Time = 0;  ///< seconds
    bool operator==(const tDateStat&) const = default;
};

/// A favourite deal.
struct tFav {
    std::string mName;
    GameNumber mGno = 0.0;
    bool operator==(const tFav&) const = default;
};
