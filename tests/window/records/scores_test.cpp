// The high scores and the log as the player meets them.
#include "window/DialogTest.h"
#include "window/records/LoadedScores.h"
#include "window/records/frmHighScore.h"
#include "window/records/frmLogStat.h"

namespace {

class ScoreDialogs : public DialogTest {
protected:
    void SetUp() override {
        DialogTest::SetUp();
        gData->SetPlayer(2, "Ann", false);
        // Date, game, number, seconds, moves, score, won. The present day is the first of January 2004.
        Add("Player1", R"("2004-01-01 09:00:00","Klondike",1,60,100,50,1)");
        Add("Player1", R"("2004-01-01 09:00:00","Yukon",2,50,120,80,0)");
        Add("Ann", R"("2004-01-01 09:00:00","Yukon",3,70,90,-5,1)");
        Add("Ann", R"("2003-12-01 10:00:00","Klondike","0004",3671,8,70,1)");
    }
    [[nodiscard]] static std::vector<std::string> Column(const QWidget& dialog, const char* list,
                                                         const char* heading) {
        const QAbstractItemModel* model = Find<QTableView>(dialog, list)->model();
        for (int column = 0; column < model->columnCount(); ++column) {
            if (model->headerData(column, Qt::Horizontal).toString() != QLatin1String(heading)) continue;
            return Rows(Find<QTableView>(dialog, list), column);
        }
        return {"no column " + std::string(heading)};
    }
    /// The heading of the column whose cells stand out.
    [[nodiscard]] static std::string Marked(const QWidget& dialog, const char* list) {
        const QAbstractItemModel* model = Find<QTableView>(dialog, list)->model();
        std::string marked;
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex cell = model->index(0, column);
            if (!cell.data(Qt::FontRole).value<QFont>().bold()) continue;
            marked += model->headerData(column, Qt::Horizontal).toString().toStdString();
            EXPECT_EQ(cell.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(128, 0, 0));
        }
        return marked;
    }
};

TEST_F(ScoreDialogs, HighScoresRankByTheirChoices) {
    gData->Figures.CurGName = "Yukon";
    gData->SetCurPlayer("Ann");
    frmHighScore dialog;
    Open(dialog);
    EXPECT_THAT(Column(dialog, "lvTop", "Game No."), ElementsAre("2", "0004", "1"));
    EXPECT_EQ(Marked(dialog, "lvTop"), "Score");
    EXPECT_THAT(Column(dialog, "lvGames", "Game No."), ElementsAre("2"));
    Choose(dialog, "imcGames", "Klondike");
    EXPECT_THAT(Column(dialog, "lvGames", "Game No."), ElementsAre("0004", "1"));
    EXPECT_EQ(Marked(dialog, "lvGames"), "Score");
    EXPECT_THAT(Column(dialog, "lvPlayer", "Game No."), ElementsAre("0004"));
    Choose(dialog, "imcPlayer", "Player1");
    EXPECT_THAT(Column(dialog, "lvPlayer", "Game"), ElementsAre("Yukon", "Klondike"));
    EXPECT_EQ(Marked(dialog, "lvPlayer"), "Score");
    EXPECT_THAT(Column(dialog, "lvFin", "Score"), ElementsAre("70", "50"));
    for (const char* key : {"Score", "Moves", "Time"}) {
        Choose(dialog, "imcFin", key);
        EXPECT_EQ(Marked(dialog, "lvFin"), key);
    }
    EXPECT_THAT(Column(dialog, "lvFin", "Time"), ElementsAre("0:01:00", "0:01:10", "1:01:11"));
}

TEST_F(ScoreDialogs, TheLogShowsWhatItsThreeChoicesKeep) {
    frmLogStat dialog;
    Open(dialog);
    const auto* games = Find<QComboBox>(dialog, "cmGames");
    EXPECT_EQ(games->currentText(), QStringLiteral(" All Games"));
    ASSERT_EQ(games->count(), gData->TotalGames() + 1);
    for (int i = 2; i < games->count(); ++i) {
        EXPECT_LT(games->itemText(i - 1).compare(games->itemText(i), Qt::CaseInsensitive), 0) << i;
    }
    const QAbstractItemModel* log = Find<QTableView>(dialog, "lvLog")->model();
    EXPECT_EQ(log->index(3, 0).data().toString(), QStringLiteral("12/1/2003"));
    EXPECT_EQ(log->index(3, 6).data().toString(), QStringLiteral("Won"));

    const std::tuple<const char*, const char*, const char*, std::vector<std::string>> choices[] = {
        {"All Players", " All Games", "Show All", {"1", "2", "3", "0004"}},
        {"Ann", "Yukon", "Show All", {"3"}},
        {"All Players", "Klondike", "Show Today", {"1"}},
        {"Player1", "Zodiac", "Last 3 Days", {}},
    };
    for (const auto& [player, game, date, numbers] : choices) {
        Choose(dialog, "imcPlayer", player);
        Choose(dialog, "cmGames", game);
        Choose(dialog, "imcDate", date);
        EXPECT_EQ(Column(dialog, "lvLog", "Game Number"), numbers);
    }
}

TEST_F(ScoreDialogs, ColumnsHaveRoomForHeadingsAndValuesInAnyFont) {
    gData->SetPlayer(2, "A player's name of some length", true);
    for (int i = 1; i <= gData->TotalGames(); ++i) {
        Add("A player's name of some length", "\"2004-12-28 23:00:00\",\"" + gData->GetGame(i) +
                                                  "\",999999999999998,35999,9999," +
                                                  std::to_string(4000 + i) + ",1");
    }
    const QFont usual = QApplication::font();
    for (const int size : {7, 10, 16, 24}) {
        SCOPED_TRACE(size);
        QFont font = usual;
        font.setPointSize(size);
        QApplication::setFont(font);
        frmHighScore scores;
        frmLogStat log;
        for (const QWidget* dialog : {static_cast<QWidget*>(&scores), static_cast<QWidget*>(&log)}) {
            for (const auto* table : dialog->findChildren<QTableView*>()) {
                SCOPED_TRACE(table->objectName().toStdString());
                const QAbstractItemModel* model = table->model();
                ASSERT_GT(model->rowCount(), 0);
                for (int column = 0; column < model->columnCount(); ++column) {
                    EXPECT_GE(table->columnWidth(column), table->horizontalHeader()->sectionSizeHint(column));
                    EXPECT_EQ(model->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole),
                              model->index(0, column).data(Qt::TextAlignmentRole));
                    for (int row = 0; row < model->rowCount(); ++row) {
                        const QModelIndex cell = model->index(row, column);
                        EXPECT_GE(table->columnWidth(column), table->sizeHintForIndex(cell).width())
                            << cell.data().toString().toStdString();
                    }
                }
                EXPECT_GE(table->rowHeight(0), QFontMetrics(font).height());
            }
        }
    }
    QApplication::setFont(usual);
}

}  // namespace
