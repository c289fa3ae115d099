// What may be lifted, and how many cards go with it.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "rules/mFunc.h"
#include "shell/cData.h"
#include "support/Fixture.h"
#include "table/mMain.h"

namespace {

using mPosition::Card;

struct Laid {
    int Cell;
    int Pile;
    const char* Cards;
};

constexpr int Refused = -1;

// The press on a card: how many cards above it are lifted with it.
int Lifted(const char* card) {
    const int PicID = Card(card);
    mMain::MouseDown(PicID, 0, 0);
    const int above = gDrag.gPicked ? gDrag.gPickCount : Refused;
    mMain::CancelDrag();
    return above;
}

TEST(Pick, Rules) {
    struct Row {
        const char* Rule;
        void (*Change)(TestGame& game);
        std::vector<Laid> Piles;
        const char* Card;
        int Above;
    };
    const auto usual = [](TestGame&) {};
    const Row rows[] = {
        {"the top card of a pile", usual, {{Home, 0, "KH 3S"}}, "3S", 0},
        {"a closed top card", usual, {{Home, 0, "KH (3S)"}}, "3S", 0},
        {"a run with all above it", usual, {{Home, 0, "KH QS JD TC"}}, "QS", 2},
        {"not a closed card under the top", usual, {{Home, 0, "KH (QS) JD"}}, "QS", Refused},
        {"no run: a break in the middle", usual, {{Home, 0, "KH QS 9D"}}, "KH", Refused},
        {"no run: two of one colour", usual, {{Home, 0, "KH QD"}}, "KH", Refused},
        {"faces above the lifted card play no part", usual, {{Home, 0, "KH QS (JD)"}}, "KH", 2},
        {"the rule of runs, not that of building",
         [](TestGame& g) { g.Home.cMultiOrder = RuleCode::DownSuit; },
         {{Home, 0, "KH QS"}},
         "KH",
         Refused},
        {"a run of one suit",
         [](TestGame& g) { g.Home.cMultiOrder = RuleCode::DownSuit; },
         {{Home, 0, "KH-JH"}},
         "KH",
         2},
        {"any group where runs may be anything",
         [](TestGame& g) { g.Home.cMultiOrder = RuleCode::Always; },
         {{Home, 0, "2C 9H 9S"}},
         "2C",
         2},
        {"single cards only",
         [](TestGame& g) { g.Home.MultiMove = false; },
         {{Home, 0, "KH QS"}},
         "KH",
         Refused},
        {"single cards only: the top",
         [](TestGame& g) { g.Home.MultiMove = false; },
         {{Home, 0, "KH QS"}},
         "QS",
         0},
        {"a run through the wrap", [](TestGame& g) { g.Home.AK = -1; }, {{Home, 0, "2H AS KH QC"}}, "2H", 3},
        {"no wrap without the flag", usual, {{Home, 0, "AS KH"}}, "AS", Refused},
        {"nothing of a closed stock", usual, {{Stock, 0, "(2H)"}}, "2H", Refused},
        {"the top of an open stock",
         [](TestGame& g) { g.Stock.StockType = StockType::Open; },
         {{Stock, 0, "2H 9C"}},
         "9C",
         0},
        {"a lower card of an open stock",
         [](TestGame& g) { g.Stock.StockType = StockType::Open; },
         {{Stock, 0, "2H 9C"}},
         "2H",
         Refused},
        {"the top of the waste", usual, {{Waste, 0, "2H 9C"}}, "9C", 0},
        {"a lower card of the waste", usual, {{Waste, 0, "2H 9C"}}, "2H", Refused},
        {"the top of a foundation", usual, {{Goal, 1, "AH 2H"}}, "2H", 0},
        {"a lower card of a foundation", usual, {{Goal, 1, "AH 2H"}}, "AH", Refused},
        {"the top of a reserve that takes none",
         [](TestGame& g) { g.Res.Piles = 2; },
         {{Res, 1, "5H 5S"}},
         "5S",
         0},
        {"a lower card of a reserve",
         [](TestGame& g) { g.Res.Piles = 2; },
         {{Res, 1, "5H 5S"}},
         "5H",
         Refused},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Rule);
        const Engine engine;
        gData->Set(Setting::Autoplay, 0);
        TestGame game;
        row.Change(game);
        mPosition::Begin(game);
        for (const Laid& laid : row.Piles) mPosition::Lay(laid.Cell, laid.Pile, laid.Cards);
        EXPECT_EQ(Lifted(row.Card), row.Above);
    }
}

// With empty cells and piles the limit of a run is (cells + 1) × (piles + 1), whatever its target.
TEST(Pick, LimitedRuns) {
    struct Row {
        GameType Type;
        int Cells;    // of four, that are empty
        int Piles;    // of six, that are empty
        int Longest;  // run that may be lifted, of thirteen
    };
    const Row rows[] = {
        {GameType::LimitedRuns, 4, 1, 10}, {GameType::LimitedRuns, 0, 0, 1},
        {GameType::LimitedRuns, 1, 0, 2},  {GameType::LimitedRuns, 2, 2, 9},
        {GameType::LimitedRuns, 0, 2, 3},  {GameType::LimitedRuns, 4, 5, 13},
        {GameType::BaseFills, 1, 0, 2},    {GameType::BaseFills, 3, 0, 4},
        {GameType::Plain, 0, 0, 13},       {GameType::CompleteRuns, 0, 0, 13},
    };
    const Engine engine;
    gData->Set(Setting::Autoplay, 0);
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(Number(row.Type)) + ", cells " + std::to_string(row.Cells) + ", piles " +
                     std::to_string(row.Piles));
        TestGame game;
        game.Ext.GameType = row.Type;
        game.Home.Piles = 6;
        game.Home.cMultiOrder = RuleCode::DownSuit;
        game.Res.Piles = 4;
        game.Res.cResNum = ResFreeCells;
        mPosition::Begin(game);
        mPosition::Lay(Home, 0, "KH-AH");
        const char* fillers[] = {"KS", "QS", "JS", "TS", "9S"};
        const char* cellFillers[] = {"KC", "QC", "JC", "TC"};
        for (int pile = 1; pile < 6 - row.Piles; ++pile) mPosition::Lay(Home, pile, fillers[pile - 1]);
        for (int cell = row.Cells; cell < 4; ++cell) mPosition::Lay(Res, cell, cellFillers[cell]);
        const char* run[] = {"AH", "2H", "3H", "4H", "5H", "6H", "7H", "8H", "9H", "TH", "JH", "QH", "KH"};
        int longest = 0;
        while (longest < 13 && Lifted(run[longest]) == longest) ++longest;
        EXPECT_EQ(longest, row.Longest);
    }
}

}  // namespace
