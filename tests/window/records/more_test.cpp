// "More Statistics": its choices, lists and charts, what it exports, and records that come in.
#include "window/DialogTest.h"
#include "window/records/ChartView.h"
#include "window/records/frmGameStat.h"
#include "window/records/frmMoreStat.h"

namespace {

class MoreStatistics : public DialogTest {
protected:
    void SetUp() override {
        DialogTest::SetUp();
        gData->SetPlayer(2, "Zoë", false);
        Add("Player1", Won);
        Add("Zoë", R"("2004-01-01 09:00:00","Yukon",2,60,5,0,0)");
    }
    static constexpr const char* Won = "\"2004-01-01 10:00:00\",\"Klondike\",1,61,5,7,1";
};

TEST_F(MoreStatistics, ChoicesShowTheirListsAndCharts) {
    frmMoreStat dialog;
    Open(dialog);
    auto* tabs = Find<QTabWidget>(dialog, "SSTab1");
    const auto rows = [&](int tab) {
        tabs->setCurrentIndex(tab);
        QApplication::processEvents();
        return tabs->currentWidget()->findChild<QTableView*>()->model()->rowCount();
    };
    const auto all = [&] {
        std::vector<int> counts;
        for (int tab = 0; tab < tabs->count(); ++tab) counts.push_back(rows(tab));
        return counts;
    };
    const auto choose = [&](const char* name, int item) {
        Find<QComboBox>(dialog, name)->setCurrentIndex(item);
    };
    const auto progress = [&] { return Find<QLabel>(dialog, "lblProgress")->text().toStdString(); };
    EXPECT_EQ(progress(), "Played 1, won 1 of 350 games.") << "of the current player";
    EXPECT_THAT(all(), ElementsAre(9, 12, 350, 1, 1, 24, 1));
    choose("imcPlayer", 0);
    EXPECT_EQ(progress(), "Played 2, won 1 of 350 games.");
    EXPECT_THAT(all(), ElementsAre(9, 12, 350, 2, 1, 24, 2));
    EXPECT_EQ(Find<ChartView>(dialog, "chHours1")->accessibleDescription().toStdString(),
              "9: Won in % 0; 10: Won in % 100");
    choose("imcPeriod", 6);
    EXPECT_THAT(all(), ElementsAre(9, 12, 350, 2, 0, 24, 0)) << "nothing was played in the last year";
    EXPECT_EQ(Find<ChartView>(dialog, "chTimes")->accessibleDescription().toStdString(), "No games yet");
    choose("imcPeriod", 0);
    choose("imcGroup", gData->GidfromName("Yukon"));
    EXPECT_EQ(rows(1), 1);
    tabs->setCurrentIndex(2);
    choose("imcGames", 3);
    EXPECT_THAT(Rows(Find<QTableView>(dialog, "lvGames")), ElementsAre("Yukon")) << "played and never won";
    layer_.Forms.SaveFile = "/away/games.csv";
    Click(dialog, "cmdExport");
    EXPECT_THAT(layer_.Files.Contents["/away/games.csv"], StartsWith("Game,Played,"));
    EXPECT_THAT(layer_.Files.Contents["/away/games.csv"], testing::HasSubstr("\r\nYukon,1,0,0,-1,0,1,"));
    EXPECT_THAT(layer_.Forms.SaveQuestions, Contains("Games|CSV File (*.csv) |*.csv"));
}

TEST_F(MoreStatistics, RecordsOfAFileComeIntoEveryOpenView) {
    layer_.Forms.OpenFile = "/away/records.csv";
    layer_.Files.Contents["/away/records.csv"] =
        std::string(Won) + "\n\"2004-01-01 11:00:00\",\"Yukon\",3,61,5,7,1\ntorn\n";
    {
        frmGameStat statistics;
        Open(statistics);
        OnModal([&](QWidget& more) {
            OnModal([](QWidget& import) {
                EXPECT_THAT(Rows(Find<QTreeView>(import, "lvPreview")),
                            ElementsAre("1 record is new", "1 record is there already",
                                        "1 line cannot be read:", "no record: torn"));
                Click(import, "cmdImport");
            });
            Click(more, "cmdImport");
            EXPECT_EQ(Find<QLabel>(more, "lblProgress")->text().toStdString(),
                      "Played 2, won 2 of 350 games.");
        });
        Click(statistics, "cmdMore");
        EXPECT_THAT(Rows(Find<QTreeView>(statistics, "lvGeneral")), Contains("Games Played : 3"));
        EXPECT_THAT(layer_.Forms.Messages, ElementsAre("1 record was added to Player1."));
    }
    EXPECT_FALSE(gScore->IsLoaded());
}

}  // namespace
