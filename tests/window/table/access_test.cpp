// The main window as assistive programs see it.
#include "window/MainWindowTest.h"
#include "window/table/KelCard.h"

namespace {

QAccessibleInterface* InFrontAt(QAccessibleInterface* table, QPoint onScreen) {
    while (QAccessibleInterface* inside = table->childAt(onScreen.x(), onScreen.y())) table = inside;
    return table;
}

TEST_F(MainWindow, EveryPointOfTheScreenReadsTheCardThatIsSeenThere) {
    gData->Set(Setting::Autoplay, 0);
    mGen::StartGame("Klondike", 1.0);
    TableView* view = window_->Table();
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(view);
    for (const double zoom : {1.0, 1.7}) {
        view->SetZoom(zoom);
        int cards = 0;
        for (int x = 3; x < view->viewport()->width(); x += 7) {
            for (int y = 3; y < view->viewport()->height(); y += 7) {
                const QPoint onScreen = view->viewport()->mapToGlobal(QPoint(x, y));
                QAccessibleInterface* found = InFrontAt(table, onScreen);
                const auto* seen = dynamic_cast<KelCard*>(view->itemAt(x, y));
                // At a card's very edge the view takes a pixel for two items.
                if (view->itemAt(x - 1, y - 1) != seen || view->itemAt(x + 1, y + 1) != seen) continue;
                ASSERT_EQ(found->role() == QAccessible::ListItem, seen != nullptr) << x << ' ' << y;
                if (!seen) continue;
                ++cards;
                const CardRecord& card = PicBack.PicCards(seen->PicID());
                QAccessibleInterface* pile = found->parent();
                EXPECT_EQ(pile->indexOfChild(found), card.Pos);
                EXPECT_EQ(table->child(table->indexOfChild(pile)), pile);
                EXPECT_TRUE(found->rect().contains(onScreen));
                EXPECT_EQ(found->text(QAccessible::Name) == QStringLiteral("Face-down card"),
                          card.FaceMode == 1);
                EXPECT_FALSE(found->state().offscreen);
            }
        }
        EXPECT_GT(cards, 100);
    }
}

}  // namespace
