// The rankings of the score store.
#include <stdexcept>

#include "engine/records/cScore.h"

namespace {

/// The places of a ranking while it is made. An empty place has a key of 0, as an empty record has.
struct Places {
    static constexpr int Count = cScore::TopPlaces;
    struct Place {
        const ScoreStore::Entry* Entry = nullptr;
        int Key = 0;
    };
    std::array<Place, Count + 1> At;  // place 0 stays empty

    /// Puts an entry at a place; what stood there and below moves down, the last one falls out.
    void Insert(std::size_t place, const ScoreStore::Entry& entry, int key) {
        for (std::size_t j = Count; j > place; --j) At[j] = At[j - 1];
        At[place] = {&entry, key};
    }

    void InsertHighest(const ScoreStore::Entry& entry) {
        if (entry.Score < At[Count].Key) return;
        for (std::size_t j = 1; j <= Count; ++j) {
            if (entry.Score < At[j].Key) continue;
            Insert(j, entry, entry.Score);
            return;
        }
    }

    void InsertLowest(const ScoreStore::Entry& entry, int key) {
        for (std::size_t j = 1; j <= Count; ++j) {
            if (At[j].Key == 0) {
                if (key > 0) At[j] = {&entry, key};
                return;
            }
            if (key <= At[j].Key) {
                Insert(j, entry, key);
                return;
            }
        }
    }
};

}  // namespace

template <typename Fill>
void cScore::Rank(Fill fill) {
    EraseTop();
    Places places;
    fill(places);
    for (std::size_t j = 1; j < top_.size(); ++j) {
        if (places.At[j].Entry) top_[j] = store_.Record(*places.At[j].Entry);
    }
}

void cScore::Sort(const std::string& gName, const std::string& Player, int Won) {
    const std::uint32_t game = store_.Games().Find(gName);
    const std::uint32_t player = store_.Players().Find(Player);
    Rank([&](Places& places) {
        const auto consider = [&](const ScoreStore::Entry& entry) {
            if (entry.Score <= 0 || (Won == 1 && entry.Won == 0)) return;
            if (!Player.empty() && entry.Player != player) return;
            places.InsertHighest(entry);
        };
        if (gName.empty()) {
            for (const ScoreStore::Entry& entry : store_.Entries()) consider(entry);
        } else if (game != NameList::None) {
            for (const std::uint32_t index : store_.OfGame(game)) consider(store_.Entries()[index]);
        }
    });
}

void cScore::FinSort(bool Time, bool Moves) {
    Rank([&](Places& places) {
        for (const ScoreStore::Entry& entry : store_.Entries()) {
            if (entry.Won != 1) continue;
            const int byTime = Time ? entry.Time : 0;
            places.InsertLowest(entry, Moves ? entry.Moves : byTime);
        }
    });
}

const tScore& cScore::GetTop(int j) const {
    if (j < 0 || j > TopPlaces) throw std::out_of_range("cScore: no such place");
    return top_[static_cast<std::size_t>(j)];
}
