// What makes a position look near to a win, for the order of the search alone: no answer depends on it.
#pragma once

#include <array>
#include <cstdint>

#include "engine/state/mDeal.h"
#include "solver/Rules.h"

namespace Solver {

struct Weights {
    Weights() = default;
    /// The usual ones for a game of this kind.
    explicit Weights(const Rules& rules);
    /// Fills in `Steps` for a deal.
    void CountSteps(const Rules& rules, const mDeal::Opening& opening);

    int Home = 100;      ///< a card on the foundations
    int Covering = -32;  ///< a card that lies on one which the foundations need before it
    int Pair = 12;       ///< neighbours that obey the tableau's rule
    int Lifted = 4;      ///< neighbours that can be lifted together where that asks for more
    int Leaving = 0;     ///< neighbours of a run that leaves by itself, where runs do so
    int Longer = 0;      ///< and for each further neighbour that the run has already
    int Closed = -20;    ///< a closed card
    int EmptyPile = 3;
    int EmptyCell = 16;
    int Bottom = 16;   ///< at a pile's bottom a card that nothing but an empty pile takes
    int Talon = -8;    ///< a card in stock or waste
    int Reserve = -8;  ///< a card in a reserve that takes none
    int Depth = -8;    ///< a move

    /// By kind: how many cards come before it on its foundation.
    std::array<std::uint8_t, Kinds> Steps{};
};

}  // namespace Solver
