// Gradient noise and cell noise on a lattice that wraps around.
#include "TileNoise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

namespace TileNoise {

namespace {

int Wrapped(int value, int period) {
    const int rest = value % period;
    return rest < 0 ? rest + period : rest;
}

double Smooth(double t) { return t * t * t * (t * (t * 6 - 15) + 10); }

struct Direction {
    double X, Y;
};

// Sines would take most of the time that all the tiles take.
const std::array<Direction, 256> Directions = [] {
    std::array<Direction, 256> directions{};
    for (std::size_t i = 0; i < directions.size(); ++i) {
        const double angle = 2 * std::numbers::pi * static_cast<double>(i) / directions.size();
        directions[i] = {std::cos(angle), std::sin(angle)};
    }
    return directions;
}();

// The slope of the lattice point, applied to a place beside it.
double Slope(int cellX, int cellY, int seed, double x, double y) {
    constexpr double Last = 255.999;
    const Direction& direction = Directions[static_cast<std::size_t>(Hash(cellX, cellY, seed) * Last)];
    return direction.X * x + direction.Y * y;
}

}  // namespace

double Hash(int x, int y, int seed) {
    // Mixed after each number: neighbours must not resemble each other in any direction.
    std::uint32_t bits = 0x9e3779b9U;
    for (const int number : {x, y, seed}) {
        bits ^= static_cast<std::uint32_t>(number);
        bits *= 0x7feb352dU;
        bits ^= bits >> 15;
        bits *= 0x846ca68bU;
        bits ^= bits >> 16;
    }
    return bits / static_cast<double>(std::numeric_limits<std::uint32_t>::max());
}

double Noise(double x, double y, int cellsX, int cellsY, int seed) {
    const double placeX = x * cellsX;
    const double placeY = y * cellsY;
    const double floorX = std::floor(placeX);
    const double floorY = std::floor(placeY);
    const double inX = placeX - floorX;
    const double inY = placeY - floorY;
    const int left = Wrapped(static_cast<int>(floorX), cellsX);
    const int top = Wrapped(static_cast<int>(floorY), cellsY);
    const int right = Wrapped(left + 1, cellsX);
    const int bottom = Wrapped(top + 1, cellsY);
    const double upper =
        std::lerp(Slope(left, top, seed, inX, inY), Slope(right, top, seed, inX - 1, inY), Smooth(inX));
    const double lower = std::lerp(Slope(left, bottom, seed, inX, inY - 1),
                                   Slope(right, bottom, seed, inX - 1, inY - 1), Smooth(inX));
    return std::lerp(upper, lower, Smooth(inY)) * std::numbers::sqrt2;
}

double Fractal(double x, double y, int cellsX, int cellsY, int octaves, int seed) {
    double sum = 0;
    double strength = 0.6;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += strength * Noise(x, y, cellsX << octave, cellsY << octave, seed + octave * 17);
        strength /= 2;
    }
    return sum;
}

Nearest Cells(double x, double y, int cellsX, int cellsY, int seed, double scatter) {
    const double placeX = x * cellsX;
    const double placeY = y * cellsY;
    const int cellX = static_cast<int>(std::floor(placeX));
    const int cellY = static_cast<int>(std::floor(placeY));
    Nearest nearest{8, 8, 0};
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            const int column = Wrapped(cellX + dx, cellsX);
            const int row = Wrapped(cellY + dy, cellsY);
            const double pointX = cellX + dx + 0.5 + scatter * (Hash(column, row, seed) - 0.5);
            const double pointY = cellY + dy + 0.5 + scatter * (Hash(column, row, seed + 1) - 0.5);
            const double distance = std::hypot(pointX - placeX, pointY - placeY);
            if (distance < nearest.First) {
                nearest = {distance, nearest.First, Hash(column, row, seed + 2)};
            } else {
                nearest.Second = std::min(nearest.Second, distance);
            }
        }
    }
    return nearest;
}

Field Make(const std::function<double(double, double)>& value, int side) {
    Field field{side, {}};
    field.Values.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            field.Values.push_back(value(x / static_cast<double>(side), y / static_cast<double>(side)));
    }
    return field;
}

double At(const Field& field, int x, int y) {
    const int place = Wrapped(y, field.Side) * field.Side + Wrapped(x, field.Side);
    return field.Values[static_cast<std::size_t>(place)];
}

namespace {

/// A field of the same size from a function of the pixel.
template <typename Value>
Field Derived(const Field& from, Value value) {
    Field field{from.Side, {}};
    field.Values.reserve(from.Values.size());
    for (int y = 0; y < from.Side; ++y) {
        for (int x = 0; x < from.Side; ++x) field.Values.push_back(value(x, y));
    }
    return field;
}

}  // namespace

Field Relief(const Field& heights) {
    return Derived(heights, [&heights](int x, int y) {
        const double acrossX = At(heights, x + 1, y) - At(heights, x - 1, y);
        const double acrossY = At(heights, x, y + 1) - At(heights, x, y - 1);
        return (acrossX + 1.4 * acrossY) / 2;
    });
}

Field Blurred(const Field& field, int reachX, int reachY) {
    const auto pass = [](const Field& from, int reach, int stepX, int stepY) {
        return Derived(from, [&](int x, int y) {
            double sum = 0;
            for (int i = -reach; i <= reach; ++i) sum += At(from, x + i * stepX, y + i * stepY);
            return sum / (2 * reach + 1);
        });
    };
    return pass(pass(field, reachX, 1, 0), reachY, 0, 1);
}

}  // namespace TileNoise
