// Players: every check of a name, and what adding, renaming, deleting and selecting do to list and files.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/records/Records.h"
#include "engine/records/mPlayers.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr const char* Invalid = "Please Enter a Valid Name";
constexpr const char* Exists = "Player Exists !";

TEST(Players, ANameMustFitIntoAFileName) {
    const std::string tooLong(201, 'x');
    for (const std::string& name : {std::string(), std::string("."), std::string(".."), std::string("a/b"),
                                    std::string("a\\b"), std::string("a\nb"), std::string("a\0b", 3),
                                    std::string("a\x7F"), std::string("a\xC2\x85"), tooLong}) {
        Records records;
        EXPECT_FALSE(mPlayers::Enter("", name)) << name;
        EXPECT_FALSE(mPlayers::Enter("Player1", name)) << name;
        EXPECT_THAT(mPlayers::Names(), ElementsAre("Player1"));
        EXPECT_THAT(records.Messages(), ElementsAre(Invalid, Invalid));
    }
    for (const std::string& name :
         {tooLong.substr(1), std::string("..."), std::string("Zoë"), std::string(" A, B: 100% \"C\" ")}) {
        const Records records;
        EXPECT_TRUE(mPlayers::Enter("", name)) << name;
        EXPECT_THAT(mPlayers::Names(), ElementsAre("Player1", name));
    }
}

TEST(Players, AreAddedIntoTheFirstFreeSlotUpToTwenty) {
    Records records({"Ann", "Bob"});
    EXPECT_FALSE(mPlayers::Enter("", "Bob"));
    EXPECT_TRUE(mPlayers::Enter("", "bob"));
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
    using Names = std::vector<std::string>;
    struct Row {
        const char* Says;
        Names Slots;
        const char *Current, *Renaming, *File;
        Names Mended;
        const char* MendedCurrent;
    };
    const Names both{"Ann", "Bob"};
    const Names renamed{"Zoe", "Bob"};
    const Row rows[] = {
        {"the rename had not begun", both, "Ann", "Ann/Zoe", "Ann", both, "Ann"},
        {"only the file had its new name", both, "Ann", "Ann/Zoe", "Zoe", renamed, "Zoe"},
        {"of another player than the current", both, "Bob", "Ann/Zoe", "Zoe", renamed, "Bob"},
        {"the list had its new name", renamed, "Ann", "Ann/Zoe", "Zoe", renamed, "Zoe"},
        {"a delete left a gap", {"Ann", "", "Bob"}, "Bob", "", "Ann", both, "Bob"},
        {"a shift left a name twice", {"Ann", "Bob", "Bob"}, "Ann", "", "Ann", both, "Ann"},
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

}  // namespace
