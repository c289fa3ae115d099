// The picture of the table that a won game leaves: it is there when the cards are gone, and quiet where the
// desktop wants quiet.
#include "engine/rules/mCards.h"
#include "window/MainWindowTest.h"
#include "window/table/WonTable.h"

namespace {

class StillStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

class TheTableOfAWin : public MainWindow {
protected:
    // A deal with cards on its foundations, and marks.
    void SetUp() override {
        MainWindow::SetUp();
        mGen::StartGame("Beleaguered Castle", 1.0);
        Entry("actualSize")->trigger();
        QTest::qWait(500);  // a table of a new size is drawn more finely when it rests
    }
    [[nodiscard]] QImage Look() const { return Viewport()->grab().toImage(); }
};

TEST_F(TheTableOfAWin, StaysInSightWhenItsCardsAreGone) {
    const QImage before = Look();
    {
        const WonTable kept(*window_->Table());
        mCards::HideAll();
        EXPECT_EQ(Look(), before);
        EXPECT_TRUE(kept.OnScreen().isValid());
    }
    EXPECT_NE(Look(), before);
}

TEST_F(TheTableOfAWin, MovesForAMomentUnlessThePlatformWantsItStill) {
    const StillStyle still;
    for (const bool quiet : {true, false}) {
        if (quiet) window_->Table()->setStyle(const_cast<StillStyle*>(&still));
        mGen::StartGame("Beleaguered Castle", 1.0);
        QTest::qWait(500);
        const QImage before = Look();
        WonTable kept(*window_->Table());
        mCards::HideAll();
        kept.Celebrate();
        bool moved = false;
        // The last card sinks after four foundations' time.
        for (int waited = 0; waited < 3000 && !(moved && Look() == before); waited += 50) {
            moved = moved || Look() != before;
            if (quiet && waited > 300) break;
            QTest::qWait(50);
        }
        EXPECT_EQ(moved, !quiet);
        EXPECT_EQ(Look(), before);
        window_->Table()->setStyle(nullptr);
    }
}

}  // namespace
