// What the monkey does in the main window.
#include <QAction>
#include <QApplication>
#include <QGraphicsItem>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>
#include <QWidget>

#include "monkey/Diary.h"
#include "monkey/Monkey.h"
#include "rules/mFunc.h"
#include "shell/cData.h"
#include "state/cArray.h"
#include "state/cGames.h"
#include "support/RandomPlayer.h"
#include "table/TableView.h"
#include "table/cPlate.h"
#include "table/frmMain.h"

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
        if (!Accepts(PicID, above, Cell, Pile)) continue;
        const Point end = DropPlace(Cell, Pile);
        QWidget* view = window_->Table()->viewport();
        const QPoint to = OnView(*window_, end.X, end.Y);
        mDiary::Note("press card " + std::to_string(PicID) + " for pile " + std::to_string(Cell) + '/' +
                     std::to_string(Pile));
        plan_ = {[this, view, to] {
                     mDiary::Note("drag it there");
                     hands_.Move(view, to);
                 },
                 [this] {
                     mDiary::Note("drop it");
                     hands_.Release();
                 }};
        hands_.Press(view, OnView(*window_, mFunc::CardLeft(PicID), mFunc::CardTop(PicID)));
        return;
    }
    PressAnywhere();
}

void Monkey::PressAnywhere() {
    QWidget* view = window_->Table()->viewport();
    QPoint at = PointIn(view);
    if (gData->Figures.GameRunning && Chance(70)) {
        const CardRecord& card = PicBack.PicCards(Pick(gGames->TotalCards()));
        at = OnView(*window_, card.Left, card.Top);
    }
    mDiary::Note("press the table at " + std::to_string(at.x()) + ", " + std::to_string(at.y()));
    constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    hands_.Press(view, at, buttons[Pick(4)]);
}

void Monkey::OnHeldButton() {
    QWidget* view = window_->Table()->viewport();
    const int choice = Pick(100);
    if (choice < 45) {
        const QPoint to = Chance(20) ? QPoint(Pick(4000) - 2000, Pick(4000) - 2000) : PointIn(view);
        mDiary::Note("move the held mouse to " + std::to_string(to.x()) + ", " + std::to_string(to.y()));
        hands_.Move(view, to);
    } else if (choice < 92) {
        mDiary::Note("let go of the mouse");
        hands_.Release();
    } else if (choice < 94) {
        mDiary::Note("another button at the same time");
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
    if (choice < 400) {
        PlanDrag();
    } else if (choice < 570) {
        PressAnywhere();
    } else if (running && choice < 660 && gArray->GetTop(Stock) >= 0) {
        const CardRecord& card = PicBack.PicCards(gArray->GetTopPicID(Stock));
        mDiary::Note("click the stock");
        hands_.Click(view, OnView(*window_, card.Left, card.Top));
    } else if (choice < 680) {
        const MarkRecord& mark = PicBack.Mark(MarkKind::Stock, 0);
        mDiary::Note("click the stock's mark");
        hands_.Click(view, OnView(*window_, mark.Left, mark.Top));
    } else if (choice < 710) {
        mDiary::Note("double-click the table");
        hands_.DoubleClick(view, PointIn(view));
    } else if (choice < 740) {
        mDiary::Note("move the mouse over the table");
        hands_.Move(view, PointIn(view));
    } else if (choice < 770) {
        mDiary::Note("turn the wheel");
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
        QApplication::setActiveWindow(nullptr);
    }
}

void Monkey::OpenMenu() {
    QMenuBar* bar = window_->menuBar();
    const QList<QAction*> menus = bar->actions();
    const QAction* menu = OneOf(menus);
    mDiary::Note("open the menu " + menu->text().toStdString());
    hands_.Click(bar, bar->actionGeometry(const_cast<QAction*>(menu)).center());
}

void Monkey::PressShortcut() {
    QList<QAction*> actions = window_->findChildren<QAction*>();
    actions.removeIf([](const QAction* action) { return action->shortcut().isEmpty(); });
    const QKeySequence shortcut = OneOf(actions)->shortcut();
    mDiary::Note("press " + shortcut.toString().toStdString());
    hands_.Key(window_, shortcut[0].key(), shortcut[0].keyboardModifiers());
}

void Monkey::PressToolButton() {
    QList<QToolButton*> buttons = window_->findChildren<QToolButton*>();
    buttons.removeIf([](const QToolButton* button) { return !button->isVisible(); });
    if (buttons.isEmpty()) return PressShortcut();
    QToolButton* button = OneOf(buttons);
    mDiary::Note("press the tool button " + button->toolTip().toStdString());
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
