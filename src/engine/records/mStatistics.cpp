// Rates, rows and chart data of the statistics dialog.
#include "engine/records/mStatistics.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <fmt/format.h>

#include "engine/records/cScore.h"
#include "engine/records/mDates.h"
#include "engine/records/mPlayers.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cData.h"

namespace {

using mStatistics::Row;

int OrOne(int divisor) { return divisor == 0 ? 1 : divisor; }

/// The nearest whole number to a quotient, halves to the even one. The divisor is above 0. In whole
/// numbers, since a binary fraction near a half would tip over to the wrong side.
long long Rounded(long long dividend, long long divisor) {
    const long long size = std::llabs(dividend);
    long long whole = size / divisor;
    const long long twice = size % divisor * 2;
    if (twice > divisor || (twice == divisor && whole % 2 == 1)) ++whole;
    return dividend < 0 ? -whole : whole;
}

/// A count an hour, towards zero.
std::string PerHour(int count, int seconds) {
    constexpr double Hour = 3600.0;
    return fmt::format("{:.0f}", std::trunc(static_cast<double>(count) / seconds * Hour) + 0.0);
}

Row StatRow(const std::string& name, const tStat& stat, const std::string& percentage) {
    return {name,
            std::to_string(stat.Played),
            std::to_string(stat.Won),
            std::to_string(stat.Lost),
            mFunc::FormatTime(stat.Time),
            std::to_string(stat.Moves),
            std::to_string(stat.Score),
            percentage + "%"};
}

bool ComesBefore(const std::string& left, const std::string& right) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                        [&](char a, char b) { return lower(a) < lower(b); });
}

}  // namespace

namespace mStatistics {

const char* StatusStr(int Won) { return Won == 1 ? "Won" : "Lost"; }

std::string Round(long long dividend, long long divisor) {
    constexpr long long Hundred = 100;
    const long long hundredths = Rounded(dividend * Hundred, divisor);
    std::string text = fmt::format("{}{}.{:02}", hundredths < 0 ? "-" : "", std::llabs(hundredths) / Hundred,
                                   std::llabs(hundredths) % Hundred);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

std::vector<std::string> SortedGames() {
    std::vector<std::string> names = gData->GameNames();
    std::sort(names.begin(), names.end(), ComesBefore);
    return names;
}

ChartData ResultChart(const tStat& stat) {
    return {{fmt::format("Won : {}", stat.Won), fmt::format("Lost : {}", stat.Lost)},
            {{stat.Won, stat.Lost}},
            {},
            {stat.Won + stat.Lost}};
}

ChartData EffortChart(const tStat& stat) {
    return {
        {"Score", "Moves", "Time"}, {{std::max(0, stat.Score), stat.Moves, stat.Time}}, {}, {stat.Played}};
}

std::vector<std::string> GeneralLines(const tStat& total) {
    const int mPlayed = OrOne(total.Played);
    const int mTime = OrOne(total.Time);
    const auto timePerGame = static_cast<int>(Rounded(total.Time, mPlayed));
    return {
        fmt::format("Games Played : {}", total.Played),
        fmt::format("Games Won : {}", total.Won),
        fmt::format("Games Lost : {}", total.Lost),
        fmt::format("Total Moves : {}", total.Moves),
        fmt::format("Total Score : {}", total.Score),
        "Total Time : " + mFunc::FormatTime(total.Time),
        fmt::format("Moves Per Game : {}", total.Moves / mPlayed),
        fmt::format("Score Per Game : {}", total.Score / mPlayed),
        "Time Per Game : " + mFunc::FormatTime(timePerGame),
        "Games Per Hour : " + PerHour(total.Played, mTime),
        "Moves Per Hour : " + PerHour(total.Moves, mTime),
        "Score Per Hour : " + PerHour(total.Score, mTime),
        "Winning Percentage : " + Round(total.Won * 100LL, mPlayed) + "%",
    };
}

std::vector<Row> GameRows() {
    std::vector<Row> rows;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        const std::string& name = gData->GetGame(SiD);
        const tStat stat = gScore->GameStat(name);
        rows.push_back(StatRow(name, stat, Round(stat.Won * 100LL, OrOne(stat.Played))));
    }
    return rows;
}

ChartData RecordsChart(const std::string& gName) {
    constexpr int MostRecords = 50;
    ChartData chart{{"Score", "Moves", "Time"}, {{std::nullopt, std::nullopt, std::nullopt}}, {""}};
    const int count = std::min(gScore->GameStat(gName).Played, MostRecords);
    for (int k = 1; k <= count; ++k) {
        const tScore record = gScore->GetGameScore(gName, k);
        chart.Rows.push_back({record.Score, record.Moves, record.Time});
        chart.Points.push_back(std::to_string(k));
    }
    return chart;
}

DateView Dates(const DateRange& range) {
    DateView view{{}, {{"Played", "Won"}, {}}, {{"Score", "Moves", "Time"}, {}}};
    const CivilTime now = mDates::Now();
    const mDates::Interval interval = mDates::IntervalOf(range.Tag);
    for (int i = -range.Back; i <= 0; ++i) {
        const tDateStat stat = gScore->DateStat(mDates::Text(mDates::Moved(now, i, interval)), range.Tag);
        view.Rows.push_back({stat.Label, std::to_string(stat.Played), std::to_string(stat.Won)});
        view.Played.Rows.push_back({stat.Played, stat.Won});
        view.Effort.Rows.push_back({stat.Score, stat.Moves, stat.Time});
        view.Played.Points.push_back(stat.Label);
        view.Effort.Points.push_back(stat.Label);
        view.Played.Games.push_back(stat.Played);
        view.Effort.Games.push_back(stat.Played);
    }
    return view;
}

std::vector<Row> PlayerRows() {
    std::vector<Row> rows;
    for (const std::string& name : mPlayers::Names()) {
        const tStat stat = gScore->PlayerStat(name);
        // The ratio is rounded to two decimals before it becomes a percentage.
        rows.push_back(StatRow(name, stat, std::to_string(Rounded(stat.Won * 100LL, OrOne(stat.Played)))));
    }
    return rows;
}

}  // namespace mStatistics
