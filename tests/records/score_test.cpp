// The score files and the session list: the line of a game, failed writes, damaged files, totals.
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "records/cScore.h"
#include "shell/cData.h"
#include "state/mGen.h"
#include "state/mLoad.h"
#include "support/Fixture.h"
#include "table/mMain.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* folder = "/data/Kelmor/Tarnival 2004 11.0/";

class ScoreFile : public testing::Test {
protected:
    std::string& File(const std::string& player) {
        return engine_.Layer.Files.Contents[folder + player + ".sre"];
    }
    FileError& Fault() { return engine_.Layer.Files.Fault; }
    std::vector<std::string>& Messages() { return engine_.Layer.Forms.Messages; }

    /// A game with these figures, ended.
    void End(const std::string& name, const GameNumber& number, int time, int moves, int score, int won) {
        gData->Figures.CurGName = name;
        gData->Figures.CurGNo = number;
        gData->Figures.CurTime = time;
        gData->Figures.CurMoves = moves;
        gData->Figures.CurScore = score;
        mGen::CloseGame(won);
    }

    Engine engine_;
};

TEST_F(ScoreFile, TheLineOfAGame) {
    engine_.Layer.Calendar.Advance(3661);
    End("Baker's Dozen", 123456789012345.0, 100, 20, -15, 0);
    EXPECT_EQ(File("Player1"), "\"2004-01-01 01:01:01\",\"Baker's Dozen\",123456789012345,100,20,-15,0\r\n");
    End("Klondike", std::string("0042"), 7, 0, 520, 1);
    EXPECT_THAT(File("Player1"),
                testing::EndsWith("\r\n\"2004-01-01 01:01:01\",\"Klondike\",\"0042\",7,0,520,1\r\n"));
    gData->SetCurPlayer("Ann");
    End("Klondike", 1.0, 0, 0, 0, 0);
    EXPECT_EQ(File("Ann"), "\"2004-01-01 01:01:01\",\"Klondike\",1,0,0,0,0\r\n");
}

TEST_F(ScoreFile, ATornLineIsEndedFirst) {
    File("Player1") = "\"2003-05-05 10:00:00\",\"Klond";
    End("Klondike", 1.0, 0, 0, 0, 0);
    EXPECT_EQ(File("Player1"),
              "\"2003-05-05 10:00:00\",\"Klond\r\n\"2004-01-01 00:00:00\",\"Klondike\",1,0,0,0,0\r\n");
}

// A game whose record cannot be written is not lost: it goes out with the next one, each to its player.
TEST_F(ScoreFile, AFailedWriteIsKept) {
    Fault() = "No space left on device";
    End("Klondike", 1.0, 0, 0, 0, 0);
    ASSERT_THAT(Messages(), SizeIs(1));
    EXPECT_THAT(Messages()[0], HasSubstr(std::string(folder) + "Player1.sre"));
    EXPECT_THAT(Messages()[0], HasSubstr("No space left on device"));
    EXPECT_THAT(File("Player1"), IsEmpty());
    gData->SetCurPlayer("Ann");
    End("Spider", 2.0, 0, 0, 0, 0);
    EXPECT_THAT(Messages(), SizeIs(2));
    Fault().reset();
    gData->SetCurPlayer("Player1");
    End("Fan", 3.0, 0, 0, 0, 1);
    EXPECT_THAT(Messages(), SizeIs(2));
    EXPECT_EQ(
        File("Player1"),
        "\"2004-01-01 00:00:00\",\"Klondike\",1,0,0,0,0\r\n\"2004-01-01 00:00:00\",\"Fan\",3,0,0,0,1\r\n");
    EXPECT_EQ(File("Ann"), "\"2004-01-01 00:00:00\",\"Spider\",2,0,0,0,0\r\n");
    End("Fan", 4.0, 0, 0, 0, 1);
    EXPECT_THAT(File("Ann"), testing::Not(HasSubstr("Fan"))) << "written once";
    EXPECT_EQ(gScore->SesTop(), 4);
}

TEST_F(ScoreFile, KeptRecordsAreTriedAgainAtTheEnd) {
    Fault() = "Read-only file system";
    End("Klondike", 1.0, 0, 0, 0, 0);
    EXPECT_FALSE(gScore->WriteKept());
    Fault().reset();
    EXPECT_TRUE(gScore->WriteKept());
    EXPECT_THAT(File("Player1"), HasSubstr("Klondike"));
    EXPECT_TRUE(gScore->WriteKept());
}

// The end of the program asks before it gives a record up.
TEST(ScoreFileAtTheEnd, ThePlayerIsAsked) {
    MemoryLayer layer;
    mLoad::Main(layer.Layer());
    mMain::Load();
    mGen::StartGame("Klondike", 1.0);
    layer.Files.Fault = "Read-only file system";
    mLoad::UnloadMain();
    EXPECT_THAT(layer.Forms.Questions, SizeIs(1));
    EXPECT_THAT(layer.Forms.Messages, SizeIs(1));
    EXPECT_EQ(gScore, nullptr);
    EXPECT_EQ(gData, nullptr);
    mLoad::UnloadMain();  // a second time does no harm
}

TEST_F(ScoreFile, ReadingSkipsWhatIsNoRecord) {
    File("Player1") =
        "\"5/6/2003 10:00:00 AM\",\"Klondike\",\"0042\",100,20,-15,0\r\n"
        "\r\n"
        "no record\r\n"
        "\"2004-01-01\",\"Klondike\",1,2,3,4\r\n"              // a field short
        "\"2004-01-01\",\"Klondike\",1,2,3,4,5,6\r\n"          // a field long
        "\"2004-01-01\",\"Klondike\",one,2,3,4,1\r\n"          // no number
        "\"2004-01-01\",\"Klondike\",1,2,3,4x,1\r\n"           // no number
        "\"2004-01-01\",\"Klondike\",1,99999999999,3,4,1\r\n"  // beyond 32 bits
        "\"2004-01-01\",\"Klon\r\n"                            // torn in a text
        "\"a, b\",\"Tam o 'Shanter\",999999999999999,1,2,3,1\n"
        "\"2004-01-01\",\"Spider\",7,1,2,3,1";  // torn at its end
    gScore->OpenAllScore();
    ASSERT_EQ(gScore->ScoreTop(), 3);
    const tScore& first = gScore->GetScore(1);
    EXPECT_EQ(first.Date, "5/6/2003 10:00:00 AM");
    EXPECT_EQ(std::get<std::string>(first.GameNo), "0042");
    EXPECT_EQ(first.Score, -15);
    EXPECT_EQ(first.Player, "Player1");
    const tScore& second = gScore->GetScore(2);
    EXPECT_EQ(second.Date, "a, b");
    EXPECT_EQ(second.gName, "Tam o 'Shanter");
    EXPECT_EQ(std::get<double>(second.GameNo), 999999999999999.0);
    EXPECT_EQ(gScore->GetScore(3).gName, "Spider");
    EXPECT_THROW((void)gScore->GetScore(0), std::out_of_range);
    EXPECT_THROW((void)gScore->GetScore(4), std::out_of_range);
    gScore->CloseScore();
    EXPECT_EQ(gScore->ScoreTop(), 0);
}

TEST_F(ScoreFile, WhatIsWrittenReadsBack) {
    gData->SetPlayer(2, "Ann", false);
    End("Baker's Dozen", 123456789012345.0, 100, 20, -15, 0);
    gData->SetCurPlayer("Ann");
    End("Klondike", std::string("0042"), 7, 1, 520, 1);
    gScore->OpenAllScore();
    gScore->OpenAllScore();  // reloads
    ASSERT_EQ(gScore->ScoreTop(), 2);
    for (int i = 1; i <= 2; ++i) {
        tScore expected = gScore->GetSes(i);
        EXPECT_EQ(expected.Date, "");
        expected.Date = "2004-01-01 00:00:00";
        EXPECT_TRUE(gScore->GetScore(i) == expected) << i;
    }
    gScore->OpenScore("Nobody");
    EXPECT_EQ(gScore->ScoreTop(), 2);
    gScore->OpenScore("Ann");
    EXPECT_EQ(gScore->ScoreTop(), 3) << "adds to what is there";
}

TEST_F(ScoreFile, TheSessionAddsUpAllPlayers) {
    EXPECT_TRUE(gScore->SesStat() == tStat{});
    End("Klondike", 1.0, 10, 5, -20, 0);
    gData->SetCurPlayer("Ann");
    End("Klondike", 2.0, 100, 50, 300, 1);
    End("Spider", 3.0, 1, 1, 0, 0);
    EXPECT_TRUE(gScore->SesStat() ==
                (tStat{.Played = 3, .Won = 1, .Lost = 2, .Score = 280, .Moves = 56, .Time = 111}));
    EXPECT_EQ(gScore->GetSes(3).Player, "Ann");
    EXPECT_THROW((void)gScore->GetSes(4), std::out_of_range);
}

// The figures of the last tick, not those of the end.
TEST_F(ScoreFile, ClosingTheWindowRecordsALoss) {
    mGen::StartGame("Klondike", 1.0);
    engine_.Layer.Calendar.Advance(10);
    mMain::TickTime();
    engine_.Layer.Calendar.Advance(10);
    mLoad::UnloadMain();
    EXPECT_THAT(File("Player1"), testing::StartsWith("\"2004-01-01 00:00:20\",\"Klondike\",1,10,"));
    EXPECT_THAT(File("Player1"), testing::EndsWith(",0\r\n"));
}

}  // namespace
