// The background tiles by number: pictures that fit together on all sides, low in contrast, so that cards
// stand out on them.
#pragma once

#include <span>
#include <string>

class QImage;

namespace Tiles {

/// The numbers of all tiles.
[[nodiscard]] std::span<const int> Numbers();
/// A tile of that list.
[[nodiscard]] QImage Tile(int number);

}  // namespace Tiles
