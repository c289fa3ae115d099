// What the dialogs show: rates and their rounding, rows, chart data, the filters of the log at the
// edges of days and months, and the session beside a running game.
#include "engine/records/Records.h"
#include "engine/records/mLog.h"
#include "engine/records/mRanking.h"
#include "engine/records/mSession.h"
#include "engine/records/mStatistics.h"

namespace {

TEST(Rates, RoundToTwoDecimalsAndHalvesToTheEvenDigit) {
    const std::tuple<long long, long long, const char*> rows[] = {
        {0, 1, "0"},       {100, 1, "100"},      {100, 3, "33.33"},   {200, 3, "66.67"},  {100, 8, "12.5"},
        {100, 32, "3.12"}, {300, 32, "9.38"},    {100, 800, "0.12"},  {500, 800, "0.62"}, {1, 200, "0"},
        {3, 200, "0.02"},  {101, 20000, "0.01"}, {-100, 3, "-33.33"}, {-1, 200, "0"},
    };
    for (const auto& [dividend, divisor, text] : rows) {
        EXPECT_EQ(mStatistics::Round(dividend, divisor), text) << dividend << "/" << divisor;
    }
}

TEST(Statistics, GeneralLines) {
    const tStat some{.Played = 8, .Won = 3, .Lost = 5, .Score = -1001, .Moves = 103, .Time = 100004};
    EXPECT_THAT(mStatistics::GeneralLines(some),
                ElementsAre("Games Played : 8", "Games Won : 3", "Games Lost : 5", "Total Moves : 103",
                            "Total Score : -1001", "Total Time : 27:46:44", "Moves Per Game : 12",
                            "Score Per Game : -125", "Time Per Game : 3:28:20", "Games Per Hour : 0",
                            "Moves Per Hour : 3", "Score Per Hour : -36", "Winning Percentage : 37.5%"));
    for (const std::string& line : mStatistics::GeneralLines({}))
        EXPECT_THAT(line, testing::MatchesRegex(".* : 0(:00:00|%)?"));
    // Without any time the hourly rates divide by 1; a small negative rate is no minus zero.
    const auto timeless = mStatistics::GeneralLines({.Played = 2, .Score = -4, .Moves = 3});
    EXPECT_THAT(timeless, Contains("Games Per Hour : 7200"));
    EXPECT_THAT(timeless, Contains("Score Per Hour : -14400"));
    EXPECT_THAT(mStatistics::GeneralLines({.Played = 1, .Score = -1, .Time = 7200}),
                Contains("Score Per Hour : 0"));
    EXPECT_THAT(mStatistics::GeneralLines({.Played = 2, .Time = 5}), Contains("Time Per Game : 0:00:02"))
        << "half a second goes to the even one";
}

TEST(Statistics, GamesAndPlayers) {
    Records records({"Ann", "Bob"});
    for (int i = 0; i < 60; ++i) records.Add("Ann", "Klondike", i - 5, i % 3 == 0 ? 1 : 0, i, 2 * i);
    records.Add("Bob", "Yukon", -3, 0, 7, 8);
    gScore->OpenAllScore();
    const auto games = mStatistics::GameRows();
    ASSERT_THAT(games, SizeIs(static_cast<std::size_t>(gData->TotalGames())));
    EXPECT_EQ(games[0], (mStatistics::Row{"Baker's Dozen", "0", "0", "0", "0:00:00", "0", "0", "0%"}));
    EXPECT_THAT(
        games, Contains(mStatistics::Row{"Klondike", "60", "20", "40", "0:29:30", "3540", "1470", "33.33%"}));
    EXPECT_THAT(mStatistics::PlayerRows(),
                ElementsAre(mStatistics::Row{"Ann", "60", "20", "40", "0:29:30", "3540", "1470", "33%"},
                            mStatistics::Row{"Bob", "1", "0", "1", "0:00:07", "8", "-3", "0%"}));

    const auto chart = mStatistics::RecordsChart("Klondike");
    ASSERT_THAT(chart.Rows, SizeIs(51)) << "row 0 is empty, then the first 50 records";
    EXPECT_THAT(chart.Rows[0], ElementsAre(std::nullopt, std::nullopt, std::nullopt));
    EXPECT_THAT(chart.Rows[1], ElementsAre(-5, 0, 0));
    EXPECT_THAT(chart.Rows[50], ElementsAre(44, 98, 49));
    EXPECT_THAT(mStatistics::EffortChart(gScore->PlayerStat("Bob")).Rows[0], ElementsAre(0, 8, 7));
    EXPECT_THAT(mStatistics::ResultChart(gScore->PlayerStat("Ann")).Labels,
                ElementsAre("Won : 20", "Lost : 40"));
}

TEST(Statistics, PeriodsEndToday) {
    Records records;
    records.SetClock("2004-03-31 00:30:00");
    for (const char* date : {"2004-03-31 00:00:00", "2004-03-30 23:59:59", "2004-02-29 12:00:00",
                             "2004-04-01 00:00:00", "2003-11-30 12:00:00", "2000-01-01 00:00:00"}) {
        records.Add("Player1", "Klondike", 10, 1, 60, 5, date);
    }
    gScore->OpenAllScore();
    const auto shown = [](int range) {
        std::vector<std::string> rows;
        for (const auto& row :
             mStatistics::Dates(mStatistics::DateRanges.at(static_cast<std::size_t>(range))).Rows) {
            rows.push_back(row[0] + "=" + row[1]);
        }
        return rows;
    };
    EXPECT_THAT(shown(0), ElementsAre("Mar 27=0", "Mar 28=0", "Mar 29=0", "Mar 30=1", "Mar 31=1"));
    EXPECT_THAT(shown(3), ElementsAre("Nov 03=1", "Dec 03=0", "Jan 04=0", "Feb 04=1", "Mar 04=2"));
    EXPECT_THAT(shown(5), ElementsAre("2000=1", "2001=0", "2002=0", "2003=1", "2004=4"));
    const auto view = mStatistics::Dates(mStatistics::DateRanges[0]);
    EXPECT_THAT(view.Played.Rows[4], ElementsAre(1, 1));
    EXPECT_THAT(view.Effort.Rows[4], ElementsAre(10, 5, 60));
}

TEST(Ranking, RowsOfTheFourLists) {
    Records records({"Ann", "Bob"});
    records.Add("Ann", "Klondike", 100, 0, 3661, 50, "2004-01-05 22:10:33");  // 1
    records.Add("Bob", "Yukon", 0, 1, 30, 70, "some day");                    // 2
    records.Add("Bob", "Klondike", 40, 1, 90, 60, "1/6/04 10:00:00 AM");      // 3
    gScore->OpenAllScore();
    using mRanking::Row;
    EXPECT_THAT(mRanking::TopRows(),
                ElementsAre(Row{"Klondike", "Ann", "100", "1:01:01", "50", "Lost", "1/5/2004", "1"},
                            Row{"Klondike", "Bob", "40", "0:01:30", "60", "Won", "1/6/2004", "3"}));
    EXPECT_THAT(mRanking::GameRows("Klondike"),
                ElementsAre(Row{"1", "Ann", "100", "1:01:01", "50", "Lost", "1/5/2004", "1"},
                            Row{"2", "Bob", "40", "0:01:30", "60", "Won", "1/6/2004", "3"}));
    EXPECT_THAT(mRanking::PlayerRows("Bob"),
                ElementsAre(Row{"1", "Klondike", "40", "0:01:30", "60", "Won", "1/6/2004", "3"}));
    EXPECT_THAT(mRanking::FinishedRows("Score"),
                ElementsAre(Row{"1", "Klondike", "Bob", "40", "0:01:30", "60", "1/6/2004", "3"}));
    EXPECT_THAT(mRanking::FinishedRows("Moves"),
                ElementsAre(Row{"1", "Klondike", "Bob", "40", "0:01:30", "60", "1/6/2004", "3"},
                            Row{"2", "Yukon", "Bob", "0", "0:00:30", "70", "some day", "2"}));
    EXPECT_EQ(mRanking::FinishedRows("Time").at(0)[1], "Yukon");
    EXPECT_THROW((void)mRanking::FinishedRows("Date"), std::out_of_range);
}

TEST(LogView, FiltersCountBoundariesOfDaysAndMonths) {
    Records records({"Ann", "Bob"});
    records.SetClock("2004-03-01 00:00:30");
    const char* dates[] = {
        "2004-03-01 00:00:00", "2004-02-29 23:59:59", "2004-02-27 12:00:00", "2004-02-26 23:59:59",
        "2004-02-23 00:00:00", "2004-02-22 23:59:59", "2004-01-31 00:00:00", "2004-01-30 23:59:59",
        "2003-12-01 00:00:00", "2003-11-30 23:59:59", "2003-10-01 00:00:00", "2003-09-30 23:59:59",
        "2004-03-02 00:00:00", "2004-03-31 23:59:59", "2004-04-01 00:00:00", "some day"};
    for (const char* date : dates) records.Add("Ann", "Klondike", 1, 1, 60, 5, date);
    records.Add("Bob", "Yukon", 1, 1, 60, 5, dates[0]);
    gScore->OpenAllScore();
    // Days: none of the future. Months: this month counts to its end.
    const std::pair<const char*, std::size_t> rows[] = {
        {"Show Today", 1},     {"Last 3 Days", 3},    {"Last 7 Days", 5}, {"Last 30 Days", 7},
        {"Last 3 Months", 11}, {"Last 5 Months", 13}, {"Show All", 16}};
    for (const auto& [choice, count] : rows) {
        EXPECT_THAT(mLog::Select("Ann", " All Games", choice), SizeIs(count)) << choice;
        EXPECT_THAT(mLog::Select("All Players", "Klondike", choice), SizeIs(count)) << choice;
        EXPECT_THAT(mLog::Select("All Players", " All Games", choice), SizeIs(count + 1)) << choice;
    }
    EXPECT_THAT(mLog::Select("Bob", "Klondike", "Show All"), IsEmpty());
    EXPECT_THAT(mLog::Select("Bob", "Yukon", "Show Today"), ElementsAre(17));
    EXPECT_THROW((void)mLog::Select("Bob", "Yukon", "Last Week"), std::out_of_range);

    const RegionalDates format = RegionalDates::Current();
    EXPECT_THAT(mLog::Row(gScore->GetScore(1), format),
                ElementsAre("3/1/2004", "Ann", "Klondike", "1", "0:01:00", "5", "Won", "1"));
    EXPECT_EQ(mLog::Row(gScore->GetScore(16), format)[0], "some day");
}

TEST(Session, ShowsEndedGamesAndTheRunningOne) {
    Records records({"Ann"});
    using mSession::Row;
    EXPECT_THAT(mSession::GamesChart().Rows,
                ElementsAre(ElementsAre(std::nullopt, std::nullopt, std::nullopt)));
    SessionFigures& figures = gData->Figures;
    figures = {.GameStartTime = "2004-01-01 00:00:00",
               .CurGName = "Klondike",
               .CurGNo = 77.0,
               .CurTime = 61,
               .CurMoves = 5,
               .CurScore = -9};
    gScore->AddSesGame(0);
    figures.CurGNo = std::string("88");
    figures.CurScore = 20;
    gData->SetCurPlayer("Bob");
    gScore->AddSesGame(1);
    records.Layer.Calendar.Advance(3723.9);
    EXPECT_THAT(mSession::SessionLines(), ElementsAre("Started : 2004-01-01 00:00:00", "Games Played : 2",
                                                      "Games Won : 1", "Games Lost : 1", "Total Score : 11",
                                                      "Total Moves : 10", "Time Elapsed : 1:02:03"));
    EXPECT_THAT(mSession::SessionRows(),
                ElementsAre(Row{"Klondike", "77", "Ann", "0:01:01", "5", "Lost", "-9"},
                            Row{"Klondike", "88", "Bob", "0:01:01", "5", "Won", "20"}));
    EXPECT_THAT(mSession::SummaryChart().Rows, ElementsAre(ElementsAre(1, 1)));
    EXPECT_EQ(mSession::TickTexts().Score, "");

    figures.GameRunning = true;
    figures.CurScore = 3;
    EXPECT_EQ(mSession::SessionRows().back(), (Row{"Klondike", "88", "Bob", "0:01:01", "5", "Running", "3"}));
    EXPECT_EQ(mSession::ChartRows().back(), (Row{"3", "0:01:01", "5", "3"}));
    EXPECT_THAT(mSession::GamesChart().Rows,
                ElementsAre(ElementsAre(-9, 5, 61), ElementsAre(20, 5, 61), ElementsAre(3, 5, 61)));
    EXPECT_THAT(mSession::GameLines(),
                ElementsAre("Game Started : 2004-01-01 00:00:00", "Game : Klondike", "Game Number : 88",
                            "Score : 3", "Moves : 5", "Time Elapsed : 0:01:01", "Player Name : Bob"));
    EXPECT_EQ(mSession::TickTexts().GameTime, "Time Elapsed : 0:01:01");
    EXPECT_THAT(mSession::SessionLines(), Contains("Games Played : 2")) << "the running game is not counted";
    records.Layer.Calendar.Advance(-7200);
    EXPECT_EQ(mSession::TickTexts().Elapsed, "Time Elapsed : 0:00:00");
    figures.GameRunning = false;
}

}  // namespace
