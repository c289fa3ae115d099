// The catalogue of 350 games: groups, numbers and names, and that no row changes unseen.
#include <algorithm>
#include <array>
#include <cctype>
#include <set>
#include <span>
#include <string>

#include <gtest/gtest.h>

#include "catalogue/definition.h"
#include "catalogue/families.h"
#include "shell/cData.h"
#include "state/cGames.h"
#include "state/mGen.h"
#include "support/Columns.h"
#include "support/Fixture.h"
#include "support/Hash.h"

namespace {

struct Family {
    const char* Group;
    int Games;
    int Originals;
    std::span<const Definition> (*Table)();
    void (*SetGame)(const std::string& name);
};

// In the order of the groups' numbers.
// clang-format off
constexpr std::array<Family, 11> families = {{
    {"Baker's Dozen",      20, 15, gBDozen::Games,       gBDozen::SetGame},
    {"Beleaguered Castle", 25, 16, gBeCastle::Games,     gBeCastle::SetGame},
    {"Canfield",           20, 10, gCanfield::Games,     gCanfield::SetGame},
    {"Fan",                15,  8, gFan::Games,          gFan::SetGame},
    {"Forty Thieves",      45,  9, gFortyThieves::Games, gFortyThieves::SetGame},
    {"Four Seasons",       10,  5, gFourSeasons::Games,  gFourSeasons::SetGame},
    {"Freecell",           65, 51, gFreecell::Games,     gFreecell::SetGame},
    {"Klondike",           60, 39, gKlondike::Games,     gKlondike::SetGame},
    {"Sir Tommy",          10,  5, gSirTommy::Games,     gSirTommy::SetGame},
    {"Spider",             60, 50, gSpider::Games,       gSpider::SetGame},
    {"Yukon",              20, 17, gYukon::Games,        gYukon::SetGame},
}};
// clang-format on

std::string LowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

class Catalogue : public testing::Test {
    const Engine engine_;
};

TEST_F(Catalogue, GroupsAndNumbersFollowTheListOfFamilies) {
    ASSERT_EQ(gData->TotalGroups(), 11);
    ASSERT_EQ(gData->TotalGames(), 350);
    int SiD = 0;
    int originals = 0;
    for (int group = 0; group < 11; ++group) {
        const Family& family = families.at(static_cast<std::size_t>(group));
        EXPECT_EQ(gData->GroupfromGiD(group + 1), family.Group);
        int groupOriginals = 0;
        for (int Mid = 1; Mid <= family.Games; ++Mid) {
            ++SiD;
            EXPECT_EQ(gData->GroupfromSiD(SiD), family.Group);
            EXPECT_EQ(gData->GetGameID(gData->GetGame(SiD)), (group + 1) * 100 + Mid)
                << "a name stands twice";
            groupOriginals += gData->IsOriginal(SiD) ? 1 : 0;
        }
        EXPECT_EQ(groupOriginals, family.Originals) << family.Group;
        originals += groupOriginals;
    }
    EXPECT_EQ(SiD, 350);
    EXPECT_EQ(originals, 225);
    EXPECT_EQ(gData->GetGameID("Will o' the Wisp"), 1059);
    EXPECT_EQ(gData->GetGameID("Tam o 'Shanter"), 909);
    for (const char* unknown : {"klondike", "KLONDIKE", "Klondike ", "", "Will o the Wisp"}) {
        EXPECT_EQ(gData->GetGameID(unknown), 0) << '"' << unknown << '"';
    }
}

TEST_F(Catalogue, ListsAreAlphabeticalButForTheTwoKnownPlaces) {
    // In these the blank sorts behind the letter.
    const std::set<std::string> outOfOrder = {"Spider Freecell", "Spider One Suit"};
    for (const Family& family : families) {
        const std::span<const Definition> games = family.Table();
        for (std::size_t i = 1; i < games.size(); ++i) {
            const std::string name(games[i].Name);
            const bool rising = LowerCase(std::string(games[i - 1].Name)) < LowerCase(name);
            EXPECT_EQ(rising, !outOfOrder.contains(name)) << name;
        }
    }
    EXPECT_LT(gData->MidfromName("Spidercells"), gData->MidfromName("Spider Freecell"));
    EXPECT_LT(gData->MidfromName("Spiderette"), gData->MidfromName("Spider One Suit"));
}

TEST_F(Catalogue, AFamilyLeavesTheNamesOfOthersAlone) {
    mGen::SetGameRules("Durbar Hall");
    const cGames before = *gGames;
    for (const Family& family : families) {
        for (const Family& other : families) {
            if (other.SetGame == family.SetGame) continue;
            for (const Definition& game : other.Table()) family.SetGame(std::string(game.Name));
        }
        family.SetGame("");
        EXPECT_TRUE(*gGames == before) << family.Group;
    }
}

// Every value of every row, in one number: it tells that a row was changed, not which. Whoever changes one on
// purpose says in the commit which it was.
TEST_F(Catalogue, NoRowChangesUnseen) {
    Hash hash;
    const auto fold = [&hash](const auto& value) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, std::string_view>) {
            hash.Fold(value);
        } else {
            hash.Fold(static_cast<int>(value));
        }
    };
    for (const Family& family : families) {
        for (const Definition& game : family.Table()) {
            fold(game.Name);
            fold(game.Original);
            std::apply([&](const auto&... column) { (fold(column), ...); }, Columns(game));
        }
    }
    EXPECT_EQ(hash.Value(), 2689876386452651625U);
}

}  // namespace
