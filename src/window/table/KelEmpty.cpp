// A pile mark's view.
#include "window/table/KelEmpty.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>

#include "engine/commands/mMain.h"
#include "engine/state/cPlate.h"
#include "window/look/mPictures.h"
#include "window/table/TableView.h"

namespace {

QString NameOf(MarkKind kind, int index) {
    switch (kind) {
        case MarkKind::Home:
            return QStringLiteral("PicHome%1").arg(index);
        case MarkKind::Right:
            return QStringLiteral("PicRight%1").arg(index);
        case MarkKind::Res:
            return QStringLiteral("PicRes%1").arg(index);
        case MarkKind::Waste:
            return QStringLiteral("PicWaste%1").arg(index);
        case MarkKind::Stock:
            break;
    }
    return QStringLiteral("PicStock");
}

}  // namespace

KelEmpty::KelEmpty(MarkKind kind, int index, const TableView* table)
    : table_(table), kind_(kind), index_(index) {
    setObjectName(NameOf(kind, index));
    setAcceptedMouseButtons(kind == MarkKind::Stock ? Qt::AllButtons : Qt::NoButton);
    setZValue(-1);  // below all cards
    setVisible(false);
}

QRectF KelEmpty::boundingRect() const { return mPictures::CardBounds; }

QPainterPath KelEmpty::shape() const {
    QPainterPath path;
    path.addRect(0, 0, CardWidth, CardHeight);
    return path;
}

void KelEmpty::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    const int picture = PicBack.Mark(kind_, index_).Picture;
    const double scale = mPictures::ScaleOf(*painter);
    const double ready = table_ ? table_->PictureScale(scale) : scale;
    mPictures::DrawAtWholePixels(*painter, mPictures::RightPic(picture, ready), mPictures::CardSize(scale));
}

void KelEmpty::mousePressEvent(QGraphicsSceneMouseEvent* event) { event->accept(); }

void KelEmpty::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) { event->accept(); }

void KelEmpty::mouseReleaseEvent(QGraphicsSceneMouseEvent* event) {
    if (event->buttons() == Qt::NoButton && shape().contains(event->pos())) mMain::StockClick();
}
