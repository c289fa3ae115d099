// Careers: streaks and bests in the order of time, filters, periods, progress; and their tables.
#include "engine/records/Career.h"
#include "engine/records/Records.h"
#include "engine/records/mCareerTables.h"

namespace {

std::string Row(const mCareerTables::Table& table, const std::string& first) {
    for (const auto& row : mCareerTables::ShownRows(table)) {
        if (row.at(0) != first) continue;
        std::string text;
        for (std::size_t i = 1; i < row.size(); ++i) text += (i > 1 ? "|" : "") + row[i];
        return text;
    }
    return "no such row";
}

TEST(Careers, StreaksAndBestsFollowTheTimeOfEachPlayer) {
    Records records({"Ann", "Bob"});
    const auto add = [&](const char* player, const char* date, int won, int score, int seconds, int moves) {
        records.Add(player, "Klondike", score, won, seconds, moves, date);
    };
    // Ann's file has older games at its end, as after an import: by time she won 3, lost 2, won 1.
    add("Ann", "2004-01-05 10:00:00", 1, 50, 0, 90);
    add("Ann", "2004-01-06 10:00:00", 0, 300, 9, 9);
    add("Ann", "1/6/04 11:00:00 AM", 0, 1, 9, 9);
    add("Ann", "2004-01-07 10:00:00", 1, 200, 70, 90);
    add("Ann", "2004-01-04 10:00:00", 1, 50, 60, 80);
    add("Ann", "2004-01-04 09:59:59", 1, 50, 60, 80);
    // Bob begins as Ann ends: his games break no streak of hers and lengthen none.
    for (int i = 0; i < 4; ++i) add("Bob", "2004-01-01 10:00:00", i == 0 ? 1 : 0, -5, 99, 99);
    gScore->OpenAllScore();
    const Career career(gScore->Store());
    const auto of = [&](const char* player) {
        const CareerFilter filter{.Player = player, .Gid = 0, .Days = {}};
        return Row(mCareerTables::Games(career, career.Work(filter), filter, mCareerTables::GameChoice::All),
                   "Klondike");
    };
    EXPECT_EQ(of("Ann"), "6|4|66.67%|1 won|3|2|0:01:00|1/4/2004|80|1/4/2004|300|1/6/2004");
    EXPECT_EQ(of("Bob"), "4|1|25%|3 lost|1|3|0:01:39|1/1/2004|99|1/1/2004||");
    EXPECT_EQ(of(""), "10|5|50%||3|3|0:01:00|1/4/2004|80|1/4/2004|300|1/6/2004");
    EXPECT_EQ(of("Carl"), "0|0||||||||||");

    const Career::Result all = career.Work({});
    EXPECT_EQ(Row(mCareerTables::Players(career, all, {}), "Bob"), of("Bob"));
    const mCareerTables::Table summary = mCareerTables::Summary(career, all);
    EXPECT_EQ(Row(summary, "Deals Won in Percent"), "50%||||");
    EXPECT_EQ(Row(summary, "Longest Streak Won"), "3|Klondike|Ann|1/5/2004|1") << "until then it lasted";
    EXPECT_EQ(Row(summary, "Best Time"), "0:01:00|Klondike|Ann|1/4/2004|5") << "of equal ones the later";
    EXPECT_THAT(mCareerTables::Csv(summary),
                testing::HasSubstr("\r\nBest Time,60,Klondike,Ann,2004-01-04,5\r\n"));
}

TEST(Careers, CountWhatTheFilterLeaves) {
    Records records({"Ann", "Bob"});
    records.SetClock("2004-03-31 12:00:00");
    const std::string group = gData->GroupfromGiD(gData->GidfromName("Klondike"));
    for (const char* date :
         {"2004-03-31 00:00:00", "2004-03-25 23:59:59", "2004-03-24 12:00:00", "2004-03-01 00:00:00",
          "2004-01-01 00:00:00", "2003-04-01 00:00:00", "2003-03-31 00:00:00", "some day"})
        records.Add("Ann", "Klondike", 1, 1, 60, 5, date);
    records.Add("Ann", "No such game", 1, 0, 60, 5, "2004-03-31 00:00:00");
    records.Add("Bob", "Yukon", 1, 0, 60, 5, "2004-03-31 00:00:00");
    gScore->OpenAllScore();
    const Career career(gScore->Store());
    const std::tuple<const char*, const char*, const char*, std::int64_t> rows[] = {
        {"", "", "All Dates", 10},           {"Ann", "", "All Dates", 9},
        {"Bob", "", "All Dates", 1},         {"", "Klondike", "All Dates", 8},
        {"Bob", "Klondike", "All Dates", 0}, {"", "Yukon", "All Dates", 1},
        {"", "", "Last 7 Days", 4},          {"Ann", "", "Last 30 Days", 4},
        {"Ann", "", "Last 3 Months", 6},     {"Ann", "", "Last 12 Months", 7},
        {"Ann", "", "This Year", 6},         {"Ann", "", "Last Year", 2},
    };
    for (const auto& [player, game, period, count] : rows) {
        const CareerFilter filter{.Player = player,
                                  .Gid = *game ? gData->GidfromName(game) : 0,
                                  .Days = mCareerTables::Days(period)};
        const auto label = std::string(player) + "/" + game + "/" + period;
        EXPECT_EQ(career.Work(filter).All.Played, count) << label;
        EXPECT_THAT(career.Records(filter), SizeIs(static_cast<std::size_t>(count))) << label;
    }
    EXPECT_THROW((void)mCareerTables::Days("Last Week"), std::out_of_range);

    const Career::Result result = career.Work({});
    EXPECT_EQ(mCareerTables::Progress(result, {}), "Played 2, won 1 of 350 games.");
    EXPECT_EQ(Row(mCareerTables::Groups(result, {}), "All Groups"), "350|2|1|1|348");
    EXPECT_EQ(Row(mCareerTables::Groups(result, {}), group).substr(2),
              "|1|1|0|" + std::to_string(std::stoi(Row(mCareerTables::Groups(result, {}), group)) - 1));
    using enum mCareerTables::GameChoice;
    const std::pair<mCareerTables::GameChoice, std::size_t> choices[] = {
        {All, 350}, {Played, 2}, {Won, 1}, {NeverWon, 1}, {NeverPlayed, 348}};
    for (const auto& [choice, count] : choices)
        EXPECT_THAT(mCareerTables::Games(career, result, {}, choice).Rows, SizeIs(count));
}

TEST(Careers, WeeksBeginOnMonday) {
    Records records;
    for (const auto& [date, won] : {std::pair{"2003-12-28 23:59:59", 1},
                                    {"2003-12-29 00:00:00", 0},
                                    {"2004-01-04 23:59:59", 1},
                                    {"2004-01-19 05:30:00", 0}})
        records.Add("Player1", "Klondike", 1, won, 60, 5, date);
    gScore->OpenAllScore();
    const Career career(gScore->Store());
    const Career::Result result = career.Work({});
    using mCareerTables::Unit;
    EXPECT_EQ(mCareerTables::Csv(mCareerTables::Times(result, Unit::Week)),
              "Week from,Played,Won,Won "
              "Percent\r\n2003-12-22,1,1,100\r\n2003-12-29,2,1,50\r\n2004-01-19,1,0,0\r\n");
    EXPECT_EQ(mCareerTables::Csv(mCareerTables::Times(result, Unit::Month)),
              "Month,Played,Won,Won Percent\r\n2003-12,2,1,50\r\n2004-01,2,1,50\r\n");
    EXPECT_EQ(Row(mCareerTables::Hours(result), "23:00 to 23:59"), "2|2|100%");
    EXPECT_EQ(Row(mCareerTables::Hours(result), "5:00 to 5:59"), "1|0|0%");
    const auto chart = mCareerTables::TimeCharts(result, Unit::Week).Share;
    EXPECT_THAT(chart.Rows, ElementsAre(ElementsAre(100), ElementsAre(50), ElementsAre(std::nullopt),
                                        ElementsAre(std::nullopt), ElementsAre(0)))
        << "a week without a game has no share, and no gap is left out";
}

}  // namespace
