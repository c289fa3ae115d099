// The positions that a search has still to look into, the most promising first, of equal ones the latest.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Solver {

class OpenList {
public:
    OpenList() : buckets_(Size) {}

    void Clear() {
        for (std::size_t bucket = lowest_; bucket <= highest_ && bucket < Size; ++bucket)
            buckets_[bucket].clear();
        lowest_ = Size;
        highest_ = 0;
        count_ = 0;
    }

    [[nodiscard]] bool IsEmpty() const { return count_ == 0; }

    /// A worth outside the range counts as the nearest inside.
    void Push(int worth, std::uint32_t node) {
        const auto bucket =
            static_cast<std::size_t>(std::clamp(worth + Middle, 0, static_cast<int>(Size) - 1));
        buckets_[bucket].push_back(node);
        lowest_ = std::min(lowest_, bucket);
        highest_ = std::max(highest_, bucket);
        ++count_;
    }

    /// Takes out the best; the list must not be empty.
    std::uint32_t Pop() {
        while (buckets_[highest_].empty()) --highest_;
        const std::uint32_t node = buckets_[highest_].back();
        buckets_[highest_].pop_back();
        --count_;
        return node;
    }

private:
    static constexpr std::size_t Size = 4096;
    static constexpr int Middle = 1000;

    std::vector<std::vector<std::uint32_t>> buckets_;
    std::size_t lowest_ = Size;
    std::size_t highest_ = 0;
    std::size_t count_ = 0;
};

}  // namespace Solver
