// The main window's menus and toolbar.
#include <unistd.h>

#include <functional>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "engine/commands/mGen.h"
#include "engine/commands/mLoad.h"
#include "engine/state/cData.h"
#include "window/dialogs/frmAbout.h"
#include "window/dialogs/frmChoose.h"
#include "window/dialogs/frmCustomize.h"
#include "window/dialogs/frmHistory.h"
#include "window/look/mIcons.h"
#include "window/records/frmGameStat.h"
#include "window/records/frmHighScore.h"
#include "window/records/frmLogStat.h"
#include "window/records/frmOrgFav.h"
#include "window/records/frmPlayFav.h"
#include "window/records/frmPlayers.h"
#include "window/records/frmSesStat.h"
#include "window/table/WindowState.h"
#include "window/table/frmMain.h"

namespace {

// "E&xit" leaves at once: no record of a running game, no release of anything. All settings are on disk
// already, since each is written when it is made; only the window's state waits until it has come to rest,
// and perhaps the record of an ended game for room on the disk.
void ExitAtOnce() { _exit(0); }

}  // namespace

void frmMain::BuildMenus() {
    using Command = std::function<void()>;
    const auto menu = [this](const char* name, const char* caption) {
        QMenu* built = menuBar()->addMenu(QLatin1String(caption));
        built->setObjectName(QLatin1String(name));
        return built;
    };
    const auto entry = [this](QMenu* in, const char* name, const char* caption, const char* key,
                              Command command, bool checkable = false) {
        auto* action = new QAction(QLatin1String(caption), this);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(QKeySequence(QLatin1String(key)));
        action->setCheckable(checkable);
        connect(action, &QAction::triggered, this, [this, command] {
            command();
            TickMain();
            FollowReplay();
        });
        in->addAction(action);
        return action;
    };
    const auto speed = [](const NumberSetting& setting) { return gData->Get(setting); };
    // A dialog that starts a game would hold up the deal that is on, and its choice would be ignored.
    const auto afterDeal = [](Command open) -> Command {
        return [open] {
            if (!mGen::Dealing()) open();
        };
    };

    QMenu* file = menu("mnuFile", "&File");
    mFile1 = entry(file, "mFile1", "&New Game", "F2", mMain::NewGame);
    mFile2 = entry(file, "mFile2", "&Select Game", "F3", afterDeal([this] { SelectGame(); }));
    file->addSeparator();
    mFile4 = entry(file, "mFile4", "&Restart Game", "Ctrl+F2", mMain::RestartGame);
    mFile5 = entry(file, "mFile5", "&Close Game", "F12", mMain::CloseGame);
    file->addSeparator();
    entry(file, "mFile7", "Select a Number", "Ctrl+F12", afterDeal([this] { frmChoose(this).exec(); }));
    file->addSeparator();
    QMenu* recent = file->addMenu(QStringLiteral("Recent Games"));
    recent->setObjectName(QStringLiteral("mFile9"));
    for (std::size_t i = 1; i < mRecent.size(); ++i) {
        const std::string name = "mRecent" + std::to_string(i);
        const int slot = static_cast<int>(i);
        mRecent[i] = entry(recent, name.c_str(), "", "", [slot] { mMain::RecentGame(slot); });
        mRecent[i]->setVisible(i == 1);
    }
    file->addSeparator();
    entry(file, "mFile11", "E&xit", "", [this] {
        state_->Save();
        mLoad::WriteWaiting();
        ExitAtOnce();
    });

    QMenu* game = menu("mnuGame", "&Game");
    mGame1 = entry(game, "mGame1", "&Undo", "Ctrl+Z", [=] { mMain::Undo(speed(Setting::UndoSpeed)); });
    mGame2 = entry(game, "mGame2", "&Redo", "Ctrl+X", [=] { mMain::Redo(speed(Setting::UndoSpeed)); });
    game->addSeparator();
    mGame4 = entry(game, "mGame4", "Autoplay", "F7", mMain::FlipAutoplay, true);
    game->addSeparator();
    mGame6 =
        entry(game, "mGame6", "U&ndo All", "Ctrl+C", [=] { mMain::UndoAll(speed(Setting::UndoallSpeed)); });
    mGame7 =
        entry(game, "mGame7", "R&edo All", "Ctrl+V", [=] { mMain::RedoAll(speed(Setting::UndoallSpeed)); });
    game->addSeparator();
    mGame9 = entry(game, "mGame9", "View Toolbar", "", mMain::FlipToolbar, true);

    QMenu* replay = menu("mnuReplay", "&Replay");
    mReplay1 = entry(replay, "mReplay1", "&Forward", "Shift+F1", mMain::ReplayForward);
    mReplay2 = entry(replay, "mReplay2", "&Back", "Shift+F2", mMain::ReplayBackward);
    replay->addSeparator();
    mReplay4 = entry(replay, "mReplay4", "Replay &All", "", mMain::ReplayAll);
    replay->addSeparator();
    mReplay6 = entry(replay, "mReplay6", "Sto&p", "", mMain::StopReplay);
    mReplay6->setEnabled(false);

    QMenu* favourites = menu("mnufav", "Favorites");
    mFav1 = entry(favourites, "mFav1", "&Add to Favorites", "Ctrl+A", mMain::AddFavourite);
    entry(favourites, "mFav2", "&Organize Favorites", "Ctrl+F", [this] { frmOrgFav(this).exec(); });
    favourites->addSeparator();
    entry(favourites, "mFav4", "&Play from Favorites", "Ctrl+P",
          afterDeal([this] { frmPlayFav(this).exec(); }));

    QMenu* statistics = menu("mnustat", "Statistics");
    mStat1 = entry(statistics, "mStat1", "&Game Statistics", "F4", [this] { frmGameStat(this).exec(); });
    entry(statistics, "mStat2", "&Session Statistics", "", [this] { frmSesStat(this).exec(); });
    statistics->addSeparator();
    entry(statistics, "mStat4", "&High Scores", "F9", [this] { frmHighScore(this).exec(); });
    statistics->addSeparator();
    entry(statistics, "mStat6", "&Log Statistics", "", [this] { frmLogStat(this).exec(); });

    QMenu* tools = menu("mnuTools", "&Tools");
    entry(tools, "mTools1", "Customize", "Ctrl+U", [this] { frmCustomize(this).exec(); });
    tools->addSeparator();
    entry(tools, "mTools3", "&Players", "Ctrl+L", [this] { frmPlayers(this).exec(); });
    tools->addSeparator();
    mTools5 = entry(tools, "mTools5", "&History", "Ctrl+H", [this] { frmHistory(this).exec(); });

    QMenu* help = menu("mnuHelp", "&Help");
    mHelp1 = entry(help, "mHelp1", "Rules", "F1", [] {
        if (gData->Figures.GameRunning) {
            gData->ShowRules(gData->Figures.CurGName);
        } else {
            gData->ShowContents();
        }
    });
    entry(help, "mHelp2", "Contents", "", [] { gData->ShowContents(); });
    help->addSeparator();
    entry(help, "mHelp8", "About...", "", [this] { frmAbout(this).exec(); });
}

void frmMain::BuildToolbar() {
    constexpr int IconSize = 16;
    Toolbar1 = addToolBar(QStringLiteral("Toolbar"));
    Toolbar1->setAccessibleName(Toolbar1->windowTitle());  // which newer versions of Qt do not read
    Toolbar1->setObjectName(QStringLiteral("Toolbar1"));
    Toolbar1->setMovable(false);
    Toolbar1->setIconSize(QSize(IconSize, IconSize));
    struct Button {
        QAction* Action;  ///< nullptr: a gap
        const char* ToolTip;
        mIcons::Tool Icon;
    };
    using mIcons::Tool;
    const Button buttons[] = {
        {mFile1, "New Game", Tool::NewGame},
        {mFile2, "Select Game", Tool::SelectGame},
        {mFile4, "Restart Game", Tool::Restart},
        {nullptr, nullptr, Tool::Help},
        {mGame4, "Autoplay", Tool::Autoplay},
        {nullptr, nullptr, Tool::Help},
        {mGame1, "Undo", Tool::Undo},
        {mGame2, "Redo", Tool::Redo},
        {nullptr, nullptr, Tool::Help},
        {mReplay2, "Replay Back", Tool::Back},
        {mReplay6, "Replay Stop", Tool::Stop},
        {mReplay1, "Replay Forward", Tool::Forward},
        {nullptr, nullptr, Tool::Help},
        {mStat1, "Statistics", Tool::Statistics},
        {nullptr, nullptr, Tool::Help},
        {mHelp1, "Help", Tool::Help},
    };
    int index = 0;
    for (const Button& button : buttons) {
        ++index;
        if (!button.Action) {
            Toolbar1->addSeparator();
            continue;
        }
        // The button is the menu entry's own action: one place decides whether it is enabled.
        QAction* action = button.Action;
        action->setIcon(mIcons::Toolbar(button.Icon));
        action->setToolTip(QLatin1String(button.ToolTip));
        action->setIconVisibleInMenu(false);
        Toolbar1->addAction(action);
        QWidget* shown = Toolbar1->widgetForAction(action);
        shown->setObjectName(QStringLiteral("Toolbar1_%1").arg(index));
        shown->setAccessibleName(action->toolTip());  // "Back" alone would not say what goes back
        // Keys belong to the table and the menus; a button that took the focus would swallow them.
        shown->setFocusPolicy(Qt::NoFocus);
    }
}
