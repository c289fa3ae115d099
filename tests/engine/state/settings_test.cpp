// Settings: defaults, what a damaged store gives, players, the recent list.
#include <stdexcept>

#include "engine/commands/mLoad.h"
#include "engine/commands/mSelect.h"
#include "support/EngineTest.h"

namespace {

class Settings : public testing::Test {
protected:
    std::string& Stored(const std::string& key) { return engine_.Layer.Settings.Values[key]; }
    Engine engine_;
};

TEST(FirstRun, AFolderThatCannotBeMadeIsTold) {
    MemoryLayer layer;
    layer.Files.Fault = "Read-only file system";
    mLoad::Main(layer.Layer());
    mMain::Load();
    EXPECT_THAT(layer.Forms.Messages,
                testing::ElementsAre(testing::HasSubstr("could not be made: Read-only file system")));
    mLoad::UnloadMain();
}

TEST_F(Settings, AnUnknownGameIsToldAndChangesNothing) {
    mSelect::PlayNumber("Ann", "No such game", "5");
    EXPECT_EQ(engine_.Layer.Forms.Messages.at(0), "There is no game \"No such game\".");
    EXPECT_FALSE(gData->Figures.GameRunning);
    EXPECT_EQ(gData->CurPlayer(), "Player1");
    EXPECT_THROW((void)gData->GetGame(0), std::out_of_range);
}

TEST_F(Settings, RecentList) {
    const auto recent = [] {
        std::string text;
        for (int i = 1; i <= 5; ++i) text += gData->GetRecent(i) + '|';
        return text;
    };
    EXPECT_EQ(gData->RecentCount(), 0);
    for (const char* name : {"A", "A", "B", "A"}) gData->SetRecent(name);
    EXPECT_EQ(recent(), "A|B|A|||");
    EXPECT_EQ(gData->RecentCount(), 3);
    for (const char* name : {"C", "D", "E"}) gData->SetRecent(name);
    EXPECT_EQ(recent(), "E|D|C|A|B|");
    gData->ClearRecent();
    EXPECT_EQ(gData->RecentCount(), 0);
    EXPECT_EQ(Stored("Recent/1"), "");
}

TEST_F(Settings, SoundsPlayWhereTheyAreOn) {
    std::vector<std::string>& played = engine_.Layer.Sounds.Played;
    const auto plays = [&](const char* key) {
        played.clear();
        gData->PlaySound(key);
        return !played.empty();
    };
    EXPECT_TRUE(plays("Start")) << "also before the game runs";
    EXPECT_FALSE(plays("Win"));
    gData->Figures.GameRunning = true;
    EXPECT_TRUE(plays("Win"));
    EXPECT_FALSE(plays("CardUp"));
    Stored("Data/SoundCardUp") = "1";
    EXPECT_FALSE(plays("CardUp")) << "only -1 is on";
    EXPECT_FALSE(plays("No such sound"));
    gData->Figures.GameRunning = false;
}

}  // namespace
