// What the monkey does in the main window.
#include <QAccessible>
#include <QAction>
#include <QCoreApplication>
#include <QGraphicsItem>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>
#include <QWidget>

#include "engine/rules/mFunc.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "tools/RandomPlayer.h"
#include "tools/monkey/Diary.h"
#include "tools/monkey/Monkey.h"
#include "window/table/TableView.h"
#include "window/table/frmMain.h"

namespace {

// Where in a card it is gripped, in twips: its index, which a fan leaves free.
constexpr int GripX = 150;
constexpr int GripY = 90;

QPoint OnView(const frmMain& window, int left, int top) {
    return window.Table()->mapFromScene(QPointF(left + GripX, top + GripY));
}

}  // namespace

// A drag that the rules allow, found by trial; without one the game would never get on.
void Monkey::PlanDrag() {
    constexpr int Tries = 20;
    constexpr int cells[] = {Home, Goal, Goal, Res};
    for (int i = 0; i < Tries; ++i) {
        const int PicID = Pick(gGames->TotalCards());
        int above = 0;
        if (!mFunc::CanLift(PicID, above)) continue;
        const int Cell = cells[Pick(4)];
        const int piles = gGames->Piles(Cell);
        if (piles == 0) continue;
        const int Pile = Pick(piles);
        if (!mFunc::Accepts(PicID, above, Cell, Pile)) continue;
        const Point end = DropPlace(Cell, Pile);
        QWidget* view = window_->Table()->viewport();
        const QPoint to = OnView(*window_, end.X, end.Y);
        plan_ = {[this, view, to] { hands_.Move(view, to); }, [this] { hands_.Release(); }};
        hands_.Press(view, OnView(*window_, mFunc::CardLeft(PicID), mFunc::CardTop(PicID)));
        return;
    }
    PressAnywhere();
}

// A few steps of the frame, then something with the card that it comes to: often it is lifted, carried on and
// dropped.
void Monkey::PlanKeys() {
    constexpr Qt::Key steps[] = {Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,   Qt::Key_Down,
                                 Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Home, Qt::Key_End,
                                 Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Tab,  Qt::Key_Backtab};
    constexpr Qt::Key deeds[] = {Qt::Key_Space,  Qt::Key_Space, Qt::Key_Space,
                                 Qt::Key_Return, Qt::Key_F,     Qt::Key_Escape};
    for (int rounds = 1 + Pick(3); rounds > 0; --rounds) {
        for (int i = Pick(5); i > 0; --i) {
            plan_.push_back([this, key = steps[Pick(12)]] { hands_.Key(window_, key); });
        }
        plan_.push_back([this, key = deeds[Pick(6)]] { hands_.Key(window_, key); });
    }
}

// One of the actions that a card or pile offers to screen readers.
void Monkey::AskForAction() {
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(window_->Table());
    const int piles = table->childCount();
    QAccessibleInterface* place = piles > 0 ? table->child(Pick(piles)) : nullptr;
    if (!place) return PlanKeys();
    if (const int cards = place->childCount(); cards > 0 && Chance(60)) place = place->child(Pick(cards));
    QStringList names = place->actionInterface()->actionNames();
    const QString name = OneOf(names);
    mDiary::Note("ask " + place->text(QAccessible::Name).toStdString() + " to " + name.toStdString());
    place->actionInterface()->doAction(name);
}

void Monkey::PressAnywhere() {
    QWidget* view = window_->Table()->viewport();
    QPoint at = PointIn(view);
    if (gData->Figures.GameRunning && Chance(70)) {
        const CardRecord& card = PicBack.PicCards(Pick(gGames->TotalCards()));
        at = OnView(*window_, card.Left, card.Top);
    }
    constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    hands_.Press(view, at, buttons[Pick(4)]);
}

void Monkey::OnHeldButton() {
    QWidget* view = window_->Table()->viewport();
    const int choice = Pick(100);
    if (choice < 45) {
        const QPoint to = Chance(20) ? QPoint(Pick(4000) - 2000, Pick(4000) - 2000) : PointIn(view);
        hands_.Move(view, to);
    } else if (choice < 92) {
        hands_.Release();
    } else if (choice < 94) {
        hands_.Press(view, PointIn(view), Qt::RightButton);
    } else if (choice < 98) {
        PressShortcut();
    } else {
        ChangeWindow();
    }
}

void Monkey::OnTable() {
    // Without a game there is little to do on the table.
    const bool running = gData->Figures.GameRunning;
    const int choice = running ? Pick(1000) : 600 + Pick(400);
    QWidget* view = window_->Table()->viewport();
    if (choice < 300) {
        PlanDrag();
    } else if (choice < 370) {
        PlanKeys();
    } else if (choice < 400) {
        AskForAction();
    } else if (choice < 570) {
        PressAnywhere();
    } else if (running && choice < 660 && gArray->GetTop(Stock) >= 0) {
        const CardRecord& card = PicBack.PicCards(gArray->GetTopPicID(Stock));
        hands_.Click(view, OnView(*window_, card.Left, card.Top));
    } else if (choice < 680) {
        const MarkRecord& mark = PicBack.Mark(MarkKind::Stock, 0);
        hands_.Click(view, OnView(*window_, mark.Left, mark.Top));
    } else if (choice < 710) {
        hands_.DoubleClick(view, PointIn(view));
    } else if (choice < 740) {
        hands_.Move(view, PointIn(view));
    } else if (choice < 770) {
        hands_.Wheel(view, PointIn(view), Pick(7) - 3, Chance(50) ? Qt::ControlModifier : Qt::NoModifier);
    } else if (choice < 840) {
        OpenMenu();
    } else if (choice < 925) {
        PressShortcut();
    } else if (choice < 960) {
        PressToolButton();
    } else if (choice < 975) {
        PressKey(window_);
    } else if (choice < 990) {
        ChangeWindow();
    } else if (choice < 994) {
        // The commands' states, the clock and a replay go on by timers.
        pause_ = 100 + Pick(500);
        mDiary::Note("wait " + std::to_string(pause_) + " ms");
    } else if (choice < 997) {
        constexpr Moment Day = 86'400'000;
        const Moment leap = Day * (Pick(800) - 400);
        mDiary::Note("set the clock by " + std::to_string(leap / 1000) + " s");
        calendar_->Advance(leap);
    } else {
        mDiary::Note("take the mouse away from the window");
        hands_.Move(window_, QPoint(-100, -100));
        // Another window takes the keyboard away, and is gone again.
        QWidget elsewhere;
        elsewhere.show();
        elsewhere.activateWindow();
        QCoreApplication::processEvents();
    }
}

void Monkey::OpenMenu() {
    QMenuBar* bar = window_->menuBar();
    QList<QAction*> menus = bar->actions();
    hands_.Click(bar, bar->actionGeometry(OneOf(menus)).center());
}

void Monkey::PressShortcut() {
    QList<QAction*> actions = window_->findChildren<QAction*>();
    actions.removeIf([](const QAction* action) { return action->shortcut().isEmpty(); });
    const QKeySequence shortcut = OneOf(actions)->shortcut();
    hands_.Key(window_, shortcut[0].key(), shortcut[0].keyboardModifiers());
}

void Monkey::PressToolButton() {
    QList<QToolButton*> buttons = window_->findChildren<QToolButton*>();
    buttons.removeIf([](const QToolButton* button) { return !button->isVisible(); });
    if (buttons.isEmpty()) return PressShortcut();
    QToolButton* button = OneOf(buttons);
    hands_.Click(button, button->rect().center());
}

void Monkey::ChangeWindow() {
    constexpr int Least = 100;
    constexpr int Range = 1800;
    constexpr std::pair<const char*, void (QWidget::*)()> ways[] = {
        {"maximise", &QWidget::showMaximized},
        {"minimise", &QWidget::showMinimized},
        {"fill the screen with", &QWidget::showFullScreen},
        {"restore", &QWidget::showNormal},
    };
    if (const int choice = Pick(6); choice < 4) {
        mDiary::Note(std::string(ways[choice].first) + " the window");
        (window_->*ways[choice].second)();
        return;
    }
    window_->showNormal();
    const QSize size(Least + Pick(Range), Least + Pick(Range));
    mDiary::Note("resize the window to " + std::to_string(size.width()) + " by " +
                 std::to_string(size.height()));
    window_->resize(size);
}
