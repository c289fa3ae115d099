// The catalogue of 350 games: groups, numbers and names.
#include <array>
#include <span>
#include <string>

#include <gtest/gtest.h>

#include "engine/catalogue/definition.h"
#include "engine/catalogue/families.h"
#include "engine/commands/mGen.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "support/Fixture.h"

namespace {

struct Family {
    const char* Group;
    int Games;
    int Originals;
    std::span<const Definition> (*Table)();
};

// In the order of the groups' numbers.
// clang-format off
constexpr std::array<Family, 11> families = {{
    {"Baker's Dozen",      20, 15, gBDozen::Games},
    {"Beleaguered Castle", 25, 16, gBeCastle::Games},
    {"Canfield",           20, 10, gCanfield::Games},
    {"Fan",                15,  8, gFan::Games},
    {"Forty Thieves",      45,  9, gFortyThieves::Games},
    {"Four Seasons",       10,  5, gFourSeasons::Games},
    {"Freecell",           65, 51, gFreecell::Games},
    {"Klondike",           60, 39, gKlondike::Games},
    {"Sir Tommy",          10,  5, gSirTommy::Games},
    {"Spider",             60, 50, gSpider::Games},
    {"Yukon",              20, 17, gYukon::Games},
}};
// clang-format on

class Catalogue : public testing::Test {
    const Engine engine_;
};

TEST_F(Catalogue, GroupsAndNumbersFollowTheListOfFamilies) {
    int SiD = 0;
    for (int group = 0; group < 11; ++group) {
        const Family& family = families.at(static_cast<std::size_t>(group));
        int originals = 0;
        EXPECT_EQ(gData->GroupfromGiD(group + 1), family.Group);
        for (int Mid = 1; Mid <= family.Games; ++Mid) {
            ++SiD;
            EXPECT_EQ(gData->GroupfromSiD(SiD), family.Group);
            EXPECT_EQ(gData->GetGameID(gData->GetGame(SiD)), (group + 1) * 100 + Mid)
                << "a name stands twice";
            originals += gData->IsOriginal(SiD) ? 1 : 0;
        }
        EXPECT_EQ(originals, family.Originals) << family.Group;
    }
    EXPECT_EQ(SiD, gData->TotalGames());
    EXPECT_EQ(gData->GetGameID("Will o' the Wisp"), 1059);
    EXPECT_EQ(gData->GetGameID("Tam o 'Shanter"), 909);
    for (const char* unknown : {"klondike", "KLONDIKE", "Klondike ", "", "Will o the Wisp"}) {
        EXPECT_EQ(gData->GetGameID(unknown), 0) << '"' << unknown << '"';
    }
}

}  // namespace
