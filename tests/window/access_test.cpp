// The main window as assistive programs see it.
#include <memory>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QTest>

#include "shell/cData.h"
#include "state/mGen.h"
#include "state/mLoad.h"
#include "table/KelCard.h"
#include "table/TableView.h"
#include "table/frmMain.h"
#include "table/memorylayer.h"

namespace {

class Access : public testing::Test {
protected:
    void SetUp() override {
        window_ = std::make_unique<frmMain>();
        mLoad::Main({*window_->Table(), memory_.Settings, memory_.Files, memory_.Calendar, memory_.Sounds,
                     memory_.Forms, memory_.Help});
        window_->Load();
        window_->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
        gData->Set(Setting::Autoplay, 0);
    }
    void TearDown() override {
        mLoad::UnloadMain();
        window_.reset();
    }
    [[nodiscard]] QAccessibleInterface* Table() const {
        return QAccessible::queryAccessibleInterface(window_->Table());
    }
    MemoryLayer memory_;
    std::unique_ptr<frmMain> window_;
};

TEST_F(Access, EveryPointOfTheScreenIsTheCardThatIsSeenThere) {
    mGen::StartGame("Klondike", 1.0);
    TableView* view = window_->Table();
    for (const double zoom : {1.0, 1.7}) {
        view->SetZoom(zoom);
        int cards = 0;
        for (int x = 3; x < view->viewport()->width(); x += 7) {
            for (int y = 3; y < view->viewport()->height(); y += 7) {
                const QPoint onScreen = view->viewport()->mapToGlobal(QPoint(x, y));
                QAccessibleInterface* found = Table();
                while (QAccessibleInterface* inside = found->childAt(onScreen.x(), onScreen.y()))
                    found = inside;
                const auto* seen = dynamic_cast<KelCard*>(view->itemAt(x, y));
                // At a card's very edge the view takes a pixel for two items.
                if (view->itemAt(x - 1, y - 1) != seen || view->itemAt(x + 1, y + 1) != seen) continue;
                ASSERT_EQ(found->role() == QAccessible::ListItem, seen != nullptr) << x << ' ' << y;
                if (!seen) continue;
                ++cards;
                const CardRecord& card = PicBack.PicCards(seen->PicID());
                QAccessibleInterface* pile = found->parent();
                EXPECT_EQ(pile->indexOfChild(found), card.Pos);
                EXPECT_EQ(pile->child(card.Pos), found);
                EXPECT_EQ(Table()->child(Table()->indexOfChild(pile)), pile);
                EXPECT_TRUE(found->rect().contains(onScreen));
                EXPECT_EQ(found->text(QAccessible::Name) == QStringLiteral("Face-down card"),
                          card.FaceMode == 1);
                EXPECT_FALSE(found->state().offscreen);
            }
        }
        EXPECT_GT(cards, 100);
    }
}

TEST_F(Access, TheStatusTextsAreHeardInTheWindow) {
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(window_.get());
    auto* label = window_->findChild<QLabel*>(QStringLiteral("mTime"));
    mGen::StartGame("Klondike", 1.0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return label->text() == QStringLiteral("Time :0:00:00"); }));
    QAccessibleInterface* time = QAccessible::queryAccessibleInterface(label);
    EXPECT_EQ(time->text(QAccessible::Name), label->text());
    QAccessibleInterface* strip = time->parent();
    EXPECT_EQ(strip->parent(), window);
    EXPECT_EQ(window->child(window->indexOfChild(strip)), strip);
    const QPoint middle = time->rect().center();
    EXPECT_EQ(window->childAt(middle.x(), middle.y()), strip);
}

}  // namespace
