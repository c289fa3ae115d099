// The main window through Qt's own events: dragging with real mouse events, commands' states, closing.
#include <cstdio>

#include "engine/records/cScore.h"
#include "window/MainWindowTest.h"

namespace {

// In deal 1 of Klondike, after the first autoplay, the waste's second card fits on the last pile.
constexpr int FittingCard = 22;

void DealOne() {
    mGen::StartGame("Klondike", 1.0);
    gArray->AddtoWaste(gArray->GetTopPicID(Stock));
    gArray->AddtoWaste(gArray->GetTopPicID(Stock));
    ASSERT_EQ(gArray->GetTopPicID(Waste), FittingCard);
}

TEST_F(MainWindow, ADragPlaysACardAndARefusedOneGoesBack) {
    DealOne();
    Entry("actualSize")->trigger();
    const int moves = gTrans->GetTransID();
    const auto start = PlaceOf(FittingCard);
    const QPoint grip = IndexOf(FittingCard);

    QTest::mousePress(Viewport(), Qt::RightButton, Qt::NoModifier, grip);  // any button lifts
    MoveMouse(grip + QPoint(0, 300), Qt::RightButton);
    EXPECT_EQ(PlaceOf(FittingCard), std::make_pair(start.first, start.second + 300 * 15));
    QTest::mouseRelease(Viewport(), Qt::RightButton, Qt::NoModifier, grip + QPoint(0, 300));
    EXPECT_EQ(PlaceOf(FittingCard), start);
    EXPECT_EQ(gTrans->GetTransID(), moves);

    const int target = gArray->GetTopPicID(Home, 6);
    QTest::mousePress(Viewport(), Qt::LeftButton, Qt::NoModifier, grip);
    MoveMouse(IndexOf(target), Qt::LeftButton);
    QTest::mouseRelease(Viewport(), Qt::LeftButton, Qt::NoModifier, IndexOf(target));
    EXPECT_EQ(gArray->GetTopPicID(Home, 6), FittingCard);
    EXPECT_EQ(gTrans->GetTransID(), moves + 1);
}

TEST_F(MainWindow, AKeyOrAPressShowsTheRestOfADealAtOnce) {
    const std::function<void()> hurries[] = {
        [this] { QTest::keyClick(window_.get(), Qt::Key_A); },
        [this] { QTest::keyClick(window_->Table(), Qt::Key_F2); },
        [this] { QTest::mousePress(Viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5)); },
    };
    for (const auto& hurry : hurries) {
        bool dealing = false;
        QTimer::singleShot(0, window_.get(), [&] {
            dealing = mGen::Dealing();
            QTest::keyClick(window_.get(), Qt::Key_Shift);  // goes with another key
            EXPECT_FALSE(PicBack.Hurried());
            hurry();
            EXPECT_TRUE(PicBack.Hurried());
        });
        mGen::StartGame("Klondike", 1.0);
        EXPECT_TRUE(dealing);
        EXPECT_FALSE(PicBack.Hurried());
    }
}

TEST_F(MainWindow, CommandsAreEnabledAsTheGameStands) {
    // clang-format off
    struct Row {
        const char* Entry;
        bool Empty, Dealt, Moved, Undone;
    };
    constexpr Row rows[] = {
        {"mFile1",   true,  true,  true,  true},
        {"mFile4",   false, true,  true,  true},
        {"mGame1",   false, false, true,  false},
        {"mGame6",   false, false, true,  false},
        {"mGame2",   false, false, false, true},
        {"mReplay1", false, false, false, true},
        {"mReplay2", false, false, true,  false},
        {"mReplay4", false, false, true,  true},
        {"mReplay6", false, false, false, false},
        {"mTools5",  false, true,  true,  true},
    };
    // clang-format on
    const auto check = [&](bool Row::*state, const char* when) {
        QTest::qWait(250);  // the states follow within a tick
        for (const Row& row : rows)
            EXPECT_EQ(Entry(row.Entry)->isEnabled(), row.*state) << row.Entry << ' ' << when;
    };
    check(&Row::Empty, "without a game");
    mGen::StartGame("Giant", 7.0);
    mMain::UndoAll(0);
    *gTrans = {};  // whatever the first autoplay pass did
    check(&Row::Dealt, "after the deal");
    mMain::MouseDown(gArray->GetTopPicID(Stock), 100, 100);
    check(&Row::Moved, "after a move");
    mMain::UndoAll(0);
    check(&Row::Undone, "after undoing it");
    mMain::CloseGame();
    check(&Row::Empty, "after closing");
    for (const char* name : {"mScore", "mTime", "mMoves"}) {
        const auto* label = window_->findChild<QLabel*>(QLatin1String(name));
        EXPECT_TRUE(QTest::qWaitFor([label] { return label->text().isEmpty(); })) << name;
    }
}

TEST_F(MainWindow, ReplayRunsByItsTimersAndStops) {
    mGen::StartGame("Giant", 7.0);
    mMain::MouseDown(gArray->GetTopPicID(Stock), 100, 100);
    mMain::UndoAll(0);
    QTest::qWait(150);
    const auto* forward = window_->findChild<QTimer*>(QStringLiteral("tmrForward"));
    Entry("mReplay1")->trigger();
    EXPECT_TRUE(forward->isActive());
    bool canStop = false;
    const auto ended = [&] {
        canStop = canStop || Entry("mReplay6")->isEnabled();
        return !forward->isActive();
    };
    EXPECT_TRUE(QTest::qWaitFor(ended, 20000));
    EXPECT_EQ(gTrans->GetTransID(), gTrans->MaxTrans());
    EXPECT_TRUE(canStop);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Entry("mReplay6")->isEnabled(); }, 20000));
    for (const auto& [entry, end] : {std::pair{"mReplay2", 0}, {"mReplay4", gTrans->MaxTrans()}}) {
        EXPECT_TRUE(QTest::qWaitFor([this, name = entry] { return Entry(name)->isEnabled(); }));
        Entry(entry)->trigger();
        const auto idle = [] { return mMain::ReplayState() == mMain::Replay::Stopped; };
        EXPECT_TRUE(QTest::qWaitFor(idle, 20000)) << entry;
        EXPECT_EQ(gTrans->GetTransID(), end) << entry;
    }
}

TEST_F(MainWindow, HelpIsForTheRunningGameAndTheToolbarComesAndGoes) {
    Entry("mHelp1")->trigger();
    mGen::StartGame("Klondike", 7.0);
    Entry("mHelp1")->trigger();
    Entry("mHelp2")->trigger();
    EXPECT_THAT(memory_.Help.Contexts, testing::ElementsAre(0, gData->GetGameID("Klondike"), 0));
    const auto* toolbar = window_->findChild<QToolBar*>();
    for (const bool shown : {false, true}) {
        Entry("mGame9")->trigger();
        EXPECT_EQ(toolbar->isVisible(), shown);
    }
}

TEST_F(MainWindow, MenusAndStatusAreSeenInEveryWidth) {
    mGen::StartGame("Klondike", 1.0);
    auto* bar = window_->menuBar();
    const auto* strip = window_->findChild<QWidget*>(QStringLiteral("status"));
    const int line = bar->height();
    const int first = window_->width();
    for (const int width : {first, 400, 250, 150, 250, first}) {
        SCOPED_TRACE(width);
        window_->setMinimumWidth(1);
        window_->resize(width, 400);
        QTest::qWait(20);
        const QRect place(strip->mapTo(bar, QPoint(0, 0)), strip->size());
        EXPECT_TRUE(bar->rect().contains(place));
        EXPECT_EQ(bar->height() > line, width < first);
        EXPECT_FALSE(bar->actionGeometry(bar->actions().constFirst()).isEmpty());
        EXPECT_FALSE(bar->actionGeometry(bar->actions().constFirst()).intersects(place));
        for (const char* name : {"mScore", "mTime", "mMoves"}) {
            const auto* label = strip->findChild<QLabel*>(QLatin1String(name));
            EXPECT_TRUE(strip->rect().contains(label->geometry())) << name;
            EXPECT_GE(label->width(), label->sizeHint().width()) << name;
        }
    }
}

// Counts what a widget below the window has to draw or lay out.
class WorkCounter : public QObject {
public:
    int Count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        for (const auto work : {QEvent::Paint, QEvent::LayoutRequest, QEvent::Resize, QEvent::ActionChanged})
            if (event->type() == work) ++Count;
        return false;
    }
};

TEST_F(MainWindow, AnIdleTickChangesNoWidget) {
    mGen::StartGame("Klondike", 1.0);
    WorkCounter counter;
    window_->installEventFilter(&counter);
    for (QWidget* widget : window_->findChildren<QWidget*>()) widget->installEventFilter(&counter);
    // The clock of the game stands: once the deal is shown, no figure changes. A busy machine may take long
    // to come to rest; a tick that works would never let it.
    const auto idle = [&] {
        counter.Count = 0;
        QTest::qWait(1200);
        return counter.Count == 0;
    };
    EXPECT_TRUE(QTest::qWaitFor(idle, 20000));
}

// The menu's "E&xit" ends a copy of this process.
TEST_F(MainWindow, ExitAsksForARecordThatWaitsAndForNothingElse) {
    forms_.OnAsk = [](const std::string& question) { std::fputs(question.c_str(), stderr); };
    mGen::StartGame("Klondike", 1.0);
    EXPECT_EXIT(Entry("mFile11")->trigger(), testing::ExitedWithCode(0), Not(HasSubstr("lost")));
    memory_.Files.Fault = "No space left on device";
    mMain::CloseGame();
    EXPECT_EXIT(Entry("mFile11")->trigger(), testing::ExitedWithCode(0),
                HasSubstr("will be lost.\nTry again?"));
}

}  // namespace
