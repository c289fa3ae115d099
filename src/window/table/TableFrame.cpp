// Frames are told apart by their lines, not by colour alone: solid where the keys are, dashed around a pile
// that takes the card. Each light line lies on a dark one, so that it stands out from cards and from every
// background.
#include "window/table/TableFrame.h"

#include <limits>

#include <QPainter>

namespace {

// Twips.
constexpr double Gap = 45;  // the middle of a line from the card's edge
constexpr double DarkLine = 120;
constexpr double LightLine = 60;
constexpr double Corner = 90;

constexpr double SignSize = 640;
constexpr double SignLine = 110;
constexpr double SignEdge = 170;

const QColor Light(255, 214, 0);
const QColor Dark(20, 20, 20);
const QColor Refused(214, 30, 30);

QRectF Rect(const mReader::Extent& area) { return QRectF(area.Left, area.Top, area.Width, area.Height); }

void DrawFrame(QPainter& painter, const QRectF& card, const QColor& color, Qt::PenStyle style) {
    const QRectF line = card.adjusted(-Gap, -Gap, Gap, Gap);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Dark, DarkLine));
    painter.drawRoundedRect(line, Corner, Corner);
    QPen light(color, LightLine, style);
    light.setCapStyle(Qt::FlatCap);
    if (style == Qt::CustomDashLine) light.setDashPattern({3, 2});
    painter.setPen(light);
    painter.drawRoundedRect(line, Corner, Corner);
}

// A circle with a stroke through it.
void DrawNo(QPainter& painter, const QPointF& middle) {
    const QRectF circle(middle.x() - SignSize / 2, middle.y() - SignSize / 2, SignSize, SignSize);
    const QPointF reach(SignSize * 0.35, SignSize * 0.35);
    for (const auto& [color, width] :
         {std::pair(QColor(Qt::white), SignEdge), std::pair(Refused, SignLine)}) {
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(circle);
        painter.drawLine(middle - reach, middle + reach);
    }
}

}  // namespace

TableFrame::TableFrame() {
    setAcceptedMouseButtons(Qt::NoButton);
    setZValue(std::numeric_limits<int>::max());  // above all cards
    setVisible(false);
}

QRectF TableFrame::Show(const mKeys::View& view, bool refused) {
    if (view == view_ && refused == refused_) return {};
    const QRectF before = covered_;
    view_ = view;
    refused_ = refused;
    prepareGeometryChange();
    covered_ = {};
    if (view.Frame) covered_ = Rect(*view.Frame);
    for (const mReader::Extent& target : view.Targets) covered_ |= Rect(target);
    if (!covered_.isNull()) {
        // The sign may be larger than what is seen of a card in a fan.
        covered_.adjust(-SignSize, -SignSize, SignSize, SignSize);
    }
    setVisible(view.Frame.has_value());
    return before | covered_;
}

void TableFrame::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    for (const mReader::Extent& target : view_.Targets) {
        DrawFrame(*painter, Rect(target), Qt::white, Qt::CustomDashLine);
    }
    if (view_.Frame) {
        const QRectF frame = Rect(*view_.Frame);
        DrawFrame(*painter, frame, refused_ ? Refused : Light, Qt::SolidLine);
        if (refused_) DrawNo(*painter, frame.center());
    }
    painter->restore();
}
