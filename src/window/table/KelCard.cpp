// A card's view: its picture at whole pixels, and the mouse passed on in twips inside the card.
#include "window/table/KelCard.h"

#include <QEvent>
#include <QGraphicsSceneMouseEvent>
#include <QPainter>

#include "engine/commands/mMain.h"
#include "engine/state/cPlate.h"
#include "window/look/mPictures.h"
#include "window/table/TableView.h"

KelCard::KelCard(int PicID, const TableView* table) : table_(table), picID_(PicID) {
    setObjectName(QStringLiteral("PicCards%1").arg(PicID));
    setAcceptedMouseButtons(Qt::AllButtons);
    setVisible(false);
}

QRectF KelCard::boundingRect() const { return mPictures::CardBounds; }

QPainterPath KelCard::shape() const {
    QPainterPath path;
    path.addRect(0, 0, CardWidth, CardHeight);
    return path;
}

void KelCard::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    const CardRecord& card = PicBack.PicCards(picID_);
    const double scale = mPictures::ScaleOf(*painter);
    const double ready = table_ ? table_->PictureScale(scale) : scale;
    QPixmap picture =
        card.FaceMode == 1 ? mPictures::GetPic(card.DeckPic, ready) : mPictures::MainPic(card.MainPic, ready);
    if (card.Selected && card.FaceMode != 1) picture = mPictures::Inverted(picture);
    mPictures::DrawAtWholePixels(*painter, picture, mPictures::CardSize(scale));
}

void KelCard::mousePressEvent(QGraphicsSceneMouseEvent* event) {
    // A second button during a drag changes nothing.
    if (button_ == Qt::NoButton) {
        button_ = event->button();
        mMain::MouseDown(picID_, event->pos().x(), event->pos().y());
    }
    event->accept();
}

// The second press of a double click is a press like any other.
void KelCard::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) { mousePressEvent(event); }

void KelCard::FollowPointer(const QPointF& plate) const {
    mMain::MouseMove(picID_, plate.x() - x(), plate.y() - y());
}

void KelCard::mouseReleaseEvent(QGraphicsSceneMouseEvent* event) {
    if (event->button() != button_) return;
    button_ = Qt::NoButton;
    mMain::MouseUp(picID_);
}

bool KelCard::sceneEvent(QEvent* event) {
    // The mouse was taken away without a release, as when another window came up: the card goes back.
    if (event->type() == QEvent::UngrabMouse && button_ != Qt::NoButton) {
        button_ = Qt::NoButton;
        mMain::MouseLost();
    }
    return QGraphicsObject::sceneEvent(event);
}
