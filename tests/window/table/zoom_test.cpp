// The table's size, fitting a game to the window, and the menu for it.
#include <set>

#include "engine/commands/mRoom.h"
#include "engine/commands/mZoom.h"
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
        {[] {}, Fitted},
        {trigger("actualSize"), 100},
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
    const QSize first = window_->size();
    for (const char* size : {"zoomOut", "actualSize", "zoomIn"}) {
        Entry(size)->trigger();
        const auto place = PlaceOf(PicID);
        const QPoint grip = IndexOf(PicID);
        QTest::mousePress(Viewport(), Qt::LeftButton, Qt::NoModifier, grip);
        const QPointF held = window_->Table()->mapToScene(grip) - QPointF(place.first, place.second);
        QPoint pointer = grip;
        for (const auto& change : std::vector<std::function<void()>>{
                 [] {}, [this] { Turn(360); }, [this] { Turn(-720); },
                 [this] { Entry("fitGame")->trigger(); },
                 [this, first] { window_->resize(first.width() + 60, first.height() - 40); }, [] {}}) {
            pointer += QPoint(17, 9);
            MoveMouse(pointer, Qt::LeftButton);
            change();
            const QPointF now = window_->Table()->viewportTransform().map(
                QPointF(mFunc::CardLeft(PicID), mFunc::CardTop(PicID)) + held);
            EXPECT_NEAR(now.x(), pointer.x(), 0.1) << size;
            EXPECT_NEAR(now.y(), pointer.y(), 0.1) << size;
        }
        QTest::mouseRelease(Viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(2, Viewport()->height() - 2));
        EXPECT_EQ(PlaceOf(PicID), place);
        Entry("actualSize")->trigger();
        window_->resize(first);
    }
}

TEST_F(Zoom, AFittedGameIsSeenInEveryWindow) {
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
    mGen::StartGame("Klondike", 1.0);
    const double before = Seen();
    while (gArray->GetTop(Stock) >= 0) {
        gArray->MoveCard(gArray->GetTopPicID(Stock), Home, 6, gArray->GetTop(Home, 6) + 1, tMod::Play, 0);
    }
    EXPECT_EQ(Hidden(), "");
    const double grown = Seen();
    EXPECT_LT(grown, before);

    // A card in the hand may leave the window; the table keeps its size.
    const int held = gArray->GetTopPicID(Home, 0);
    const auto place = PlaceOf(held);
    const QPoint grip = IndexOf(held);
    QTest::mousePress(Viewport(), Qt::LeftButton, Qt::NoModifier, grip);
    MoveMouse(QPoint(-900, 2000), Qt::LeftButton);
    QTest::qWait(250);
    EXPECT_EQ(Seen(), grown);
    QTest::mouseRelease(Viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(-900, 2000));
    EXPECT_EQ(PlaceOf(held), place) << "back in its pile";

    mGen::StartGame("Klondike", 2.0);
    EXPECT_EQ(Seen(), before);
}

TEST_F(Zoom, PicturesAreSharpAgainWhenTheSizeRests) {
    mGen::StartGame("Klondike", 1.0);
    TableView* table = window_->Table();
    const auto stretched = [table] { return table->PictureScale(table->Zoom()) != table->Zoom(); };
    window_->resize(window_->size() * 1.5);
    EXPECT_TRUE(stretched());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !stretched(); }));
    const QImage settled = table->grab().toImage();
    const double zoom = table->Zoom();
    table->SetZoom(1.0);
    table->SetZoom(zoom);
    EXPECT_EQ(table->grab().toImage(), settled);
}

TEST_F(Zoom, ATableLargerThanTheWindowCanBeMoved) {
    mGen::StartGame("Klondike", 1.0);
    const auto seen = [this] { return window_->Table()->sceneRect().topLeft(); };
    const auto turn = [this](Qt::KeyboardModifiers keys) {
        const QPointF middle = Viewport()->rect().center();
        QWheelEvent event(middle, Viewport()->mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                          keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(Viewport(), &event);
    };
    QPoint empty;
    const auto drag = [&](QPoint by) {
        empty = {3, 3};
        while (window_->Table()->itemAt(empty)) empty += QPoint(7, 5);
        QTest::mousePress(Viewport(), Qt::LeftButton, Qt::NoModifier, empty);
        MoveMouse(empty + by, Qt::LeftButton);
        QTest::mouseRelease(Viewport(), Qt::LeftButton, Qt::NoModifier, empty + by);
    };
    const QPointF fitted = seen();
    turn(Qt::NoModifier);
    drag(QPoint(40, -50));
    EXPECT_EQ(seen(), fitted) << "where all is seen there is nothing to move";

    Entry("actualSize")->trigger();
    for (int i = 0; i < 20; ++i) Entry("zoomIn")->trigger();
    const double pixel = 15.0 / 3;
    QPointF at = seen();
    EXPECT_EQ(at.y(), 0);
    const auto expectMoved = [&](QPointF by, const char* how) {
        EXPECT_NEAR(seen().x() - at.x(), by.x(), pixel) << how;
        EXPECT_NEAR(seen().y() - at.y(), by.y(), pixel) << how;
        at = seen();
    };
    turn(Qt::NoModifier);
    expectMoved({0, 60 * pixel}, "the wheel");
    turn(Qt::ShiftModifier);
    expectMoved({60 * pixel, 0}, "the wheel with Shift");
    drag(QPoint(40, -50));
    expectMoved({-40 * pixel, 50 * pixel}, "a drag of the empty table");
    MoveMouse(empty, Qt::NoButton);
    expectMoved({}, "the drag is over");
    drag(QPoint(0, 5000));
    expectMoved({0, -at.y()}, "to the upper edge and no farther");
    Entry("zoomOut")->trigger();
    EXPECT_EQ(seen().y(), 0);

    // A card that is held at the lower edge stays under the pointer.
    const int PicID = gArray->GetTopPicID(Home, 3);
    window_->Table()->Reveal(QRectF(mFunc::CardLeft(PicID), mFunc::CardTop(PicID), CardWidth, CardHeight));
    at = seen();
    const QPoint grip = IndexOf(PicID);
    const QPointF held =
        window_->Table()->mapToScene(grip) - QPointF(mFunc::CardLeft(PicID), mFunc::CardTop(PicID));
    QTest::mousePress(Viewport(), Qt::LeftButton, Qt::NoModifier, grip);
    const QPoint edge(grip.x(), Viewport()->height() - 4);
    MoveMouse(edge, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return seen().y() > at.y() + 500; }));
    const QPointF place(mFunc::CardLeft(PicID), mFunc::CardTop(PicID));
    const QPointF pointer = window_->Table()->viewportTransform().map(place + held);
    EXPECT_NEAR(pointer.x(), edge.x(), 0.1);
    EXPECT_NEAR(pointer.y(), edge.y(), 0.1);
    QTest::mouseRelease(Viewport(), Qt::LeftButton, Qt::NoModifier, edge);
    at = seen();
    QTest::qWait(60);
    expectMoved({}, "the card is gone");
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

}  // namespace
