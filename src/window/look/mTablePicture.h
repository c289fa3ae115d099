// A picture of a table: the opening deal of a game, computed by the engine, drawn without a window.
#pragma once

#include <string>

#include <QImage>
#include <QRectF>
#include <QSize>

#include "engine/state/GameNumber.h"
#include "engine/state/cPlate.h"

namespace mTablePicture {

/// The part of the plate that the cards and marks of a table cover, in twips.
[[nodiscard]] QRectF Extent(const cPlate& plate);

/// Draws the part `area` (twips) of a plate, with background, at `scale` device pixels per designed pixel.
/// Where that is at most half of `ready`, the cards come from pictures of that scale, averaged down: as sharp
/// as pictures drawn anew for an odd size, and much faster.
[[nodiscard]] QImage Draw(const cPlate& plate, const QRectF& area, double scale, double ready = 0);

/// The number of the deal that stands for a game where it is only looked at.
inline constexpr double FirstDeal = 1;

/// The opening deal of a game on the plate, computed aside: the running game does not notice.
[[nodiscard]] cPlate OpeningDeal(const std::string& game, const GameNumber& number);

/// The first deal of a game as large as it fits into `size` (pixels of a window), sharp on a screen of that
/// pixel ratio.
[[nodiscard]] QImage Preview(const std::string& game, const QSize& size, double pixelRatio);

}  // namespace mTablePicture
