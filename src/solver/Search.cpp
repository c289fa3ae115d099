// The search: one position, moved about in a tree of moves.
#include "solver/Search.h"

#include <algorithm>

namespace Solver {

Search::Search(const cGames& game, Switches switches)
    : rules_(game, switches),
      talonFree_(rules_.TalonFree),
      weights_(rules_),
      position_(rules_, weights_),
      dominance_(rules_) {}

Result Search::Solve(const mDeal::Opening& opening, const Limits& limits) {
    rules_.SetBase(opening.Base, opening.EmptyNum);
    weights_.CountSteps(rules_, opening);
    position_.Begin(opening);
    return SolvePosition(limits);
}

Result Search::SolvePosition(const Limits& limits) {
    rules_.TalonFree = talonFree_ && !Plain;
    met_.Clear();
    nodes_.Clear();
    for (Memory& memory : memory_) memory.Number = NoNode;
    path_.clear();
    for (auto& stage : open_) {
        for (OpenList& level : stage) level.Clear();
    }
    waiting_.assign(waiting_.size(), 0);
    stage_ = level_ = turn_ = 0;
    won_ = NoNode;
    const std::size_t most = limits.MemoryMB * 1024 * 1024 / BytesPerState;
    const std::size_t limit = limits.States == 0 ? most : limits.States;

    Result result;
    Node root;
    root.Inner = true;
    nodes_.Add(root);
    path_.push_back({0, position_.Here()});
    std::vector<Move> first;
    position_.Trace = &first;
    PlaySafeCards();
    position_.Trace = nullptr;
    met_.Insert(position_.Hash());
    if (position_.Won()) {
        won_ = 0;
    } else {
        Expand(0);
    }
    result.Answer = Answer::Lost;
    const Position::Mark startOfPath = path_.front().Before;
    while (won_ == NoNode) {
        // Each stage in its turn: positions of different stages look too different to be compared.
        std::size_t tried = 0;
        while (tried < open_.size() && waiting_[stage_ = (stage_ + 1) % open_.size()] == 0) ++tried;
        if (tried == open_.size()) break;
        if (met_.Count() >= limit || nodes_.Count() >= most) {
            result.Answer = Answer::Unknown;
            break;
        }
        const std::uint32_t node = Next();
        GoTo(node);
        Expand(node);
    }
    if (won_ != NoNode) {
        result.Answer = Answer::Won;
        position_.TakeBack(startOfPath);
        result.Moves = MovesTo(won_);
    }
    result.States = met_.Count();
    return result;
}

void Search::PlaySafeCards() {
    if (Plain) return;
    for (Move move; !position_.Won() && dominance_.SafeMove(position_, move);) position_.Make(move);
}

void Search::MakeStep(const Node& node) {
    position_.Make(node.Made);
    if (!node.Inner) PlaySafeCards();
}

// Back to where the ways part, and forward from there.
void Search::GoTo(std::uint32_t node) {
    static thread_local std::vector<std::uint32_t> forward;
    forward.clear();
    while (nodes_[node].Depth >= path_.size() || path_[nodes_[node].Depth].Number != node) {
        forward.push_back(node);
        node = nodes_[node].Before;
    }
    const std::size_t kept = nodes_[node].Depth + std::size_t{1};
    if (kept < path_.size()) {
        position_.TakeBack(path_[kept].Before);
        path_.resize(kept);
    }
    for (auto number = forward.rbegin(); number != forward.rend(); ++number) {
        path_.push_back({*number, position_.Here()});
        const Memory& memory = memory_[nodes_[*number].Memory];
        if (memory.Number == *number) {
            position_.Repeat(memory.Effect);
        } else {
            MakeStep(nodes_[*number]);
        }
    }
}

std::uint32_t Search::AddNode(std::uint32_t before, const Move& move, bool inner) {
    return nodes_.Add({.Before = before,
                       .Made = move,
                       .Depth = static_cast<std::uint16_t>(nodes_[before].Depth + 1),
                       .Inner = inner});
}

void Search::Enqueue(const Child& child, std::uint32_t node) {
    const auto stage = static_cast<std::size_t>(child.Stage);
    const auto level = static_cast<std::size_t>(child.Level);
    if (stage >= open_.size()) {
        open_.resize(stage + 1);
        waiting_.resize(stage + 1);
    }
    if (level >= open_[stage].size()) open_[stage].resize(level + 1);
    open_[stage][level].Push(child.Worth + weights_.Depth * nodes_[node].Depth, node, nodes_);
    ++waiting_[stage];
}

// By turns the best of all, and the best of those that have so many cards home, for each number of cards:
// what looks best may be a blind alley that is long to search, and others get their turn.
std::uint32_t Search::Next() {
    auto& levels = open_[stage_];
    --waiting_[stage_];
    ++turn_;
    if (met_.Count() >= StraightStates && turn_ / Turn % 2 == 1) {
        if (turn_ % Turn == 0) ++level_;
        if (level_ >= levels.size()) level_ = 0;
        while (levels[level_].IsEmpty()) level_ = (level_ + 1) % levels.size();
        return levels[level_].Pop(nodes_);
    }
    std::size_t best = levels.size();
    int most = 0;
    for (std::size_t level = levels.size(); level-- > 0;) {
        if (levels[level].IsEmpty()) continue;
        const int worth = levels[level].Best() + weights_.Home * static_cast<int>(level);
        if (best < levels.size() && worth <= most) continue;
        best = level;
        most = worth;
    }
    return levels[best].Pop(nodes_);
}

bool Search::Expand(std::uint32_t node) {
    list_.Clear();
    if (Plain) {
        for (const Move& move : LegalMoves(position_)) list_.Add(move);
    } else {
        UsefulMoves(position_, dominance_, list_);
    }
    // All children first, so that their places in the table are near when they are asked for. A child that
    // was met as it lies before its safe cards are played need not be made: all that it leads to was reached
    // from there.
    children_.clear();
    early_.clear();
    const Position::Mark mark = position_.Here();
    const std::uint64_t talon = Plain ? 0 : position_.TalonHash();
    for (std::size_t chain = 0; chain < list_.Count(); ++chain) {
        const Move* const begin = list_.Begin(chain);
        const bool single = !Plain && list_.End(chain) - begin == 1;
        early_.push_back(single ? position_.HashAfter(*begin, talon) : 0);
        met_.Prefetch(early_.back());
    }
    for (std::size_t chain = 0; chain < list_.Count(); ++chain) {
        const Move* const begin = list_.Begin(chain);
        const bool single = !Plain && list_.End(chain) - begin == 1;
        if (early_[chain] != 0 && met_.Has(early_[chain])) continue;
        for (const Move* move = begin; move != list_.End(chain); ++move) position_.Make(*move);
        PlaySafeCards();
        Child& child = children_.emplace_back();
        child.Hash = position_.Hash();
        child.Chain = chain;
        child.Worth = Worth();
        child.Stage = Stage();
        child.Level = position_.CardsHome();
        child.Won = position_.Won();
        met_.Prefetch(child.Hash);
        if (single && children_.size() < Memories) {
            child.Memory = nextMemory_++;
            Memory& memory = memory_[child.Memory];
            memory.Number = NoNode;
            child.Remembered = position_.Remember(mark, memory.Effect);
        }
        position_.TakeBack(mark);
    }
    for (const Child& child : children_) {
        if (!met_.Insert(child.Hash)) continue;
        std::uint32_t last = node;
        const Move* const end = list_.End(child.Chain);
        for (const Move* move = list_.Begin(child.Chain); move != end; ++move) {
            last = AddNode(last, *move, move + 1 != end);
        }
        if (child.Remembered) {
            nodes_[last].Memory = child.Memory;
            memory_[child.Memory].Number = last;
        }
        if (child.Won) {
            won_ = last;
            return true;
        }
        Enqueue(child, last);
    }
    return false;
}

int Search::Stage() const {
    if (rules_.Gathers && rules_.CanRedeal) return std::max(0, rules_.Redeals - position_.RedealsMade());
    const bool onto = !rules_.OpenStock && (rules_.Press == StockMove::OneToEachPile ||
                                            rules_.Press == StockMove::FirstThreeToPiles);
    return onto ? (position_.Count(StockPile) + rules_.HomePiles - 1) / rules_.HomePiles : 0;
}

// Without the cards at home: they are the level.
int Search::Worth() const {
    int worth = position_.PilesWorth() + weights_.EmptyPile * position_.EmptyHome() +
                weights_.Talon * (position_.Count(StockPile) + position_.Count(WastePile));
    if (rules_.FreeCells) {
        worth += weights_.EmptyCell * position_.EmptyRes();
    } else {
        worth += weights_.Reserve * position_.CardsInRes();
    }
    return worth;
}

// Makes them once more, to learn which cards went home by the way.
std::vector<Move> Search::MovesTo(std::uint32_t node) {
    std::vector<std::uint32_t> numbers;
    for (; node != 0; node = nodes_[node].Before) numbers.push_back(node);
    std::vector<Move> moves;
    position_.Trace = &moves;
    const Position::Mark mark = position_.Here();
    PlaySafeCards();
    for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) MakeStep(nodes_[*number]);
    position_.Trace = nullptr;
    position_.TakeBack(mark);
    return moves;
}

}  // namespace Solver
