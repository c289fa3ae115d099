// The rows of the high score dialog.
#include "engine/records/mRanking.h"

#include <stdexcept>

#include "engine/records/RegionalDates.h"
#include "engine/records/cScore.h"
#include "engine/records/mStatistics.h"
#include "engine/rules/mFunc.h"

namespace {

using mRanking::Row;

/// The rows of the present ranking, as far as `shown` says, each made by `row`.
template <typename Shown, typename MakeRow>
std::vector<Row> Rows(Shown shown, MakeRow row) {
    const RegionalDates dates = RegionalDates::Current();
    std::vector<Row> rows;
    for (int j = 1; j <= cScore::TopPlaces; ++j) {
        const tScore& record = gScore->GetTop(j);
        if (shown(record)) rows.push_back(row(j, record, dates.ShortDate(record.Date)));
    }
    return rows;
}

bool HasScore(const tScore& record) { return record.Score > 0; }

/// The cells from the score on.
void AddFigures(Row& row, const tScore& record, const std::string& date) {
    for (std::string cell :
         {std::to_string(record.Score), mFunc::FormatTime(record.Time), std::to_string(record.Moves),
          std::string(mStatistics::StatusStr(record.Won)), date, mGameNumber::Text(record.GameNo)}) {
        row.push_back(std::move(cell));
    }
}

}  // namespace

namespace mRanking {

std::vector<Row> TopRows() {
    gScore->Sort();
    return Rows(HasScore, [](int, const tScore& record, const std::string& date) {
        Row row{record.gName, record.Player};
        AddFigures(row, record, date);
        return row;
    });
}

std::vector<Row> GameRows(const std::string& gName) {
    gScore->Sort(gName);
    return Rows(HasScore, [](int place, const tScore& record, const std::string& date) {
        Row row{std::to_string(place), record.Player};
        AddFigures(row, record, date);
        return row;
    });
}

std::vector<Row> PlayerRows(const std::string& Player) {
    gScore->Sort({}, Player);
    return Rows(HasScore, [](int place, const tScore& record, const std::string& date) {
        Row row{std::to_string(place), record.gName};
        AddFigures(row, record, date);
        return row;
    });
}

std::vector<Row> FinishedRows(std::string_view key) {
    if (key == "Score") {
        gScore->Sort({}, {}, 1);
    } else if (key == "Moves") {
        gScore->FinSort(false, true);
    } else if (key == "Time") {
        gScore->FinSort(true, false);
    } else {
        throw std::out_of_range("mRanking: no such key");
    }
    // By the date, not by the score: a won game without a score has its place by moves and by time.
    const auto shown = [](const tScore& record) { return !record.Date.empty(); };
    return Rows(shown, [](int place, const tScore& record, const std::string& date) {
        return Row{std::to_string(place),
                   record.gName,
                   record.Player,
                   std::to_string(record.Score),
                   mFunc::FormatTime(record.Time),
                   std::to_string(record.Moves),
                   date,
                   mGameNumber::Text(record.GameNo)};
    });
}

}  // namespace mRanking
