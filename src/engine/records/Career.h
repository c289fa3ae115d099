// What players have come to: streaks, bests, how often they win and when they play, for any choice of player,
// group of games and time, in one pass over the store.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "engine/records/ScoreStore.h"

/// Which records count.
struct CareerFilter {
    std::string Player;                    ///< empty: all
    int Gid = 0;                           ///< a group of games; 0: all, also games that no group has
    std::optional<mDates::DayRange> Days;  ///< a date that nothing can read lies in no range
};

/// Games that one player won, or lost, one after the other.
struct Streaks {
    int Current = 0;  ///< won; below 0 lost; 0 where records of several players would run into each other
    int LongestWon = 0;
    int LongestLost = 0;
};

class Career {
public:
    /// Instead of an entry of the store.
    static constexpr std::uint32_t None = std::numeric_limits<std::uint32_t>::max();

    struct Count {
        std::int64_t Played = 0;
        std::int64_t Won = 0;
    };
    /// Of a game, of a player or of all. The bests are entries of the store; of equal ones the later game.
    struct Figures : Count {
        Streaks Streak;
        std::uint32_t WonUntil = None;     ///< the last game of the longest streak won
        std::uint32_t LostUntil = None;    ///< of the longest streak lost
        std::uint32_t BestTime = None;     ///< of the games won
        std::uint32_t FewestMoves = None;  ///< of the games won
        std::uint32_t BestScore = None;    ///< above 0, also of a game that was lost
    };
    struct Result {
        Figures All;
        std::vector<Figures> Games;    ///< SiD 1 is the first
        std::vector<Figures> Players;  ///< by the store's number of the player
        std::map<int, Count> Days;     ///< by DayNumber; a date that nothing can read has no day
        std::array<Count, 24> Hours{};
    };

    /// The store must stay as it is for as long as this lives. The catalogue must stand.
    explicit Career(const ScoreStore& store);

    [[nodiscard]] Result Work(const CareerFilter& filter) const;
    /// The records that count, for cScore::GetScore, in the order of the store.
    [[nodiscard]] std::vector<int> Records(const CareerFilter& filter) const;
    [[nodiscard]] const ScoreStore& Store() const { return store_; }

private:
    class Wanted;
    void SortByTime();

    const ScoreStore& store_;
    std::vector<int> sids_;  ///< by the store's number of the game; 0 for one that is not in the catalogue
    std::vector<std::uint32_t>
        order_;  ///< player by player in the order of time; empty: as they lie in the store
};
