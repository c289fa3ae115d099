// How near a position looks to a win: a weighted sum of what can be counted on the table.
#pragma once

#include <array>
#include <random>

class PositionWorth {
public:
    /// Weights around the usual ones: no single set suits all games, so every attempt takes its own.
    explicit PositionWorth(std::mt19937& random);

    /// The worth of the position on the table; more is better.
    [[nodiscard]] double operator()() const;

private:
    enum Feature {
        OnFoundations,
        Closed,       ///< closed cards of the tableau
        Covering,     ///< cards that lie on one which must go to the foundations before them
        OverNext,     ///< cards that lie on those which the foundations take next
        Pairs,        ///< neighbours that obey the tableau's rule
        MovingPairs,  ///< neighbours that can be lifted together
        RunPairs,     ///< neighbours of the runs that leave by themselves, longer runs more
        EmptyPiles,
        EmptyCells,
        InStock,
        InWaste,
        FeatureCount
    };
    using Counts = std::array<double, FeatureCount>;

    static void CountBuried(Counts& counts, int Cell, int pile);
    static void CountPairs(Counts& counts, int pile);

    std::array<double, FeatureCount> weights_{};
};
