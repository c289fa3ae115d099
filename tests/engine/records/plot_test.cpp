// Charts: whatever the values are, each leaves a bar in its own part of the plot, and its labels are round.
#include <algorithm>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "engine/records/mPlot.h"
#include "support/Expect.h"

using mPlot::Kind;
using mStatistics::ChartData;

namespace {

constexpr int Largest = std::numeric_limits<int>::max();
constexpr int Smallest = std::numeric_limits<int>::min();

std::vector<std::string> LabelsOf(const mPlot::Plot& plot, bool times) {
    std::vector<std::string> texts;
    for (const mPlot::Label& label : plot.Heights) {
        // A name may stand before it.
        const std::string text = label.Text.substr(label.Names < 0 ? 0 : label.Text.rfind(' ') + 1);
        if ((text.find(':') != std::string::npos) == times) texts.push_back(text);
    }
    return texts;
}

ChartData Efforts(std::vector<std::vector<std::optional<int>>> rows) {
    ChartData data{{"Score", "Moves", "Time"}, std::move(rows)};
    for (std::size_t i = 0; i < data.Rows.size(); ++i) data.Points.push_back(std::to_string(i));
    return data;
}

TEST(Plot, EveryValueLeavesABarAndNoneHidesAnother) {
    constexpr double Visible = 0.005;
    constexpr auto none = std::nullopt;
    const std::pair<Kind, ChartData> rows[] = {
        {Kind::Result, {{"Won : 1", "Lost : 1000000"}, {{1, 1000000}}}},
        {Kind::Result, {{"Won : 0", "Lost : 0"}, {{0, 0}}}},
        {Kind::Effort, Efforts({{0, Largest, 1}})},
        {Kind::Effort, Efforts({{0, -7, Smallest}})},
        {Kind::Periods, {{"Played", "Won"}, {{0, 0}, {100000, 1}, {3, 2}}, {"a", "b", "c"}}},
        {Kind::Strips, Efforts({{none, none, none}, {-52, 240, 1}, {520, 1, 4000}})},
        {Kind::Strips, Efforts({{-1, -1, -1}, {Largest, Largest, Largest}, {0, 0, 0}})},
        {Kind::Strips, Efforts({{Smallest, 0, Smallest}, {Largest, 0, -1}})},
    };
    for (const auto& [kind, data] : rows) {
        SCOPED_TRACE(mPlot::Description(kind, data));
        const mPlot::Plot plot = mPlot::Make(kind, data);
        std::size_t values = 0;
        for (const auto& row : data.Rows) {
            for (const auto& value : row) values += value ? 1 : 0;
        }
        EXPECT_EQ(plot.Bars.size(), values);
        const auto named = std::count_if(plot.Heights.begin(), plot.Heights.end(),
                                         [](const mPlot::Label& label) { return label.Names >= 0; });
        EXPECT_EQ(named, kind == Kind::Strips ? 3 : 0) << "each strip at its own 0";
        std::map<int, double> reached;  // by place, from the top down
        for (const mPlot::Bar& bar : plot.Bars) {
            EXPECT_GE(bar.Top - bar.Bottom, Visible);
            EXPECT_GE(bar.Bottom, 0.0);
            EXPECT_LE(bar.Top, reached.contains(bar.Place) ? reached[bar.Place] : 1.001);
            reached[bar.Place] = bar.Bottom;
            EXPECT_TRUE(bar.Place >= 0 && bar.Place < plot.Places);
        }
        for (const mPlot::Label& label : plot.Heights) EXPECT_TRUE(label.At >= 0.0 && label.At <= 1.0);
    }
}

// Three figures of three units: each on a scale that its own labels say.
TEST(Plot, EffortsAreReadOffScalesOfTheirOwn) {
    struct Row {
        int Score, Moves, Seconds;
        std::vector<std::string> Tops;  // the highest labels
        std::vector<double> Bars;
    };
    const Row rows[] = {
        {520, 104, 3605, {"600", "150", "80 min"}, {520 / 600.0, 104 / 150.0, 3605 / 4800.0}},
        {0, 1, 59, {"1", "1", "60 s"}, {0.008, 1.0, 59 / 60.0}},
        {20000, 4000000, 100 * 3600, {"20k", "4M", "100 h"}, {1.0, 1.0, 1.0}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Score);
        const mPlot::Plot plot = mPlot::Make(Kind::Effort, Efforts({{row.Score, row.Moves, row.Seconds}}));
        EXPECT_TRUE(plot.Heights.empty()) << "no scale of all";
        ASSERT_EQ(plot.Panels.size(), 3U);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(plot.Panels[i].Heights.back().Text, row.Tops[i]);
            EXPECT_EQ(plot.Panels[i].Heights.back().At, 1.0);
            EXPECT_NEAR(plot.Bars[i].Top, row.Bars[i], 1e-9);
        }
    }
}

TEST(Plot, WithoutAGameNothingStands) {
    const ChartData days{{"Played", "Won"}, {{0, 0}, {3, 0}}, {"Jan 01", "Jan 02"}, {0, 3}};
    const mPlot::Plot plot = mPlot::Make(Kind::Periods, days);
    EXPECT_EQ(plot.Bars.size(), 2U) << "a day on which nothing was won has a trace of it";
    EXPECT_EQ(mPlot::Tip(Kind::Periods, days, plot, 0), "Jan 01\nNo games");
    EXPECT_EQ(mPlot::Tip(Kind::Periods, days, plot, plot.Places - 1), "Jan 02\nPlayed 3\nWon 0");
    EXPECT_EQ(mPlot::Description(Kind::Periods, days), "Jan 02: Played 3, Won 0");
    EXPECT_FALSE(mPlot::IsEmpty(days));
    for (const auto& [kind, data] : {std::pair{Kind::Result, mStatistics::ResultChart({})},
                                     std::pair{Kind::Effort, mStatistics::EffortChart({})}}) {
        EXPECT_TRUE(mPlot::IsEmpty(data) && mPlot::Make(kind, data).Bars.empty());
        EXPECT_EQ(mPlot::Description(kind, data), "No games yet");
        EXPECT_EQ(mPlot::Tip(kind, data, mPlot::Make(kind, data), 0), "");
    }
    const ChartData played = mStatistics::EffortChart({.Played = 1, .Lost = 1});
    EXPECT_FALSE(mPlot::IsEmpty(played)) << "given up at once";
    EXPECT_EQ(mPlot::Tip(Kind::Effort, played, mPlot::Make(Kind::Effort, played), 3), "Moves 0");
}

TEST(Plot, HeightsAreLabelledAtRoundNumbers) {
    using Texts = std::vector<std::string>;
    struct Row {
        int Low, High;  // of the scores and of the times
        Texts Scores, Times;
    };
    const Row rows[] = {
        {0, 0, {"0"}, {"0:00:00"}},
        {-52, 520, {"0", "200", "400"}, {"0:00:00", "0:05:00"}},
        {0, 4000, {"0", "2000", "4000"}, {"0:00:00", "0:30:00", "1:00:00"}},
        {-8, -3, {"-5", "0"}, {}},
        {0, Largest, {"0", "1000000000", "2000000000"}, {"0:00:00", "200000:00:00", "400000:00:00"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.High);
        ChartData one{{"Score"}, {{row.Low}, {row.High}}, {"1", "2"}};
        EXPECT_THAT(LabelsOf(mPlot::Make(Kind::Strips, one), false), ElementsAreArray(row.Scores));
        if (row.Times.empty()) continue;
        const auto three = mPlot::Make(Kind::Strips, Efforts({{0, 0, row.Low}, {0, 0, row.High}}));
        EXPECT_THAT(LabelsOf(three, true), ElementsAreArray(row.Times));
    }
}

}  // namespace
