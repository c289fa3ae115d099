// The table's size, fitting a game to the window, and the menu for it.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>
#include <utility>

#include <QContextMenuEvent>
#include <QMenu>
#include <QTimer>
#include <QWheelEvent>

#include "engine/commands/mGen.h"
#include "engine/commands/mRoom.h"
#include "engine/commands/mZoom.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "window/MainWindowTest.h"
#include "window/look/mTablePicture.h"

namespace {

class Zoom : public MainWindow {
protected:
    void SetUp() override {
        MainWindow::SetUp();
        gData->Set(Setting::Autoplay, 0);
    }
    [[nodiscard]] double Seen() const { return window_->Table()->Zoom(); }
    void Turn(int eighths) {
        const QPointF middle = Viewport()->rect().center();
        QWheelEvent event(middle, Viewport()->mapToGlobal(middle), QPoint(), QPoint(0, eighths), Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(Viewport(), &event);
    }
    // The first card or mark that is not wholly seen, as a text; empty where all are.
    [[nodiscard]] std::string Hidden() const {
        std::string hidden;
        const auto look = [&](const auto& record, const char* what, int number) {
            const QRectF place = window_->Table()->viewportTransform().mapRect(
                QRectF(record.Left, record.Top, CardWidth, CardHeight));
            if (record.Visible && !QRectF(Viewport()->rect()).contains(place))
                hidden = what + std::to_string(number);
        };
        for (int PicID = 0; PicID < MaxCards; ++PicID) look(PicBack.PicCards(PicID), "card ", PicID);
        cPlate::ForEachMark([&](MarkKind kind, int i) { look(PicBack.Mark(kind, i), "mark ", i); });
        return hidden;
    }
    [[nodiscard]] bool MenuComes(QPoint at) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, Viewport()->mapToGlobal(at));
        QApplication::sendEvent(Viewport(), &event);
        auto* menu = window_->findChild<QMenu*>(QStringLiteral("mnuTable"));
        const bool shown = menu->isVisible();
        menu->hide();
        return shown;
    }
};

TEST_F(Zoom, CommandsAndWheelGoThroughTheSizes) {
    mGen::StartGame("Klondike", 1.0);
    const auto trigger = [this](const char* name) { return [this, name] { Entry(name)->trigger(); }; };
    const auto turn = [this](int eighths) { return [this, eighths] { Turn(eighths); }; };
    constexpr double Fitted = -1;
    const std::pair<std::function<void()>, double> steps[] = {
        {trigger("zoomIn"), 110},
        {trigger("zoomIn"), 125},
        {trigger("zoomOut"), 110},
        {turn(240), 150},
        {turn(-60), 150},  // half a step of a fine wheel
        {turn(-60), 125},
        {trigger("fitGame"), Fitted},
        {trigger("fitGame"), 125},  // back to the size from before
        {trigger("fitGame"), Fitted},
        {trigger("zoomIn"), 100},
        {turn(-120 * 50), 50},
        {trigger("zoomOut"), 50},
        {turn(120 * 50), 300},
        {trigger("actualSize"), 100},
    };
    int row = 0;
    for (const auto& [act, percent] : steps) {
        SCOPED_TRACE(++row);
        act();
        EXPECT_EQ(Entry("fitGame")->isChecked(), percent == Fitted);
        if (percent == Fitted) {
            EXPECT_TRUE(Seen() > 0.85 && Seen() < 1.0) << "the first window is a little too small";
        } else {
            EXPECT_NEAR(Seen() * 100, percent, 1e-9);
        }
        EXPECT_EQ(Entry("zoomIn")->isEnabled(), percent != 300);
        EXPECT_EQ(Entry("zoomOut")->isEnabled(), percent != 50);
    }
}

TEST_F(Zoom, ACardInTheHandStaysUnderThePointer) {
    mGen::StartGame("Klondike", 1.0);
    const int PicID = gArray->GetTopPicID(Home, 3);
    for (const char* first : {"zoomOut", "actualSize", "zoomIn"}) {
        Entry(first)->trigger();
        const auto place = PlaceOf(PicID);
        const QPoint grip = IndexOf(PicID);
        QTest::mousePress(Viewport(), Qt::LeftButton, Qt::NoModifier, grip);
        const QPointF held = window_->Table()->mapToScene(grip) - QPointF(place.first, place.second);
        QPoint pointer = grip;
        for (const auto& change : std::vector<std::function<void()>>{
                 [] {}, [this] { Turn(360); }, [this] { Turn(-720); },
                 [this] { Entry("fitGame")->trigger(); },
                 [this] { window_->resize(window_->width() - 60, window_->height() - 40); }, [] {}}) {
            pointer += QPoint(17, 9);
            MoveMouse(pointer, Qt::LeftButton);
            change();
            const QPointF now = window_->Table()->viewportTransform().map(
                QPointF(mFunc::CardLeft(PicID), mFunc::CardTop(PicID)) + held);
            EXPECT_NEAR(now.x(), pointer.x(), 0.1) << first;
            EXPECT_NEAR(now.y(), pointer.y(), 0.1) << first;
        }
        QTest::mouseRelease(Viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(2, Viewport()->height() - 2));
        EXPECT_EQ(PlaceOf(PicID), place);
        Entry("actualSize")->trigger();
        window_->resize(673, 480);
    }
}

TEST_F(Zoom, AFittedGameIsSeenInEveryWindow) {
    Entry("fitGame")->trigger();
    for (const char* game :
         {"Klondike", "Baker's Dozen", "Castle Tower", "Four Seasons", "Super Flower Garden"}) {
        std::set<double> sizes;
        QTimer sample;
        QObject::connect(&sample, &QTimer::timeout, window_.get(), [&] { sizes.insert(Seen()); });
        sample.start(0);
        mGen::StartGame(game, 1.0);
        QTest::qWait(150);
        EXPECT_EQ(sizes.size(), 1U) << game << ": another size in the middle of the deal";
        for (const QSize size : {QSize(800, 560), QSize(420, 300), QSize(1200, 330), QSize(450, 900)}) {
            window_->resize(size);
            QTest::qWait(20);
            EXPECT_EQ(Hidden(), "") << game << " in " << size.width() << " x " << size.height();
        }
    }
}

TEST_F(Zoom, AFittedGameKeepsPilesThatGrowInSight) {
    Entry("fitGame")->trigger();
    mGen::StartGame("Klondike", 1.0);
    const double before = Seen();
    while (gArray->GetTop(Stock) >= 0) {
        gArray->MoveCard(gArray->GetTopPicID(Stock), Home, 6, gArray->GetTop(Home, 6) + 1, tMod::Play, 0);
    }
    QTest::qWait(250);
    EXPECT_EQ(Hidden(), "");
    const double grown = Seen();
    EXPECT_LT(grown, before);

    // A card in the hand may leave the window; the table keeps its size.
    const QPoint grip = IndexOf(gArray->GetTopPicID(Home, 0));
    QTest::mousePress(Viewport(), Qt::LeftButton, Qt::NoModifier, grip);
    MoveMouse(QPoint(-900, 2000), Qt::LeftButton);
    QTest::qWait(250);
    EXPECT_EQ(Seen(), grown);
    QTest::mouseRelease(Viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(-900, 2000));

    mGen::StartGame("Klondike", 2.0);
    EXPECT_EQ(Seen(), before);
}

TEST_F(Zoom, TheMenuComesWhereNoCardTakesThePress) {
    mGen::StartGame("Klondike", 1.0);
    const MarkRecord& waste = PicBack.Mark(MarkKind::Waste, 0);
    EXPECT_TRUE(MenuComes(QPoint(5, Viewport()->height() - 5)));
    EXPECT_TRUE(MenuComes(At(waste.Left + 300, waste.Top + 300)));
    QTest::keyClick(window_.get(), Qt::Key_F10, Qt::ShiftModifier);
    auto* menu = window_->findChild<QMenu*>(QStringLiteral("mnuTable"));
    EXPECT_TRUE(menu->isVisible());
    menu->hide();

    const QPoint card = IndexOf(gArray->GetTopPicID(Home, 2));
    QTest::mousePress(Viewport(), Qt::RightButton, Qt::NoModifier, card);
    EXPECT_FALSE(MenuComes(card));
    EXPECT_FALSE(MenuComes(QPoint(5, Viewport()->height() - 5)));  // with a card in the hand
    QTest::mouseRelease(Viewport(), Qt::RightButton, Qt::NoModifier, card);

    // The press on the last card of the stock bares its mark.
    while (gArray->GetTop(Stock) > 0) gArray->AddtoWaste(gArray->GetTopPicID(Stock));
    const QPoint stock = IndexOf(gArray->GetTopPicID(Stock));
    QTest::mousePress(Viewport(), Qt::RightButton, Qt::NoModifier, stock);
    EXPECT_EQ(gArray->GetTop(Stock), -1);
    EXPECT_FALSE(MenuComes(stock));
    QTest::mouseRelease(Viewport(), Qt::RightButton, Qt::NoModifier, stock);
    EXPECT_FALSE(MenuComes(stock));
}

TEST_F(Zoom, FullScreenIsLeftByItsKeyAndByEscape) {
    for (const auto leave : {Qt::Key_F11, Qt::Key_Escape}) {
        QTest::keyClick(window_.get(), Qt::Key_F11);
        EXPECT_TRUE(window_->isFullScreen());
        EXPECT_TRUE(Entry("fullScreen")->isChecked());
        QTest::keyClick(window_.get(), leave);
        EXPECT_FALSE(window_->isFullScreen());
        EXPECT_FALSE(Entry("fullScreen")->isChecked());
    }
}

}  // namespace
