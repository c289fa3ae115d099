// The positions that a search has still to look into, the most promising first, of equal ones the latest.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "solver/NodeStore.h"

namespace Solver {

/// A row of stacks, one for each worth; a stack is a chain through its nodes.
class OpenList {
public:
    void Clear() {
        for (std::size_t stack = lowest_; stack <= highest_ && stack < Size; ++stack) tops_[stack] = NoNode;
        lowest_ = Size;
        highest_ = 0;
        count_ = 0;
    }

    [[nodiscard]] bool IsEmpty() const { return count_ == 0; }

    /// A worth outside the range counts as the nearest inside.
    void Push(int worth, std::uint32_t node, NodeStore& nodes) {
        if (tops_.empty()) tops_.assign(Size, NoNode);
        const auto stack =
            static_cast<std::size_t>(std::clamp((worth + Middle) / Step, 0, static_cast<int>(Size) - 1));
        nodes[node].Next = tops_[stack];
        tops_[stack] = node;
        lowest_ = std::min(lowest_, stack);
        highest_ = std::max(highest_, stack);
        ++count_;
    }

    /// The worth of the best; the list must not be empty.
    [[nodiscard]] int Best() {
        while (tops_[highest_] == NoNode) --highest_;
        return static_cast<int>(highest_) * Step - Middle;
    }

    /// Takes out the best; the list must not be empty.
    std::uint32_t Pop(const NodeStore& nodes) {
        static_cast<void>(Best());
        const std::uint32_t node = tops_[highest_];
        tops_[highest_] = nodes[node].Next;
        --count_;
        return node;
    }

private:
    static constexpr std::size_t Size = 8192;
    static constexpr int Middle = 10000;
    static constexpr int Step = 2;

    std::vector<std::uint32_t> tops_;
    std::size_t lowest_ = Size;
    std::size_t highest_ = 0;
    std::size_t count_ = 0;
};

}  // namespace Solver
