// The selection and the rows of the log dialog.
#include "engine/records/mLog.h"

#include <algorithm>
#include <stdexcept>

#include "engine/records/cScore.h"
#include "engine/records/mStatistics.h"
#include "engine/rules/mFunc.h"

namespace {

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

}  // namespace mLog
