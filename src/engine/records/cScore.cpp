// The score store: loading the players' files, totals, filters, the session list and the clearing.
#include "engine/records/cScore.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "engine/records/RegionalDates.h"
#include "engine/records/mPlayers.h"
#include "engine/state/cData.h"

std::unique_ptr<cScore> gScore;

cScore::cScore() : sessionStart_(gData->Layer().Calendar.Now()) {}

void cScore::OpenScore(const std::string& Player) {
    const RegionalDates dates = RegionalDates::Current();
    ReadLines(FileName(Player), Player + "'s records", [&](std::string_view line) {
        mScoreFile::ScoreFields fields;
        if (!mScoreFile::ParseScore(line, fields)) return false;
        store_.Add(fields, Player, dates);
        return true;
    });
}

void cScore::OpenAllScore() {
    WriteKept();  // what waits belongs into the view; that it waits was told when it happened
    store_ = {};
    bytes_ = 0;
    loaded_ = true;
    for (const std::string& player : mPlayers::Names()) OpenScore(player);
}

void cScore::CloseScore() {
    store_ = {};
    EraseTop();
    loaded_ = false;
}

tScore cScore::GetScore(int i) const {
    if (i < 1 || i > ScoreTop()) throw std::out_of_range("cScore: no such record");
    return store_.Record(store_.Entries()[static_cast<std::size_t>(i - 1)]);
}

tScore cScore::GetGameScore(const std::string& gName, int n) const {
    const std::uint32_t game = store_.Games().Find(gName);
    if (game == NameList::None || n < 1) return {};
    const std::vector<std::uint32_t>& entries = store_.OfGame(game);
    if (static_cast<std::size_t>(n) > entries.size()) return {};
    return store_.Record(store_.Entries()[entries[static_cast<std::size_t>(n - 1)]]);
}

tDateStat cScore::DateStat(const std::string& mDate, const std::string& mInterval) const {
    const mDates::Interval interval = mDates::IntervalOf(mInterval);
    const RegionalDates dates = RegionalDates::Current();
    tDateStat result;
    result.Label = mDate;
    const std::optional<CivilTime> date = dates.Read(mDate);
    if (!date) return result;
    const tStat stat = store_.DaySums(mDates::Period(*date, interval)).Stat();
    return {.Played = stat.Played,
            .Won = stat.Won,
            .Lost = stat.Lost,
            .Label = dates.Label(*date, interval),
            .Score = stat.Score,
            .Moves = stat.Moves,
            .Time = stat.Time};
}

std::vector<int> cScore::Find(const tFilter& filter) const {
    std::vector<int> found;
    const std::uint32_t player = store_.Players().Find(filter.Player);
    const std::uint32_t game = store_.Games().Find(filter.gName);
    if (!filter.Player.empty() && player == NameList::None) return found;
    const auto consider = [&](std::size_t index) {
        const ScoreStore::Entry& entry = store_.Entries()[index];
        if (!filter.Player.empty() && entry.Player != player) return;
        if (filter.Dates && (entry.Day == ScoreStore::NoDay || entry.Day < filter.Dates->First ||
                             entry.Day > filter.Dates->Last)) {
            return;
        }
        found.push_back(static_cast<int>(index) + 1);
    };
    if (filter.gName.empty()) {
        for (std::size_t index = 0; index < store_.Entries().size(); ++index) consider(index);
    } else if (game != NameList::None) {
        for (const std::uint32_t index : store_.OfGame(game)) consider(index);
    }
    return found;
}

void cScore::ClearStat() {
    const WindowLayer& layer = gData->Layer();
    if (!layer.Forms.Ask(
            "Are you sure you want to clear the Statistics, High Score and Log for all Players and "
            "all Games ?")) {
        return;
    }
    std::string faults;
    const bool alone = gData->Alone([&] {
        for (const std::string& player : mPlayers::Names()) {
            if (const FileError fault = DeleteScore(player)) {
                faults += "The file " + FileName(player) + " could not be deleted: " + *fault + "\n";
            }
        }
    });
    if (!alone) {
        layer.Forms.InformCritical("Another program is busy with the players. Nothing has been cleared.");
    } else if (faults.empty()) {
        layer.Forms.Inform("Statistics, High Score and Log have been Cleared.");
    } else {
        layer.Forms.InformCritical(faults + "Its records are still there.");
    }
}

void cScore::AddSesGame(int mWon) {
    const SessionFigures& figures = gData->Figures;
    tScore record;
    record.gName = figures.CurGName;
    record.GameNo = figures.CurGNo;
    record.Time = figures.CurTime;
    record.Moves = figures.CurMoves;
    record.Score = figures.CurScore;
    record.Won = mWon;
    record.Player = gData->CurPlayer();
    session_.push_back(std::move(record));
}

const tScore& cScore::GetSes(int i) const {
    if (i < 1 || i > SesTop()) throw std::out_of_range("cScore: no such session record");
    return session_[static_cast<std::size_t>(i - 1)];
}

tStat cScore::SesStat() const {
    ScoreSums sums;
    for (const tScore& record : session_) {
        sums.Add({.Played = 1,
                  .Won = record.Won == 1,
                  .Score = record.Score,
                  .Moves = record.Moves,
                  .Time = record.Time});
    }
    return sums.Stat();
}

int cScore::SesTime() const {
    constexpr Moment Millisecond = 1000;
    const Moment seconds = (gData->Layer().Calendar.Now() - sessionStart_) / Millisecond;
    return static_cast<int>(std::clamp<Moment>(seconds, 0, std::numeric_limits<int>::max()));
}
