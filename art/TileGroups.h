// The groups of background tiles; `member` counts from 1. How a tile is coloured.
#pragma once

#include <QImage>

#include "TileNoise.h"

namespace TileGroups {

struct Color {
    double Red, Green, Blue;  ///< 0 to 255
};

[[nodiscard]] inline Color Mixed(const Color& from, const Color& to, double share) {
    return {from.Red + share * (to.Red - from.Red), from.Green + share * (to.Green - from.Green),
            from.Blue + share * (to.Blue - from.Blue)};
}
/// Lighter or darker by that many steps.
[[nodiscard]] inline Color Lit(const Color& color, double steps) {
    return {color.Red + steps, color.Green + steps, color.Blue + steps};
}

/// 0 below `from`, 1 above `to`, smooth between.
[[nodiscard]] double Step(double from, double to, double value);

/// A tile from the colour of every pixel.
template <typename ColorAt>
[[nodiscard]] QImage Painted(ColorAt colorAt, int side = TileNoise::Size) {
    QImage image(side, side, QImage::Format_RGB32);
    const auto channel = [](double value) {
        return static_cast<int>(value < 0 ? 0 : value > 255 ? 255 : value + 0.5);
    };
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const Color color = colorAt(x, y);
            image.setPixel(x, y, qRgb(channel(color.Red), channel(color.Green), channel(color.Blue)));
        }
    }
    return image;
}

[[nodiscard]] QImage Bricks(int member);
[[nodiscard]] QImage Marbles(int member);
[[nodiscard]] QImage Paper(int member);
[[nodiscard]] QImage Rocks(int member);
[[nodiscard]] QImage Stars(int member);
[[nodiscard]] QImage Surfaces(int member);
[[nodiscard]] QImage Water(int member);
[[nodiscard]] QImage Wood(int member);

}  // namespace TileGroups
