// Tiles "Marbles" and "Rocks".
#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "TileGroups.h"

namespace TileGroups {

using TileNoise::Cells;
using TileNoise::Fractal;
using TileNoise::Hash;
using TileNoise::LargeSize;
using TileNoise::Noise;
using TileNoise::Size;

namespace {

// Veins run where a bent noise changes its sign: sharp in the middle, fading to both sides.
double Vein(double x, double y, int cells, double width, int seed) {
    const double bendX = 0.045 * Fractal(x, y, 6, 6, 4, seed);
    const double bendY = 0.045 * Fractal(x, y, 6, 6, 4, seed + 40);
    const double distance = std::abs(Fractal(x + bendX, y + bendY, cells, cells, 2, seed + 80));
    return std::exp(-distance / width);
}

QImage Marble(const Color& base, const Color& cloud, const Color& vein, double strength, int seed) {
    return Painted(
        [&](int pixelX, int pixelY) {
            const double x = pixelX / static_cast<double>(LargeSize);
            const double y = pixelY / static_cast<double>(LargeSize);
            const double mist =
                0.5 + 0.5 * Fractal(x + 0.05 * Fractal(x, y, 4, 4, 3, seed + 5), y, 4, 4, 5, seed);
            const double lines =
                0.75 * Vein(x, y, 4, 0.03, seed + 9) + 0.45 * Vein(x, y, 8, 0.035, seed + 21);
            return Mixed(Mixed(base, cloud, mist), vein, std::min(1.0, strength * lines));
        },
        LargeSize);
}

// Grains of several colours, with a few glittering ones.
QImage Granite(int seed) {
    return Painted([seed](int pixelX, int pixelY) {
        const double x = pixelX / static_cast<double>(Size);
        const double y = pixelY / static_cast<double>(Size);
        const auto coarse = Cells(x, y, 48, 48, seed);
        const auto fine = Cells(x, y, 96, 96, seed + 5);
        double steps =
            22 * (coarse.Value - 0.5) + 14 * (fine.Value - 0.5) + 8 * Fractal(x, y, 4, 4, 3, seed + 8);
        if (coarse.Value > 0.9) steps -= 16;
        if (fine.Value > 0.96) steps += 20;
        return Lit({112, 104, 106}, steps);
    });
}

QImage Slate(int seed) {
    const TileNoise::Field heights = TileNoise::Make([seed](double x, double y) {
        const double layers = y + 0.05 * Fractal(x, y, 2, 3, 4, seed);
        const double leaf = Noise(x, layers, 2, 12, seed + 7) + 0.5 * Noise(x, layers, 4, 30, seed + 8);
        return 4 * std::floor(leaf * 3) / 3 + 1.6 * leaf + 0.9 * Fractal(x, y, 16, 24, 3, seed + 9);
    });
    const TileNoise::Field light = TileNoise::Relief(TileNoise::Blurred(heights, 1, 1));
    return Painted([&](int pixelX, int pixelY) {
        const double x = pixelX / static_cast<double>(Size);
        const double y = pixelY / static_cast<double>(Size);
        return Lit(Mixed({74, 86, 98}, {88, 92, 96}, 0.5 + 0.5 * Fractal(x, y, 3, 5, 3, seed + 30)),
                   9 * TileNoise::At(light, pixelX, pixelY));
    });
}

QImage Pebbles(int seed) {
    const auto stone = [seed](double x, double y) {
        return Cells(x + 0.006 * Fractal(x, y, 12, 12, 2, seed + 4),
                     y + 0.006 * Fractal(x, y, 12, 12, 2, seed + 6), 18, 18, seed, 0.8);
    };
    const TileNoise::Field heights = TileNoise::Make(
        [&](double x, double y) {
            const auto cell = stone(x, y);
            const double gap = cell.Second - cell.First;
            return 11 * std::sqrt(std::min(1.0, gap * 1.6)) + 0.5 * Fractal(x, y, 48, 48, 3, seed + 9);
        },
        LargeSize);
    const TileNoise::Field light = TileNoise::Relief(TileNoise::Blurred(heights, 1, 1));
    return Painted(
        [&](int pixelX, int pixelY) {
            const double x = pixelX / static_cast<double>(LargeSize);
            const double y = pixelY / static_cast<double>(LargeSize);
            const auto cell = stone(x, y);
            const Color color = Mixed({118, 110, 98}, {94, 97, 98}, cell.Value);
            const double shadow = 1 - Step(0.03, 0.2, cell.Second - cell.First);
            return Lit(color, 7 * TileNoise::At(light, pixelX, pixelY) - 22 * shadow +
                                  5 * Fractal(x, y, 24, 24, 3, seed + 2));
        },
        LargeSize);
}

// Sandstone: bent layers of sediment, some of which stand out of the worn face, and grains of sand.
QImage Sandstone(int seed) {
    const auto layers = [seed](double x, double y) {
        const double bent = y + 0.035 * Fractal(x, y, 4, 4, 3, seed + 3);
        return 0.6 * Noise(x, bent, 2, 18, seed + 4) + 0.5 * Noise(x, bent, 4, 46, seed + 5) +
               0.25 * Noise(x, bent, 6, 94, seed + 6);
    };
    const TileNoise::Field heights = TileNoise::Make(
        [&](double x, double y) { return 5 * layers(x, y) + 1.5 * Fractal(x, y, 80, 80, 2, seed); },
        LargeSize);
    const TileNoise::Field light = TileNoise::Relief(heights);
    return Painted(
        [&](int pixelX, int pixelY) {
            const double x = pixelX / static_cast<double>(LargeSize);
            const double y = pixelY / static_cast<double>(LargeSize);
            return Lit(Mixed({166, 130, 96}, {142, 102, 74}, 0.5 + 0.6 * layers(x, y)),
                       6 * TileNoise::At(light, pixelX, pixelY) + 5 * (Hash(pixelX, pixelY, seed) - 0.5));
        },
        LargeSize);
}

}  // namespace

QImage Marbles(int member) {
    switch (member) {
        case 1:
            return Marble({36, 82, 66}, {50, 104, 84}, {148, 182, 160}, 0.55, 3);
        case 2:
            return Marble({58, 60, 68}, {76, 80, 90}, {172, 176, 186}, 0.5, 71);
        case 3:
            return Marble({170, 134, 124}, {190, 156, 144}, {120, 80, 76}, 0.55, 117);
        default:
            throw std::out_of_range("no such marble tile");
    }
}

QImage Rocks(int member) {
    switch (member) {
        case 1:
            return Granite(5);
        case 2:
            return Slate(13);
        case 3:
            return Pebbles(29);
        case 4:
            return Sandstone(47);
        default:
            throw std::out_of_range("no such rock tile");
    }
}

}  // namespace TileGroups
