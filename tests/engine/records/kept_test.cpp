// The record of a game: its line, and what happens when files fail. Nothing is lost, nobody is held up, and
// the user is told.
#include "engine/commands/mLoad.h"
#include "engine/records/Records.h"
#include "engine/records/mPlayers.h"

namespace {

/// Files that fail for chosen paths only.
class FaultyFiles : public MemoryFiles {
public:
    [[nodiscard]] FileError AppendLines(const std::string& path,
                                        const std::vector<std::string>& lines) override {
        ++Writes;
        return Broken(path) ? "No space left on device" : MemoryFiles::AppendLines(path, lines);
    }
    [[nodiscard]] FileError Read(const std::string& path, std::string& content) const override {
        return Broken(path) ? "Input/output error" : MemoryFiles::Read(path, content);
    }
    [[nodiscard]] FileError Remove(const std::string& path) override {
        return Broken(path) ? "Permission denied" : MemoryFiles::Remove(path);
    }
    [[nodiscard]] bool Broken(const std::string& path) const {
        return !Fails.empty() && path.find(Fails) != std::string::npos;
    }

    std::string Fails;  ///< part of the paths that fail
    int Writes = 0;
};

class Kept : public testing::Test {
protected:
    Kept() {
        Start();
        gData->SetPlayer(2, "Bob", false);
    }
    ~Kept() override {
        files_.Fails.clear();
        mLoad::UnloadMain();
    }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

    void Start() {
        mLoad::Main({outside_.Stage, outside_.Settings, files_, outside_.Calendar, outside_.Sounds,
                     outside_.Forms, outside_.Help});
        mMain::Load();
    }
    void Play(const std::string& player, const GameNumber& number, int won = 1) {
        gData->SetCurPlayer(player);
        gData->Figures.CurGName = "Klondike";
        gData->Figures.CurGNo = number;
        mGen::CloseGame(won);
    }
    std::string& File(const std::string& player) {
        return files_.Contents["/data/Kelmor/Tarnival 2004 11.0/" + player + ".sre"];
    }
    // The lines of won games with these numbers and no figures.
    static std::string Lines(std::initializer_list<const char*> numbers) {
        std::string lines;
        for (const std::string number : numbers)
            lines += "\"2004-01-01 00:00:00\",\"Klondike\"," + number + ",0,0,0,1\r\n";
        return lines;
    }
    [[nodiscard]] std::vector<std::string>& Messages() { return outside_.Forms.Messages; }

    MemoryLayer outside_;
    FaultyFiles files_;
};

TEST_F(Kept, ARecordIsALineOfTheCurrentPlayersFile) {
    gData->Figures.CurTime = 3600;
    gData->Figures.CurMoves = 120;
    gData->Figures.CurScore = -15;
    outside_.Calendar.Advance(3661);
    File("Player1") = "\"2003-05-05 10:00:00\",\"Klond";  // torn: it is ended first
    Play("Player1", 123456789012345.0);
    Play("Bob", 1.0, 0);
    Play("Player1", std::string("0042"), 0);
    EXPECT_EQ(File("Player1"),
              "\"2003-05-05 10:00:00\",\"Klond\r\n"
              "\"2004-01-01 01:01:01\",\"Klondike\",123456789012345,3600,120,-15,1\r\n"
              "\"2004-01-01 01:01:01\",\"Klondike\",\"0042\",3600,120,-15,0\r\n");
    EXPECT_EQ(File("Bob"), "\"2004-01-01 01:01:01\",\"Klondike\",1,3600,120,-15,0\r\n");
    EXPECT_EQ(gScore->ScoreTop(), 0);
    EXPECT_EQ(gScore->SesStat(),
              (tStat{.Played = 3, .Won = 1, .Lost = 2, .Score = -45, .Moves = 360, .Time = 10800}));
    EXPECT_EQ(gScore->GetSes(2).Player, "Bob");
}

TEST_F(Kept, WhatCannotBeWrittenWaitsInOrderAndHoldsNobodyElseUp) {
    files_.Fails = "Player1";
    Play("Player1", 1.0);
    EXPECT_THAT(
        Messages(),
        ElementsAre("The record of this game could not be written to " + cScore::FileName("Player1") +
                    ": No space left on device\nIt is kept and will be written with the next record."));
    Play("Player1", 2.0);
    Play("Bob", 3.0);
    EXPECT_EQ(File("Bob"), Lines({"3"}));
    EXPECT_EQ(File("Player1"), "");
    EXPECT_THAT(Messages().back(), HasSubstr("What was kept from before could not be written"));
    files_.Fails.clear();
    files_.Writes = 0;
    Play("Player1", 4.0);
    EXPECT_EQ(File("Player1"), Lines({"1", "2", "4"}));
    EXPECT_EQ(files_.Writes, 1) << "the lines of a file go out with one write";
    EXPECT_THAT(Messages(), SizeIs(3));
}

TEST_F(Kept, AViewAndTheEndTakeAlongWhatWaited) {
    files_.Fails = ".sre";
    Play("Bob", 1.0);
    files_.Fails.clear();
    gScore->OpenAllScore();
    EXPECT_EQ(gScore->PlayerStat("Bob").Played, 1);
    files_.Fails = ".sre";
    Play("Bob", 2.0);
    files_.Fails.clear();
    mLoad::UnloadMain();
    EXPECT_THAT(outside_.Forms.Questions, IsEmpty());
    EXPECT_EQ(File("Bob"), Lines({"1", "2"}));
}

TEST_F(Kept, FollowsARenamedPlayerAndGoesWithADeletedOne) {
    files_.Fails = ".sre";
    Play("Player1", 1.0);
    Play("Bob", 2.0);
    files_.Fails.clear();
    outside_.Forms.Answer = true;
    EXPECT_TRUE(mPlayers::Enter("Player1", "Ann"));
    EXPECT_TRUE(mPlayers::Select("Ann"));
    mPlayers::Delete("Bob");
    EXPECT_TRUE(gScore->WriteKept());
    EXPECT_EQ(File("Ann"), Lines({"1"}));
    EXPECT_FALSE(files_.Exists(cScore::FileName("Player1")));
    EXPECT_FALSE(files_.Exists(cScore::FileName("Bob")));
}

TEST_F(Kept, FilesThatCannotBeReadOrDeletedAreNamed) {
    Play("Player1", 1.0);
    Play("Bob", 2.0);
    files_.Fails = "Player1";
    gScore->OpenAllScore();
    gScore->ReportUnread();
    EXPECT_EQ(gScore->ScoreTop(), 1);
    outside_.Forms.Answer = true;
    gScore->ClearStat();
    const std::string file = cScore::FileName("Player1");
    EXPECT_THAT(Messages(), ElementsAre("The file " + file + " could not be read: Input/output error",
                                        HasSubstr(file + " could not be deleted: Permission denied")));
    EXPECT_TRUE(files_.Exists(file));
    EXPECT_FALSE(files_.Exists(cScore::FileName("Bob")));
}

TEST_F(Kept, LeavingAtOnceTriesOnceMoreAndAsks) {
    files_.Fails = ".sre";
    Play("Bob", 1.0);
    mGen::StartGame("Klondike", 2.0);
    mLoad::WriteWaiting();
    EXPECT_THAT(outside_.Forms.Questions, ElementsAre(HasSubstr("will be lost.\nTry again?")));
    files_.Fails.clear();
    mLoad::WriteWaiting();
    EXPECT_THAT(outside_.Forms.Questions, SizeIs(1));
    EXPECT_EQ(File("Bob"), Lines({"1"})) << "and nothing of the running game";
}

TEST_F(Kept, FollowsAPlayerWhomAnotherProgramRenames) {
    outside_.Forms.Answer = true;
    files_.Fails = ".sre";
    Play("Bob", 1.0);
    Play("Player1", 2.0);
    // Bob becomes Ann, and somebody else Bob; Player1's records go with the player.
    const auto values = [&](const char* first, const char* second, const char* history) {
        outside_.Settings.Values["Users/1"] = first;
        outside_.Settings.Values["Users/2"] = second;
        outside_.Settings.Values["Users/100"] = first;
        outside_.Settings.Values["Users/History"] = history;
    };
    values("Ann", "Bob", "4/Bob/Ann/Cid/Bob/Player1/");
    files_.Fails.clear();
    mGen::StartGame("Klondike", 3.0);
    mMain::CloseGame();
    EXPECT_THAT(File("Ann"), testing::StartsWith(Lines({"1"})));
    EXPECT_THAT(File("Ann"), HasSubstr(",3,0,0,0,0"));
    EXPECT_EQ(File("Bob"), "");
    EXPECT_EQ(File("Player1"), "");
    // Where the settings are gone, a record that waits is none the less not lost.
    files_.Fails = ".sre";
    Play("Ann", 4.0);
    outside_.Settings.Values.clear();
    files_.Fails.clear();
    EXPECT_TRUE(gScore->WriteKept());
    EXPECT_THAT(File("Ann"), testing::EndsWith(Lines({"4"})));
}

// The end of the program asks before it gives a record up; closing it in a game records a loss, with the
// figures of the last tick.
TEST_F(Kept, TheEndOfTheProgram) {
    mGen::StartGame("Klondike", 1.0);
    outside_.Calendar.Advance(10);
    mMain::TickTime();
    outside_.Calendar.Advance(10);
    mLoad::UnloadMain();
    EXPECT_THAT(File("Player1"), testing::MatchesRegex("\"2004-01-01 00:00:20\",\"Klondike\",1,10,.*,0\r\n"));
    mLoad::UnloadMain();  // a second time does no harm
    EXPECT_THAT(outside_.Forms.Questions, IsEmpty());
    Start();
    files_.Fails = ".sre";
    Play("Player1", 2.0);
    mLoad::UnloadMain();
    EXPECT_THAT(outside_.Forms.Questions, SizeIs(1));
    EXPECT_EQ(gScore, nullptr);
}

}  // namespace
