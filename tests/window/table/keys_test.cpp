// The keyboard on the table, through Qt's own events.
#include "engine/commands/mKeys.h"
#include "window/MainWindowTest.h"

namespace {

class TableKeysTest : public MainWindow {
protected:
    void SetUp() override {
        MainWindow::SetUp();
        gData->Set(Setting::Autoplay, 0);
        mKeys::Follow();  // no game runs: the frame forgets where it stood in another test
        mGen::StartGame("Klondike", 1.0);
        mKeys::Hide();
        window_->Table()->setFocus();
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window_->Table(), key, modifiers);
    }
    static mFrame::Stop Place() { return mKeys::Place().value_or(mFrame::Stop{{-1, -1}, -1}); }
    // What is seen of the table, and what it looks like drawn anew: the same, or something was left over.
    [[nodiscard]] QImage Shown() const {
        QApplication::processEvents();
        const QRect view(Viewport()->mapTo(window_.get(), QPoint()), Viewport()->size());
        const QImage shown = window_->screen()->grabWindow(window_->winId()).toImage().copy(view);
        EXPECT_EQ(shown.convertToFormat(QImage::Format_RGB32),
                  Viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32));
        return shown;
    }
};

TEST_F(TableKeysTest, KeysLeadTheFrameAndTheMouseTakesItAway) {
    const QImage plain = Shown();
    Press(Qt::Key_Right);  // comes up
    EXPECT_EQ(Place(), (mFrame::Stop{{Home, 0}, 0}));
    EXPECT_NE(Shown(), plain);
    Press(Qt::Key_Right);
    EXPECT_EQ(Place().Pile, (mReader::PilePlace{Home, 1}));
    Press(Qt::Key_End);
    Press(Qt::Key_Down);
    EXPECT_EQ(Place(), (mFrame::Stop{{Home, 6}, 6}));
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);
    EXPECT_EQ(Place().Pile, (mReader::PilePlace{Stock, 0}));
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Place().Pile, (mReader::PilePlace{Waste, 0}));
    EXPECT_TRUE(window_->Table()->hasFocus());
    Press(Qt::Key_Space);  // an empty pile: "no"
    const QImage refused = Shown();
    QTest::qWait(800);
    EXPECT_NE(Shown(), refused);
    // A movement takes the frame away; an event without one does not.
    const QPoint rest = Viewport()->mapFromGlobal(QCursor::pos());
    MoveMouse(rest, Qt::NoButton);
    EXPECT_TRUE(mKeys::Place());
    MoveMouse(rest + QPoint(3, 0), Qt::NoButton);
    EXPECT_FALSE(mKeys::Place());
    EXPECT_EQ(Shown(), plain);
}

TEST_F(TableKeysTest, ACardInTheHandOfTheKeysIsNotTheMouses) {
    const int top = gArray->GetTopPicID(Home, 6);
    const auto start = PlaceOf(top);
    Press(Qt::Key_PageDown);
    Press(Qt::Key_PageDown);
    Press(Qt::Key_Return);
    EXPECT_EQ(mMain::CardInHand(), top);
    Press(Qt::Key_Left);
    EXPECT_NE(PlaceOf(top), start);
    (void)Shown();
    // Escape puts it back before it leaves the full screen.
    window_->showFullScreen();
    Press(Qt::Key_Escape);
    EXPECT_EQ(PlaceOf(top), start);
    EXPECT_TRUE(window_->isFullScreen());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(window_->isFullScreen());
    for (const bool full : {true, false}) {
        Press(Qt::Key_F11);
        EXPECT_EQ(window_->isFullScreen(), full);
        EXPECT_EQ(Entry("fullScreen")->isChecked(), full);
    }
    Press(Qt::Key_Space);
    EXPECT_EQ(mMain::InHand(), mMain::Hand::Keys);
    QTest::mousePress(Viewport(), Qt::LeftButton, Qt::NoModifier, IndexOf(top));
    EXPECT_EQ(mMain::InHand(), mMain::Hand::Mouse);
    // Keys wait until the mouse lets go.
    Press(Qt::Key_Space);
    Press(Qt::Key_F);
    EXPECT_EQ(mMain::InHand(), mMain::Hand::Mouse);
    EXPECT_FALSE(mKeys::Place());
    QTest::mouseRelease(Viewport(), Qt::LeftButton, Qt::NoModifier, IndexOf(top));
    EXPECT_EQ(PlaceOf(top), start);
}

TEST_F(TableKeysTest, NoOtherCommandHasTheKeysOfTheFrame) {
    const QList<QKeySequence> frame{Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Up,  Qt::Key_Down,
                                    Qt::Key_Home,    Qt::Key_End,    Qt::Key_Tab, Qt::Key_Space,
                                    Qt::Key_Return,  Qt::Key_PageUp, Qt::Key_F,   Qt::Key_Enter,
                                    Qt::Key_PageDown};
    for (const QAction* action : window_->findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts()) {
            EXPECT_FALSE(frame.contains(key)) << action->objectName().toStdString();
        }
    }
}

TEST_F(TableKeysTest, ActionsOfScreenReadersEndInTheSameMoves) {
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(window_->Table());
    const auto place = [&](int Cell, int Pile) {
        for (int i = 0; i < table->childCount(); ++i) {
            QAccessibleInterface* pile = table->child(i);
            if (pile->text(QAccessible::Name).toStdString().starts_with(mReader::PileName({Cell, Pile})))
                return pile;
        }
        return static_cast<QAccessibleInterface*>(nullptr);
    };
    const auto act = [](QAccessibleInterface* on, const char* name) {
        const QString action = QLatin1String(name);
        EXPECT_TRUE(on->actionInterface()->actionNames().contains(action)) << name;
        on->actionInterface()->doAction(action);
        QApplication::processEvents();
    };
    const int stock = gArray->GetTop(Stock);
    act(place(Stock, 0), "Deal");
    EXPECT_EQ(gArray->GetTop(Stock), stock - 1);
    QAccessibleInterface* card = place(Home, 6)->child(6);
    EXPECT_EQ(card->text(QAccessible::Description), QStringLiteral("tableau pile 7, card 7 of 7"));
    act(card, "Lift");
    EXPECT_EQ(mMain::CardInHand(), gArray->GetTopPicID(Home, 6));
    EXPECT_TRUE(place(Stock, 0)->actionInterface()->actionNames().filter(QStringLiteral("D")).isEmpty());
    act(place(Home, 6), "Drop Here");
    EXPECT_EQ(mMain::InHand(), mMain::Hand::Empty);
    while (gArray->GetTop(Stock) >= 0) act(place(Stock, 0), "Deal");
    act(place(Stock, 0), "Redeal");
    EXPECT_EQ(gArray->GetTop(Waste), -1);
    act(place(Home, 2)->child(2), "SetFocus");
    EXPECT_EQ(Place(), (mFrame::Stop{{Home, 2}, 2}));
    EXPECT_TRUE(place(Home, 2)->child(2)->state().focused);
    EXPECT_EQ(table->focusChild(), place(Home, 2)->child(2));
}

}  // namespace
