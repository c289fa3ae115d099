// Noise that repeats, and fields of brightness or height: what the background tiles are made of.
#pragma once

#include <functional>
#include <vector>

namespace TileNoise {

inline constexpr int Size = 256;  ///< of most tiles, in pixels
/// Of tiles on which one can pick out a single vein, ring or stone: they repeat less often.
inline constexpr int LargeSize = 512;

/// A pseudo-random value from 0 to 1 for whole numbers.
[[nodiscard]] double Hash(int x, int y, int seed);

/// Smooth noise from -1 to 1. The tile's sides have length 1; cellsX and cellsY are whole numbers of swings
/// per side, so that it fits at every seam.
[[nodiscard]] double Noise(double x, double y, int cellsX, int cellsY, int seed);

/// Octaves of noise, each twice as fine and half as strong; from about -1 to 1.
[[nodiscard]] double Fractal(double x, double y, int cellsX, int cellsY, int octaves, int seed);

/// The nearest of the points that lie one in each cell, scattered.
struct Nearest {
    double First;   ///< distance to the nearest point, in cells
    double Second;  ///< distance to the next one
    double Value;   ///< a value from 0 to 1 of the nearest point
};
[[nodiscard]] Nearest Cells(double x, double y, int cellsX, int cellsY, int seed, double scatter = 1);

/// A value for every pixel of a tile.
struct Field {
    int Side;  ///< pixels
    std::vector<double> Values;
};

/// A field from a function of x and y, 0 to below 1.
[[nodiscard]] Field Make(const std::function<double(double, double)>& value, int side = Size);
/// A field's value at a pixel; beyond one side it goes on at the other.
[[nodiscard]] double At(const Field& field, int x, int y);
/// How light a surface of these heights (in pixels) is under a lamp at the upper left: 0 where it is flat.
[[nodiscard]] Field Relief(const Field& heights);
/// The mean over a box of 2 × reach + 1 pixels in x and in y.
[[nodiscard]] Field Blurred(const Field& field, int reachX, int reachY);

}  // namespace TileNoise
