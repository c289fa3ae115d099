// Scales, heights and labels of the charts.
#include "engine/records/mPlot.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <fmt/format.h>

#include "engine/rules/mFunc.h"

namespace {

using mPlot::Bar;
using mPlot::Kind;
using mPlot::Label;
using mPlot::Plot;
using mStatistics::ChartData;

// What a value is drawn with at least, so that a 0 can be told from no value, and a 1 from a 0.
constexpr double ZeroTrace = 0.008;
constexpr double LeastTrace = 0.02;
/// The part of a strip that keeps it apart from the one above.
constexpr double StripGap = 0.24;

bool IsTime(Kind kind, std::size_t series) {
    constexpr std::size_t TimeColumn = 2;
    return (kind == Kind::Effort || kind == Kind::Strips) && series == TimeColumn;
}

std::string ValueText(Kind kind, std::size_t series, int value) {
    return IsTime(kind, series) ? mFunc::FormatTime(value) : std::to_string(value);
}

/// The bar of a value that stands at height `at`, over or under its zero.
Bar MakeBar(std::size_t series, std::size_t place, double zero, double at, int value) {
    const double least = value == 0 ? ZeroTrace : LeastTrace;
    const double height = std::max(std::fabs(at - zero), least);
    // Not below the plot, where the trace of a small negative value would vanish.
    const double bottom = std::max(0.0, value < 0 ? zero - height : zero);
    return {static_cast<int>(series), static_cast<int>(place), bottom, bottom + height};
}

/// A straight scale over some part of the plot; 0 is always on it.
struct Scale {
    double Low = 0;
    double High = 0;
    double Bottom = 0;
    double Height = 1;

    void Take(int value) {
        Low = std::min(Low, static_cast<double>(value));
        High = std::max(High, static_cast<double>(value));
    }
    [[nodiscard]] double At(double value) const {
        return Bottom + (value - Low) / std::max(1.0, High - Low) * Height;
    }
};

/// The numbers that read well as distance of labels, the next one after a given one.
double NextStep(double step, bool isTime) {
    constexpr std::array TimeSteps{1.0,   2.0,   5.0,   10.0,   15.0,   30.0,  60.0,
                                   120.0, 300.0, 600.0, 1200.0, 1800.0, 3600.0};
    constexpr double Hour = TimeSteps.back();
    if (isTime && step < Hour) return *std::upper_bound(TimeSteps.begin(), TimeSteps.end(), step);
    const double unit = isTime ? Hour : 1.0;
    const double power = std::pow(10.0, std::floor(std::log10(step / unit) + 1e-9)) * unit;
    const auto leading = std::lround(step / power);
    return power * (leading < 2 ? 2.0 : leading < 5 ? 5.0 : 10.0);
}

void SortUpwards(std::vector<Label>& labels) {
    std::sort(labels.begin(), labels.end(),
              [](const Label& left, const Label& right) { return left.At < right.At; });
}

/// Labels at round numbers: at most so many besides the one at 0, as long as there is one besides it.
void LabelHeights(const Scale& scale, Kind kind, std::size_t series, int most, std::vector<Label>& labels) {
    double step = 1;
    const auto steps = [&] { return std::floor(scale.High / step) + std::floor(-scale.Low / step); };
    double finer = step;
    while (steps() > most) {
        finer = step;
        step = NextStep(step, IsTime(kind, series));
    }
    if (steps() == 0) step = finer;  // the 0 alone tells no scale
    for (double value = std::ceil(scale.Low / step) * step; value <= scale.High; value += step) {
        const auto number = static_cast<int>(value);
        labels.push_back({scale.At(value), ValueText(kind, series, number), number == 0});
    }
}

Plot OnePoint(Kind kind, const ChartData& data) {
    Plot plot;
    plot.Places = static_cast<int>(data.Labels.size());
    const auto measure = [kind](int value) {
        return kind == Kind::Effort ? std::log10(1.0 + std::max(0, value)) : static_cast<double>(value);
    };
    double highest = 1.0;
    for (const auto& value : data.Rows.at(0)) highest = std::max(highest, measure(value.value_or(0)));
    for (std::size_t series = 0; series < data.Labels.size(); ++series) {
        const int value = data.Rows[0].at(series).value_or(0);
        plot.Bars.push_back(MakeBar(series, series, 0.0, measure(value) / highest, value));
        std::string text = data.Labels[series];
        // The labels of results hold their values already.
        if (kind == Kind::Effort) text += "\n" + ValueText(kind, series, value);
        plot.Points.push_back({static_cast<double>(series), std::move(text)});
    }
    if (kind == Kind::Effort) {
        plot.Heights.push_back({0.0, "0", true});
        constexpr double Base = 10.0;
        for (double value = 1.0; std::log10(1.0 + value) <= highest; value *= Base)
            plot.Heights.push_back({std::log10(1.0 + value) / highest, mFunc::Grouped(value)});
        plot.Scale = {"Points, moves and seconds", "Each line: ten times the one below"};
    }
    return plot;
}

Plot Grouped(const ChartData& data) {
    constexpr int MostHeights = 5;
    Plot plot;
    Scale scale;
    for (const auto& row : data.Rows) {
        for (const auto& value : row) scale.Take(value.value_or(0));
    }
    const std::size_t group = data.Labels.size() + 1;  // an empty place between the points
    for (std::size_t row = 0; row < data.Rows.size(); ++row) {
        for (std::size_t series = 0; series < data.Labels.size(); ++series) {
            const auto value = data.Rows[row].at(series);
            if (!value) continue;
            plot.Bars.push_back(MakeBar(series, row * group + series, scale.At(0), scale.At(*value), *value));
        }
        const double middle = static_cast<double>(group - 2) / 2.0;
        plot.Points.push_back({static_cast<double>(row * group) + middle, data.Points.at(row)});
    }
    plot.Places = static_cast<int>(data.Rows.size() * group) - 1;
    LabelHeights(scale, Kind::Periods, 0, MostHeights, plot.Heights);
    return plot;
}

Plot InStrips(const ChartData& data) {
    constexpr int MostHeights = 2;
    Plot plot;
    plot.Places = static_cast<int>(data.Rows.size());
    const std::size_t strips = data.Labels.size();
    const double strip = 1.0 / static_cast<double>(strips);
    for (std::size_t series = 0; series < strips; ++series) {
        Scale scale;
        scale.Bottom = static_cast<double>(strips - 1 - series) * strip;  // the first one on top
        scale.Height = strip * (1.0 - StripGap);
        for (const auto& row : data.Rows) scale.Take(row.at(series).value_or(0));
        for (std::size_t row = 0; row < data.Rows.size(); ++row) {
            const auto value = data.Rows[row][series];
            if (value) plot.Bars.push_back(MakeBar(series, row, scale.At(0), scale.At(*value), *value));
        }
        LabelHeights(scale, Kind::Strips, series, MostHeights, plot.Heights);
    }
    SortUpwards(plot.Heights);
    for (std::size_t row = 0; row < data.Rows.size(); ++row) {
        plot.Points.push_back({static_cast<double>(row), data.Points.at(row)});
    }
    return plot;
}

}  // namespace

namespace mPlot {

Plot Make(Kind kind, const ChartData& data) {
    switch (kind) {
        case Kind::Periods:
            return Grouped(data);
        case Kind::Strips:
            return InStrips(data);
        default:
            return OnePoint(kind, data);
    }
}

std::string PointText(Kind kind, const ChartData& data, std::size_t row, std::string_view separator) {
    std::string text;
    for (std::size_t series = 0; series < data.Labels.size(); ++series) {
        const auto value = data.Rows.at(row).at(series);
        if (!value) continue;
        if (!text.empty()) text += separator;
        text += data.Labels[series];
        if (kind != Kind::Result) text += ' ' + ValueText(kind, series, *value);
    }
    return text;
}

std::string Description(Kind kind, const ChartData& data) {
    std::string text;
    for (std::size_t row = 0; row < data.Rows.size(); ++row) {
        const std::string values = PointText(kind, data, row, ", ");
        if (values.empty()) continue;
        if (!text.empty()) text += "; ";
        if (row < data.Points.size()) text += data.Points[row] + ": ";
        text += values;
    }
    return text.empty() ? "No games" : text;
}

int LabelStep(double width, double distance) {
    double step = 1;
    while (step * distance < width) step = NextStep(step, false);
    return static_cast<int>(step);
}

std::vector<Label> Spaced(const std::vector<Label>& labels, double least) {
    std::vector<Label> kept;
    const auto keep = [&](const Label& label) {
        const bool near = std::any_of(kept.begin(), kept.end(), [&](const Label& other) {
            return std::fabs(other.At - label.At) < least;
        });
        if (!near) kept.push_back(label);
    };
    for (const Label& label : labels) {
        if (label.IsZero) keep(label);
    }
    // The highest of a strip says more than what lies between it and the 0.
    for (auto label = labels.rbegin(); label != labels.rend(); ++label) {
        if (!label->IsZero) keep(*label);
    }
    SortUpwards(kept);
    return kept;
}

}  // namespace mPlot
