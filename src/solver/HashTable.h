// The set of positions that a search has met, by their hash numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Solver {

class HashTable {
public:
    HashTable() { Clear(); }

    void Clear() {
        slots_.assign(FirstSize, 0);
        count_ = 0;
    }

    [[nodiscard]] std::size_t Count() const { return count_; }

    /// Has the place of a number brought near, for an Insert soon after.
    void Prefetch(std::uint64_t hash) const { __builtin_prefetch(&slots_[hash & (slots_.size() - 1)]); }

    [[nodiscard]] bool Has(std::uint64_t hash) const {
        std::size_t slot = hash & (slots_.size() - 1);
        while (slots_[slot] != 0) {
            if (slots_[slot] == hash) return true;
            slot = (slot + 1) & (slots_.size() - 1);
        }
        return false;
    }

    /// Whether the number is new to the set; it is in it then.
    bool Insert(std::uint64_t hash) {
        if (hash == 0) hash = 1;  // 0 marks a free slot
        std::size_t slot = hash & (slots_.size() - 1);
        while (slots_[slot] != 0) {
            if (slots_[slot] == hash) return false;
            slot = (slot + 1) & (slots_.size() - 1);
        }
        slots_[slot] = hash;
        if (++count_ * 4 > slots_.size() * 3) Grow();
        return true;
    }

private:
    static constexpr std::size_t FirstSize = 4096;

    void Grow() {
        // The two vectors change places, so that their memory is kept from deal to deal.
        spare_.swap(slots_);
        slots_.assign(spare_.size() * 2, 0);
        for (const std::uint64_t hash : spare_) {
            if (hash == 0) continue;
            std::size_t slot = hash & (slots_.size() - 1);
            while (slots_[slot] != 0) slot = (slot + 1) & (slots_.size() - 1);
            slots_[slot] = hash;
        }
    }

    std::vector<std::uint64_t> slots_;  // a power of two of them
    std::vector<std::uint64_t> spare_;
    std::size_t count_ = 0;
};

}  // namespace Solver
