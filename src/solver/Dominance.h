// What a search may leave out without losing an answer. Each rule has its proof beside it, and its premises
// are looked up in the game's tables: where they do not hold, nothing is left out.
#pragma once

#include <array>
#include <optional>

#include "solver/Moves.h"
#include "solver/Position.h"

namespace Solver {

class Dominance {
public:
    explicit Dominance(const Rules& rules);

    /// A card that can go to the foundations now without spoiling anything.
    [[nodiscard]] std::optional<Move> SafeMove(const Position& position) const;
    /// Whether cards come back from foundations only for an immediate use.
    [[nodiscard]] bool ReturnsAreChained(const Position& position) const;
    /// Adds those chains: cards come back, and a card goes onto the last of them. False, and nothing added,
    /// where there are too many: then every return is to be tried for itself, which leaves nothing out
    /// either.
    bool AddReturns(Position& position, MoveList& list) const;
    /// Whether a move from one foundation pile to another can be of use.
    [[nodiscard]] bool GoalsExchange() const { return !chains_; }

private:
    [[nodiscard]] bool TableauAlone(const Position& position) const;
    [[nodiscard]] bool IsSafe(const Position& position, int kind) const;
    /// A chain in the making.
    struct Chain {
        std::vector<Move> Moves;
        int Left;  ///< how many more returns may be looked at
    };
    void Return(Position& position, int goal, MoveList& list, Chain& chain) const;
    void Use(Position& position, int goal, int pile, MoveList& list, Chain& chain) const;

    const Rules& rules_;
    bool chains_ = false;
    std::array<KindSet, Kinds>
        needed_{};  ///< by kind: what must be home before it is of no use in the tableau
};

}  // namespace Solver
