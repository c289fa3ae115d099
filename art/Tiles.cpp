// Which numbers belong to which group.
#include "Tiles.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <stdexcept>
#include <vector>

#include <QImage>
#include <QPoint>

#include "TileGroups.h"

namespace {

struct TileGroup {
    int First;
    int Count;
    QImage (*Draw)(int member);
};

// clang-format off
constexpr std::array<TileGroup, 8> Groups = {{
    { 1, 5, TileGroups::Bricks},
    {11, 3, TileGroups::Marbles},
    {21, 5, TileGroups::Paper},
    {31, 4, TileGroups::Rocks},
    {41, 3, TileGroups::Stars},
    {51, 5, TileGroups::Surfaces},
    {61, 5, TileGroups::Water},
    {71, 3, TileGroups::Wood},
}};
// clang-format on

int Contrast(QRgb one, QRgb other) {
    return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
           std::abs(qBlue(one) - qBlue(other));
}

// The row and the column that differ least from the one before.
QPoint CalmestPlace(const QImage& tile) {
    std::vector<int> columns(static_cast<std::size_t>(tile.width()));
    std::vector<int> rows(static_cast<std::size_t>(tile.height()));
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            const QRgb pixel = tile.pixel(x, y);
            columns[static_cast<std::size_t>(x)] +=
                Contrast(pixel, tile.pixel((x + tile.width() - 1) % tile.width(), y));
            rows[static_cast<std::size_t>(y)] +=
                Contrast(pixel, tile.pixel(x, (y + tile.height() - 1) % tile.height()));
        }
    }
    return {static_cast<int>(std::min_element(columns.begin(), columns.end()) - columns.begin()),
            static_cast<int>(std::min_element(rows.begin(), rows.end()) - rows.begin())};
}

// A tile repeats, so it may begin anywhere: its edges go where there is least to cut through.
QImage CutWhereCalm(const QImage& tile) {
    const QPoint origin = CalmestPlace(tile);
    QImage cut(tile.size(), tile.format());
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            cut.setPixel(x, y, tile.pixel((x + origin.x()) % tile.width(), (y + origin.y()) % tile.height()));
        }
    }
    return cut;
}

}  // namespace

namespace Tiles {

std::span<const int> Numbers() {
    static const auto All = [] {
        std::vector<int> numbers;
        for (const TileGroup& group : Groups) {
            for (int i = 0; i < group.Count; ++i) numbers.push_back(group.First + i);
        }
        return numbers;
    }();
    return All;
}

QImage Tile(int number) {
    const auto group = std::find_if(Groups.begin(), Groups.end(), [number](const TileGroup& entry) {
        return number >= entry.First && number < entry.First + entry.Count;
    });
    if (group == Groups.end()) throw std::out_of_range("no such tile");
    return CutWhereCalm(group->Draw(number - group->First + 1));
}

}  // namespace Tiles

double TileGroups::Step(double from, double to, double value) {
    const double share = std::clamp((value - from) / (to - from), 0.0, 1.0);
    return share * share * (3 - 2 * share);
}
