// Players: every check of a name, and what adding, renaming, deleting and selecting do to list and files.
#include "engine/commands/mLoad.h"
#include "engine/records/Records.h"
#include "engine/records/mPlayers.h"
#include "engine/records/mStrayFiles.h"

namespace {

constexpr const char* Invalid = "Please Enter a Valid Name";
constexpr const char* Exists = "Player Exists !";

TEST(Players, ANameMustFitIntoAFileName) {
    const std::string tooLong(201, 'x');
    for (const std::string& name :
         {std::string(), std::string("."), std::string(".."), std::string("a/b"), std::string("a\\b"),
          std::string("a\nb"), std::string("a\0b", 3), std::string("a\x7F"), std::string("a\xC2\x85"),
          std::string("  \u3000"), tooLong}) {
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
    records.Add("Stranger", "Klondike", 1, 1);
    records.AddLine("Stranger", "no record");
    EXPECT_TRUE(mPlayers::Enter("", "Stranger"));
    EXPECT_THAT(records.Messages(),
                ElementsAre("The score file of Stranger was there already: its 2 records come along."));
    gScore->OpenAllScore();
    EXPECT_EQ(gScore->PlayerStat("Stranger").Played, 2);
}

TEST(Players, StrayFilesAreOfferedOnce) {
    Records records({"Ann"});
    const std::string folder = gData->AppDir();
    records.Add("Bea", "Klondike", 1, 1);
    records.Add("Cid", "Klondike", 1, 1);
    records.Add("Cid", "Klondike", 1, 1);
    // Names that no player can have, and files that are none of a player.
    records.Layer.Files.Contents[folder + "  .sre"] = records.File("Bea");
    for (const char* name : {".sre", "fav.dat", "Dan.txt", "Eve.sre.X1y2z3"})
        records.Layer.Files.Contents[folder + name] = "x";
    mStrayFiles::Offer();
    EXPECT_THAT(records.Layer.Forms.Questions,
                ElementsAre("The score file \"  .sre\" with 1 record belongs to no player.\n"
                            "Take it back as the player Player1?",
                            "The score file \"Bea.sre\" with 1 record belongs to no player.\n"
                            "Take it back as the player Bea?",
                            "The score file \"Cid.sre\" with 2 records belongs to no player.\n"
                            "Take it back as the player Cid?"));
    EXPECT_THAT(mPlayers::Names(), ElementsAre("Ann"));
    mStrayFiles::Offer();
    EXPECT_THAT(records.Layer.Forms.Questions, SizeIs(3)) << "not again";
    // What is gone and comes again is another file.
    ASSERT_EQ(records.Layer.Files.Remove(cScore::FileName("Bea")), std::nullopt);
    mStrayFiles::Offer();
    records.Add("Bea", "Klondike", 1, 1);
    records.Layer.Files.Contents[folder + "Zo\xEB.sre"] = "";
    records.Layer.Forms.Answer = true;
    mStrayFiles::Offer();
    EXPECT_THAT(records.Layer.Forms.Questions, SizeIs(5));
    EXPECT_THAT(records.Layer.Forms.Questions.back(), HasSubstr("\"Zoë.sre\" with 0 records"));
    EXPECT_THAT(mPlayers::Names(), ElementsAre("Ann", "Bea", "Player1"))
        << "a name that is no text gives way";
    EXPECT_TRUE(records.HasFile("Player1"));
}

TEST(Players, ADeletionThatWasBegunIsFinished) {
    const std::pair<const char*, bool> rows[] = {
        // the note, whether the file goes
        {"3/Cid", true},   {"2/Cid", false},  // of another change
        {"3/Ann", false},                     // who is in the list
        {"3/../x", false}, {"Cid", false},
    };
    for (const auto& [note, goes] : rows) {
        SCOPED_TRACE(note);
        Records records({"Ann", "Bob"});
        for (const char* name : {"Ann", "Cid"}) records.Add(name, "Klondike", 1, 1);
        records.Layer.Settings.Values["Users/History"] = "3/Bea/Cid/Cid/";
        records.Layer.Settings.Values["Users/Deleting"] = note;
        mPlayers::Mend();
        EXPECT_EQ(records.HasFile("Cid"), !goes);
        EXPECT_TRUE(records.HasFile("Ann"));
        EXPECT_THAT(mPlayers::Names(), ElementsAre("Ann", "Bob"));
    }
}

TEST(Players, WhatADialogShowedIsHeldAgainstTheListOfNow) {
    Records records({"Ann", "Bea", "Cid"});
    records.Layer.Forms.Answer = true;
    for (const char* name : {"Ann", "Bea", "Cid"}) records.Add(name, "Klondike", 1, 1);
    const auto shown = [version = PlayerList::Read().Version()](const char* name) {
        return ShownPlayer(name, version);
    };
    // What another program does meanwhile: Bea is called Bo and then Bob, Cid takes her name, Ann her first
    // one.
    for (const auto& [from, to] : {std::pair("Bea", "Bo"), {"Bo", "Bob"}, {"Cid", "Bo"}})
        ASSERT_TRUE(mPlayers::Enter(from, to));
    ASSERT_TRUE(mPlayers::Enter("Ann", "Bea"));
    const auto files = records.Layer.Files.Contents;
    const auto told = [&records](const char* text) {
        EXPECT_THAT(records.Messages(), ElementsAre(text));
        records.Layer.Forms.Messages.clear();
    };
    mPlayers::Delete(shown("Bea"));
    told("Bea is now called Bob.");
    EXPECT_FALSE(mPlayers::Enter(shown("Bea"), "Zoe"));
    told("Bea is now called Bob.");
    EXPECT_FALSE(mPlayers::Select(shown("Cid")));
    told("Cid is now called Bo.");
    EXPECT_THAT(records.Layer.Forms.Questions, IsEmpty());
    EXPECT_EQ(gData->CurPlayer(), "Bea");
    EXPECT_EQ(records.Layer.Files.Contents, files);
    EXPECT_THAT(mPlayers::Names(), ElementsAre("Bea", "Bob", "Bo"));

    // Deleted and added anew: another player of the same name.
    mPlayers::Delete("Bob");
    ASSERT_TRUE(mPlayers::Enter("", "Bob"));
    EXPECT_FALSE(mPlayers::Select(shown("Bea")));
    told("Bea is not in the list of players any more.");
    EXPECT_TRUE(mPlayers::Select("Bob"));
    EXPECT_FALSE(mPlayers::Select(ShownPlayer("Nobody")));
    told("Nobody is not in the list of players any more.");
    EXPECT_EQ(gData->CurPlayer(), "Bob");
}

TEST(Players, AnOpenQuestionHoldsNothingUp) {
    // While the question stands, another program selects the player.
    class Answering : public MemoryForms {
    public:
        bool Ask(const std::string&) override {
            gData->SetCurPlayer("Bea");
            return true;
        }
    };
    Records records({"Ann", "Bea"});
    records.Add("Bea", "Klondike", 1, 1);
    Answering forms;
    MemoryLayer& layer = records.Layer;
    const std::string prodName = gData->ProdName();
    mLoad::UnloadMain();
    mLoad::Main({layer.Stage, layer.Settings, layer.Files, layer.Calendar, layer.Sounds, forms, layer.Help});
    mGen::InitApp();
    mPlayers::Delete("Bea");
    EXPECT_THAT(forms.Messages, ElementsAre("Bea is the selected player now, who cannot be deleted."));
    EXPECT_TRUE(records.HasFile("Bea"));
    EXPECT_THAT(mPlayers::Names(), ElementsAre("Ann", "Bea"));
    mLoad::UnloadMain();
    mLoad::Main(layer.Layer());  // for the end of the test
    mGen::InitApp();
}

TEST(Players, NothingChangesWhereTheListCannotBeWritten) {
    Records records({"Ann", "Bea"});
    records.Layer.Forms.Answer = true;
    for (const char* name : {"Ann", "Bea"}) records.Add(name, "Klondike", 1, 1);
    const auto files = records.Layer.Files.Contents;
    const auto values = records.Layer.Settings.Values;
    const auto tryAll = [&](const char* told) {
        EXPECT_FALSE(mPlayers::Enter("", "Cid"));
        EXPECT_FALSE(mPlayers::Enter("Bea", "Cid"));
        mPlayers::Delete("Bea");
        EXPECT_THAT(records.Messages(), ElementsAre(HasSubstr(told), HasSubstr(told), HasSubstr(told)));
        EXPECT_EQ(records.Layer.Files.Contents, files);
        EXPECT_EQ(records.Layer.Settings.Values, values);
        records.Layer.Forms.Messages.clear();
    };
    records.Layer.Settings.Fault = "No space left on device";
    tryAll("could not be written: No space left on device");
    records.Layer.Settings.Fault.reset();
    records.Layer.Settings.Busy = true;
    tryAll("Another program is busy with the list of players");
    // A record that finds no turn waits.
    Records::Close("Klondike", 1);
    EXPECT_THAT(records.Messages(), ElementsAre(HasSubstr("It is kept")));
    records.Layer.Settings.Busy = false;
    EXPECT_TRUE(gScore->WriteKept());
    gScore->OpenAllScore();
    EXPECT_EQ(gScore->PlayerStat("Ann").Played, 2);
}

TEST(Players, NamesInTheSettingsAreHeldAgainstTheRules) {
    using Names = std::vector<std::string>;
    struct Row {
        const char* Says;
        Names Slots;
        std::string Current;
        Names Shown;
        const char* Selected;
        const char* Told;  // a part of the one message; none: nothing is told
    };
    const std::string longName(201, 'x');
    // clang-format off
    const Row rows[] = {
    //   says                        slots                                selected             shown                                selected   told
        {"a path",                   {"../../../../evil", "Bob"},         "../../../../evil",  {"Bob"},                             "Bob",     "a player \"../../../../evil\""},
        {"the folder itself",        {"Ann", "."},                        "Ann",               {"Ann"},                             "Ann",     "a player \".\""},
        {"a control character",      {"Ann", "B\x1B" "b"},                "Ann",               {"Ann"},                             "Ann",     "a player \"B?b\""},
        {"blanks",                   {"Ann", " \u00A0 "},                 "Ann",               {"Ann"},                             "Ann",     "which cannot be the name"},
        {"too long",                 {"Ann", longName},                   "Ann",               {"Ann"},                             "Ann",     "xxx…\""},
        {"usual elsewhere",          {"CON", ".hidden", "...", "a:b*?"},  "CON",               {"CON", ".hidden", "...", "a:b*?"},  "CON",     nullptr},
        {"none that is good",        {"/"},                               "",                  {"Player1"},                         "Player1", "a player \"/\""},
        {"twice, with a gap",        {"A", "", "A"},                      "A",                 {"A"},                               "A",       nullptr},
        {"behind a gap",             {"A", "", "", "B"},                  "B",                 {"A", "B"},                          "B",       nullptr},
        {"selected, but in no slot", {"A", "B"},                          "Ghost",             {"A", "B"},                          "A",       "player Ghost is not in the list"},
        {"none selected",            {"A", "B"},                          "",                  {"A", "B"},                          "A",       nullptr},
        {"nothing at all",           {},                                  "",                  {"Player1"},                         "Player1", nullptr},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Says);
        Records records;
        auto& values = records.Layer.Settings.Values;
        values.clear();
        for (std::size_t i = 0; i < row.Slots.size(); ++i)
            values["Users/" + std::to_string(i + 1)] = row.Slots[i];
        values["Users/100"] = row.Current;
        for (int i = 1; i <= 20; ++i) EXPECT_TRUE(gData->GetPlayer(i).find('/') == std::string::npos);
        const auto paths = records.Layer.Files.Contents;
        Records::Close("Klondike", 1);  // finds its owner whatever is there
        EXPECT_EQ(mPlayers::Names(), row.Shown);
        EXPECT_EQ(gData->CurPlayer(), row.Selected);
        if (row.Told) {
            EXPECT_THAT(records.Messages(), ElementsAre(HasSubstr(row.Told)));
        } else {
            EXPECT_THAT(records.Messages(), IsEmpty());
        }
        gScore->OpenAllScore();
        EXPECT_EQ(gScore->PlayerStat(row.Selected).Played, 1);
        EXPECT_EQ(records.Layer.Files.Contents.size(), paths.size() + 1);
        mPlayers::Mend();
        EXPECT_TRUE(PlayerList::Read().IsTidy());
    }
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
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Says);
        Records records(row.Slots);
        gData->SetCurPlayer(row.Current);
        records.Layer.Settings.Values["Users/Renaming"] = row.Renaming;
        records.Add(row.File, "Klondike", 1, 1);
        mPlayers::Mend();
        EXPECT_EQ(mPlayers::Names(), row.Mended);
        EXPECT_EQ(gData->CurPlayer(), row.MendedCurrent);
        EXPECT_EQ(records.Layer.Settings.Values["Users/Renaming"], "");
        gScore->OpenAllScore();
        EXPECT_EQ(gScore->ScoreTop(), 1);
    }
}

}  // namespace
