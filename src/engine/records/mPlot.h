// Where the bars of a chart stand, and what is written beside them. Score, moves and time differ by
// orders of magnitude: whatever the values are, each leaves a bar that can be seen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/records/mStatistics.h"

namespace mPlot {

enum class Kind {
    Result,   ///< one point: a bar a series on one scale (won, lost)
    Effort,   ///< one point: a panel a series, side by side, each on a scale of its own (score, moves, time)
    Periods,  ///< a group of bars a point, all on one scale (played, won)
    Strips,   ///< a strip a series, one above the other, each on a scale of its own (score, moves, time)
};

/// Heights are parts of the plot's height, from 0 at the bottom to 1. Below its bottom a bar has nothing.
struct Bar {
    int Series;
    int Place;
    double Bottom;
    double Top;
};

struct Label {
    double At;  ///< a place, or a height
    std::string Text;
    bool IsZero = false;  ///< where the bars of a strip begin
    int Names = -1;       ///< the series whose name stands before the height: "Moves 0"
};

/// The scale of a panel, which stands between the labels of its heights and its bar.
struct Panel {
    double At;  ///< in places
    std::vector<Label> Heights;
};

struct Plot {
    int Places = 0;              ///< side by side along the axis, from 0
    std::vector<Bar> Bars;       ///< at each place from the top down
    std::vector<Label> Points;   ///< at places; a second line of a label holds the value
    std::vector<Label> Heights;  ///< of all places, upwards
    std::vector<Panel> Panels;   ///< in place of those
};

/// Whether there is no game to show.
[[nodiscard]] bool IsEmpty(const mStatistics::ChartData& data);
/// What an empty chart says.
inline constexpr const char* NoGamesYet = "No games yet";

[[nodiscard]] Plot Make(Kind kind, const mStatistics::ChartData& data);

/// The values of a point, "Score 5, Moves 7, Time 0:01:00", apart from the separator; empty for a point
/// without a game. Row counts from 0.
[[nodiscard]] std::string PointText(Kind kind, const mStatistics::ChartData& data, std::size_t row,
                                    std::string_view separator);
/// What is to be told of the bars at a place of the plot; empty at a place of none.
[[nodiscard]] std::string Tip(Kind kind, const mStatistics::ChartData& data, const Plot& plot, int place);
/// All values in words, for who cannot see the chart.
[[nodiscard]] std::string Description(Kind kind, const mStatistics::ChartData& data);

/// Every how many-th label has room where labels have that width and points that distance, both above 0:
/// 1, 2, 5, 10 and so on.
[[nodiscard]] int LabelStep(double width, double distance);
/// The labels that may stand so far apart, upwards as they came; each strip keeps its 0.
[[nodiscard]] std::vector<Label> Spaced(const std::vector<Label>& labels, double least);

}  // namespace mPlot
