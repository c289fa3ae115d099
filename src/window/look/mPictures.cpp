// The pictures' cache and the table backgrounds.
#include "window/look/mPictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include <QHash>
#include <QPainter>

#include "Art.h"
#include "engine/state/mAssets.h"
#include "engine/state/mRandom.h"

namespace mPictures {

namespace {

constexpr int LastFace = DeckCards;
constexpr int LastMark = 17;  // one more than the table shows

// A picture is rendered once for each size. The table, and a preview beside it, may need different ones;
// those of a size that nobody has asked for since two others came are dropped.
struct Rendered {
    QSize Card;
    QHash<QString, QPixmap> Pictures;
};
std::array<Rendered, 3> sizes;  // the last used first

bool useFourColors = false;

QPixmap Cached(const QString& name, double scale) {
    const QSize card = CardSize(scale);
    auto found = std::find_if(sizes.begin(), sizes.end(),
                              [&card](const Rendered& rendered) { return rendered.Card == card; });
    if (found == sizes.end()) {
        found = std::prev(sizes.end());
        *found = {card, {}};
    }
    std::rotate(sizes.begin(), found, std::next(found));
    QPixmap& picture = sizes.front().Pictures[name];
    if (picture.isNull()) picture = QPixmap::fromImage(Art::Picture(name, scale));
    return picture;
}

// Lets the painter draw in the pixels of its device. Without a detour over its own units, whose noise would
// make a picture be scaled, by nothing but enough to shift it.
void ToDevicePixels(QPainter& painter) {
    painter.setWorldTransform({});
    painter.setWorldTransform(painter.deviceTransform().inverted());
}

int Channel(int start, int end, int step) {
    constexpr int Steps = 255;
    return std::max(0, RoundToEven(start + step * (end - start) / static_cast<double>(Steps)));
}

// 255 bars of two units each on a plate of 512 units, from the top down.
void PaintColor(QPainter& painter, const QRectF& plate, const QRectF& area, const QColor& start, bool fade) {
    constexpr int Bars = 255;
    constexpr double Units = 512.0;
    const QColor end = fade ? QColor(Qt::black) : start;
    painter.fillRect(area, end);
    if (area.top() < plate.top())
        painter.fillRect(QRectF(area.topLeft(), QPointF(area.right(), plate.top())), start);
    const double step = 2.0 * plate.height() / Units;
    for (int i = 1; i <= Bars; ++i) {
        // The next bar covers what each has too much, so that no gap of a pixel opens between them.
        const double height = i < Bars ? 2 * step : step;
        const QRectF bar(area.left(), plate.top() + (i - 1) * step, area.width(), height);
        if (bar.bottom() < area.top() || bar.top() > area.bottom()) continue;
        painter.fillRect(bar,
                         QColor(Channel(start.red(), end.red(), i), Channel(start.green(), end.green(), i),
                                Channel(start.blue(), end.blue(), i)));
    }
}

// The tile for one size of a designed pixel, in whole pixels, so that one fits to the next. Null where
// there is none of that number. Kept for the background that is shown.
struct ShownTile {
    int Number = 0;
    double Unit = 0;
    QPixmap Scaled;
};
std::optional<ShownTile> shownTile;

QPixmap ScaledTile(int number, double unit) {
    if (!shownTile || shownTile->Number != number || shownTile->Unit != unit) {
        const QImage tile = Art::Tile(number);
        if (tile.isNull()) return {};
        const QSize size = (QSizeF(tile.size()) * unit).toSize().expandedTo(QSize(1, 1));
        // Smoothly also over its edges: through a brush, which knows how it goes on there.
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.scale(static_cast<double>(size.width()) / tile.width(),
                      static_cast<double>(size.height()) / tile.height());
        painter.fillRect(tile.rect(), QBrush(tile));
        painter.end();
        shownTile = ShownTile{number, unit, QPixmap::fromImage(image)};
    }
    return shownTile->Scaled;
}

void PaintTile(QPainter& painter, const QRectF& plate, const QRectF& area, int number) {
    // A designed pixel on the device, whatever the painter's units are.
    const QTransform toDevice = painter.deviceTransform();
    const double unit =
        std::hypot(toDevice.m11(), toDevice.m12()) * plate.width() / PlateWidth * TwipsPerPixel;
    QPixmap tile = ScaledTile(number, unit);
    if (tile.isNull()) tile = ScaledTile(mAssets::FirstBackground, unit);
    const QRectF pixels = toDevice.mapRect(area);
    const QPointF first = toDevice.map(plate.topLeft());
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    ToDevicePixels(painter);
    painter.setBrushOrigin(first.toPoint());
    painter.fillRect(pixels.toAlignedRect(), QBrush(tile));
    painter.restore();
}

}  // namespace

double ScaleOf(const QPainter& painter) {
    // Width of a card on the device, from the painter's own units of twips.
    const QTransform& transform = painter.deviceTransform();
    return std::hypot(transform.m11(), transform.m12()) * TwipsPerPixel;
}

QPixmap MainPic(int ind, double scale, bool fourColors) {
    const QString name = fourColors ? QStringLiteral("cards-four/%1") : QStringLiteral("cards/%1");
    return Cached(name.arg(ind >= 1 && ind <= LastFace ? ind : 1), scale);
}

QPixmap MainPic(int ind, double scale) { return MainPic(ind, scale, useFourColors); }

void UseFourColors(bool on) { useFourColors = on; }

QPixmap GetPic(int ind, double scale) {
    const QPixmap back = Cached(QStringLiteral("backs/%1").arg(ind), scale);
    return back.isNull() ? Cached(QStringLiteral("backs/%1").arg(mAssets::UsualDeck), scale) : back;
}

QPixmap RightPic(int ind, double scale) {
    return Cached(QStringLiteral("marks/%1").arg(ind >= 0 && ind <= LastMark ? ind : EmptyMark), scale);
}

void Forget() {
    sizes = {};
    shownTile.reset();
}

QPixmap Inverted(const QPixmap& picture) {
    QImage image = picture.toImage();
    image.invertPixels();
    return QPixmap::fromImage(image);
}

QSize CardSize(double scale) { return (QSizeF(CardWidth, CardHeight) / TwipsPerPixel * scale).toSize(); }

void DrawAtWholePixels(QPainter& painter, const QPixmap& picture, const QSize& size) {
    // A place half-way between two pixels must come to the same one in every repaint, though the last digits
    // of the transform depend on what is painted: otherwise a repaint beside a card cuts off its edge.
    constexpr double Noise = 1e-6;
    const auto whole = [](double place) { return std::floor(place + 0.5 + Noise); };
    const QPointF origin = painter.deviceTransform().map(QPointF(0, 0));
    painter.save();
    ToDevicePixels(painter);
    const QPointF corner(whole(origin.x()), whole(origin.y()));
    if (size.isEmpty() || size == picture.size()) {
        painter.drawPixmap(corner, picture);
    } else {
        painter.drawPixmap(QRectF(corner, size), picture, picture.rect());
    }
    painter.restore();
}

QColor ColorOf(int number) { return {number & 255, number >> 8 & 255, number >> 16 & 255}; }

void SetBG(int ind, QPainter& painter, const QRectF& plate, const QRectF& area, int fade, int customColor) {
    if (ind < mAssets::CustomColorId) {
        PaintTile(painter, plate, area, ind);
        return;
    }
    const mAssets::NamedColor* named = mAssets::GetCol(ind);
    PaintColor(painter, plate, area, ColorOf(named ? named->Color : customColor), fade == 1);
}

}  // namespace mPictures
