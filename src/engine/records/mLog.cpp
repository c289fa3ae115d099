// The selection and the rows of the log dialog.
#include "engine/records/mLog.h"

#include <algorithm>
#include <stdexcept>

#include "engine/records/cScore.h"
#include "engine/records/mSorting.h"
#include "engine/records/mStatistics.h"
#include "engine/rules/mFunc.h"

namespace {

using Entry = ScoreStore::Entry;

double MomentOf(const Entry& entry) {
    constexpr double Day = 24.0 * 60 * 60;
    return entry.Day == ScoreStore::NoDay ? mSorting::None : entry.Day * Day + entry.Second;
}

double NumberOf(const Entry& entry, const ScoreStore& store) {
    if (entry.Kind != Entry::NumberKind::Text) return entry.Number;
    return mGameNumber::Parse(std::get<std::string>(store.Record(entry).GameNo)).value_or(mSorting::None);
}

/// The days on which a record may lie. A difference counts boundaries, so that a month back reaches to
/// that month's first day, and the present month counts to its end.
std::optional<mDates::DayRange> Days(const mLog::DateChoice& choice) {
    if (choice.Key[0] == '\0') return std::nullopt;
    const CivilTime now = mDates::Now();
    const mDates::Interval unit = choice.Unit == 'm' ? mDates::Interval::Month : mDates::Interval::Day;
    return mDates::DayRange{mDates::Period(mDates::Moved(now, -choice.Most, unit), unit).First,
                            mDates::Period(now, unit).Last};
}

}  // namespace

namespace mLog {

std::vector<int> Select(const std::string& player, const std::string& game, std::string_view date) {
    const auto* const choice = std::find_if(DateChoices.begin(), DateChoices.end(),
                                            [date](const DateChoice& entry) { return entry.Text == date; });
    if (choice == DateChoices.end()) throw std::out_of_range("mLog: no such choice of dates");
    return gScore->Find({.Player = player == AllPlayers ? std::string{} : player,
                         .gName = game == AllGames ? std::string{} : game,
                         .Dates = Days(*choice)});
}

std::vector<std::string> Row(const tScore& record, const RegionalDates& dates) {
    return {dates.ShortDate(record.Date),
            record.Player,
            record.gName,
            std::to_string(record.Score),
            mFunc::FormatTime(record.Time),
            std::to_string(record.Moves),
            mStatistics::StatusStr(record.Won),
            mGameNumber::Text(record.GameNo)};
}

std::vector<double> Keys(const std::vector<int>& indexes, int column, const Ranks& ranks) {
    const ScoreStore& store = gScore->Store();
    const std::string_view heading = Columns.at(static_cast<std::size_t>(column));
    const auto each = [&](auto key) {
        std::vector<double> keys;
        keys.reserve(indexes.size());
        for (const int index : indexes)
            keys.push_back(key(store.Entries().at(static_cast<std::size_t>(index - 1))));
        return keys;
    };
    if (heading == "Date") return each(MomentOf);
    if (heading == "Player") {
        const std::vector<double> places = ranks(store.Players().Names());
        return each([&](const Entry& entry) { return places.at(entry.Player); });
    }
    if (heading == "Game") {
        const std::vector<double> places = ranks(store.Games().Names());
        return each([&](const Entry& entry) { return places.at(entry.Game); });
    }
    if (heading == "Score") return each([](const Entry& entry) -> double { return entry.Score; });
    if (heading == "Time") return each([](const Entry& entry) -> double { return entry.Time; });
    if (heading == "Moves") return each([](const Entry& entry) -> double { return entry.Moves; });
    if (heading == "Status") return each([](const Entry& entry) { return entry.Won == 1 ? 1.0 : 0.0; });
    return each([&](const Entry& entry) { return NumberOf(entry, store); });
}

}  // namespace mLog
