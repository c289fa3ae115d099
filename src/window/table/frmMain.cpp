// The main window's load, layout, timers and command states.
#include "window/table/frmMain.h"

#include <algorithm>
#include <cmath>
#include <string>

#include <QAccessible>
#include <QAction>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "engine/commands/mGen.h"
#include "engine/commands/mLoad.h"
#include "engine/state/cData.h"
#include "window/dialogs/frmSelect.h"
#include "window/look/mIcons.h"
#include "window/look/mPictures.h"
#include "window/table/SpokenText.h"
#include "window/table/StatusStrip.h"
#include "window/table/TableScroll.h"
#include "window/table/TableView.h"
#include "window/table/TableZoom.h"
#include "window/table/WindowState.h"
#include "window/table/mWindowAccess.h"

namespace {

constexpr int StatusTick = 500;  // milliseconds
constexpr int CommandTick = 100;
constexpr int ReplayTick = 500;

// The buttons that stand for what a narrow window leaves no room for. Their own sign is black on every
// ground; a letter has the colour of the other letters.
void LetterExtensions(const QWidget* window) {
    for (auto* button : window->findChildren<QToolButton*>()) {
        if (!button->objectName().endsWith(QLatin1String("_ext_button"))) continue;
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setText(QStringLiteral("»"));
    }
}

int Pixels(int twips) { return static_cast<int>(std::lround(twips / mPictures::TwipsPerPixel)); }

}  // namespace

frmMain::frmMain() {
    setObjectName(QStringLiteral("frmMain"));
    QAccessible::installFactory(mWindowAccess::Make);
    setWindowIcon(mIcons::Application());
    setContextMenuPolicy(Qt::NoContextMenu);
    BuildMenus();
    BuildToolbar();
    BuildTable();
    status_ = new StatusStrip(menuBar());
    spoken_ = new SpokenText(this);
    // The area under the menu bar measures 10095 × 6555 twips at first, the window centred; with large
    // letters it is as wide as the menus need.
    ensurePolished();
    Toolbar1->layout()->setContentsMargins(2, 0, 2, 0);
    Toolbar1->setFixedHeight(Pixels(380));
    LetterExtensions(this);
    const QSize bar = menuBar()->sizeHint();
    resize(std::max(Pixels(10095), bar.width()), Pixels(6555) + bar.height());
    if (const QScreen* onScreen = screen()) {
        move(onScreen->availableGeometry().center() - frameGeometry().center() + pos());
    }
    BuildTimers();
}

void frmMain::Load() {
    mMain::Load();
    keys_ = new TableKeys(table_);
    state_->Restore();
    tmrMain.start(CommandTick);
    tmrTime.start(StatusTick);
}

void frmMain::BuildTable() {
    PicMain = new QWidget(this);
    PicMain->setObjectName(QStringLiteral("PicMain"));
    table_ = new TableView(PicMain);
    auto* layout = new QVBoxLayout(PicMain);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(table_);
    setCentralWidget(PicMain);
    table_->setFocus();
    zoom_ = new TableZoom(table_, this);
    new TableScroll(table_);
    state_ = new WindowState(this, zoom_);
    // The caption of a game is set when all is ready to deal it.
    connect(this, &QWidget::windowTitleChanged, zoom_, &TableZoom::NewGame);
}

void frmMain::BuildTimers() {
    const auto name = [](QTimer& timer, const char* text) { timer.setObjectName(QLatin1String(text)); };
    name(tmrMain, "tmrMain");
    name(tmrTime, "tmrTime");
    name(tmrForward, "tmrForward");
    name(tmrBackward, "tmrBackward");
    connect(&tmrMain, &QTimer::timeout, this, &frmMain::TickMain);
    connect(&tmrTime, &QTimer::timeout, this, &frmMain::TickStatus);
    for (QTimer* timer : {&tmrForward, &tmrBackward}) {
        timer->setInterval(ReplayTick);
        connect(timer, &QTimer::timeout, this, [this] {
            mMain::TickReplay();
            FollowReplay();
        });
    }
}

void frmMain::TickMain() {
    if (!gData) return;
    keys_->Follow();
    if (closeWanted_ && !mGen::Dealing()) {
        close();
        return;
    }
    FollowReplay();
    const mMain::CommandStates states = mMain::UpdateMenus();
    if (statesShown_ && states == states_) return;
    states_ = states;
    statesShown_ = true;
    ShowStates(states);
}

void frmMain::FollowReplay() {
    const auto follow = [](QTimer& timer, bool on) {
        if (timer.isActive() == on) return;
        if (on) timer.start();
        if (!on) timer.stop();
    };
    follow(tmrForward, mMain::ReplayState() == mMain::Replay::Forward);
    follow(tmrBackward, mMain::ReplayState() == mMain::Replay::Backward);
}

void frmMain::ShowStates(const mMain::CommandStates& states) {
    mGame9->setChecked(states.Toolbar);
    mGame4->setChecked(states.AutoplayChecked);
    mGame4->setEnabled(states.AutoplayEnabled);
    for (QAction* action : {mFile4, mFile5, mFav1, mTools5}) action->setEnabled(states.GameRunning);
    for (QAction* action : {mGame1, mGame6}) action->setEnabled(states.Undo);
    for (QAction* action : {mGame2, mGame7}) action->setEnabled(states.Redo);
    mReplay1->setEnabled(states.Forward);
    mReplay2->setEnabled(states.Back);
    mReplay4->setEnabled(states.ReplayAll);
    mReplay6->setEnabled(states.Stop);
}

void frmMain::TickStatus() {
    if (!gData) return;
    status_->Show(mMain::TickTime());
}

void frmMain::Announce(const std::string& text) { spoken_->Say(QString::fromStdString(text)); }

void frmMain::ShowRecent(const std::vector<std::string>& names) {
    if (names == recent_) return;
    recent_ = names;
    for (std::size_t i = 1; i < mRecent.size(); ++i) {
        const bool free = i > names.size() || names[i - 1].empty();
        const QString name =
            free ? QString() : QString::fromStdString(names[i - 1]).replace(u'&', QLatin1String("&&"));
        mRecent[i]->setText(free ? QString() : QStringLiteral("&%1 %2").arg(i).arg(name));
        mRecent[i]->setVisible(i == 1 || !free);
        mRecent[i]->setEnabled(!free);
    }
}

void frmMain::LayoutTable() {
    if (Toolbar1) Toolbar1->setVisible(gData->Get(Setting::ShowToolbar) != 0);
}

void frmMain::SelectGame() {
    frmSelect dialog(this);
    dialog.exec();
}

bool frmMain::event(QEvent* event) {
    // Each key comes by here before anything takes it. One that is held down, as the one that started the
    // deal may be, and one that only goes with others do not count.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool modifier = (key.key() >= Qt::Key_Shift && key.key() <= Qt::Key_ScrollLock) ||
                              key.key() == Qt::Key_AltGr || key.key() == Qt::Key_Super_L ||
                              key.key() == Qt::Key_Super_R;
        if (!key.isAutoRepeat() && !modifier) mGen::HurryDeal();
    }
    return QMainWindow::event(event);
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (gData && mGen::Dealing()) {
        closeWanted_ = true;  // the deal that this event came through must end first
        event->ignore();
        return;
    }
    for (QTimer* timer : {&tmrMain, &tmrTime, &tmrForward, &tmrBackward}) timer->stop();
    mMain::CancelDrag();
    state_->Save();
    mLoad::UnloadMain();
    event->accept();
}
