// Choices, tables and charts of careers.
#include "engine/records/mCareerTables.h"

#include <algorithm>
#include <stdexcept>

#include <fmt/format.h>

#include "engine/records/RegionalDates.h"
#include "engine/records/mCsv.h"
#include "engine/records/mOwnFiles.h"
#include "engine/records/mPlayers.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cData.h"

namespace {

using mCareerTables::Cell;
using mCareerTables::Heading;
using mDates::DayRange;
using mDates::Interval;
using mDates::MonthsInYear;
using Count = Career::Count;
using Row = std::vector<Cell>;

DayRange Backward(int count, Interval unit) {
    const CivilTime now = mDates::Now();
    return {mDates::Period(mDates::Moved(now, 1 - count, unit), unit).First, mDates::Period(now, unit).Last};
}

std::vector<int> GamesOf(const CareerFilter& filter) {
    std::vector<int> games;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        if (filter.Gid == 0 || gData->GidfromSiD(SiD) == filter.Gid) games.push_back(SiD);
    }
    return games;
}

const Career::Figures& GameFigures(const Career::Result& result, int SiD) {
    return result.Games.at(static_cast<std::size_t>(SiD - 1));
}

Cell Same(const std::string& text) { return {text, text}; }
Cell Counted(std::int64_t value) { return Same(std::to_string(value)); }
Cell Share(const Count& count) {
    if (count.Played == 0) return {};
    const std::string share = mStatistics::Round(count.Won * 100, count.Played);
    return {share + '%', share};
}
Cell Streak(int length) {
    if (length == 0) return {};
    return {std::to_string(std::abs(length)) + (length > 0 ? " won" : " lost"), std::to_string(length)};
}
std::string IsoDate(int day) { return mDates::Text(mDates::FromDayNumber(day)).substr(0, 10); }

/// Cells that a record gives; empty ones where there is none.
class OfRecord {
public:
    explicit OfRecord(const ScoreStore& store) : store_(store), dates_(RegionalDates::Current()) {}

    [[nodiscard]] Cell Date(std::uint32_t index) const {
        if (index == Career::None) return {};
        const ScoreStore::Entry& entry = At(index);
        if (entry.Day == ScoreStore::NoDay) return Same(store_.DateText(entry));
        return {dates_.ShortDate(mDates::FromDayNumber(entry.Day)), IsoDate(entry.Day)};
    }
    [[nodiscard]] Cell Time(std::uint32_t index) const {
        if (index == Career::None) return {};
        return {mFunc::FormatTime(At(index).Time), std::to_string(At(index).Time)};
    }
    [[nodiscard]] Cell Moves(std::uint32_t index) const {
        return index == Career::None ? Cell{} : Counted(At(index).Moves);
    }
    [[nodiscard]] Cell Score(std::uint32_t index) const {
        return index == Career::None ? Cell{} : Counted(At(index).Score);
    }
    /// Game, player, date and number of the record behind a figure.
    [[nodiscard]] Row Named(const char* what, Cell figure, std::uint32_t index) const {
        Row row{Same(what), std::move(figure)};
        if (index == Career::None) {
            row.resize(6);
            return row;
        }
        const tScore record = store_.Record(At(index));
        row.push_back(Same(record.gName));
        row.push_back(Same(record.Player));
        row.push_back(Date(index));
        row.push_back(Same(mGameNumber::Text(record.GameNo)));
        return row;
    }

private:
    [[nodiscard]] const ScoreStore::Entry& At(std::uint32_t index) const {
        return store_.Entries().at(index);
    }

    const ScoreStore& store_;
    RegionalDates dates_;
};

std::vector<Heading> FigureHeadings(const char* first) {
    return {{first, first},
            {"Played", "Played"},
            {"Won", "Won"},
            {"Perc", "Won Percent"},
            {"Streak", "Current Streak"},
            {"Longest Won", "Longest Streak Won"},
            {"Longest Lost", "Longest Streak Lost"},
            {"Best Time", "Best Time in Seconds"},
            {"Date", "Best Time Date"},
            {"Fewest Moves", "Fewest Moves"},
            {"Date", "Fewest Moves Date"},
            {"Best Score", "Best Score"},
            {"Date", "Best Score Date"}};
}

/// The length of a streak; nothing where no game was played.
Cell Longest(int length, const Count& of) { return of.Played == 0 ? Cell{} : Counted(length); }

Row FigureRow(const std::string& name, const Career::Figures& of, const OfRecord& record) {
    return {Same(name),
            Counted(of.Played),
            Counted(of.Won),
            Share(of),
            Streak(of.Streak.Current),
            Longest(of.Streak.LongestWon, of),
            Longest(of.Streak.LongestLost, of),
            record.Time(of.BestTime),
            record.Date(of.BestTime),
            record.Moves(of.FewestMoves),
            record.Date(of.FewestMoves),
            record.Score(of.BestScore),
            record.Date(of.BestScore)};
}

bool Fits(const Count& count, mCareerTables::GameChoice choice) {
    using enum mCareerTables::GameChoice;
    switch (choice) {
        case Played:
            return count.Played > 0;
        case Won:
            return count.Won > 0;
        case NeverWon:
            return count.Played > 0 && count.Won == 0;
        case NeverPlayed:
            return count.Played == 0;
        case All:
            break;
    }
    return true;
}

/// Weeks by the day of their Monday, months by their number since the year 0.
std::map<int, Count> ByUnit(const Career::Result& result, mCareerTables::Unit unit) {
    std::map<int, Count> counts;
    for (const auto& [day, count] : result.Days) {
        int key = 0;
        if (unit == mCareerTables::Unit::Week) {
            constexpr int Week = 7;
            constexpr int Thursday = 3;  // the day with the number 0
            key = day - ((day + Thursday) % Week + Week) % Week;
        } else {
            const CivilTime date = mDates::FromDayNumber(day);
            key = date.Year * MonthsInYear + date.Month - 1;
        }
        counts[key].Played += count.Played;
        counts[key].Won += count.Won;
    }
    return counts;
}

Cell UnitCell(int key, mCareerTables::Unit unit, const RegionalDates& dates) {
    if (unit == mCareerTables::Unit::Week) return {dates.ShortDate(mDates::FromDayNumber(key)), IsoDate(key)};
    const CivilTime month{.Year = key / MonthsInYear, .Month = key % MonthsInYear + 1};
    return {dates.Label(month, Interval::Month), fmt::format("{:04}-{:02}", month.Year, month.Month)};
}

void AddPoint(mCareerTables::Charts& charts, const std::string& label, const Count& count) {
    charts.Played.Points.push_back(label);
    charts.Share.Points.push_back(label);
    if (count.Played == 0) {
        charts.Played.Rows.push_back({std::nullopt, std::nullopt});
        charts.Share.Rows.push_back({std::nullopt});
        return;
    }
    charts.Played.Rows.push_back({static_cast<int>(count.Played), static_cast<int>(count.Won)});
    charts.Share.Rows.push_back({static_cast<int>((count.Won * 200 + count.Played) / (count.Played * 2))});
}

mCareerTables::Charts EmptyCharts() { return {{{"Played", "Won"}, {}, {}}, {{"Won in %"}, {}, {}}}; }

}  // namespace

namespace mCareerTables {

std::optional<DayRange> Days(std::string_view period) {
    const auto* const found = std::find(Periods.begin(), Periods.end(), period);
    switch (found - Periods.begin()) {
        case 0:
            return std::nullopt;
        case 1:
            return Backward(7, Interval::Day);
        case 2:
            return Backward(30, Interval::Day);
        case 3:
            return Backward(3, Interval::Month);
        case 4:
            return Backward(MonthsInYear, Interval::Month);
        case 5:
            return Backward(1, Interval::Year);
        case 6:
            return mDates::Period(mDates::Moved(mDates::Now(), -1, Interval::Year), Interval::Year);
        default:
            throw std::out_of_range("mCareerTables: no such period");
    }
}

std::vector<mStatistics::Row> ShownRows(const Table& table) {
    std::vector<mStatistics::Row> rows;
    rows.reserve(table.Rows.size());
    for (const Row& row : table.Rows) {
        mStatistics::Row& shown = rows.emplace_back();
        for (const Cell& cell : row) shown.push_back(cell.Shown);
    }
    return rows;
}

std::string Csv(const Table& table) {
    std::string text;
    std::vector<std::string> fields;
    for (const Heading& heading : table.Headings) fields.emplace_back(heading.Plain);
    mCsv::AppendRow(text, fields);
    for (const Row& row : table.Rows) {
        fields.clear();
        for (const Cell& cell : row) fields.push_back(cell.Plain);
        mCsv::AppendRow(text, fields);
    }
    return text;
}

std::string Progress(const Career::Result& result, const CareerFilter& filter) {
    const Table groups = Groups(result, filter);
    const Row& sum = groups.Rows.back();
    return fmt::format("Played {}, won {} of {} games.", sum[2].Shown, sum[3].Shown, sum[1].Shown);
}

Table Summary(const Career& career, const Career::Result& result) {
    const Career::Figures& all = result.All;
    const OfRecord record(career.Store());
    Table table{{{"Record", "Record"},
                 {"Figure", "Figure"},
                 {"Game", "Game"},
                 {"Player", "Player"},
                 {"Date", "Date"},
                 {"Game Number", "Game Number"}},
                {}};
    const auto add = [&](const char* what, Cell figure, std::uint32_t index = Career::None) {
        table.Rows.push_back(record.Named(what, std::move(figure), index));
    };
    add("Deals Played", Counted(all.Played));
    add("Deals Won", Counted(all.Won));
    add("Deals Won in Percent", Share(all));
    add("Current Streak", Streak(all.Streak.Current));
    // The game that ended the streak tells until when it lasted.
    add("Longest Streak Won", Counted(all.Streak.LongestWon), all.WonUntil);
    add("Longest Streak Lost", Counted(all.Streak.LongestLost), all.LostUntil);
    add("Best Time", record.Time(all.BestTime), all.BestTime);
    add("Fewest Moves", record.Moves(all.FewestMoves), all.FewestMoves);
    add("Best Score", record.Score(all.BestScore), all.BestScore);
    return table;
}

Table Groups(const Career::Result& result, const CareerFilter& filter) {
    struct Sum {
        int Games = 0, Played = 0, Won = 0;
    };
    std::map<int, Sum> sums;
    Sum all;
    for (const int SiD : GamesOf(filter)) {
        const Count& count = GameFigures(result, SiD);
        for (Sum* sum : {&sums[gData->GidfromSiD(SiD)], &all}) {
            ++sum->Games;
            sum->Played += count.Played > 0;
            sum->Won += count.Won > 0;
        }
    }
    Table table{{{"Group", "Group"},
                 {"Games", "Games"},
                 {"Played", "Games Played"},
                 {"Won", "Games Won"},
                 {"Never Won", "Games Played, Never Won"},
                 {"Never Played", "Games Never Played"}},
                {}};
    const auto add = [&table](const std::string& name, const Sum& sum) {
        table.Rows.push_back({Same(name), Counted(sum.Games), Counted(sum.Played), Counted(sum.Won),
                              Counted(sum.Played - sum.Won), Counted(sum.Games - sum.Played)});
    };
    for (const auto& [Gid, sum] : sums) add(gData->GroupfromGiD(Gid), sum);
    if (sums.size() != 1) add(AllGroups, all);
    return table;
}

Table Games(const Career& career, const Career::Result& result, const CareerFilter& filter,
            GameChoice choice) {
    const OfRecord record(career.Store());
    Table table{FigureHeadings("Game"), {}};
    for (const int SiD : GamesOf(filter)) {
        const Career::Figures& of = GameFigures(result, SiD);
        if (Fits(of, choice)) table.Rows.push_back(FigureRow(gData->GetGame(SiD), of, record));
    }
    return table;
}

Table Players(const Career& career, const Career::Result& result, const CareerFilter& filter) {
    const OfRecord record(career.Store());
    Table table{FigureHeadings("Player"), {}};
    for (const std::string& name : mPlayers::Names()) {
        if (!filter.Player.empty() && name != filter.Player) continue;
        const std::uint32_t number = career.Store().Players().Find(name);
        table.Rows.push_back(FigureRow(
            name, number == NameList::None ? Career::Figures{} : result.Players.at(number), record));
    }
    return table;
}

Table Times(const Career::Result& result, Unit unit) {
    const RegionalDates dates = RegionalDates::Current();
    Table table{{unit == Unit::Week ? Heading{"Week from", "Week from"} : Heading{"Month", "Month"},
                 {"Played", "Played"},
                 {"Won", "Won"},
                 {"Perc", "Won Percent"}},
                {}};
    for (const auto& [key, count] : ByUnit(result, unit)) {
        table.Rows.push_back(
            {UnitCell(key, unit, dates), Counted(count.Played), Counted(count.Won), Share(count)});
    }
    return table;
}

Table Hours(const Career::Result& result) {
    Table table{{{"Time of Day", "Hour"}, {"Played", "Played"}, {"Won", "Won"}, {"Perc", "Won Percent"}}, {}};
    for (std::size_t hour = 0; hour < result.Hours.size(); ++hour) {
        const Count& count = result.Hours[hour];
        table.Rows.push_back({{fmt::format("{}:00 to {}:59", hour, hour), std::to_string(hour)},
                              Counted(count.Played),
                              Counted(count.Won),
                              Share(count)});
    }
    return table;
}

Charts TimeCharts(const Career::Result& result, Unit unit) {
    constexpr int Most = 60;
    const int step = unit == Unit::Week ? 7 : 1;
    const RegionalDates dates = RegionalDates::Current();
    const std::map<int, Count> counts = ByUnit(result, unit);
    Charts charts = EmptyCharts();
    if (counts.empty()) return charts;
    const int last = counts.rbegin()->first;
    for (int key = std::max(counts.begin()->first, last - (Most - 1) * step); key <= last; key += step) {
        const auto found = counts.find(key);
        AddPoint(charts, UnitCell(key, unit, dates).Shown, found == counts.end() ? Count{} : found->second);
    }
    return charts;
}

Charts HourCharts(const Career::Result& result) {
    Charts charts = EmptyCharts();
    if (result.Days.empty()) return charts;
    for (std::size_t hour = 0; hour < result.Hours.size(); ++hour) {
        AddPoint(charts, std::to_string(hour), result.Hours[hour]);
    }
    return charts;
}

std::string RecordsCsv(const ScoreStore& store, const std::vector<int>& records, const GoOn& goOn) {
    constexpr std::size_t LineLength = 70;
    constexpr std::size_t Steps = 100;
    std::string text;
    text.reserve((records.size() + 1) * LineLength);
    mCsv::AppendRow(text, {RecordColumns.begin(), RecordColumns.end()});
    const std::size_t step = records.size() / Steps + 1;
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (i % step == 0 && !goOn(static_cast<int>(i / step))) break;
        const ScoreStore::Entry& entry = store.Entries().at(static_cast<std::size_t>(records[i] - 1));
        const tScore record = store.Record(entry);
        mCsv::AppendRow(
            text,
            {entry.Day == ScoreStore::NoDay ? record.Date : mDates::Text(ScoreStore::TimeOf(entry)),
             record.Player, record.gName, mGameNumber::Text(record.GameNo), std::to_string(record.Score),
             std::to_string(record.Time), std::to_string(record.Moves), mStatistics::StatusStr(record.Won)});
    }
    return text;
}

void Export(const std::string& name, const MakeText& make) {
    Forms& forms = gData->Layer().Forms;
    const auto file = mOwnFiles::AskTarget(name, "CSV File (*.csv) |*.csv", "The list is");
    if (!file) return;
    bool cancelled = false;
    const auto goOn = [&](int percent) {
        cancelled = !forms.ShowProgress("Exporting the list", percent);
        return !cancelled;
    };
    if (!goOn(0)) return;
    const std::string text = make(goOn);
    if (cancelled) return;
    const FileError fault = gData->Layer().Files.Replace(*file, text);
    constexpr int Whole = 100;
    (void)goOn(Whole);
    if (fault) {
        forms.InformCritical("The list could not be written to " + *file + ": " + *fault);
    } else {
        forms.Inform("Statistics Successfully Exported to " + *file);
    }
}

}  // namespace mCareerTables
