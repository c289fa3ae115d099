// Keys of the table.
#include "window/table/TableKeys.h"

#include <QAccessible>
#include <QApplication>
#include <QCursor>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QMouseEvent>

#include "engine/commands/mGen.h"
#include "engine/commands/mMain.h"
#include "engine/state/cData.h"
#include "window/table/TableAccess.h"
#include "window/table/TableFrame.h"
#include "window/table/TableView.h"

namespace {

std::optional<mFrame::Step> StepOf(int key) {
    using mFrame::Step;
    switch (key) {
        case Qt::Key_Left:
            return Step::Left;
        case Qt::Key_Right:
            return Step::Right;
        case Qt::Key_Up:
            return Step::Up;
        case Qt::Key_Down:
            return Step::Down;
        case Qt::Key_Home:
            return Step::RowStart;
        case Qt::Key_End:
            return Step::RowEnd;
        case Qt::Key_PageUp:
            return Step::GroupStart;
        case Qt::Key_PageDown:
            return Step::GroupEnd;
        case Qt::Key_Tab:
            return Step::NextGroup;
        case Qt::Key_Backtab:
            return Step::PreviousGroup;
        default:
            return std::nullopt;
    }
}

bool IsPlain(const QKeyEvent& event) {
    const Qt::KeyboardModifiers pressed = event.modifiers() & ~Qt::KeypadModifier;
    return pressed == Qt::NoModifier || (event.key() == Qt::Key_Backtab && pressed == Qt::ShiftModifier);
}

}  // namespace

TableKeys::TableKeys(TableView* table) : QObject(table), table_(table), frame_(new TableFrame) {
    constexpr int RefusalShows = 700;  // milliseconds
    table_->scene()->addItem(frame_);
    table_->installEventFilter(this);
    table_->viewport()->installEventFilter(this);
    refused_.setSingleShot(true);
    refused_.setInterval(RefusalShows);
    connect(&refused_, &QTimer::timeout, this, &TableKeys::ShowView);
}

bool TableKeys::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // Escape puts the card back before it leaves the full screen.
            if (watched == table_ && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
                mMain::InHand() == mMain::Hand::Keys) {
                event->accept();
                return true;
            }
            break;
        case QEvent::KeyPress:
            if (watched == table_) return PressKey(static_cast<QKeyEvent&>(*event));
            break;
        case QEvent::FocusIn:
            told_.reset();
            if (watched == table_) TellPlace();
            break;
        case QEvent::MouseMove:
            // The window system may tell of a mouse that has not moved, as when a dialog closes over it.
            if (watched != table_ && static_cast<QMouseEvent*>(event)->globalPosition() != mouse_) GiveWay();
            break;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (watched != table_) GiveWay();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

bool TableKeys::PressKey(const QKeyEvent& event) {
    if (!gData || !gData->Figures.GameRunning || mGen::Dealing() || !IsPlain(event)) return false;
    if (table_->scene()->mouseGrabberItem()) return false;  // a button of the mouse is held on a card
    if (const auto step = StepOf(event.key())) {
        Show(mKeys::Go(*step));
        return true;
    }
    switch (event.key()) {
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!event.isAutoRepeat()) Show(mKeys::Act());
            return true;
        case Qt::Key_F:
            if (!event.isAutoRepeat()) Show(mKeys::ToFoundation());
            return true;
        case Qt::Key_Escape:
            if (mMain::InHand() != mMain::Hand::Keys) return false;
            Show(mKeys::PutBack());
            return true;
        default:
            return false;
    }
}

void TableKeys::GiveWay() {
    if (!mKeys::Place()) return;
    mKeys::Hide();
    refused_.stop();
    ShowView();
}

void TableKeys::Ask(TableView* table, const std::function<mKeys::Answer()>& action) {
    auto* keys = table->findChild<TableKeys*>();
    if (!keys) return;
    QTimer::singleShot(0, keys, [keys, action] {
        if (QApplication::activeModalWidget() || keys->table_->scene()->mouseGrabberItem()) return;
        keys->Show(action());
    });
}

void TableKeys::Show(mKeys::Answer answer) {
    if (answer == mKeys::Answer::Refused) refused_.start();
    if (answer == mKeys::Answer::Done) refused_.stop();
    ShowView();
}

void TableKeys::Follow() {
    mKeys::Follow();
    ShowView();
}

void TableKeys::ShowView() {
    const bool shown = mKeys::Place().has_value();
    // The mouse is watched without a pressed button only while its first movement matters.
    if (shown && !table_->viewport()->hasMouseTracking()) mouse_ = QCursor::pos();
    table_->viewport()->setMouseTracking(shown);
    const QRectF changed = frame_->Show(mKeys::Seen(), refused_.isActive());
    if (!changed.isNull()) {
        table_->viewport()->update(table_->viewportTransform().mapRect(changed).toAlignedRect());
    }
    TellPlace();
}

void TableKeys::TellPlace() {
    const std::optional<mFrame::Stop> place = mKeys::Place();
    if (place == told_) return;
    told_ = place;
    if (!place) return;
    // On a table that is larger than its window.
    const mReader::Extent seen = *mKeys::Seen().Frame;
    table_->Reveal(QRectF(seen.Left, seen.Top, seen.Width, seen.Height));
    if (table_->hasFocus()) TableAccess::TellFocus(table_);
}
