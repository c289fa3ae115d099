// Charts: whatever the values are, each leaves a bar in its own part of the plot, and its labels are round.
#include <limits>
#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/records/mPlot.h"

using mPlot::Kind;
using mStatistics::ChartData;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

constexpr int Largest = std::numeric_limits<int>::max();
constexpr int Smallest = std::numeric_limits<int>::min();

std::vector<std::string> LabelsOf(const mPlot::Plot& plot, bool times) {
    std::vector<std::string> texts;
    for (const mPlot::Label& label : plot.Heights) {
        if ((label.Text.find(':') != std::string::npos) == times) texts.push_back(label.Text);
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

// Three figures of three units on one scale: each bar ends where the scale has its value.
TEST(Plot, EffortsAreReadOffAScaleThatIsSaid) {
    const mPlot::Plot plot = mPlot::Make(Kind::Effort, Efforts({{10, 100, 1000}}));
    std::map<std::string, double> lines;
    for (const mPlot::Label& label : plot.Heights) lines[label.Text] = label.At;
    ASSERT_EQ(plot.Heights.size(), 5U);
    EXPECT_DOUBLE_EQ(plot.Bars[0].Top, lines.at("10"));
    EXPECT_DOUBLE_EQ(plot.Bars[1].Top, lines.at("100"));
    EXPECT_DOUBLE_EQ(plot.Bars[2].Top, lines.at("1,000"));
    EXPECT_FALSE(plot.Scale.empty());
    EXPECT_TRUE(mPlot::Make(Kind::Strips, Efforts({{10, 100, 1000}})).Scale.empty());
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
