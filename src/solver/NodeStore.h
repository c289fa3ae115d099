// The tree of a search: a node for each position met, and for each move inside a chain of moves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "solver/Position.h"

namespace Solver {

inline constexpr std::uint32_t NoNode = 0xffffffff;

struct Node {
    std::uint32_t Before = NoNode;
    std::uint32_t Next = NoNode;  ///< in a stack of the open list
    Move Made;
    std::uint16_t Depth = 0;
    std::uint8_t Memory = 0;  ///< the place where the effect of its move may be kept
    bool Inner = false;       ///< inside a chain of moves: nothing safe is played after it
};

/// Grows by blocks, so that nothing is copied and no more memory taken than a block too much. A new search
/// uses the blocks again.
class NodeStore {
public:
    void Clear() { count_ = 0; }
    [[nodiscard]] std::size_t Count() const { return count_; }
    [[nodiscard]] Node& operator[](std::uint32_t number) { return blocks_[number / Block][number % Block]; }
    [[nodiscard]] const Node& operator[](std::uint32_t number) const {
        return blocks_[number / Block][number % Block];
    }
    std::uint32_t Add(const Node& node) {
        if (count_ == blocks_.size() * Block) blocks_.push_back(std::make_unique<Node[]>(Block));
        (*this)[count_] = node;
        return count_++;
    }

private:
    static constexpr std::uint32_t Block = 4096;
    std::vector<std::unique_ptr<Node[]>> blocks_;
    std::uint32_t count_ = 0;
};

}  // namespace Solver
