// Tiles "Stars" and "Water".
#include <algorithm>
#include <array>
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

// Points of light, one in some of the cells, of different size.
double Points(double x, double y, int cells, double share, double size, int seed) {
    const auto nearest = Cells(x, y, cells, cells, seed, 0.9);
    if (nearest.Value > share) return 0;
    const double brightness = 0.35 + 0.65 * nearest.Value / share;
    const double distance = nearest.First * LargeSize / cells / size;
    return brightness * std::exp(-distance * distance);
}

QImage StarrySky(const Color& deep, const Color& cloud, double clouds, int seed) {
    return Painted(
        [&](int pixelX, int pixelY) {
            const double x = LargeUnit(pixelX);
            const double y = LargeUnit(pixelY);
            const double bend = 0.06 * Fractal(x, y, 4, 4, 3, seed + 6);
            const double mist = std::clamp(0.45 + 0.9 * Fractal(x + bend, y - bend, 4, 4, 5, seed), 0.0, 1.0);
            const double light = Points(x, y, 80, 0.35, 0.8, seed + 20) +
                                 Points(x, y, 32, 0.35, 1.2, seed + 30) +
                                 Points(x, y, 12, 0.3, 1.8, seed + 40);
            return Mixed(Mixed(deep, cloud, clouds * mist), {232, 232, 240}, std::min(0.85, 0.75 * light));
        },
        LargeSize);
}

// Five-pointed stars scattered on a cloth.
QImage StarCloth(int seed) {
    return Painted([seed](int pixelX, int pixelY) {
        constexpr int Rows = 6;
        constexpr double Cell = Size / static_cast<double>(Rows);
        const double y = std::fmod(pixelY + Cell / 4, Size);
        const int row = static_cast<int>(y / Cell);
        const double x = std::fmod(pixelX + Cell / 4 + (row % 2 == 0 ? 0 : Cell / 2), Size);
        const int column = static_cast<int>(x / Cell);
        const double inX = x - (column + 0.5) * Cell;
        const double inY = y - (row + 0.5) * Cell;
        const double reach = 8 + 4 * Hash(column, row, seed);
        // A star's edge in polar form: straight lines between five outer and five inner corners.
        const double turn = Hash(column, row, seed + 1) * FullTurn;
        const double sector = FullTurn / 5;
        const double angle = std::abs(std::remainder(std::atan2(inX, -inY) + turn, sector));
        constexpr double Inner = 0.42;
        const double cornerX = Inner * std::cos(sector / 2), cornerY = Inner * std::sin(sector / 2);
        const double edge = reach * cornerY / (std::sin(angle) * (1 - cornerX) + std::cos(angle) * cornerY);
        const double star = 1 - Step(-0.8, 0.8, std::hypot(inX, inY) - edge);
        const double thread =
            3 * std::sin(Unit(pixelX) * FullTurn * 64) * std::sin(Unit(pixelY) * FullTurn * 64);
        const Color cloth =
            Lit({66, 38, 84}, thread + 4 * Fractal(Unit(pixelX), Unit(pixelY), 3, 3, 3, seed));
        return Mixed(cloth, {190, 156, 92}, 0.5 * star);
    });
}

// Light that waves gather on the ground of a pool: bright nets, two of them over each other.
double Caustics(double x, double y, int cells, int seed) {
    const double bendX = 0.025 * Fractal(x, y, 8, 8, 2, seed + 2);
    const double bendY = 0.025 * Fractal(x, y, 8, 8, 2, seed + 4);
    const auto cell = Cells(x + bendX, y + bendY, cells, cells, seed, 0.85);
    return std::exp(-(cell.Second - cell.First) * 7);
}

QImage Pool(int seed) {
    return Painted(
        [seed](int pixelX, int pixelY) {
            const double x = LargeUnit(pixelX);
            const double y = LargeUnit(pixelY);
            const double net = 0.6 * Caustics(x, y, 12, seed) + 0.4 * Caustics(x, y, 18, seed + 50);
            return Lit(Mixed({40, 128, 150}, {130, 196, 206}, 0.6 * net),
                       5 * Fractal(x, y, 6, 6, 3, seed + 9));
        },
        LargeSize);
}

// A surface of crossing waves, lit from the upper left. Frequencies are whole numbers, for the seams.
Field CrossingWaves(int lowest, int highest, double flatness, int seed) {
    struct Swell {
        int X, Y;
        double Height, Phase;
    };
    std::array<Swell, 14> swells{};
    for (std::size_t i = 0; i < swells.size(); ++i) {
        const int index = static_cast<int>(i);
        const double frequency = std::lerp(lowest, highest, Hash(index, 0, seed));
        const double angle = FullTurn / 4 + flatness * (Hash(index, 1, seed) - 0.5);
        swells[i] = {static_cast<int>(std::lround(frequency * std::cos(angle))),
                     static_cast<int>(std::lround(frequency * std::sin(angle))), 11 / frequency,
                     Hash(index, 2, seed) * FullTurn};
    }
    return TileNoise::Make([&swells](double x, double y) {
        double height = 0;
        for (const Swell& swell : swells) {
            height += swell.Height * std::sin((swell.X * x + swell.Y * y) * FullTurn + swell.Phase);
        }
        return height;
    });
}

// Choppy water: crests are the ridges of a bent noise, on a colour that hardly changes over the tile.
QImage DeepSea(int seed) {
    const Field heights = TileNoise::Blurred(
        TileNoise::Make([seed](double x, double y) {
            const double bendX = 0.07 * Fractal(x, y, 3, 4, 3, seed + 3);
            const double bendY = 0.05 * Fractal(x, y, 4, 3, 3, seed + 5);
            const double large = 1 - 1.6 * std::abs(Fractal(x + bendX, y + bendY, 5, 9, 2, seed));
            const double small = 1 - 1.6 * std::abs(Fractal(x - bendX, y + bendY, 11, 19, 2, seed + 9));
            return 8 * large * large + 3.5 * small * small;
        }),
        1, 1);
    const Field light = TileNoise::Relief(heights);
    return Painted([&](int x, int y) {
        return Lit(Mixed({20, 54, 96}, {32, 78, 124}, std::clamp(0.09 * At(heights, x, y) - 0.1, 0.0, 1.0)),
                   11 * At(light, x, y));
    });
}

QImage Sea(const Color& trough, const Color& crest, int lowest, int highest, double flatness, int seed) {
    const Field heights = CrossingWaves(lowest, highest, flatness, seed);
    const Field light = TileNoise::Relief(heights);
    return Painted([&](int x, int y) {
        const double slope = At(light, x, y);
        const double glint = 20 * Step(1.3, 2.6, slope);
        return Lit(Mixed(trough, crest, std::clamp(0.5 + 0.07 * At(heights, x, y), 0.0, 1.0)),
                   7 * slope + glint);
    });
}

// Rings run outwards from where drops fell.
QImage Rain(int seed) {
    const Field light = TileNoise::Relief(TileNoise::Make(
        [seed](double x, double y) {
            double height = 1.5 * Fractal(x, y, 10, 10, 2, seed);
            // One drop in each of 36 fields, so that they do not gather in one place.
            constexpr int Fields = 6;
            for (int drop = 0; drop < Fields * Fields; ++drop) {
                const double dropX = (drop % Fields + 0.7 * Hash(drop, 0, seed)) / Fields;
                const double dropY = (drop / Fields + 0.7 * Hash(drop, 1, seed)) / Fields;
                const double acrossX = std::remainder(x - dropX, 1.0) * LargeSize;
                const double acrossY = std::remainder(y - dropY, 1.0) * LargeSize;
                const double distance = std::hypot(acrossX, acrossY);
                const double reach = 16 + 40 * Hash(drop, 2, seed);
                if (distance > 2 * reach) continue;
                const double fade = std::exp(-std::pow((distance - 0.6 * reach) / (0.35 * reach), 2));
                height += 2.2 * fade * std::sin(distance * FullTurn / 11);
            }
            return height;
        },
        LargeSize));
    return Painted(
        [&](int x, int y) {
            const double mist = 0.5 + 0.5 * Fractal(LargeUnit(x), LargeUnit(y), 4, 4, 3, seed + 3);
            return Lit(Mixed({58, 84, 98}, {72, 100, 112}, mist), 13 * At(light, x, y));
        },
        LargeSize);
}

// Shallow water over sand: long low swells with a net of light that they bend, here bright, there faint.
QImage Shallows(int seed) {
    return Painted([seed](int pixelX, int pixelY) {
        const double x = Unit(pixelX);
        const double y = Unit(pixelY);
        const double bendX = 0.05 * Fractal(x, y, 4, 5, 3, seed + 2);
        const double bendY = 0.05 * Fractal(x, y, 5, 4, 3, seed + 3);
        const double coarse = std::abs(Fractal(x + bendX, y + bendY, 5, 11, 2, seed));
        const double fine = std::abs(Fractal(x - bendX, y + bendY, 8, 17, 2, seed + 11));
        const double net = std::exp(-coarse * 13) + 0.6 * std::exp(-fine * 13);
        const Color water =
            Mixed({62, 138, 134}, {82, 152, 142}, 0.5 + 0.5 * Fractal(x, y, 4, 7, 3, seed + 4));
        return Mixed(water, {172, 208, 188}, 0.34 * std::min(1.0, net));
    });
}

}  // namespace

QImage Stars(int member) {
    switch (member) {
        case 1:
            return StarrySky({14, 20, 44}, {26, 36, 70}, 0.7, 3);
        case 2:
            return StarrySky({22, 16, 46}, {84, 44, 98}, 0.8, 61);
        case 3:
            return StarCloth(87);
        default:
            throw std::out_of_range("no such star tile");
    }
}

QImage Water(int member) {
    switch (member) {
        case 1:
            return Pool(5);
        case 2:
            return DeepSea(19);
        case 3:
            return Sea({52, 104, 116}, {74, 130, 138}, 10, 26, 0.5, 33);
        case 4:
            return Rain(45);
        case 5:
            return Shallows(59);
        default:
            throw std::out_of_range("no such water tile");
    }
}

}  // namespace TileGroups
