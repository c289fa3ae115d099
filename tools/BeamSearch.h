// Looks for a way to win the running game: of all positions that one more move leads to, only the best are
// followed, so that many lines of play are kept side by side.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <random>
#include <unordered_set>
#include <vector>

#include "PositionWorth.h"
#include "ProcessorClock.h"
#include "mBotMoves.h"

class BeamSearch {
public:
    using Clock = ProcessorClock;

    /// Follows at most `width` positions after each move.
    BeamSearch(std::size_t width, std::mt19937& random) : width_(width), random_(random), worth_(random) {}

    /// The moves that win the running game, nothing where none were found. The table is somewhere in the
    /// game afterwards, or cleared.
    [[nodiscard]] std::optional<std::vector<BotMove>> Win(Clock::time_point deadline);

    /// The most cards that a position had on the foundations.
    [[nodiscard]] int MostOnFoundations() const { return most_; }

private:
    struct Position;
    struct Step {
        std::size_t Before;
        BotMove Move;
    };
    struct Child {
        double Worth;
        std::size_t Parent;
        int Stage;  ///< cards that are still to be dealt to the piles
        BotMove Move;
    };

    /// How the search gets on among the positions with the same number of cards still to be dealt.
    struct Stage {
        double Best = std::numeric_limits<double>::lowest();
        int Idle = 0;  ///< moves since the best worth went up

        void Note(double worth);
        [[nodiscard]] bool IsStuck() const { return Idle > 60; }
    };

    [[nodiscard]] bool Expand(const Position& from, std::size_t number, std::vector<Child>& children);
    [[nodiscard]] std::vector<Child> Select(std::vector<Child> children);
    [[nodiscard]] std::vector<BotMove> PathTo(std::size_t step, const BotMove& last) const;

    std::size_t width_;
    std::mt19937& random_;
    PositionWorth worth_;
    std::unordered_set<std::uint64_t> seen_;
    std::vector<Step> steps_;
    std::map<int, Stage> stages_;
    BotMove winning_;
    int most_ = 0;
};
