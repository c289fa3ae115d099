// The main window: menus, toolbar, status texts and the table. Each command forwards to mMain.
#pragma once

#include <array>
#include <string>
#include <vector>

#include <QMainWindow>
#include <QTimer>

#include "engine/commands/mMain.h"
#include "window/table/TableKeys.h"

class QAction;
class QToolBar;
class SpokenText;
class StatusStrip;
class TableView;
class TableZoom;
class WindowState;

class frmMain : public QMainWindow {
    Q_OBJECT
public:
    frmMain();

    /// Builds what a game needs and starts the timers. gData exists already.
    void Load();

    [[nodiscard]] TableView* Table() const { return table_; }
    /// Says a sentence to those who listen.
    void Announce(const std::string& text);
    /// Shows the recent games in the menu; an empty name is a free slot.
    void ShowRecent(const std::vector<std::string>& names);
    /// Shows or hides the toolbar by its setting.
    void LayoutTable();
    /// The selection dialog, modally over this window.
    void SelectGame();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildMenus();
    void BuildToolbar();
    void BuildTable();
    void BuildTimers();
    void TickMain();
    void TickStatus();
    void ShowStates(const mMain::CommandStates& states);
    void FollowReplay();

    QToolBar* Toolbar1 = nullptr;
    QWidget* PicMain = nullptr;
    TableView* table_ = nullptr;
    StatusStrip* status_ = nullptr;
    SpokenText* spoken_ = nullptr;
    TableZoom* zoom_ = nullptr;
    TableKeys* keys_ = nullptr;
    WindowState* state_ = nullptr;
    // Menu entries whose state changes, or that the toolbar shows as well.
    QAction *mFile1 = nullptr, *mFile2 = nullptr, *mFile4 = nullptr, *mFile5 = nullptr;
    QAction *mGame1 = nullptr, *mGame2 = nullptr, *mGame4 = nullptr, *mGame6 = nullptr, *mGame7 = nullptr,
            *mGame9 = nullptr;
    QAction *mReplay1 = nullptr, *mReplay2 = nullptr, *mReplay4 = nullptr, *mReplay6 = nullptr;
    QAction *mFav1 = nullptr, *mStat1 = nullptr, *mTools5 = nullptr, *mHelp1 = nullptr;
    std::array<QAction*, 6> mRecent{};  // 1 to 5
    QTimer tmrMain{this}, tmrTime{this}, tmrForward{this}, tmrBackward{this};
    std::vector<std::string> recent_;
    mMain::CommandStates states_;
    bool statesShown_ = false;
    bool closeWanted_ = false;  // asked for in the middle of a deal
};
