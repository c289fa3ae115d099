// What can be done in a position.
#pragma once

#include <vector>

#include "solver/Position.h"

namespace Solver {

/// Every move that the rules allow a player, one by one.
[[nodiscard]] std::vector<Move> LegalMoves(const Position& position);

/// Moves that are made one after the other and only then looked at, in one list.
class MoveList {
public:
    void Clear() {
        moves_.clear();
        ends_.clear();
    }
    void Add(const Move& move) {
        moves_.push_back(move);
        ends_.push_back(moves_.size());
    }
    /// Chains of moves.
    void Add(const std::vector<Move>& before, const Move& last) {
        moves_.insert(moves_.end(), before.begin(), before.end());
        Add(last);
    }
    void Add(const std::vector<Move>& chain) {
        moves_.insert(moves_.end(), chain.begin(), chain.end());
        ends_.push_back(moves_.size());
    }
    /// Leaves the first `count` chains.
    void CutTo(std::size_t count) {
        ends_.resize(count);
        moves_.resize(count == 0 ? 0 : ends_.back());
    }
    [[nodiscard]] std::size_t Count() const { return ends_.size(); }
    [[nodiscard]] const Move* Begin(std::size_t chain) const {
        return moves_.data() + (chain == 0 ? 0 : ends_[chain - 1]);
    }
    [[nodiscard]] const Move* End(std::size_t chain) const { return moves_.data() + ends_[chain]; }

private:
    std::vector<Move> moves_;
    std::vector<std::size_t> ends_;
};

}  // namespace Solver
