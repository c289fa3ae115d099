// What happens to records when files fail: nothing is lost, nobody is held up, and the user is told.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Records.h"
#include "state/mLoad.h"
#include "table/mMain.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

namespace {

/// Files that fail for chosen paths only.
class FaultyFiles : public MemoryFiles {
public:
    [[nodiscard]] FileError AppendLines(const std::string& path,
                                        const std::vector<std::string>& lines) override {
        ++Writes;
        if (Broken(path)) return "No space left on device";
        return MemoryFiles::AppendLines(path, lines);
    }
    [[nodiscard]] FileError Read(const std::string& path, std::string& content) const override {
        if (Broken(path)) return "Input/output error";
        return MemoryFiles::Read(path, content);
    }
    [[nodiscard]] FileError Remove(const std::string& path) override {
        if (Broken(path)) return "Permission denied";
        return MemoryFiles::Remove(path);
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
        mLoad::Main({outside_.Stage, outside_.Settings, files_, outside_.Calendar, outside_.Sounds,
                     outside_.Forms, outside_.Help});
        mMain::Load();
        gData->SetPlayer(2, "Bob", false);
        gData->Figures.CurGName = "Klondike";
    }
    ~Kept() override {
        files_.Fails.clear();
        mLoad::UnloadMain();
    }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

    void Play(const std::string& player, double number) {
        gData->SetCurPlayer(player);
        gData->Figures.CurGNo = number;
        gScore->AddScore(1);
    }
    [[nodiscard]] std::string Numbers(const std::string& player) const {
        std::string numbers;
        const auto found = files_.Contents.find(cScore::FileName(player));
        if (found == files_.Contents.end()) return numbers;
        mScoreFile::ForEachLine(found->second, [&](std::string_view line) {
            mScoreFile::ScoreFields fields;
            if (!mScoreFile::ParseScore(line, fields)) return false;
            numbers += std::string(fields.GameNo.Text) + " ";
            return true;
        });
        return numbers;
    }
    [[nodiscard]] std::vector<std::string>& Messages() { return outside_.Forms.Messages; }

    MemoryLayer outside_;
    FaultyFiles files_;
};

TEST_F(Kept, ARecordIsALineOfTheCurrentPlayersFile) {
    gData->Figures.CurTime = 3600;
    gData->Figures.CurMoves = 120;
    gData->Figures.CurScore = -15;
    Play("Player1", 77);
    gData->Figures.CurGNo = std::string("88");
    gScore->AddScore(0);
    EXPECT_EQ(files_.Contents[cScore::FileName("Player1")],
              "\"2004-01-01 00:00:00\",\"Klondike\",77,3600,120,-15,1\r\n"
              "\"2004-01-01 00:00:00\",\"Klondike\",\"88\",3600,120,-15,0\r\n");
    EXPECT_EQ(gScore->ScoreTop(), 0);
}

TEST_F(Kept, WhatCannotBeWrittenWaitsInOrderAndHoldsNobodyElseUp) {
    files_.Fails = "Player1";
    Play("Player1", 1);
    ASSERT_THAT(Messages(), SizeIs(1));
    EXPECT_EQ(Messages()[0],
              "The record of this game could not be written to " + cScore::FileName("Player1") +
                  ": No space left on device\nIt is kept and will be written with the next record.");
    Play("Player1", 2);
    Play("Bob", 3);
    EXPECT_EQ(Numbers("Bob"), "3 ");
    EXPECT_EQ(Numbers("Player1"), "");
    EXPECT_THAT(Messages().back(), HasSubstr("What was kept from before could not be written"));
    EXPECT_FALSE(gScore->WriteKept());
    files_.Fails.clear();
    files_.Writes = 0;
    Play("Player1", 4);
    EXPECT_EQ(Numbers("Player1"), "1 2 4 ");
    EXPECT_EQ(files_.Writes, 1) << "the lines of a file go out with one write";
    EXPECT_THAT(Messages(), SizeIs(3));
    EXPECT_TRUE(gScore->WriteKept());
}

TEST_F(Kept, AViewContainsWhatWaited) {
    files_.Fails = ".sre";
    Play("Bob", 1);
    files_.Fails.clear();
    gScore->OpenAllScore();
    EXPECT_EQ(gScore->PlayerStat("Bob").Played, 1);
}

TEST_F(Kept, FollowsARenamedPlayerAndGoesWithADeletedOne) {
    files_.Fails = ".sre";
    Play("Player1", 1);
    Play("Bob", 2);
    files_.Fails.clear();
    EXPECT_EQ(gScore->RenameScore("Player1", "Ann"), std::nullopt);
    EXPECT_EQ(gScore->DeleteScore("Bob"), std::nullopt);
    EXPECT_TRUE(gScore->WriteKept());
    EXPECT_EQ(Numbers("Ann"), "1 ");
    EXPECT_FALSE(files_.Exists(cScore::FileName("Player1")));
    EXPECT_FALSE(files_.Exists(cScore::FileName("Bob")));
}

TEST_F(Kept, AFavouriteWaitsToo) {
    files_.Fails = "fav.dat";
    EXPECT_FALSE(gScore->AddFav("Klondike", 5.0));
    EXPECT_THAT(Messages(), ElementsAre(HasSubstr("fav.dat: No space left on device")));
    files_.Fails.clear();
    EXPECT_TRUE(gScore->AddFav("Klondike", std::string("6")));
    EXPECT_EQ(files_.Contents[cScore::FavFileName()], "\"Klondike\",5\r\n\"Klondike\",\"6\"\r\n");
}

TEST_F(Kept, FilesThatCannotBeReadOrDeletedAreNamed) {
    Play("Player1", 1);
    Play("Bob", 2);
    files_.Fails = "Player1";
    gScore->OpenAllScore();
    gScore->ReportUnread();
    ASSERT_THAT(Messages(), SizeIs(1));
    EXPECT_EQ(Messages()[0],
              "The file " + cScore::FileName("Player1") + " could not be read: Input/output error");
    EXPECT_EQ(gScore->ScoreTop(), 1);

    outside_.Forms.Answer = true;
    gScore->ClearStat();
    ASSERT_THAT(Messages(), SizeIs(2));
    EXPECT_THAT(Messages()[1],
                HasSubstr(cScore::FileName("Player1") + " could not be deleted: Permission denied"));
    EXPECT_TRUE(files_.Exists(cScore::FileName("Player1")));
    EXPECT_FALSE(files_.Exists(cScore::FileName("Bob")));
}

}  // namespace
