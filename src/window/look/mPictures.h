// From a picture's number to the picture: card faces, backs, marks and table backgrounds, rendered for
// the scale of the screen, each once and only when first needed.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QRectF>
#include <QString>

#include "engine/commands/mZoom.h"
#include "engine/state/cPlate.h"

class QPainter;

namespace mPictures {

using mZoom::TwipsPerPixel;

/// A card at the origin of a table, twips, and around it what its picture may take when it is moved to
/// whole device pixels.
inline constexpr QRectF CardBounds{-60, -60, CardWidth + 120, CardHeight + 120};

/// Device pixels per designed pixel under a painter.
[[nodiscard]] double ScaleOf(const QPainter& painter);

// A picture for one scale, in device pixels: a card at scale 1 measures 71 × 96. A number that names
// no picture gives the first face, the default back, the plain mark.

/// Card face 1 to 52: suit × 13 + rank + 1.
[[nodiscard]] QPixmap MainPic(int ind, double scale);
[[nodiscard]] QPixmap MainPic(int ind, double scale, bool fourColors);
/// Whether each suit has a color of its own from now on, where nobody asks for one or the other.
void UseFourColors(bool on);
/// The card back of that number, 501 to 544.
[[nodiscard]] QPixmap GetPic(int ind, double scale);
/// Pile mark 0 to 17.
[[nodiscard]] QPixmap RightPic(int ind, double scale);
/// Drops all that was rendered; it is rendered again when it is needed.
void Forget();
[[nodiscard]] QPixmap Inverted(const QPixmap& picture);

/// How large a picture for that scale is, in device pixels.
[[nodiscard]] QSize CardSize(double scale);

/// Draws a picture at the painter's origin, moved to whole device pixels so that it stays sharp; stretched to
/// `size` where it has another one.
void DrawAtWholePixels(QPainter& painter, const QPixmap& picture, const QSize& size = {});

/// The colour of a number: red + 256 × green + 65536 × blue.
[[nodiscard]] QColor ColorOf(int number);

/// Paints background `ind` so that it fills `area`, whose surface lies at `plate` (in the painter's
/// units): a tile below 1000, the custom colour (red + 256 × green + 65536 × blue) at 1000, a colour of
/// the table above. With `fade` 1 a colour fades to black from the top of the plate to its bottom;
/// outside the plate the background goes on as at its edge.
void SetBG(int ind, QPainter& painter, const QRectF& plate, const QRectF& area, int fade, int customColor);

}  // namespace mPictures
