// The catalogue of 350 games: groups, numbers and names, and rows that tell a family's character.
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
#include "state/mLoad.h"
#include "table/mMain.h"
#include "table/memorylayer.h"

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
protected:
    void SetUp() override {
        mLoad::Main(layer_.Layer());
        mMain::Load();
    }
    void TearDown() override { mLoad::UnloadMain(); }

private:
    MemoryLayer layer_;
};

TEST_F(Catalogue, GroupsAndNumbersFollowTheListOfFamilies) {
    ASSERT_EQ(gData->TotalGroups(), 11);
    ASSERT_EQ(gData->TotalGames(), 350);
    int SiD = 0;
    int originals = 0;
    for (int group = 0; group < 11; ++group) {
        const Family& family = families.at(static_cast<std::size_t>(group));
        SCOPED_TRACE(family.Group);
        EXPECT_EQ(gData->GroupfromGiD(group + 1), family.Group);
        int groupOriginals = 0;
        for (int Mid = 1; Mid <= family.Games; ++Mid) {
            ++SiD;
            EXPECT_EQ(gData->GroupfromSiD(SiD), family.Group);
            EXPECT_EQ(gData->GetGameID(gData->GetGame(SiD)), (group + 1) * 100 + Mid);
            groupOriginals += gData->IsOriginal(SiD) ? 1 : 0;
        }
        EXPECT_EQ(groupOriginals, family.Originals);
        originals += groupOriginals;
    }
    EXPECT_EQ(SiD, 350);
    EXPECT_EQ(originals, 225);
    EXPECT_EQ(gData->GetGameID(gData->GetGame(1)), 101);
    EXPECT_EQ(gData->GetGameID(gData->GetGame(350)), 1120);
}

TEST_F(Catalogue, NamesAreUniqueAndFoundExactly) {
    std::set<std::string> names;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) names.insert(gData->GetGame(SiD));
    EXPECT_EQ(names.size(), 350u);
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

TEST_F(Catalogue, NothingOfAnEarlierGameStays) {
    struct Pair {
        const char* Earlier;
        const char* Later;
    };
    for (const Pair& pair :
         {Pair{"Canfield", "Freecell"}, Pair{"Freecell", "Spider"}, Pair{"Shamrocks", "Fan"},
          Pair{"Sir Tommy", "Extreme"}, Pair{"Open Yukon", "Yukon"}}) {
        mGen::SetGameRules(pair.Later);
        const cGames alone = *gGames;
        mGen::SetGameRules(pair.Earlier);
        EXPECT_FALSE(*gGames == alone) << pair.Earlier;
        mGen::SetGameRules(pair.Later);
        EXPECT_TRUE(*gGames == alone) << pair.Later << " after " << pair.Earlier;
    }
}

struct TellingRow {
    const char* Game;
    const char* Meaning;
    bool (*Holds)(const cGames& game);
};

// clang-format off
const TellingRow tellingRows[] = {
    {"Klondike", "turns its stock over without limit",
     [](const cGames& g) { return g.Redeals() == -1 && g.StockNum == StockNum::Redeal; }},
    {"Stripped Klondike", "has half a deck and two foundations",
     [](const cGames& g) { return g.TotalCards() == 26 && g.Piles(Goal) == 2; }},
    {"Klondike AK", "builds its upper foundations down from the Kings",
     [](const cGames& g) { return g.Order(Goal, 1) == RuleCode::UpSuit && g.Order(Goal, 2) == RuleCode::DownSuit &&
                                  g.GoalType() == GoalType::AcesAndKings; }},
    {"Simple Klondike", "lifts any sequence, but lays single cards by colour",
     [](const cGames& g) { return g.MultiOrder() == RuleCode::Always && g.Order(Home, 0) == RuleCode::DownAlt; }},
    {"Open Klondike", "is played from an open stock without a waste",
     [](const cGames& g) { return g.StockType() == StockType::Open && g.Piles(Waste) == 0; }},
    {"King Albert", "has a reserve that takes no card",
     [](const cGames& g) { return g.Piles(Res) == 7 && g.ResNum() == ResNoDrop; }},
    {"Whitehorse", "fills an empty pile from the waste and turns three cards",
     [](const cGames& g) { return g.AutoFill() == AutoFill::FromWaste && g.StockMove() == StockMove::ThreeToWaste; }},
    {"Freecell", "has four free cells and limits its runs by them",
     [](const cGames& g) { return g.Piles(Res) == 4 && g.ResNum() == ResFreeCells && g.Cards(Res) == 0 &&
                                  g.GameType() == GameType::LimitedRuns; }},
    {"Forecell", "starts with filled cells",
     [](const cGames& g) { return g.Cards(Res) == 4 && g.ResNum() == ResFreeCells; }},
    {"Penguin", "fills an empty pile with the rank below its base",
     [](const cGames& g) { return g.GameType() == GameType::BaseFills && g.Cards(Goal) == 3 && g.AK(Home) == -1; }},
    {"Stripped Freecell", "deals two suits only",
     [](const cGames& g) { return g.StockType() == StockType::TwoSuits && g.TotalCards() == 26; }},
    {"Stalactites", "builds nothing on the tableau and shows its base cards",
     [](const cGames& g) { return g.Order(Home, 0) == RuleCode::Never && g.EmptyNum == -10 &&
                                  g.GameType() == GameType::LowFoundation; }},
    {"Spider", "deals a card to every pile; complete runs leave, autoplay is off",
     [](const cGames& g) { return g.StockMove() == StockMove::OneToEachPile && g.DisAutoPlay() &&
                                  g.GameType() == GameType::CompleteRuns && g.MultiOrder() == RuleCode::DownSuit; }},
    {"Reversed Spider", "builds up, its foundations down",
     [](const cGames& g) { return g.Order(Home, 0) == RuleCode::UpAny && g.Order(Goal, 0) == RuleCode::DownSuit; }},
    {"Spider Two Suit", "plays with two suits",
     [](const cGames& g) { return g.SuitType() == SuitType::TwoSuits && g.TotalCards() == 104; }},
    {"Scorpion", "lifts any group and gathers all runs on one spot",
     [](const cGames& g) { return g.MultiOrder() == RuleCode::Always && g.Piles(Goal) == 1 && g.GoalDiv() == 8 &&
                                  g.Record(Goal).PileWidth == 0; }},
    {"Carre Napoleon", "deals to the piles in the first three presses",
     [](const cGames& g) { return g.StockMove() == StockMove::FirstThreeToPiles && g.Redeals() == 1; }},
    {"Little Forty", "turns three cards, with three redeals",
     [](const cGames& g) { return g.StockMove() == StockMove::ThreeToWaste && g.Redeals() == 3; }},
    {"Double Rail", "shows no stock mark, so its redeal is out of reach",
     [](const cGames& g) { return g.StockNum == StockNum::None && g.Redeals() == 1 && g.Piles(Waste) == 1; }},
    {"Wheatsheaf", "builds its suit either way",
     [](const cGames& g) { return g.Order(Home, 0) == RuleCode::EitherSuit && g.GoalUpDown(); }},
    {"Twin Queens", "builds up from the Kings through the Ace",
     [](const cGames& g) { return g.GoalType() == GoalType::Kings && g.Order(Goal, 0) == RuleCode::UpSuit &&
                                  g.AK(Goal) != 0; }},
    {"La Belle Lucie", "gathers its tableau twice and deals it again",
     [](const cGames& g) { return g.RedealType() == RedealType::GatherTableau && g.Redeals() == 2 &&
                                  g.GameType() == GameType::OpenRedeal; }},
    {"Shamrocks", "holds three cards a pile, its Kings at the bottom",
     [](const cGames& g) { return g.HomeMaxCards == 3 && g.MoveKings(); }},
    {"Theme Park", "takes Aces only on an empty pile",
     [](const cGames& g) { return g.EmptyNum == 0 && g.Order(Home, 0) == RuleCode::UpSuit; }},
    {"Silver Screen", "is of one suit",
     [](const cGames& g) { return g.SuitType() == SuitType::OneSuit && g.MoveKings(); }},
    {"Canfield", "refills from its reserve; the player may fill only from the stock",
     [](const cGames& g) { return g.AutoFill() == AutoFill::FromReserve && g.Cards(Res) == 13 &&
                                  g.EmptyFillType() == EmptyFillType::FromStock && g.GoalType() == GoalType::FirstCard; }},
    {"Storehouse", "starts from the Twos",
     [](const cGames& g) { return g.GoalType() == GoalType::Twos && g.Cards(Goal) == 4; }},
    {"Symbol", "keeps cards back by its tag",
     [](const cGames& g) { return g.Tag() == "3" && g.HomeType() == HomeType::Yukon && g.Piles(Waste) == 1; }},
    {"Magic Yukon", "lays a card on its own rank",
     [](const cGames& g) { return g.Order(Home, 0) == RuleCode::SameRank; }},
    {"Corners", "lets the tableau take cards from the stock and the waste only",
     [](const cGames& g) { return g.EmptyFillType() == EmptyFillType::FromStock && g.DisAutoPlay() &&
                                  g.HomePileOrder() == PileOrder::Cross; }},
    {"Sir Tommy", "lets no card go from pile to pile",
     [](const cGames& g) { return g.NoH2HMove && g.Order(Home, 0) == RuleCode::Always; }},
    {"Durbar Hall", "refills from a reserve of thirteen",
     [](const cGames& g) { return g.AutoFill() == AutoFill::FromReserve && g.Cards(Res) == 13 && g.NoH2HMove; }},
};
// clang-format on

TEST_F(Catalogue, TellingRowsMeanWhatTheySay) {
    for (const TellingRow& row : tellingRows) {
        mGen::SetGameRules(row.Game);
        EXPECT_TRUE(row.Holds(*gGames)) << row.Game << ' ' << row.Meaning;
    }
}

// How often a trait occurs over the whole catalogue: a slip in one row shows here.
TEST_F(Catalogue, RareTraitsOccurAsOftenAsTheyShould) {
    struct Trait {
        const char* Name;
        int Games;
        bool (*Has)(const Definition& game);
    };
    const Trait traits[] = {
        {"a limit of cards a pile", 1, [](const Definition& d) { return d.MaxCards > 0; }},
        {"no move between piles", 7, [](const Definition& d) { return d.NoH2H; }},
        {"a stock of two suits", 1, [](const Definition& d) { return d.StockKind == StockType::TwoSuits; }},
        {"three presses to the piles", 1,
         [](const Definition& d) { return d.StockPress == StockMove::FirstThreeToPiles; }},
        {"half a deck", 3, [](const Definition& d) { return d.Deck == 26; }},
        {"a tableau gathered again", 6,
         [](const Definition& d) { return d.Redeal == RedealType::GatherTableau; }},
        {"a base rank that fills", 1, [](const Definition& d) { return d.Kind == GameType::BaseFills; }},
        {"complete runs", 65, [](const Definition& d) { return d.Kind == GameType::CompleteRuns; }},
        {"limited runs", 59, [](const Definition& d) { return d.Kind == GameType::LimitedRuns; }},
        {"a refill from the reserve", 21,
         [](const Definition& d) { return d.Refill == AutoFill::FromReserve; }},
        {"sinking Kings", 10, [](const Definition& d) { return d.MoveKings; }},
        {"a tag", 2, [](const Definition& d) { return !d.Tag.empty(); }},
    };
    for (const Trait& trait : traits) {
        int games = 0;
        for (const Family& family : families) {
            const std::span<const Definition> table = family.Table();
            games += static_cast<int>(std::count_if(table.begin(), table.end(), trait.Has));
        }
        EXPECT_EQ(games, trait.Games) << trait.Name;
    }
}

}  // namespace
