// Sizes, the plate's place, and fitting a game.
#include "engine/commands/mZoom.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace mZoom {

namespace {

constexpr double Same = 0.5;      // percent: a difference that nobody sees
constexpr double Margin = 150.0;  // twips: what is seen around a game

constexpr std::array<int, 13> Sizes{Smallest, 60,  70,  80,  90,  ActualSize, 110,
                                    125,      150, 175, 200, 250, Largest};

}  // namespace

double Larger(double percent) {
    const auto next = std::upper_bound(Sizes.begin(), Sizes.end(), percent + Same);
    return next == Sizes.end() ? percent : *next;
}

double Smaller(double percent) {
    const auto same = std::lower_bound(Sizes.begin(), Sizes.end(), percent - Same);
    return same == Sizes.begin() ? percent : *std::prev(same);
}

double PlateLeft(double width, double zoom, double ratio) {
    const double left = (width - PlateWidth * zoom / TwipsPerPixel) / 2 - LeftShift * zoom / TwipsPerPixel;
    return std::round(left * ratio) / ratio;
}

Pan PanOf(const mRoom::Area& area, double width, double height, double zoom) {
    if (area.Empty()) return {};
    const double seenWidth = width * TwipsPerPixel / zoom;
    const double seenHeight = height * TwipsPerPixel / zoom;
    const double left = PlateWidth / 2.0 + LeftShift - seenWidth / 2;
    // The plate begins at the view's upper edge, and so does every game.
    return {std::min(0.0, area.Left - Margin - left), 0.0,
            std::max(0.0, area.Right + Margin - left - seenWidth),
            std::max(0.0, area.Bottom + Margin - seenHeight)};
}

double Fit(const mRoom::Area& area, double width, double height, double ratio) {
    constexpr double Lowest = 0.05;  // of a window in which nobody plays
    constexpr double Highest = Largest / 100.0;
    constexpr double DesignedWidth = CardWidth / TwipsPerPixel;
    // The plate keeps its place over the middle, so the farther side of the game decides.
    const double middle = PlateWidth / 2.0 + LeftShift;
    const double toSide = std::max(middle - area.Left, area.Right - middle) + Margin;
    const double zoom =
        std::min(width * TwipsPerPixel / (2 * toSide), height * TwipsPerPixel / (area.Bottom + Margin));
    const double cardPixels = std::floor(std::clamp(zoom, Lowest, Highest) * ratio * DesignedWidth);
    return cardPixels / (ratio * DesignedWidth);
}

}  // namespace mZoom
