// The statistics dialogs: what their selections show, how they follow the records and the running game,
// and from where they open.
#include <QSignalSpy>

#include "window/DialogTest.h"
#include "window/records/ChartView.h"
#include "window/records/frmGameStat.h"
#include "window/records/frmSesStat.h"

namespace {

class Statistics : public DialogTest {
protected:
    [[nodiscard]] static std::string Chart(const QWidget& dialog, const char* name) {
        return Find<ChartView>(dialog, name)->accessibleDescription().toStdString();
    }
    [[nodiscard]] static std::string Text(const QWidget& dialog, const char* label) {
        return Find<QLabel>(dialog, label)->text().toStdString();
    }
    static constexpr const char* Won = R"("2004-01-01 00:00:00","Klondike",1,300,50,100,1)";  // today
};

TEST_F(Statistics, SelectionsShowTheirCharts) {
    gData->SetPlayer(2, "Zoë", true);
    gData->SetCurGName("Yukon");
    Add("Player1", Won);
    Add("Zoë", R"("2004-01-01 00:00:00","Klondike",1,20,5,-400,0)");
    Add("Zoë", R"("2004-01-01 00:00:00","Yukon",1,61,7,-30,0)");
    frmGameStat dialog;
    Open(dialog);
    EXPECT_THAT(Rows(Find<QTreeView>(dialog, "lvGeneral")), Contains("Total Score : -330"));
    EXPECT_EQ(Chart(dialog, "chGen1"), "Score 0, Moves 62, Time 0:06:21");

    EXPECT_EQ(Chart(dialog, "chGames"), "Won : 0, Lost : 1") << "of the last game";
    Choose(dialog, "cmGames", "Klondike");
    EXPECT_EQ(Chart(dialog, "chGames"), "Won : 1, Lost : 1");
    EXPECT_EQ(Chart(dialog, "chGames1"),
              "1: Score 100, Moves 50, Time 0:05:00; 2: Score -400, Moves 5, Time 0:00:20");

    const auto* dates = Find<QTableView>(dialog, "lvDate")->model();
    Choose(dialog, "imcDate", "Last 10 Months");
    EXPECT_EQ(dates->rowCount(), 10);
    EXPECT_EQ(dates->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Month"));
    Choose(dialog, "imcDate", "Last 5 Days");
    EXPECT_EQ(dates->rowCount(), 5);
    EXPECT_EQ(dates->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Day"));
    EXPECT_EQ(dates->index(4, 1).data().toString(), QStringLiteral("3"));

    EXPECT_EQ(Chart(dialog, "chPlayer1"), "Score 0, Moves 12, Time 0:01:21") << "of the current player";
    EXPECT_EQ(Cell(Find<QTableView>(dialog, "lvPlayer"), 1, 6), "-430");
    Choose(dialog, "imcPlayer", "Player1");
    EXPECT_EQ(Chart(dialog, "chPlayer"), "Won : 1, Lost : 0");
}

TEST_F(Statistics, ExportAndClearLeaveTheDialogWorking) {
    Add("Player1", Won);
    {
        frmGameStat dialog;
        Open(dialog);
        const auto general = [&] { return Rows(Find<QTreeView>(dialog, "lvGeneral")); };
        layer_.Forms.SaveFile = "/data/report.txt";
        Add("Player1", R"("2004-01-01 00:00:00","Klondike",1,60,10,40,0)");  // by a second program
        Click(dialog, "cmdExport");
        EXPECT_THAT(layer_.Forms.Messages, Contains(StartsWith("Statistics Successfully Exported")));
        EXPECT_THAT(general(), Contains("Games Played : 2"));

        layer_.Forms.Answer = true;
        Click(dialog, "cmdClear");
        EXPECT_FALSE(layer_.Files.Exists(cScore::FileName("Player1")));
        Choose(dialog, "cmGames", "Klondike");
        EXPECT_EQ(Chart(dialog, "chGames"), "Won : 1, Lost : 1") << "it goes on showing what it has";
    }
    EXPECT_EQ(gScore->ScoreTop(), 0) << "the store is closed with the dialog";
}

TEST_F(Statistics, WithoutRecordsEveryTabShowsZeros) {
    frmGameStat dialog;
    Open(dialog);
    auto* tabs = Find<QTabWidget>(dialog, "SSTab1");
    EXPECT_EQ(tabs->currentIndex(), 0);
    const auto* games = Find<QTableView>(dialog, "lvGames");
    ASSERT_EQ(games->model()->rowCount(), gData->TotalGames());
    for (const int row : {0, gData->TotalGames() - 1}) EXPECT_EQ(Cell(games, row, 7), "0%");
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        QApplication::processEvents();
        const auto charts = tabs->currentWidget()->findChildren<ChartView*>();
        EXPECT_EQ(charts.size(), 2);
        for (const ChartView* chart : charts) {
            const auto* canvas = chart->findChild<QGraphicsView*>();
            ASSERT_NE(canvas, nullptr) << "the module is not there";
            EXPECT_FALSE(canvas->scene()->items().isEmpty());
        }
    }
}

TEST_F(Statistics, TheSessionFollowsTheRunningGame) {
    mGen::StartGame("Klondike", 1.0);
    SessionFigures& figures = gData->Figures;
    for (int i = 0; i < 100; ++i) gScore->AddSesGame(i % 2);
    figures.CurTime = 61;
    figures.CurScore = -9;
    frmSesStat dialog;
    Open(dialog);
    auto* tabs = Find<QTabWidget>(dialog, "SSTab1");
    const auto* session = Find<QTableView>(dialog, "lvSession");
    const auto* details = Find<QTableView>(dialog, "lvSesChart");
    ASSERT_EQ(session->model()->rowCount(), 101);
    EXPECT_EQ(Cell(session, 100, 5), "Running");
    EXPECT_EQ(Text(dialog, "lblSesPlayed"), "Games Played : 100");
    EXPECT_EQ(Chart(dialog, "chSummary"), "Won : 50, Lost : 50");
    for (const auto* view : {session, details}) {
        tabs->setCurrentIndex(view == session ? 0 : 1);
        QApplication::processEvents();
        const QModelIndex running = view->model()->index(100, 1);
        EXPECT_TRUE(view->viewport()->rect().contains(view->visualRect(running)));
        EXPECT_EQ(running.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(120, 0, 0));
        EXPECT_FALSE(running.siblingAtRow(99).data(Qt::ForegroundRole).isValid());
    }

    const std::string before = Chart(dialog, "chChart");
    QSignalSpy changedSession(session->model(), &QAbstractItemModel::dataChanged);
    QSignalSpy changedDetails(details->model(), &QAbstractItemModel::dataChanged);
    auto* timer = Find<QTimer>(dialog, "Timer1");
    const auto tick = [timer] {
        QTimerEvent event(timer->timerId());
        QApplication::sendEvent(timer, &event);
    };
    ASSERT_TRUE(timer->isActive());
    figures.CurTime = 62;
    figures.CurScore = 520;
    figures.CurMoves += 3;  // not followed by the tick
    layer_.Calendar.Advance(3600);
    tick();
    EXPECT_EQ(Cell(session, 100, 3) + ' ' + Cell(session, 100, 6), "0:01:02 520");
    EXPECT_EQ(Cell(details, 100, 1) + ' ' + Cell(details, 100, 3), "0:01:02 520");
    EXPECT_EQ(Text(dialog, "lblGameScore"), "Score : 520");
    EXPECT_EQ(Text(dialog, "lblGameTime"), "Time Elapsed : 0:01:02");
    EXPECT_EQ(Text(dialog, "lblSesElapsedTime"), "Time Elapsed : 1:00:00");
    tick();
    EXPECT_EQ(changedSession.size() + changedDetails.size(), 4) << "each of the four cells once";

    EXPECT_EQ(Chart(dialog, "chChart"), before);
    Click(dialog, "cmdRefresh");
    EXPECT_THAT(Chart(dialog, "chChart"),
                testing::EndsWith("Score 520, Moves " + std::to_string(figures.CurMoves) + ", Time 0:01:02"));
}

}  // namespace
