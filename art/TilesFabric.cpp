// Tiles "Paper" and "Surfaces": what a table is covered with.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>

#include "TileGroups.h"

namespace TileGroups {

using TileNoise::At;
using TileNoise::Cells;
using TileNoise::Field;
using TileNoise::Fractal;
using TileNoise::Hash;
using TileNoise::LargeSize;
using TileNoise::Noise;
using TileNoise::Size;

namespace {

constexpr double FullTurn = 2 * std::numbers::pi;

double Unit(int pixel) { return pixel / static_cast<double>(Size); }
double LargeUnit(int pixel) { return pixel / static_cast<double>(LargeSize); }

double Speckle(int pixelX, int pixelY, int seed) { return Hash(pixelX, pixelY, seed) - 0.5; }

// Folds of crumpled paper are the ridges between flat facets.
QImage Crumpled(const Color& base, int seed) {
    const auto folds = [seed](double x, double y) {
        const double bend = 0.015 * Fractal(x, y, 6, 6, 2, seed + 3);
        const auto large = Cells(x + bend, y + bend, 8, 8, seed);
        const auto small = Cells(x - bend, y + bend, 18, 18, seed + 7);
        return 26 * large.First + 9 * small.First;
    };
    const Field light = TileNoise::Relief(TileNoise::Blurred(TileNoise::Make(folds, LargeSize), 2, 2));
    return Painted(
        [&](int x, int y) {
            const double cloud = Fractal(LargeUnit(x), LargeUnit(y), 6, 6, 3, seed + 1);
            return Lit(base, 11 * At(light, x, y) + 5 * Speckle(x, y, seed) + 4 * cloud);
        },
        LargeSize);
}

// Laid paper: close lines of the sieve, and wider ones across.
QImage Laid(const Color& base, int seed) {
    return Painted([&](int x, int y) {
        const double wires =
            std::sin(Unit(y) * FullTurn * 64) * (0.8 + 0.4 * Noise(Unit(x), Unit(y), 12, 32, seed));
        const double chain = std::pow(0.5 + 0.5 * std::cos(Unit(x) * FullTurn * 4), 40);
        return Lit(base, 3.6 * wires + 6 * chain + 6 * Fractal(Unit(x), Unit(y), 4, 4, 5, seed + 1));
    });
}

QImage Parchment(int seed) {
    return Painted([seed](int x, int y) {
        const double cloud = Fractal(Unit(x), Unit(y), 2, 2, 5, seed);
        // Fine veins of the hide, no stains: what stands out in one tile stands out in rows on the table.
        const double veins = Fractal(Unit(x), Unit(y), 12, 9, 4, seed + 9);
        const Color base = Mixed({192, 166, 120}, {178, 150, 104}, 0.5 + 0.6 * cloud);
        return Lit(base, -7 * Step(0.0, 0.4, std::abs(veins) * 1.6) + 4 * Speckle(x, y, seed) +
                             4 * Noise(Unit(x), Unit(y), 64, 64, seed + 3));
    });
}

QImage Squared(int seed) {
    return Painted([seed](int x, int y) {
        constexpr int Square = 16;
        const bool line = (x + Square / 2) % Square == 0 || (y + Square / 2) % Square == 0;
        const bool strong = (x + Square / 2) % (4 * Square) == 0 || (y + Square / 2) % (4 * Square) == 0;
        const Color paper =
            Lit({150, 166, 180}, 4 * Fractal(Unit(x), Unit(y), 4, 4, 5, seed) + 4 * Speckle(x, y, seed));
        return Mixed(paper, {96, 120, 148}, strong ? 0.45 : line ? 0.24 : 0.0);
    });
}

// Recycled paper: short fibres lie about in it, each a bent line within a cell.
QImage Fibres(int seed) {
    return Painted([seed](int x, int y) {
        double fibre = 0;
        for (int layer = 0; layer < 3; ++layer) {
            const int cells = 10 + 4 * layer;
            const double placeX = Unit(x) * cells;
            const double placeY = Unit(y) * cells;
            const int column = static_cast<int>(placeX);
            const int row = static_cast<int>(placeY);
            const double angle = Hash(column, row, seed + layer) * FullTurn;
            const double inX = placeX - column - 0.5;
            const double inY = placeY - row - 0.5;
            const double along = inX * std::cos(angle) + inY * std::sin(angle);
            const double across =
                -inX * std::sin(angle) + inY * std::cos(angle) + 0.7 * (along * along - 0.04);
            const double thickness = 0.03 + 0.03 * Hash(column, row, seed + layer + 9);
            const double shape = (1 - Step(0.26, 0.36, std::abs(along))) *
                                 (1 - Step(thickness, thickness + 0.05, std::abs(across)));
            fibre += shape * (Hash(column, row, seed + layer + 17) - 0.55) * 1.6;
        }
        return Lit({158, 150, 132}, 16 * std::clamp(fibre, -1.0, 1.0) + 7 * Speckle(x, y, seed) +
                                        5 * Fractal(Unit(x), Unit(y), 6, 6, 4, seed + 5));
    });
}

QImage Felt(int seed) {
    const Field fluff = TileNoise::Blurred(
        TileNoise::Make([seed](double x, double y) {
            return Hash(static_cast<int>(x * Size), static_cast<int>(y * Size), seed) - 0.5;
        }),
        1, 1);
    return Painted([&](int x, int y) {
        return Lit(Mixed({30, 98, 62}, {24, 84, 54}, 0.5 + 0.5 * Fractal(Unit(x), Unit(y), 5, 5, 5, seed)),
                   26 * At(fluff, x, y) + 4 * Speckle(x, y, seed + 1));
    });
}

// Threads over and under each other, none quite like its neighbour.
QImage Linen(const Color& base, int seed) {
    constexpr int Thread = 4;
    return Painted([&](int x, int y) {
        const int column = x / Thread;
        const int row = y / Thread;
        const double inX = (x % Thread + 0.5) / Thread - 0.5;
        const double inY = (y % Thread + 0.5) / Thread - 0.5;
        const bool over = (column + row) % 2 == 0;
        const double round = over ? 1 - 4 * inX * inX : 1 - 4 * inY * inY;
        const double thread = over ? Hash(column, 0, seed) : Hash(0, row, seed + 1);
        return Lit(base, 7 * round + 9 * (thread - 0.5) + (over ? 2 : -2) + 5 * Speckle(x, y, seed) +
                             4 * Fractal(Unit(x), Unit(y), 4, 4, 3, seed + 2));
    });
}

QImage Leather(const Color& base, int seed) {
    const Field light = TileNoise::Relief(TileNoise::Blurred(
        TileNoise::Make([seed](double x, double y) {
            const double bend = 0.008 * Fractal(x, y, 10, 10, 2, seed + 2);
            const auto grain = Cells(x + bend, y - bend, 34, 34, seed, 0.9);
            return 3.4 * std::min(0.5, grain.Second - grain.First) + 5 * Fractal(x, y, 3, 3, 2, seed + 5);
        }),
        1, 1));
    return Painted([&](int x, int y) {
        return Lit(base, 15 * At(light, x, y) + 5 * Fractal(Unit(x), Unit(y), 3, 3, 3, seed + 8));
    });
}

QImage BrushedMetal(int seed) {
    const Field scratches = TileNoise::Blurred(
        TileNoise::Make([seed](double x, double y) {
            return Hash(static_cast<int>(x * Size), static_cast<int>(y * Size), seed) - 0.5;
        }),
        22, 0);
    return Painted([&](int x, int y) {
        return Lit({112, 120, 128}, 62 * At(scratches, x, y) + 5 * Noise(Unit(x), Unit(y), 1, 2, seed + 1));
    });
}

// Twill: blue warp threads, under which the white weft shows in diagonals.
QImage Denim(int seed) {
    return Painted([seed](int x, int y) {
        const double warp = 0.5 + 0.5 * std::sin((Unit(x) * 64 + Unit(y) * 32) * FullTurn);
        const double slub = Noise(Unit(x), Unit(y), 128, 10, seed);
        const double weft = Step(0.7, 1.0, warp) * (0.6 + 0.4 * Hash(x / 2, y / 2, seed));
        return Lit(Mixed({48, 70, 112}, {112, 130, 160}, 0.4 * weft),
                   6 * slub + 7 * Speckle(x, y, seed + 4) + 5 * Fractal(Unit(x), Unit(y), 3, 3, 3, seed + 5));
    });
}

}  // namespace

QImage Paper(int member) {
    switch (member) {
        case 1:
            return Crumpled({168, 136, 98}, 3);
        case 2:
            return Laid({176, 172, 158}, 11);
        case 3:
            return Parchment(27);
        case 4:
            return Squared(33);
        case 5:
            return Fibres(51);
        default:
            throw std::out_of_range("no such paper tile");
    }
}

QImage Surfaces(int member) {
    switch (member) {
        case 1:
            return Felt(7);
        case 2:
            return Linen({104, 116, 132}, 17);
        case 3:
            return Leather({104, 40, 42}, 29);
        case 4:
            return BrushedMetal(31);
        case 5:
            return Denim(43);
        default:
            throw std::out_of_range("no such surface tile");
    }
}

}  // namespace TileGroups
