// The pass over the records.
#include "engine/records/Career.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "engine/state/cData.h"

namespace {

using Entry = ScoreStore::Entry;
using Figures = Career::Figures;

/// Seconds of the wall's calendar; for an entry without a readable date those of the game before it.
std::int64_t TimeOf(const Entry& entry, std::int64_t before) {
    return entry.Day == ScoreStore::NoDay ? before
                                          : entry.Day * std::int64_t{mDates::SecondsInDay} + entry.Second;
}

/// Figures that grow game by game, in the order in which each player played them.
class Growing {
public:
    void Add(const std::vector<Entry>& entries, std::uint32_t index) {
        const Entry& entry = entries[index];
        const bool won = entry.Won == 1;
        ++figures_.Played;
        figures_.Won += won;
        Run(entry, index, won);
        const auto better = [&](std::uint32_t& best, int value, auto&& valueOf, bool least) {
            if (value <= 0) return;
            const int old = best == Career::None ? value : valueOf(entries[best]);
            if (least ? value <= old : value >= old) best = index;
        };
        better(
            figures_.BestScore, entry.Score, [](const Entry& of) { return of.Score; }, false);
        if (!won) return;
        better(
            figures_.BestTime, entry.Time, [](const Entry& of) { return of.Time; }, true);
        better(
            figures_.FewestMoves, entry.Moves, [](const Entry& of) { return of.Moves; }, true);
    }
    [[nodiscard]] Figures Take() const {
        Figures taken = figures_;
        if (mixed_) taken.Streak.Current = 0;
        return taken;
    }

private:
    void Run(const Entry& entry, std::uint32_t index, bool won) {
        Streaks& streak = figures_.Streak;
        // The records of a player lie together, so that nobody's streak is broken by another's games.
        if (figures_.Played > 1 && entry.Player != player_) {
            mixed_ = true;
            streak.Current = 0;
        }
        player_ = entry.Player;
        if (won) {
            streak.Current = std::max(streak.Current, 0) + 1;
            if (streak.Current >= streak.LongestWon) figures_.WonUntil = index;
            streak.LongestWon = std::max(streak.LongestWon, streak.Current);
        } else {
            streak.Current = std::min(streak.Current, 0) - 1;
            if (-streak.Current >= streak.LongestLost) figures_.LostUntil = index;
            streak.LongestLost = std::max(streak.LongestLost, -streak.Current);
        }
    }

    Figures figures_;
    std::uint16_t player_ = 0;
    bool mixed_ = false;
};

std::vector<Figures> Taken(const std::vector<Growing>& growing) {
    std::vector<Figures> taken;
    taken.reserve(growing.size());
    for (const Growing& each : growing) taken.push_back(each.Take());
    return taken;
}

}  // namespace

/// A filter in the store's numbers.
class Career::Wanted {
public:
    Wanted(const CareerFilter& filter, const Career& career)
        : days_(filter.Days),
          anyPlayer_(filter.Player.empty()),
          player_(career.store_.Players().Find(filter.Player)),
          anyGame_(filter.Gid == 0) {
        for (const int sid : career.sids_) games_.push_back(sid > 0 && gData->GidfromSiD(sid) == filter.Gid);
    }
    [[nodiscard]] bool Holds(const Entry& entry) const {
        if (!anyPlayer_ && entry.Player != player_) return false;
        if (days_ && (entry.Day == ScoreStore::NoDay || entry.Day < days_->First || entry.Day > days_->Last))
            return false;
        return anyGame_ || games_[entry.Game];
    }

private:
    std::optional<mDates::DayRange> days_;
    bool anyPlayer_;
    std::uint32_t player_;
    bool anyGame_;
    std::vector<bool> games_;
};

Career::Career(const ScoreStore& store) : store_(store) {
    std::map<std::string, int, std::less<>> known;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) known.emplace(gData->GetGame(SiD), SiD);
    for (const std::string& game : store.Games().Names()) {
        const auto found = known.find(game);
        sids_.push_back(found == known.end() ? 0 : found->second);
    }
    SortByTime();
}

void Career::SortByTime() {
    const std::vector<Entry>& entries = store_.Entries();
    std::vector<std::int64_t> times(entries.size());
    bool inOrder = true;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const bool first = i == 0 || entries[i - 1].Player != entries[i].Player;
        const std::int64_t before = first ? std::numeric_limits<std::int64_t>::min() : times[i - 1];
        times[i] = TimeOf(entries[i], before);
        inOrder = inOrder && times[i] >= before;
    }
    // The usual case: a file grows game by game. Records of another machine, or a clock that was set back,
    // stand elsewhere.
    if (inOrder) return;
    order_.resize(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) order_[i] = static_cast<std::uint32_t>(i);
    for (auto first = order_.begin(); first != order_.end();) {
        const std::uint16_t player = entries[*first].Player;
        const auto last =
            std::find_if(first, order_.end(), [&](std::uint32_t i) { return entries[i].Player != player; });
        std::stable_sort(first, last, [&](std::uint32_t a, std::uint32_t b) { return times[a] < times[b]; });
        first = last;
    }
}

Career::Result Career::Work(const CareerFilter& filter) const {
    const std::vector<Entry>& entries = store_.Entries();
    const Wanted wanted(filter, *this);
    Growing all;
    std::vector<Growing> games(static_cast<std::size_t>(gData->TotalGames()));
    std::vector<Growing> players(store_.Players().Names().size());
    Result result;
    Count* day = nullptr;  // a player's games of one day follow each other
    std::int32_t dayNumber = ScoreStore::NoDay;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::uint32_t index = order_.empty() ? static_cast<std::uint32_t>(i) : order_[i];
        const Entry& entry = entries[index];
        if (!wanted.Holds(entry)) continue;
        all.Add(entries, index);
        players[entry.Player].Add(entries, index);
        if (const int sid = sids_[entry.Game]; sid > 0)
            games[static_cast<std::size_t>(sid - 1)].Add(entries, index);
        if (entry.Day == ScoreStore::NoDay) continue;
        if (entry.Day != dayNumber || !day) {
            dayNumber = entry.Day;
            day = &result.Days[dayNumber];
        }
        for (Count* count : {day, &result.Hours[entry.Second / mDates::SecondsInHour]}) {
            ++count->Played;
            count->Won += entry.Won == 1;
        }
    }
    result.All = all.Take();
    result.Games = Taken(games);
    result.Players = Taken(players);
    return result;
}

std::vector<int> Career::Records(const CareerFilter& filter) const {
    const Wanted wanted(filter, *this);
    std::vector<int> found;
    for (std::size_t i = 0; i < store_.Entries().size(); ++i) {
        if (wanted.Holds(store_.Entries()[i])) found.push_back(static_cast<int>(i) + 1);
    }
    return found;
}
