// The store: reading order, totals, rankings with their ties, periods, lines that cannot be read, and the
// favourites.
#include "engine/records/Records.h"

namespace {

/// Game numbers and keys of the present ranking: "3:100".
std::vector<std::string> Top(int tScore::*key) {
    std::vector<std::string> places;
    for (int j = 1; j <= cScore::TopPlaces; ++j) {
        const tScore& record = gScore->GetTop(j);
        if (record.Date.empty()) continue;
        places.push_back(mGameNumber::Text(record.GameNo) + ":" + std::to_string(record.*key));
    }
    return places;
}

TEST(Store, ReadsThePlayersInSlotOrderAndEachFileInItsOwn) {
    Records records({"Ann", "Bob", "Cid"});
    records.Add("Cid", "Klondike", 1, 0);
    records.Add("Ann", "Klondike", 2, 0);
    records.Add("Ann", "Freecell", 3, 0);
    records.Add("Stranger", "Klondike", 4, 0);
    EXPECT_EQ(gScore->ScoreTop(), 0);
    gScore->OpenAllScore();
    gScore->OpenAllScore();
    ASSERT_EQ(gScore->ScoreTop(), 3) << "Bob has no file, a stranger's is not read, and loading starts anew";
    EXPECT_EQ(gScore->GetScore(1).Player + gScore->GetScore(2).Player + gScore->GetScore(3).Player,
              "AnnAnnCid");
    EXPECT_EQ(gScore->GetScore(2).gName, "Freecell");
    EXPECT_EQ(gScore->GetGameScore("Klondike", 2).Player, "Cid");
    EXPECT_EQ(gScore->GetGameScore("Klondike", 3), tScore{});
    EXPECT_EQ(gScore->GetGameScore("klondike", 1), tScore{});
    gScore->OpenScore("Stranger");
    EXPECT_EQ(gScore->ScoreTop(), 4) << "one player's records are added to what is there";
    gScore->Sort();
    gScore->CloseScore();
    EXPECT_EQ(gScore->ScoreTop(), 0);
    EXPECT_EQ(gScore->GetTop(1), tScore{});
}

TEST(Store, AFileOfManyRecordsIsReadAsAShortOne) {
    Records records;
    constexpr int Many = 3000;
    for (int i = 1; i <= Many; ++i) records.Add("Player1", i % 2 ? "Klondike" : "Yukon", i, 0);
    for (int loading = 0; loading < 2; ++loading) gScore->OpenAllScore();
    ASSERT_EQ(gScore->ScoreTop(), Many);
    EXPECT_EQ(gScore->TotalStat().Score, Many * (Many + 1) / 2);
    EXPECT_EQ(gScore->GetGameScore("Yukon", Many / 2).Score, Many);
}

TEST(Store, TotalsCountNegativeScoresAndStopAtTheLimit) {
    Records records({"Ann", "Bob"});
    records.Add("Ann", "Klondike", -50, 0, 100, 10);
    records.Add("Ann", "Freecell", 20, 1, 50, 5);
    records.Add("Bob", "Klondike", 0, 1, 7, 3);
    gScore->OpenAllScore();
    const tStat all{.Played = 3, .Won = 2, .Lost = 1, .Score = -30, .Moves = 18, .Time = 157};
    const tStat klondike{.Played = 2, .Won = 1, .Lost = 1, .Score = -50, .Moves = 13, .Time = 107};
    const tStat bob{.Played = 1, .Won = 1, .Lost = 0, .Score = 0, .Moves = 3, .Time = 7};
    EXPECT_EQ(gScore->TotalStat(), all);
    EXPECT_EQ(gScore->GameStat("Klondike"), klondike);
    EXPECT_EQ(gScore->PlayerStat("Bob"), bob);
    EXPECT_EQ(gScore->GameStat("Yukon"), tStat{});
    EXPECT_EQ(gScore->PlayerStat("bob"), tStat{});
    records.AddLine("Bob", R"("d","Yukon",1,2147483647,32767,-32768,1)");
    records.AddLine("Bob", R"("d","Yukon",1,2147483647,32767,-32768,5)");
    gScore->OpenAllScore();
    const tStat yukon{.Played = 2, .Won = 1, .Lost = 1, .Score = -65536, .Moves = 65534, .Time = 2147483647};
    EXPECT_EQ(gScore->GameStat("Yukon"), yukon);
}

TEST(Store, SortRanksPositiveScoresAndTheLaterOfEqualsAbove) {
    Records records({"Ann", "Bob"});
    records.Add("Ann", "Klondike", 100, 0);  // 1
    records.Add("Ann", "Klondike", 0, 1);    // 2
    records.Add("Ann", "Freecell", 100, 1);  // 3
    records.Add("Ann", "Klondike", -5, 1);   // 4
    records.Add("Bob", "Klondike", 200, 0);  // 5
    records.Add("Bob", "Klondike", 100, 1);  // 6
    gScore->OpenAllScore();
    using Places = std::vector<std::string>;
    const std::tuple<const char*, const char*, int, Places> rows[] = {
        {"", "", 0, {"5:200", "6:100", "3:100", "1:100"}},
        {"", "", 1, {"6:100", "3:100"}},
        {"Klondike", "", 0, {"5:200", "6:100", "1:100"}},
        {"", "Ann", 0, {"3:100", "1:100"}},
        {"Klondike", "Ann", 0, {"1:100"}},
        {"Freecell", "Bob", 0, {}},
    };
    for (const auto& [game, player, won, places] : rows) {
        gScore->Sort(game, player, won);
        EXPECT_EQ(Top(&tScore::Score), places) << game << "/" << player << "/" << won;
    }
    EXPECT_EQ(gScore->GetTop(0), tScore{});
    EXPECT_THROW((void)gScore->GetTop(21), std::out_of_range);
}

TEST(Store, TwentyPlacesAreKept) {
    Records records;
    for (int i = 1; i <= 30; ++i) records.Add("Player1", "Klondike", i % 10 + 1, 1, i % 10 + 1, 50 - i);
    gScore->OpenAllScore();
    gScore->Sort();
    const auto scores = Top(&tScore::Score);
    EXPECT_THAT(scores, SizeIs(20));
    EXPECT_EQ(scores.front() + ' ' + scores.back(), "29:10 13:4");
    gScore->FinSort(true, false);
    const auto times = Top(&tScore::Time);
    EXPECT_EQ(times.front() + ' ' + times[1] + ' ' + times.back(), "30:1 20:1 16:7");
    gScore->FinSort(true, true);
    EXPECT_EQ(gScore->GetTop(1).Moves, 20);
    EXPECT_EQ(gScore->GetTop(20).Moves, 39);
}

TEST(Store, FinSortRanksWonGamesOnly) {
    struct Row {
        const char* Says;
        std::vector<std::pair<int, int>> Games;  // moves, won
        std::vector<std::string> Places;
    };
    const Row rows[] = {
        {"a lost game never ranks", {{5, 0}, {9, 1}, {3, 1}}, {"3:3", "2:9"}},
        {"of equal keys the later stands above", {{5, 1}, {5, 1}}, {"2:5", "1:5"}},
        {"a key of 0 finds no empty place", {{0, 1}}, {}},
        {"a key of 0 stands above a filled place", {{5, 1}, {0, 1}}, {"2:0", "1:5"}},
        {"and counts as empty for what follows", {{5, 1}, {0, 1}, {7, 1}}, {"3:7", "1:5"}},
        {"a result that is neither", {{5, 2}}, {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Says);
        Records records;
        for (const auto& [moves, won] : row.Games) records.Add("Player1", "Klondike", -1, won, 60, moves);
        gScore->OpenAllScore();
        gScore->FinSort(false, true);
        EXPECT_EQ(Top(&tScore::Moves), row.Places);
        gScore->FinSort(false, false);
        EXPECT_THAT(Top(&tScore::Moves), IsEmpty());
    }
}

TEST(Store, DateStatCountsCalendarPeriods) {
    Records records;
    for (const char* date :
         {"2003-12-31 23:59:59", "2004-01-01 00:00:00", "2004-01-31 23:59:59", "2/1/2004 12:00:00 AM",
          "2005-01-15 10:00:00", "1/31/04 9:00:00 PM", "some day"}) {
        records.Add("Player1", "Klondike", 10, 1, 60, 5, date);
    }
    gScore->OpenAllScore();
    const std::tuple<const char*, const char*, int, const char*> rows[] = {
        {"2004-01-31 00:00:00", "d", 2, "Jan 31"},   {"2004-02-01 23:59:59", "d", 1, "Feb 01"},
        {"2004-01-30 23:59:59", "d", 0, "Jan 30"},   {"2004-01-15 12:00:00", "m", 3, "Jan 04"},
        {"2003-12-01 12:00:00", "m", 1, "Dec 03"},   {"2004-12-31 12:00:00", "yyyy", 4, "2004"},
        {"1/31/2004 11:00:00 AM", "d", 2, "Jan 31"}, {"some day", "d", 0, "some day"},
    };
    for (const auto& [date, interval, n, label] : rows) {
        const tDateStat stat = gScore->DateStat(date, interval);
        EXPECT_EQ(stat.Label, label);
        EXPECT_EQ((std::vector{stat.Played, stat.Won, stat.Lost, stat.Score, stat.Moves, stat.Time}),
                  (std::vector{n, n, 0, 10 * n, 5 * n, 60 * n}))
            << date << " " << interval;
    }
    EXPECT_THROW((void)gScore->DateStat("2004-01-31", "w"), std::out_of_range);
    EXPECT_EQ(gScore->TotalStat().Played, 7) << "a date that nothing can read counts in all other totals";
}

TEST(Store, LinesThatCannotBeReadAreToldOnceAndKept) {
    Records records({"Ann", "Bob"});
    records.Add("Ann", "Klondike", 1, 1);
    records.AddLine("Ann", "\"2004-01-0");
    records.Add("Ann", "Klondike", 2, 1);
    records.AddLine("Bob", "x");
    records.AddLine("Bob", "y\r\n");
    const auto before = records.Layer.Files.Contents;
    gScore->OpenAllScore();
    EXPECT_EQ(gScore->ScoreTop(), 2);
    EXPECT_THAT(records.Messages(), IsEmpty());
    gScore->ReportUnread();
    ASSERT_THAT(records.Messages(), SizeIs(1));
    EXPECT_EQ(records.Messages()[0],
              "1 line of Ann's records could not be read and was left out.\n" + cScore::FileName("Ann") +
                  "\n\n2 lines of Bob's records could not be read and were left out.\n" +
                  cScore::FileName("Bob"));
    gScore->OpenAllScore();
    gScore->ReportUnread();
    EXPECT_THAT(records.Messages(), SizeIs(1)) << "once";
    EXPECT_EQ(records.Layer.Files.Contents, before);
    records.AddLine("Ann", "x");
    gScore->OpenAllScore();
    gScore->ReportUnread();
    ASSERT_THAT(records.Messages(), SizeIs(2)) << "until there are more";
    EXPECT_THAT(records.Messages()[1], HasSubstr("2 lines of Ann's"));
    EXPECT_THAT(records.Messages()[1], Not(HasSubstr("Bob")));
    records.File("Ann") = records.File("Ann").substr(0, records.File("Ann").size() - 3) + "z\r\n";
    gScore->OpenAllScore();
    gScore->ReportUnread();
    ASSERT_THAT(records.Messages(), SizeIs(3)) << "or there are others, as many as before";
    EXPECT_THAT(records.Messages()[2], HasSubstr("2 lines of Ann's"));
}

TEST(Store, ClearStatAsksAndLeavesWhatIsLoaded) {
    Records records({"Ann", "Bob"});
    records.Add("Ann", "Klondike", 1, 1);
    records.AddLine("Stranger", "x");
    gScore->OpenAllScore();
    gScore->AddSesGame(1);
    gScore->ClearStat();
    EXPECT_THAT(
        records.Layer.Forms.Questions,
        ElementsAre("Are you sure you want to clear the Statistics, High Score and Log for all Players and "
                    "all Games ?"));
    EXPECT_TRUE(records.HasFile("Ann"));
    EXPECT_THAT(records.Messages(), IsEmpty());
    records.Layer.Forms.Answer = true;
    gScore->ClearStat();
    EXPECT_FALSE(records.HasFile("Ann"));
    EXPECT_TRUE(records.HasFile("Stranger"));
    EXPECT_THAT(records.Messages(), ElementsAre("Statistics, High Score and Log have been Cleared."));
    EXPECT_EQ(gScore->ScoreTop(), 1);
    EXPECT_EQ(gScore->SesTop(), 1);
    gScore->OpenAllScore();
    EXPECT_EQ(gScore->ScoreTop(), 0);
}

TEST(Favourites, AreASnapshotOfTheFile) {
    Records records;
    gScore->OpenFav();
    EXPECT_EQ(gScore->FavTop(), 0);
    ASSERT_TRUE(gScore->AddFav("Klondike", 5.0));
    ASSERT_TRUE(gScore->AddFav("Klondike", 5.0));
    EXPECT_EQ(gScore->FavTop(), 0) << "adding leaves the list in memory as it is";
    records.Layer.Files.Contents[cScore::FavFileName()] += "\"Yukon\",\r\n\"Yukon\",\"007\"";
    gScore->OpenFav();
    gScore->OpenFav();
    ASSERT_EQ(gScore->FavTop(), 3);
    EXPECT_EQ(gScore->GetFav(2), (tFav{"Klondike", 5.0}));
    EXPECT_EQ(gScore->GetFav(3), (tFav{"Yukon", std::string("007")}));
    gScore->ReportUnread();
    EXPECT_THAT(records.Messages(),
                ElementsAre(HasSubstr("1 line of the favorites could not be read and was left out.")));
    records.Layer.Files.Fault = "Permission denied";
    gScore->ClearFav();
    records.Layer.Files.Fault.reset();
    EXPECT_THAT(records.Messages().back(),
                HasSubstr(cScore::FavFileName() + " could not be deleted: Permission denied"));
    gScore->OpenFav();
    ASSERT_EQ(gScore->FavTop(), 3) << "nothing was lost";
    gScore->ClearFav();
    gScore->ClearFav();
    EXPECT_EQ(gScore->FavTop(), 3);
    gScore->OpenFav();
    EXPECT_EQ(gScore->FavTop(), 0);
    EXPECT_FALSE(records.Layer.Files.Exists(cScore::FavFileName()));
}

}  // namespace
