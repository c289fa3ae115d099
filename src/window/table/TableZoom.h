// The size of the table on the screen: the player's commands for it, and fitting the game to the window.
#pragma once

#include <QObject>

#include "engine/commands/mRoom.h"
#include "engine/commands/mZoom.h"

class QAction;
class QContextMenuEvent;
class QMainWindow;
class QMenu;
class QWheelEvent;
class TableView;

class TableZoom : public QObject {
    Q_OBJECT
public:
    /// Serves that table, whose size it decides from now on, and gives the window the keys. Both must
    /// outlive the object.
    TableZoom(TableView* table, QMainWindow* window);

    /// The chosen size in percent. While the game is fitted it is the one to come back to.
    [[nodiscard]] int Percent() const { return percent_; }
    [[nodiscard]] bool Fits() const { return fits_; }
    void Choose(int percent, bool fits);
    /// The window, which is not yet shown, begins on the full screen.
    void BeginFullScreen();

    /// A game is about to be dealt: its name and number stand in gData, its rules in gGames.
    void NewGame();
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void Changed();

private:
    void BuildMenu();
    /// One of the sizes to choose from, by steps from the one that is seen; positive is larger.
    void Step(int steps);
    /// Makes room for a pile that has outgrown it.
    void FollowCard(int PicID);
    /// Gives the table its room and its size anew. `passing`: they are likely to change again at once.
    void Apply(bool passing);
    void PopUpInMiddle();
    [[nodiscard]] bool ShowMenu(const QContextMenuEvent& event);
    [[nodiscard]] bool TurnWheel(const QWheelEvent& event);
    void FlipFullScreen();
    void ShowStates();

    TableView* table_;
    QMainWindow* window_;
    QMenu* menu_ = nullptr;
    QAction *zoomIn_ = nullptr, *zoomOut_ = nullptr, *fitGame_ = nullptr, *fullScreen_ = nullptr,
            *leaveFullScreen_ = nullptr;
    int percent_ = mZoom::ActualSize;
    bool fits_ = true;
    mRoom::Area dealt_;          // what the running game may usually come to need; empty before the first
    mRoom::Area room_;           // the same with what it has come to need
    bool wasMaximised_ = false;  // before the full screen
    int turned_ = 0;             // of the wheel, beyond the last whole step, in eighths of a degree
};
