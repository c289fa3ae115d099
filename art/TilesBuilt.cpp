// Tiles "Bricks" and "Wood": what is laid in courses.
#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

#include "TileGroups.h"

namespace TileGroups {

using TileNoise::Fractal;
using TileNoise::Hash;
using TileNoise::Noise;
using TileNoise::Size;

namespace {

/// A place inside a brick or board.
struct Inside {
    double Edge;   ///< pixels to its nearest edge
    double Value;  ///< 0 to 1, the same all over it
    double Along;  ///< pixels along it, for grain
    double Across;
    bool Upright;
};

double Wrap(double value) { return value - Size * std::floor(value / Size); }

// Courses of that height; in every other one the bricks are shifted by half their width.
Inside Course(double x, double y, double width, double height, double shift, int seed) {
    y = Wrap(y + height / 2);
    const int row = static_cast<int>(y / height);
    x = Wrap(x + width / 4 + (row % 2 == 0 ? 0 : shift * width));
    const int column = static_cast<int>(x / width);
    const double inX = x - column * width;
    const double inY = y - row * height;
    return {std::min({inX, width - inX, inY, height - inY}), Hash(column, row, seed), inX, inY, false};
}

// Herringbone of bricks two cells long. The diagonals of a lattice of four go: left half, right half of
// a lying brick, lower, upper half of a standing one.
Inside Herringbone(double x, double y, double cell, int seed) {
    x = Wrap(x + cell / 2);
    y = Wrap(y + cell / 2);
    const int column = static_cast<int>(x / cell);
    const int row = static_cast<int>(y / cell);
    const int cells = static_cast<int>(Size / cell + 0.5);
    const int kind = ((column - row) % 4 + 4) % 4;
    double inX = x - column * cell;
    double inY = y - row * cell;
    const int brickColumn = kind == 1 ? (column + cells - 1) % cells : column;
    const int brickRow = kind == 2 ? (row + cells - 1) % cells : row;
    if (kind == 1) inX += cell;
    if (kind == 2) inY += cell;
    const bool upright = kind >= 2;
    const double width = upright ? cell : 2 * cell;
    const double height = upright ? 2 * cell : cell;
    return {std::min({inX, width - inX, inY, height - inY}), Hash(brickColumn, brickRow, seed),
            upright ? inY : inX, upright ? inX : inY, upright};
}

// Squares of parallel strips, laid crosswise in turn.
Inside Basket(double x, double y, double square, int strips, int seed) {
    x = Wrap(x + square / (2 * strips));
    y = Wrap(y + square / (2 * strips));
    const int column = static_cast<int>(x / square);
    const int row = static_cast<int>(y / square);
    double along = x - column * square;
    double across = y - row * square;
    const bool upright = (column + row) % 2 != 0;
    if (upright) std::swap(along, across);
    const double strip = square / strips;
    const int index = static_cast<int>(across / strip);
    across -= index * strip;
    return {std::min({along, square - along, across, strip - across}), Hash(column * 16 + index, row, seed),
            along, across, upright};
}

struct BrickKind {
    Color Base, Other, Mortar;
    double JointWidth;
    double Roughness;
};

// Weathered colour, a bevel along the edges, mortar between.
QImage Wall(const BrickKind& kind, int seed, Inside (*inside)(double, double, int)) {
    const TileNoise::Field heights = TileNoise::Make([&](double x, double y) {
        const double wobble = 0.8 * Noise(x, y, 24, 24, seed + 3);
        const Inside place = inside(x * Size, y * Size, seed);
        return 3.0 * Step(kind.JointWidth / 2 - 1, kind.JointWidth / 2 + 2, place.Edge + wobble) +
               kind.Roughness * Fractal(x, y, 32, 32, 3, seed + 9);
    });
    const TileNoise::Field light = TileNoise::Relief(heights);
    return Painted([&](int pixelX, int pixelY) {
        const double x = pixelX / static_cast<double>(Size);
        const double y = pixelY / static_cast<double>(Size);
        const Inside place = inside(pixelX, pixelY, seed);
        const double wobble = 0.8 * Noise(x, y, 24, 24, seed + 3);
        const double brick = Step(kind.JointWidth / 2 - 0.8, kind.JointWidth / 2 + 0.8, place.Edge + wobble);
        const Color stone =
            Lit(Mixed(kind.Base, kind.Other, place.Value), 7 * Fractal(x, y, 8, 8, 4, seed + 5));
        const Color mortar = Lit(kind.Mortar, 6 * Noise(x, y, 64, 64, seed + 6));
        return Lit(Mixed(mortar, stone, brick), 9 * TileNoise::At(light, pixelX, pixelY));
    });
}

// Growth rings cut lengthwise: stretched noise, bent by slower noise.
double Grain(double x, double y, int seed) {
    const double bend = 0.02 * Noise(x, y, 2, 4, seed) + 0.006 * Noise(x, y, 6, 12, seed + 1);
    const double rings = Noise(x, y + bend, 1, 28, seed + 2) + 0.6 * Noise(x, y + bend, 2, 64, seed + 3);
    const double fibres = Noise(x, y, 10, 128, seed + 4);
    return 1.3 * rings + 0.7 * fibres;
}

QImage Boards(const Color& base, const Color& other, double contrast, int rows, int seed) {
    const double height = Size / static_cast<double>(rows);
    return Painted([&](int pixelX, int pixelY) {
        const double y = Wrap(pixelY + height / 2);
        const int board = static_cast<int>(y / height);
        const double inY = y - board * height;
        // Each board is cut from another place of the trunk, and ends somewhere in the tile.
        const double shift = Hash(board, 7, seed);
        const double end =
            std::abs(
                std::fmod(pixelX / static_cast<double>(Size) + 0.15 + 0.5 * (board % 2) + 0.2 * shift, 1.0) -
                0.5) *
            Size;
        const double joint = std::min({inY, height - inY, end});
        const double grain = Grain(pixelX / static_cast<double>(Size) + shift,
                                   pixelY / static_cast<double>(Size), seed + 31 * board);
        const Color wood = Lit(Mixed(base, other, 0.5 + 0.5 * grain), 9 * (Hash(board, 3, seed) - 0.5));
        return Lit(wood, contrast * grain - 26 * (1 - Step(0.2, 1.8, joint)));
    });
}

QImage Parquet(int seed) {
    constexpr double Cell = 32;
    return Painted([&](int pixelX, int pixelY) {
        const Inside place = Herringbone(pixelX, pixelY, Cell, seed);
        const double along = place.Along / Size + place.Value;
        const double across = place.Across / Size + std::fmod(place.Value * 7, 1.0);
        const double grain = Grain(along, across, seed);
        const Color wood =
            Lit(Mixed({150, 102, 61}, {112, 70, 38}, 0.5 + 0.6 * grain), 16 * (place.Value - 0.5));
        return Lit(wood, -20 * (1 - Step(0.1, 1.7, place.Edge)));
    });
}

}  // namespace

QImage Bricks(int member) {
    switch (member) {
        case 1:
            return Wall({{138, 66, 52}, {116, 54, 44}, {128, 112, 100}, 3.4, 0.7}, 11,
                        [](double x, double y, int seed) { return Course(x, y, 64, 32, 0.5, seed); });
        case 2:
            return Wall({{104, 96, 92}, {86, 80, 78}, {70, 66, 64}, 3, 0.9}, 23,
                        [](double x, double y, int seed) { return Course(x, y, 128, 64, 0.5, seed); });
        case 3:
            return Wall({{150, 104, 70}, {132, 88, 58}, {112, 92, 74}, 3, 0.6}, 37,
                        [](double x, double y, int seed) { return Herringbone(x, y, 32, seed); });
        case 4:
            return Wall({{84, 98, 112}, {72, 84, 98}, {58, 66, 76}, 2.6, 0.5}, 41,
                        [](double x, double y, int seed) { return Basket(x, y, 64, 2, seed); });
        case 5:
            return Wall(
                {{178, 168, 150}, {166, 156, 138}, {146, 136, 120}, 3, 0.8}, 53,
                [](double x, double y, int seed) { return Course(x, y, 256.0 / 6, 256.0 / 12, 0.5, seed); });
        default:
            throw std::out_of_range("no such brick tile");
    }
}

QImage Wood(int member) {
    switch (member) {
        case 1:
            return Boards({172, 130, 82}, {134, 94, 54}, 7, 4, 5);
        case 2:
            return Boards({98, 64, 45}, {64, 40, 27}, 6, 3, 19);
        case 3:
            return Parquet(43);
        default:
            throw std::out_of_range("no such wood tile");
    }
}

}  // namespace TileGroups
