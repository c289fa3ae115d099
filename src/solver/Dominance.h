// What a search may leave out without losing an answer. Each rule has its proof beside it, and its premises
// are looked up in the game's tables: where they do not hold, nothing is left out.
#pragma once

#include <array>

#include "solver/Moves.h"
#include "solver/Position.h"

namespace Solver {

class Dominance {
public:
    explicit Dominance(const Rules& rules);

    /// Whether there is a move that can be made now without spoiling anything: of a card to the foundations,
    /// or of cards to the one place where they fit.
    [[nodiscard]] bool SafeMove(const Position& position, Move& move) const;
    /// Whether cards come back from foundations only in chains, for a use that follows.
    [[nodiscard]] bool ReturnsAreChained(const Position& position) const;
    /// Adds those chains: cards come back, and a card goes onto the last of them or has still to be freed for
    /// that. False, and nothing added, where there are too many: then every return is to be tried for itself,
    /// which leaves nothing out either.
    bool AddReturns(Position& position, MoveList& list) const;
    /// Whether a move from one foundation pile to another can be of use.
    [[nodiscard]] bool GoalsExchange() const { return !chains_; }

private:
    [[nodiscard]] bool TableauAlone(const Position& position) const;
    [[nodiscard]] bool IsSafe(const Position& position, int kind) const;
    [[nodiscard]] bool SafeHome(const Position& position, int from, Move& move) const;
    [[nodiscard]] bool SafeLaying(const Position& position, int from, Move& move) const;
    /// A chain in the making.
    struct Chain {
        std::vector<Move> Moves;
        int Left;  ///< how many more returns may be looked at
    };
    void Return(Position& position, int goal, MoveList& list, Chain& chain) const;
    void Use(Position& position, int goal, int pile, MoveList& list, Chain& chain) const;

    const Rules& rules_;
    bool chains_ = false;
    bool alone_ = false;         ///< the tableau changes by the player's moves alone, in every position
    bool returnsOfUse_ = false;  ///< whether a card that comes back may be of use
    bool onePlace_ = false;  ///< each card has one place in the tableau, on the card that goes home after it
    std::array<KindSet, Kinds> before_{};  ///< by kind: what it may lie on at home
    std::array<KindSet, Kinds> likes_{};   ///< by kind: it and those that the rules cannot tell from it
    /// By kind: what may lie on it in the tableau.
    std::array<KindSet, Kinds> above_{};
    /// By kind, where cards come back: all that may be laid on it, on that, and so on, with what comes
    /// before.
    std::array<KindSet, Kinds> closure_{};
};

}  // namespace Solver
