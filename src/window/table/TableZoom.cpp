// Commands, keys, wheel and context menu of the table's size.
#include "window/table/TableZoom.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QGraphicsItem>
#include <QMainWindow>
#include <QMenu>
#include <QWheelEvent>

#include "engine/state/cData.h"
#include "window/look/mTablePicture.h"
#include "window/table/TableView.h"

namespace {

constexpr double Whole = 100.0;  // percent

}  // namespace

TableZoom::TableZoom(TableView* table, QMainWindow* window)
    : QObject(window), table_(table), window_(window) {
    BuildMenu();
    table_->installEventFilter(this);
    table_->viewport()->installEventFilter(this);
    window_->installEventFilter(this);
    connect(table_, &TableView::Resized, this, [this] { Apply(true); });
    connect(table_, &TableView::Moved, this, &TableZoom::FollowCard);
    ShowStates();
}

void TableZoom::BuildMenu() {
    menu_ = new QMenu(window_);
    menu_->setObjectName(QStringLiteral("mnuTable"));
    const auto entry = [this](const char* name, const QString& caption, const QList<QKeySequence>& keys) {
        auto* action = new QAction(caption, window_);
        action->setObjectName(QLatin1String(name));
        action->setShortcuts(keys);
        window_->addAction(action);
        return action;
    };
    // Plus lies beside the shift key on one keyboard and under it on another.
    zoomIn_ = entry("zoomIn", tr("Zoom In"), {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
    zoomOut_ = entry("zoomOut", tr("Zoom Out"), {Qt::CTRL | Qt::Key_Minus});
    QAction* actualSize = entry("actualSize", tr("Actual Size"), {Qt::CTRL | Qt::Key_0});
    fitGame_ = entry("fitGame", tr("Fit Game to Window"), {Qt::CTRL | Qt::Key_9});
    fullScreen_ = entry("fullScreen", tr("Full Screen"), {Qt::Key_F11});
    leaveFullScreen_ = entry("leaveFullScreen", tr("Leave Full Screen"), {Qt::Key_Escape});
    // The window system tells of the menu key alone.
    QAction* showMenu = entry("showMenu", tr("Table Menu"), {Qt::SHIFT | Qt::Key_F10});
    fitGame_->setCheckable(true);
    fullScreen_->setCheckable(true);
    menu_->addActions({zoomIn_, zoomOut_, actualSize, fitGame_});
    menu_->addSeparator();
    menu_->addAction(fullScreen_);

    connect(zoomIn_, &QAction::triggered, this, [this] { Step(1); });
    connect(zoomOut_, &QAction::triggered, this, [this] { Step(-1); });
    connect(actualSize, &QAction::triggered, this, [this] { Choose(mZoom::ActualSize, false); });
    connect(fitGame_, &QAction::triggered, this, [this](bool on) { Choose(percent_, on); });
    connect(fullScreen_, &QAction::triggered, this, &TableZoom::FlipFullScreen);
    connect(leaveFullScreen_, &QAction::triggered, this, &TableZoom::FlipFullScreen);
    connect(showMenu, &QAction::triggered, this, &TableZoom::PopUpInMiddle);
}

void TableZoom::Choose(int percent, bool fits) {
    const bool same = percent == percent_ && fits == fits_;
    percent_ = percent;
    fits_ = fits;
    Apply(false);
    if (!same) Q_EMIT Changed();
}

void TableZoom::Step(int steps) {
    const double seen = fits_ ? table_->Zoom() * Whole : percent_;
    double percent = seen;
    for (; steps > 0; --steps) percent = mZoom::Larger(percent);
    for (; steps < 0; ++steps) percent = mZoom::Smaller(percent);
    if (percent != seen) Choose(qRound(percent), false);
}

void TableZoom::NewGame() {
    // A caption that changes in the middle of a game has another reason.
    if (!gData || gData->Figures.GameRunning) return;
    const SessionFigures& figures = gData->Figures;
    if (gData->GetGameID(figures.CurGName) == 0) return;
    // Before the first card lies, so that the table does not change its size in the middle of the deal.
    room_ = mRoom::OfGame(mTablePicture::OpeningDeal(figures.CurGName, figures.CurGNo));
    if (room_ != dealt_) table_->MoveBack();
    dealt_ = room_;
    Apply(false);
}

void TableZoom::FollowCard(int PicID) {
    if (mRoom::Follow(room_, PicID)) Apply(true);
}

void TableZoom::Apply(bool passing) {
    table_->SetRoom(room_);
    if (!fits_) {
        table_->SetZoom(percent_ / Whole, passing);
    } else if (!room_.Empty()) {
        const QSize view = table_->maximumViewportSize();
        table_->SetZoom(mZoom::Fit(room_, view.width(), view.height(), table_->devicePixelRatioF()), passing);
    }
    ShowStates();
}

bool TableZoom::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ContextMenu:
            if (watched != window_) return ShowMenu(static_cast<QContextMenuEvent&>(*event));
            break;
        case QEvent::Wheel:
            if (watched == table_->viewport()) return TurnWheel(static_cast<QWheelEvent&>(*event));
            break;
        case QEvent::WindowStateChange:
            if (watched == window_) ShowStates();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

void TableZoom::PopUpInMiddle() {
    if (table_->scene()->mouseGrabberItem()) return;  // the menu would take the mouse from a card in the hand
    menu_->popup(table_->viewport()->mapToGlobal(table_->viewport()->rect().center()));
}

bool TableZoom::ShowMenu(const QContextMenuEvent& event) {
    if (event.reason() != QContextMenuEvent::Mouse) {
        PopUpInMiddle();
        return true;
    }
    // The press that asks for the menu may have been a card's, which it has lifted or dealt.
    if (table_->scene()->mouseGrabberItem()) return false;
    const QGraphicsItem* item = table_->itemAt(event.pos());
    if (item && item->acceptedMouseButtons() != Qt::NoButton) return false;
    menu_->popup(event.globalPos());
    return true;
}

bool TableZoom::TurnWheel(const QWheelEvent& event) {
    if (!event.modifiers().testFlag(Qt::ControlModifier)) return false;
    const int turn = event.angleDelta().y();
    if ((turn > 0) != (turned_ > 0)) turned_ = 0;
    turned_ += turn;
    const int steps = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ -= steps * QWheelEvent::DefaultDeltasPerStep;
    Step(steps);
    return true;
}

void TableZoom::BeginFullScreen() {
    wasMaximised_ = window_->isMaximized();
    window_->setWindowState(Qt::WindowFullScreen);
}

void TableZoom::FlipFullScreen() {
    if (!window_->isFullScreen()) {
        wasMaximised_ = window_->isMaximized();
        window_->showFullScreen();
    } else if (wasMaximised_) {
        window_->showMaximized();
    } else {
        window_->showNormal();
    }
}

void TableZoom::ShowStates() {
    const double percent = table_->Zoom() * Whole;
    zoomIn_->setEnabled(mZoom::Larger(percent) != percent);
    zoomOut_->setEnabled(mZoom::Smaller(percent) != percent);
    fitGame_->setChecked(fits_);
    fullScreen_->setChecked(window_->isFullScreen());
    leaveFullScreen_->setEnabled(window_->isFullScreen());
}
