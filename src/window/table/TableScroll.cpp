// The three ways to move the table.
#include "window/table/TableScroll.h"

#include <algorithm>

#include <QGraphicsItem>
#include <QMouseEvent>
#include <QWheelEvent>

#include "engine/commands/mGen.h"
#include "engine/rules/mFunc.h"
#include "window/table/TableView.h"

TableScroll::TableScroll(TableView* table) : QObject(table), table_(table) {
    constexpr int Step = 16;  // milliseconds
    pull_.setInterval(Step);
    connect(&pull_, &QTimer::timeout, this, &TableScroll::FollowHand);
    table_->viewport()->installEventFilter(this);
}

bool TableScroll::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Wheel:
            TurnWheel(static_cast<const QWheelEvent&>(*event));
            break;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (Press(static_cast<const QMouseEvent&>(*event))) return true;
            break;
        case QEvent::MouseMove: {
            const auto& move = static_cast<const QMouseEvent&>(*event);
            if (dragged_ && move.buttons().testFlag(Qt::LeftButton)) {
                table_->MoveBy(move.pos() - last_);
                last_ = move.pos();
                return true;
            }
            Release();  // one that went to another window
            if (gDrag.gPicked && !pull_.isActive()) pull_.start();
            break;
        }
        case QEvent::MouseButtonRelease:
            if (dragged_ && static_cast<const QMouseEvent&>(*event).button() == Qt::LeftButton) {
                Release();
                return true;
            }
            break;
        case QEvent::Hide:
            Release();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

void TableScroll::TurnWheel(const QWheelEvent& event) {
    constexpr double PixelsPerStep = 60.0;
    if (event.modifiers().testFlag(Qt::ControlModifier)) return;  // changes the table's size
    QPointF turn = event.pixelDelta();
    if (turn.isNull()) turn = QPointF(event.angleDelta()) * PixelsPerStep / QWheelEvent::DefaultDeltasPerStep;
    if (event.modifiers().testFlag(Qt::ShiftModifier)) turn = turn.transposed();
    table_->MoveBy(turn);
}

bool TableScroll::Press(const QMouseEvent& event) {
    if (mGen::Dealing()) return false;
    if (dragged_) return true;  // another button changes nothing
    if (event.button() != Qt::LeftButton || table_->scene()->mouseGrabberItem()) return false;
    const QGraphicsItem* item = table_->itemAt(event.pos());
    const bool takesPresses = item && item->acceptedMouseButtons() != Qt::NoButton;
    if (takesPresses || !table_->CanBeMoved()) return false;
    dragged_ = true;
    last_ = event.pos();
    table_->viewport()->setCursor(Qt::ClosedHandCursor);
    return true;
}

void TableScroll::Release() {
    if (!dragged_) return;
    dragged_ = false;
    table_->viewport()->unsetCursor();
}

QPointF TableScroll::Pull() const {
    constexpr double Edge = 24;     // pixels: a card held nearer to the edge moves the table
    constexpr double Fastest = 16;  // pixels a step
    const QPointF at = table_->viewport()->mapFromGlobal(table_->Pointer());
    const auto along = [=](double place, double length) {
        const double before = std::max(0.0, Edge - place);
        const double behind = std::max(0.0, Edge - (length - place));
        return std::clamp((before - behind) / 2, -Fastest, Fastest);
    };
    return {along(at.x(), table_->viewport()->width()), along(at.y(), table_->viewport()->height())};
}

void TableScroll::FollowHand() {
    if (!gDrag.gPicked || !table_->scene()->mouseGrabberItem()) {
        pull_.stop();
        return;
    }
    const QPointF pull = Pull();
    if (pull.isNull()) pull_.stop();
    table_->MoveBy(pull);
}
