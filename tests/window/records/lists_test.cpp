// What every list of records offers: sorting by its headings, copying, and playing a deal again.
#include <map>

#include "engine/records/mFavourites.h"
#include "window/DialogTest.h"
#include "window/records/frmFinish.h"
#include "window/records/frmGameStat.h"
#include "window/records/frmHighScore.h"
#include "window/records/frmLogStat.h"
#include "window/records/frmOrgFav.h"

namespace {

using Texts = std::vector<std::string>;

class Lists : public DialogTest {
protected:
    void SetUp() override {
        DialogTest::SetUp();
        gData->SetPlayer(2, "ann", false);
        Add("Player1", R"("2004-01-01 09:00:00","Klondike",10,60,100,50,1)");
        Add("Player1", R"("2004-01-01 08:00:00","Yukon",9,36000,120,-80,0)");
        Add("ann", R"("2003-12-01 10:00:00","No such game","0004",35999,8,7,1)");
    }
    static void ClickHeading(const QHeaderView* headings, int column) {
        const QPoint place(headings->sectionViewportPosition(column) + 5, headings->height() / 2);
        QTest::mouseClick(headings->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    /// The menu that the key for menus opens.
    [[nodiscard]] static QMenu* Menu(QAbstractItemView* view) {
        const QPoint place = view->visualRect(view->currentIndex()).center();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, place, view->mapToGlobal(place));
        QApplication::sendEvent(view, &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    static void ChooseEntry(QAbstractItemView* view, const char* action) {
        QMenu* menu = Menu(view);
        ASSERT_TRUE(menu);
        QAction* chosen = nullptr;
        for (QAction* entry : menu->actions()) {
            if (entry->objectName() == QLatin1String(action)) chosen = entry;
        }
        ASSERT_TRUE(chosen) << action;
        EXPECT_TRUE(chosen->isEnabled()) << action;
        menu->close();
        chosen->trigger();
    }
};

TEST_F(Lists, SortByAClickUpDownAndBack) {
    const Texts came{"10", "9", "0004"};
    const std::pair<Texts, Texts> orders[] = {
        {{"0004", "9", "10"}, {"10", "9", "0004"}},  // date, and time of day
        {{"0004", "10", "9"}, {"10", "9", "0004"}},  // player, whatever the case
        {{"10", "0004", "9"}, {"9", "0004", "10"}},  // game
        {{"9", "0004", "10"}, {"10", "0004", "9"}},  // score
        {{"10", "0004", "9"}, {"9", "0004", "10"}},  // time
        {{"0004", "10", "9"}, {"9", "10", "0004"}},  // moves
        {{"9", "10", "0004"}, {"10", "0004", "9"}},  // status
        {{"0004", "9", "10"}, {"10", "9", "0004"}},  // game number
    };
    frmLogStat dialog;
    Open(dialog);
    auto* log = Find<QTableView>(dialog, "lvLog");
    const auto heading = [log](int column) {
        return log->model()
            ->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole)
            .toString()
            .toStdString();
    };
    log->selectRow(1);
    for (int column = 0; column < log->model()->columnCount(); ++column) {
        const auto& [up, down] = orders[column];
        ClickHeading(log->horizontalHeader(), column);
        EXPECT_EQ(Rows(log, 7), up) << column;
        EXPECT_THAT(heading(column), testing::EndsWith(", ascending, sorted"));
        ClickHeading(log->horizontalHeader(), column);
        EXPECT_EQ(Rows(log, 7), down) << column;
        EXPECT_THAT(layer_.Forms.Heard.back(), testing::EndsWith(", descending"));
        const QModelIndexList selected = log->selectionModel()->selectedRows(7);
        ASSERT_EQ(selected.size(), 1);
        EXPECT_EQ(selected[0].data().toString(), QStringLiteral("9")) << "what is selected stays so";
        ClickHeading(log->horizontalHeader(), column);
        EXPECT_EQ(Rows(log, 7), came) << column;
        EXPECT_EQ(heading(column), "");
    }
    // What a choice brings is sorted, too.
    ClickHeading(log->horizontalHeader(), 5);
    Choose(dialog, "imcPlayer", "Player1");
    EXPECT_EQ(Rows(log, 7), (Texts{"10", "9"}));
}

TEST_F(Lists, SortByTheMenuAndFromEveryOrder) {
    frmGameStat dialog;
    Open(dialog);
    Find<QTabWidget>(dialog, "SSTab1")->setCurrentIndex(1);
    auto* games = Find<QTableView>(dialog, "lvGames");
    const Texts came = Rows(games, 0);
    const auto sortBy = [&](const char* choice) {
        games->setFocus();
        QTest::keyClick(games, Qt::Key_F10, Qt::ShiftModifier);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (QAction* action : menu->findChild<QMenu*>(QStringLiteral("mnuSortBy"))->actions()) {
            if (action->text() == QLatin1String(choice)) action->trigger();
        }
        menu->close();
    };
    sortBy("Score");
    EXPECT_EQ(Rows(games, 6).front(), "-80");
    sortBy("&Descending");
    EXPECT_EQ(Rows(games, 6).front(), "50");
    EXPECT_EQ(Rows(games, 6).back(), "-80");
    Choose(dialog, "cmGames", "Yukon");
    EXPECT_EQ(games->currentIndex().row(), games->model()->rowCount() - 1) << "where it is shown now";
    sortBy("&Usual Order");
    EXPECT_EQ(Rows(games, 0), came);
}

TEST_F(Lists, CopyWhatIsSelectedAsItIsShown) {
    frmLogStat dialog;
    Open(dialog);
    auto* log = Find<QTableView>(dialog, "lvLog");
    ClickHeading(log->horizontalHeader(), 5);
    log->setFocus();
    log->selectRow(0);
    QTest::keyClick(log, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(log, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "Date\tPlayer\tGame\tScore\tTime\tMoves\tStatus\tGame Number\n"
              "12/1/2003\tann\tNo such game\t7\t9:59:59\t8\tWon\t0004\n"
              "1/1/2004\tPlayer1\tKlondike\t50\t0:01:00\t100\tWon\t10\n");
    frmGameStat statistics;
    Open(statistics);
    auto* general = Find<QTreeView>(statistics, "lvGeneral");
    general->setCurrentIndex(general->model()->index(0, 0));
    ChooseEntry(general, "mnuCopy");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Games Played : 3\n"));
}

TEST_F(Lists, PlayADealAgainAndKeepIt) {
    mGen::StartGame("Canfield", 1.0);
    frmLogStat dialog;
    Open(dialog);
    auto* log = Find<QTableView>(dialog, "lvLog");
    ClickRow(log, log->model()->index(2, 0));
    QMenu* menu = Menu(log);
    ASSERT_TRUE(menu);
    for (const char* action : {"mnuPlayDeal", "mnuAddFavorite"})
        EXPECT_FALSE(Find<QAction>(dialog, action)->isEnabled()) << "a game that is not there";
    menu->close();
    ClickRow(log, log->model()->index(1, 0));
    ChooseEntry(log, "mnuAddFavorite");
    mFavourites::Open();
    EXPECT_THAT(mFavourites::Numbers("Yukon"), ElementsAre("9"));
    ChooseEntry(log, "mnuPlayDeal");
    EXPECT_EQ(layer_.Forms.Questions.size(), 1U);
    EXPECT_EQ(gData->Figures.CurGName, "Canfield") << "the answer was No";
    EXPECT_TRUE(dialog.isVisible());
    layer_.Forms.Answer = true;
    ChooseEntry(log, "mnuPlayDeal");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(gData->Figures.GameRunning && gData->Figures.CurGName == "Yukon");
    EXPECT_EQ(gData->Figures.CurGNo, GameNumber("9"));
}

TEST_F(Lists, ADealPlayedOverAnotherDialogClosesBoth) {
    gData->Figures.CurGName = "Klondike";
    frmFinish finish({});
    Open(finish);
    OnModal([](QWidget& scores) {
        auto* list = Find<QTableView>(scores, "lvGames");  // its games are those of the choice above
        Find<QTabWidget>(scores, "SSTab1")->setCurrentIndex(1);
        list->selectRow(0);
        ChooseEntry(list, "mnuPlayDeal");
    });
    Click(finish, "Highscore");
    EXPECT_FALSE(finish.isVisible());
    EXPECT_TRUE(gData->Figures.GameRunning && gData->Figures.CurGName == "Klondike");
    EXPECT_THAT(layer_.Forms.Questions, IsEmpty()) << "no game was running";

    ASSERT_TRUE(gScore->AddFav("Canfield", 77.0));
    frmOrgFav favourites;
    Open(favourites);
    auto* games = Find<QTreeView>(favourites, "lvGames");
    games->setCurrentIndex(
        games->model()->match(games->model()->index(0, 0), Qt::DisplayRole, QStringLiteral("Canfield"))[0]);
    auto* list = Find<QTreeView>(favourites, "lvFav");
    list->setCurrentIndex(list->model()->index(0, 0));
    layer_.Forms.Answer = true;
    ChooseEntry(list, "mnuPlayDeal");
    EXPECT_EQ(gData->Figures.CurGNo, GameNumber("77"));
}

TEST_F(Lists, SizeWidthsAndSortingAreRemembered) {
    const auto remembered = [this] {
        std::map<std::string, std::string> values;
        for (const auto& [key, value] : layer_.Settings.Values)
            if (key.starts_with("Dialogs/") && !value.empty()) values[key] = value;
        return values;
    };
    QSize size;
    {
        frmLogStat dialog;
        Open(dialog);
        auto* log = Find<QTableView>(dialog, "lvLog");
        Find<QComboBox>(dialog, "imcPlayer")->setCurrentIndex(1);
        dialog.close();
        EXPECT_THAT(remembered(), IsEmpty()) << "all is as it comes";
        Open(dialog);
        size = dialog.size() - QSize(7, 9);
        dialog.resize(size);
        ClickHeading(log->horizontalHeader(), 3);
        ClickHeading(log->horizontalHeader(), 3);
        log->horizontalHeader()->resizeSection(2, 333);
        Find<QComboBox>(dialog, "imcPlayer")->setCurrentIndex(0);
        EXPECT_EQ(log->columnWidth(2), 333) << "also after a choice";
    }
    EXPECT_EQ(remembered().size(), 3U);
    {
        frmLogStat dialog;
        Open(dialog);
        const auto* log = Find<QTableView>(dialog, "lvLog");
        EXPECT_EQ(dialog.size(), size);
        EXPECT_EQ(log->columnWidth(2), 333);
        EXPECT_EQ(Rows(log, 3), (Texts{"50", "7", "-80"}));
        Find<QAction>(dialog, "mnuUsualWidths")->trigger();
        EXPECT_NE(log->columnWidth(2), 333);
        ClickHeading(log->horizontalHeader(), 3);
    }
    EXPECT_EQ(remembered().size(), 1U) << "only the size";

    const char* const nonsense[] = {
        "",        "x",       "5",     "99999999x1",      "-5x-5",           "+8",
        "*1",      "+-1",     "1,2,3", "0,0,0,0,0,0,0,0", "1,1,1,1,1,1,1,x", "40000,1,1,1,1,1,1,1",
        "1e3x1e3", "800x600 "};
    std::vector<int> own;
    for (const char* text : nonsense) {
        for (const char* key : {"Size", "lvLog.Widths", "lvLog.Sorting"})
            layer_.Settings.Values[std::string("Dialogs/frmLogStat.") + key] = text;
        frmLogStat dialog;
        const auto* log = Find<QTableView>(dialog, "lvLog");
        EXPECT_EQ(Rows(log, 7), (Texts{"10", "9", "0004"})) << text;
        std::vector<int> widths;
        for (int column = 0; column < 8; ++column) widths.push_back(log->columnWidth(column));
        if (own.empty()) own = widths;
        EXPECT_EQ(widths, own) << text;
    }
    layer_.Settings.Values["Dialogs/frmLogStat.Size"] = "30000x30000";
    const frmLogStat dialog;
    const QSize screen = dialog.screen()->availableSize();
    EXPECT_EQ(dialog.size().boundedTo(screen), dialog.size());
    EXPECT_GT(dialog.width(), screen.width() * 9 / 10);
}

}  // namespace
