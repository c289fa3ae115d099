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

/// Whether a row stands for games at all.
bool HasGames(const ChartData& data, std::size_t row) { return data.Games.empty() || data.Games.at(row) > 0; }

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

/// "Score 520"; the labels of results hold their values already.
std::string SeriesText(Kind kind, const ChartData& data, std::size_t series, int value) {
    return data.Labels.at(series) + (kind == Kind::Result ? "" : ' ' + ValueText(kind, series, value));
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

/// The labels of an axis that has little room: "20k", "1.5M", "5 min", "2 h". One axis has one unit.
std::string ShortText(double value, double step, double top, bool isTime) {
    constexpr double Minute = 60.0;
    constexpr double Hour = 3600.0;
    constexpr double Thousand = 1000.0;
    if (value == 0.0) return "0";
    double unit = 1.0;
    std::string name;
    if (isTime) {
        unit = std::fmod(step, Hour) == 0.0 ? Hour : std::fmod(step, Minute) == 0.0 ? Minute : 1.0;
        name = unit == Hour ? " h" : unit == Minute ? " min" : " s";
    }
    const char* thousands = "";
    for (const char* next : {"k", "M", "G"}) {
        // Four digits are short enough, but not with a letter behind them.
        if (top / unit < (*thousands == '\0' ? 10.0 * Thousand : Thousand)) break;
        unit *= Thousand;
        thousands = next;
    }
    return fmt::format("{:g}{}{}", value / unit, thousands, name);
}

Plot OnePoint(const ChartData& data) {
    Plot plot;
    plot.Places = static_cast<int>(data.Labels.size());
    Scale scale;
    for (const auto& value : data.Rows.at(0)) scale.Take(value.value_or(0));
    for (std::size_t series = 0; series < data.Labels.size(); ++series) {
        const int value = data.Rows[0].at(series).value_or(0);
        plot.Points.push_back({static_cast<double>(series), data.Labels[series]});
        if (!HasGames(data, 0)) continue;
        plot.Bars.push_back(MakeBar(series, series, 0.0, scale.At(value), value));
    }
    return plot;
}

/// A panel takes two places, the left one for the labels of its heights. Its scale ends at a label, at or
/// above the value, so that it can be read off.
Plot InPanels(const ChartData& data) {
    constexpr Kind kind = Kind::Effort;
    constexpr double MostHeights = 4;
    Plot plot;
    plot.Places = 2 * static_cast<int>(data.Labels.size());
    for (std::size_t series = 0; series < data.Labels.size(); ++series) {
        const int value = std::max(0, data.Rows.at(0).at(series).value_or(0));
        double step = 1;
        while (value > MostHeights * step) step = NextStep(step, IsTime(kind, series));
        const int steps = std::max(1, static_cast<int>(std::ceil(value / step)));
        const double middle = static_cast<double>(2 * series) + 0.5;
        mPlot::Panel panel{middle, {}};
        for (int i = 0; i <= steps; ++i) {
            panel.Heights.push_back({static_cast<double>(i) / steps,
                                     ShortText(i * step, step, steps * step, IsTime(kind, series)), i == 0});
        }
        plot.Panels.push_back(std::move(panel));
        plot.Points.push_back({middle, data.Labels[series] + "\n" + ValueText(kind, series, value)});
        if (!HasGames(data, 0)) continue;
        plot.Bars.push_back(MakeBar(series, 2 * series + 1, 0.0, value / (steps * step), value));
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
            if (!value || !HasGames(data, row)) continue;
            plot.Bars.push_back(MakeBar(series, row * group + series, scale.At(0), scale.At(*value), *value));
        }
        const double middle = static_cast<double>(group - 2) / 2.0;
        plot.Points.push_back({static_cast<double>(row * group) + middle, data.Points.at(row)});
    }
    plot.Places = std::max(0, static_cast<int>(data.Rows.size() * group) - 1);
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
            if (!value || !HasGames(data, row)) continue;
            plot.Bars.push_back(MakeBar(series, row, scale.At(0), scale.At(*value), *value));
        }
        LabelHeights(scale, Kind::Strips, series, MostHeights, plot.Heights);
        // The label of its 0 always has room, and says what the strip shows.
        for (Label& label : plot.Heights) {
            if (!label.IsZero || label.Names >= 0) continue;  // those of the strips above have theirs
            label.Names = static_cast<int>(series);
            label.Text = data.Labels[series] + ' ' + label.Text;
        }
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
        case Kind::Effort:
            return InPanels(data);
        default:
            return OnePoint(data);
    }
}

bool IsEmpty(const ChartData& data) {
    for (std::size_t row = 0; row < data.Rows.size(); ++row) {
        const auto& values = data.Rows[row];
        const bool any = std::any_of(values.begin(), values.end(), [](const auto& value) { return value; });
        if (any && HasGames(data, row)) return false;
    }
    return true;
}

std::string PointText(Kind kind, const ChartData& data, std::size_t row, std::string_view separator) {
    std::string text;
    if (!HasGames(data, row)) return text;
    for (std::size_t series = 0; series < data.Labels.size(); ++series) {
        const auto value = data.Rows.at(row).at(series);
        if (!value) continue;
        if (!text.empty()) text += separator;
        text += SeriesText(kind, data, series, *value);
    }
    return text;
}

std::string Tip(Kind kind, const ChartData& data, const Plot& plot, int place) {
    if (place < 0 || place >= plot.Places || IsEmpty(data)) return {};
    const auto part = static_cast<std::size_t>(place);
    const auto places = static_cast<std::size_t>(plot.Places);
    if (kind == Kind::Result || kind == Kind::Effort) {
        const std::size_t series = part * data.Labels.size() / places;
        return SeriesText(kind, data, series, data.Rows.at(0).at(series).value_or(0));
    }
    const std::size_t row = part * data.Rows.size() / places;
    const std::string values = PointText(kind, data, row, "\n");
    if (values.empty() && data.Games.empty()) return {};
    return data.Points.at(row) + '\n' + (values.empty() ? "No games" : values);
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
    return text.empty() ? NoGamesYet : text;
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
