// The arithmetic of the table's size on the screen. A zoom of 1 shows 15 twips to a pixel.
#pragma once

#include "engine/commands/mRoom.h"
#include "engine/state/cData.h"

namespace mZoom {

inline constexpr double TwipsPerPixel = 15.0;  ///< on the designed screen
inline constexpr int LeftShift = 20;           ///< twips: the plate's middle lies so far left of the view's

// The sizes to choose from, in percent; a size between or beyond them comes from fitting a game.
inline constexpr int ActualSize = 100;
inline constexpr int Smallest = Setting::SmallestZoom;
inline constexpr int Largest = Setting::LargestZoom;
/// The next size above or below; `percent` itself where there is none.
[[nodiscard]] double Larger(double percent);
[[nodiscard]] double Smaller(double percent);

/// Where the plate's left edge lies in a view of that width, both in pixels, when the plate is centred.
/// Negative where the view is narrower. Whole pixels of a screen with `ratio` of them to a pixel.
[[nodiscard]] double PlateLeft(double width, double zoom, double ratio);

/// How far the plate may be moved, in twips, from its place in a view of that many pixels: as far as
/// `area` and a margin around it go beyond the view. Nowhere in a direction in which all of it is seen.
struct Pan {
    double Left = 0, Top = 0, Right = 0, Bottom = 0;  ///< Left and Top zero or negative
};
[[nodiscard]] Pan PanOf(const mRoom::Area& area, double width, double height, double zoom);

/// The largest zoom, up to the largest of the sizes, at which `area` of the plate, and a margin around it, is
/// seen in a view of that many pixels. Cards are a whole number of the screen's pixels wide then.
[[nodiscard]] double Fit(const mRoom::Area& area, double width, double height, double ratio);

}  // namespace mZoom
