// Looks for a way to win a deal, best positions first, until one is found, all positions have been looked
// into, or a limit is reached.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "solver/Dominance.h"
#include "solver/HashTable.h"
#include "solver/NodeStore.h"
#include "solver/OpenList.h"
#include "solver/Position.h"
#include "solver/Rules.h"
#include "solver/UsefulMoves.h"
#include "solver/Weights.h"

namespace Solver {

enum class Answer {
    Won,
    Lost,     ///< all that can be reached has been looked into: it cannot be won
    Unknown,  ///< a limit was reached
};

struct Limits {
    std::size_t States = 0;  ///< 0: no limit but memory
    std::size_t MemoryMB = 512;
};

struct Result {
    Solver::Answer Answer = Answer::Unknown;
    std::size_t States = 0;   ///< different positions met
    std::vector<Move> Moves;  ///< of a win, one by one as a player makes them
};

class Search {
public:
    /// What a state takes at most: 16 of its node, up to 22 of its slot in the table and 11 of the table
    /// before that grew. Besides come the open lists and the marks on the way to the position, some megabytes
    /// however many states there are.
    static constexpr std::size_t BytesPerState = 56;

    Search(const cGames& game, Switches switches);

    /// The weights may be changed before a search.
    Weights& Order() { return weights_; }

    [[nodiscard]] Result Solve(const mDeal::Opening& opening, const Limits& limits);
    /// Goes on from the position as it lies: cards were put on it by hand.
    [[nodiscard]] Result SolvePosition(const Limits& limits);
    [[nodiscard]] Position& Table() { return position_; }
    [[nodiscard]] Rules& Game() { return rules_; }
    /// Looks into all moves that the rules allow and leaves nothing out: slow, to hold the other way against.
    bool Plain = false;

private:
    /// So many states go by the best position alone: enough for most deals that are easy to win.
    static constexpr std::size_t StraightStates = 2000;
    /// So many positions at a time are taken in one way of choosing: then they lie near to each other.
    static constexpr std::size_t Turn = 8;

    struct Step {
        std::uint32_t Number;
        Position::Mark Before;
    };

    void PlaySafeCards();
    void MakeStep(const Node& node);
    void GoTo(std::uint32_t node);
    bool Expand(std::uint32_t node);
    std::uint32_t AddNode(std::uint32_t before, const Move& move, bool inner);
    /// A child of the position that is being looked into.
    struct Child {
        std::uint64_t Hash = 0;
        std::size_t Chain = 0;
        bool Remembered = false;  ///< its effect, in the memory
        std::uint8_t Memory = 0;
        int Worth = 0;
        int Stage = 0;
        int Level = 0;
        bool Won = false;
    };
    /// The effects of the latest moves: from most positions the search goes on soon.
    struct Memory {
        std::uint32_t Number = NoNode;
        Position::Effect Effect;
    };
    static constexpr std::size_t Memories = 256;
    void Enqueue(const Child& child, std::uint32_t node);
    [[nodiscard]] std::uint32_t Next();
    [[nodiscard]] int Stage() const;
    [[nodiscard]] int Worth() const;
    [[nodiscard]] std::vector<Move> MovesTo(std::uint32_t node);

    Rules rules_;
    bool talonFree_;
    Weights weights_;
    Position position_;
    Dominance dominance_;
    HashTable met_;
    NodeStore nodes_;
    std::vector<Step> path_;
    std::vector<Child> children_;
    std::vector<std::uint64_t> early_;
    std::vector<Memory> memory_ = std::vector<Memory>(Memories);
    std::uint8_t nextMemory_ = 0;
    std::vector<std::vector<OpenList>> open_;  ///< by stage and cards home
    std::vector<std::size_t> waiting_;         ///< by stage
    std::uint32_t won_ = NoNode;
    std::size_t stage_ = 0;
    std::size_t level_ = 0;
    std::size_t turn_ = 0;
    MoveList list_;
};

}  // namespace Solver
