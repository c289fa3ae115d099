// Players: every check of a name, and what adding, renaming, deleting and selecting do to list and files.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Records.h"
#include "records/mPlayers.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr const char* Invalid = "Please Enter a Valid Name";
constexpr const char* Exists = "Player Exists !";

TEST(Players, ANameMustFitIntoAFileName) {
    struct Row {
        const char* Says;
        std::string Name;
        bool Good;
    };
    const Row rows[] = {
        {"empty", "", false},
        {"the folder itself", ".", false},
        {"the folder above", "..", false},
        {"a separator", "a/b", false},
        {"another system's separator", "a\\b", false},
        {"a line end", "a\nb", false},
        {"a zero", std::string("a\0b", 3), false},
        {"the delete character", "a\x7F", false},
        {"a control character of two bytes", "a\xC2\x85", false},
        {"201 bytes", std::string(201, 'x'), false},
        {"200 bytes", std::string(200, 'x'), true},
        {"three dots", "...", true},
        {"letters of two bytes", "Zoë", true},
        {"blanks and signs", " A, B: 100% \"C\" ", true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Says);
        Records records;
        EXPECT_EQ(mPlayers::Enter("", row.Name), row.Good);
        EXPECT_EQ(mPlayers::Enter("Player1", row.Name + (row.Good ? "2" : "")),
                  row.Good && row.Name.size() < 200);
        EXPECT_EQ(gData->TotalPlayers(), row.Good ? 2 : 1);
        if (!row.Good) {
            EXPECT_THAT(records.Messages(), ElementsAre(Invalid, Invalid));
        }
    }
}

TEST(Players, AreAddedIntoTheFirstFreeSlotUpToTwenty) {
    Records records({"Ann", "Bob"});
    EXPECT_FALSE(mPlayers::Enter("", "Bob"));
    EXPECT_TRUE(mPlayers::Enter("", "bob"));
    EXPECT_THAT(records.Messages(), ElementsAre(Exists));
    EXPECT_THAT(mPlayers::Names(), ElementsAre("Ann", "Bob", "bob"));
    EXPECT_EQ(gData->CurPlayer(), "Ann") << "a new player is not selected";
    for (int i = 4; i <= 20; ++i) {
        EXPECT_TRUE(mPlayers::RoomForOne());
        EXPECT_TRUE(mPlayers::Enter("", "P" + std::to_string(i)));
    }
    EXPECT_FALSE(mPlayers::RoomForOne());
    EXPECT_FALSE(mPlayers::Enter("", "One more"));
    EXPECT_THAT(records.Messages(),
                ElementsAre(Exists, "Maximum 20 Players Only!", "Maximum 20 Players Only!"));
    EXPECT_THAT(mPlayers::Names(), SizeIs(20));
}

TEST(Players, ARenameTakesTheFileAlongAndNeverReplacesOne) {
    Records records({"Ann", "Bob"});
    records.Add("Ann", "Klondike", 1, 1);
    const std::string content = records.File("Ann");
    records.AddLine("Stranger", "x");
    for (const char* taken : {"Ann", "Bob", "Stranger"}) EXPECT_FALSE(mPlayers::Enter("Ann", taken));
    EXPECT_THAT(records.Messages(), ElementsAre(Exists, Exists, Exists));
    EXPECT_EQ(records.File("Stranger"), "x\r\n");
    EXPECT_TRUE(mPlayers::Enter("Ann", "Zoë"));
    EXPECT_THAT(mPlayers::Names(), ElementsAre("Zoë", "Bob"));
    EXPECT_EQ(gData->CurPlayer(), "Zoë") << "the selected player stays selected";
    EXPECT_FALSE(records.HasFile("Ann"));
    EXPECT_EQ(records.File("Zoë"), content);
    EXPECT_TRUE(mPlayers::Enter("Bob", "Ann"));
    EXPECT_EQ(gData->CurPlayer(), "Zoë");
    EXPECT_FALSE(records.HasFile("Ann")) << "Bob had no file";

    records.Layer.Files.Fault = "Permission denied";
    EXPECT_FALSE(mPlayers::Enter("Zoë", "Cid"));
    records.Layer.Files.Fault.reset();
    EXPECT_EQ(records.Messages().back(), "The file " + cScore::FileName("Zoë") + " could not be renamed to " +
                                             cScore::FileName("Cid") + ": Permission denied");
    EXPECT_THAT(mPlayers::Names(), ElementsAre("Zoë", "Ann"));
    EXPECT_EQ(records.File("Zoë"), content);
}

TEST(Players, AFileWithoutAPlayerComesBackWithItsName) {
    Records records({"Ann"});
    records.Add("Stranger", "Klondike", 1, 1);
    EXPECT_TRUE(mPlayers::Enter("", "Stranger"));
    gScore->OpenAllScore();
    EXPECT_EQ(gScore->PlayerStat("Stranger").Played, 1);
}

TEST(Players, ADeleteAsksAndClosesTheGap) {
    Records records({"Ann", "Bob", "Cid", "Dan", "Eve"});
    records.Add("Cid", "Klondike", 1, 1);
    EXPECT_TRUE(mPlayers::CanDelete("Cid"));
    mPlayers::Delete("Cid");
    EXPECT_THAT(records.Layer.Forms.Questions, ElementsAre("Are you sure you want to delete this player"));
    EXPECT_TRUE(records.HasFile("Cid"));
    records.Layer.Forms.Answer = true;
    mPlayers::Delete("Cid");
    EXPECT_THAT(mPlayers::Names(), ElementsAre("Ann", "Bob", "Dan", "Eve"));
    EXPECT_EQ(gData->GetPlayer(5), "");
    EXPECT_FALSE(records.HasFile("Cid"));
    EXPECT_FALSE(mPlayers::CanDelete("Ann"));
    mPlayers::Delete("Ann");
    mPlayers::Delete("");
    EXPECT_THAT(mPlayers::Names(), SizeIs(4)) << "the selected player stays";

    records.Add("Dan", "Klondike", 1, 1);
    records.Layer.Files.Fault = "Permission denied";
    mPlayers::Delete("Dan");
    records.Layer.Files.Fault.reset();
    EXPECT_THAT(records.Messages(), ElementsAre(HasSubstr(cScore::FileName("Dan") + " could not be deleted: "
                                                                                    "Permission denied")));
    EXPECT_THAT(mPlayers::Names(), ElementsAre("Ann", "Bob", "Dan", "Eve"));
    EXPECT_TRUE(records.HasFile("Dan"));
}

TEST(Players, WhatAKilledProgramLeftIsPutRightAtTheNextStart) {
    struct Row {
        const char* Says;
        std::vector<std::string> Slots;
        std::string Current, Renaming, File;
        std::vector<std::string> Mended;
        std::string MendedCurrent;
    };
    const Row rows[] = {
        {"nothing was under way", {"Ann", "Bob"}, "Bob", "", "Ann", {"Ann", "Bob"}, "Bob"},
        {"the rename had not begun", {"Ann", "Bob"}, "Ann", "Ann/Zoe", "Ann", {"Ann", "Bob"}, "Ann"},
        {"only the file had its new name", {"Ann", "Bob"}, "Ann", "Ann/Zoe", "Zoe", {"Zoe", "Bob"}, "Zoe"},
        {"of another player than the current",
         {"Ann", "Bob"},
         "Bob",
         "Ann/Zoe",
         "Zoe",
         {"Zoe", "Bob"},
         "Bob"},
        {"the list had its new name", {"Zoe", "Bob"}, "Ann", "Ann/Zoe", "Zoe", {"Zoe", "Bob"}, "Zoe"},
        {"a delete left a gap", {"Ann", "", "Cid"}, "Cid", "", "Ann", {"Ann", "Cid"}, "Cid"},
        {"a shift left a name twice", {"Ann", "Cid", "Cid"}, "Ann", "", "Ann", {"Ann", "Cid"}, "Ann"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Says);
        Records records(row.Slots);
        gData->SetCurPlayer(row.Current);
        gData->SetRenaming(row.Renaming);
        records.Add(row.File, "Klondike", 1, 1);
        mPlayers::Mend();
        EXPECT_EQ(mPlayers::Names(), row.Mended);
        EXPECT_EQ(gData->CurPlayer(), row.MendedCurrent);
        EXPECT_EQ(gData->Renaming(), "");
        gScore->OpenAllScore();
        EXPECT_EQ(gScore->ScoreTop(), 1);
    }
}

TEST(Players, ASelectionOwnsTheRecordsThatFollow) {
    Records records({"Ann", "Bob"});
    gData->Figures.CurGName = "Klondike";
    mPlayers::Select("Bob");
    gScore->AddScore(0);
    mPlayers::Select("Nobody");
    mPlayers::Select("");
    EXPECT_EQ(gData->CurPlayer(), "Bob");
    EXPECT_TRUE(records.HasFile("Bob"));
    EXPECT_FALSE(records.HasFile("Ann"));
}

}  // namespace
