// What a pile accepts, by real drags onto it.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "rules/mFunc.h"
#include "shell/cData.h"
#include "state/cArray.h"
#include "state/cTrans.h"
#include "support/Fixture.h"
#include "table/cPlate.h"

namespace {

using mPosition::Card;

struct Laid {
    int Cell;
    int Pile;
    const char* Cards;
};

struct Row {
    const char* Rule;
    void (*Change)(TestGame& game);
    std::vector<Laid> Piles;
    const char* Card;
    int Cell;
    int Pile;
    bool Accepted;
};

void Usual(TestGame&) {}
void KingOnly(TestGame& game) { game.Home.EmptyFillType = EmptyFillType::KingOnly; }
void AceOnly(TestGame& game) { game.Home.EmptyFillType = EmptyFillType::AceOnly; }
void FromStock(TestGame& game) {
    game.Home.EmptyFillType = EmptyFillType::FromStock;
    game.Res.Piles = 1;
}
void OpenFromStock(TestGame& game) {
    FromStock(game);
    game.Stock.StockType = StockType::Open;
}
void Nothing(TestGame& game) { game.Home.EmptyFillType = EmptyFillType::Nothing; }
void AtMostThree(TestGame& game) { game.HomeMaxCards = 3; }
void NoHomeToHome(TestGame& game) { game.NoH2HMove = true; }
void FreeCells(TestGame& game) {
    game.Res.Piles = 2;
    game.Res.cResNum = ResFreeCells;
}
void ClosedReserve(TestGame& game) { game.Res.Piles = 2; }
void UpDown(TestGame& game) { game.Goal.GoalUpDown = true; }
void GoalWrap(TestGame& game) { game.Goal.AK = -1; }
void HomeWrap(TestGame& game) { game.Home.AK = -1; }
void CompleteRuns(TestGame& game) { game.Ext.GameType = GameType::CompleteRuns; }
void AnyOrder(TestGame& game) { game.Home.Order = RuleCode::Always; }
void NoOrder(TestGame& game) {
    game.Home.Order = RuleCode::Never;
    game.Home.cMultiOrder = RuleCode::Always;
}
void AnyRun(TestGame& game) { game.Home.cMultiOrder = RuleCode::Always; }

const Row rows[] = {
    // On a tableau card
    {"a black Queen on a red King", Usual, {{Home, 0, "QS"}, {Home, 1, "KH"}}, "QS", Home, 1, true},
    {"a red Queen on a red King", Usual, {{Home, 0, "QD"}, {Home, 1, "KH"}}, "QD", Home, 1, false},
    {"a King on an Ace", Usual, {{Home, 0, "KS"}, {Home, 1, "AH"}}, "KS", Home, 1, false},
    {"a King on an Ace where they are neighbours",
     HomeWrap,
     {{Home, 0, "KS"}, {Home, 1, "AH"}},
     "KS",
     Home,
     1,
     true},
    {"a group by its lowest card", Usual, {{Home, 0, "QS JD"}, {Home, 1, "KH"}}, "QS", Home, 1, true},
    {"a free group lands only by its lowest card",
     AnyRun,
     {{Home, 0, "9S QS"}, {Home, 1, "KH"}},
     "9S",
     Home,
     1,
     false},
    {"on a closed card as on an open one", Usual, {{Home, 0, "QS"}, {Home, 1, "(KH)"}}, "QS", Home, 1, true},
    {"its own pile", AnyOrder, {{Home, 0, "QS KH"}}, "KH", Home, 0, false},
    {"from the waste", Usual, {{Waste, 0, "QS"}, {Home, 1, "KH"}}, "QS", Home, 1, true},
    {"back from a foundation", Usual, {{Goal, 0, "AS 2S"}, {Home, 1, "3H"}}, "2S", Home, 1, true},
    {"no building at all", NoOrder, {{Home, 0, "QS"}, {Home, 1, "KH"}}, "QS", Home, 1, false},
    {"a third card of three", AtMostThree, {{Home, 0, "QS"}, {Home, 1, "2C KH"}}, "QS", Home, 1, true},
    {"a fourth card of three", AtMostThree, {{Home, 0, "QS"}, {Home, 1, "2C 3C KH"}}, "QS", Home, 1, false},
    {"the limit counts one place for a group",
     AtMostThree,
     {{Home, 0, "QS JD"}, {Home, 1, "2C KH"}},
     "QS",
     Home,
     1,
     true},
    {"no move between piles", NoHomeToHome, {{Home, 0, "QS"}, {Home, 1, "KH"}}, "QS", Home, 1, false},
    {"no move between piles: from the waste",
     NoHomeToHome,
     {{Waste, 0, "QS"}, {Home, 1, "KH"}},
     "QS",
     Home,
     1,
     true},
    // On an empty tableau pile
    {"any card", Usual, {{Home, 0, "3S"}}, "3S", Home, 1, true},
    {"a King where only Kings may", KingOnly, {{Home, 0, "2C KS"}}, "KS", Home, 1, true},
    {"a Queen where only Kings may", KingOnly, {{Home, 0, "2C QS"}}, "QS", Home, 1, false},
    {"an Ace where only Aces may", AceOnly, {{Home, 0, "2C AS"}}, "AS", Home, 1, true},
    {"a King where only Aces may", AceOnly, {{Home, 0, "2C KS"}}, "KS", Home, 1, false},
    {"nothing", Nothing, {{Home, 0, "2C KS"}}, "KS", Home, 1, false},
    {"from the waste where only stock and waste may", FromStock, {{Waste, 0, "5S"}}, "5S", Home, 1, true},
    {"from the open stock", OpenFromStock, {{Stock, 0, "5S"}}, "5S", Home, 1, true},
    {"from the tableau, the same", FromStock, {{Home, 0, "2C 5S"}}, "5S", Home, 1, false},
    {"from the reserve, the same", FromStock, {{Res, 0, "5S"}}, "5S", Home, 1, false},
    {"from a foundation, the same", FromStock, {{Goal, 0, "AS"}}, "AS", Home, 1, false},
    {"no move between piles, but to an empty one", NoHomeToHome, {{Home, 0, "2C 5S"}}, "5S", Home, 1, true},
    {"any group whatever the limit", AtMostThree, {{Home, 0, "8S 7H 6S 5H"}}, "8S", Home, 1, true},
    // On the reserve
    {"one card on a free cell", FreeCells, {{Home, 0, "5S"}}, "5S", Res, 1, true},
    {"a second card on a cell", FreeCells, {{Home, 0, "5S"}, {Res, 1, "6H"}}, "5S", Res, 1, false},
    {"a group on a cell", FreeCells, {{Home, 0, "5S 4H"}}, "5S", Res, 1, false},
    {"a card on a reserve", ClosedReserve, {{Home, 0, "5S"}}, "5S", Res, 1, false},
    {"from cell to cell", FreeCells, {{Res, 0, "5S"}}, "5S", Res, 1, true},
    // On a foundation
    {"an Ace on any empty one", Usual, {{Home, 0, "AS"}}, "AS", Goal, 3, true},
    {"a Two on an empty one", Usual, {{Home, 0, "2S"}}, "2S", Goal, 0, false},
    {"the next of the suit", Usual, {{Home, 0, "2S"}, {Goal, 2, "AS"}}, "2S", Goal, 2, true},
    {"the next of another suit", Usual, {{Home, 0, "2H"}, {Goal, 2, "AS"}}, "2H", Goal, 2, false},
    {"a group", Usual, {{Home, 0, "2S AH"}, {Goal, 2, "AS"}}, "2S", Goal, 2, false},
    {"an Ace on a King", Usual, {{Home, 0, "AS'"}, {Goal, 0, "2S-KS"}}, "AS'", Goal, 0, false},
    {"an Ace on a King where they are neighbours",
     GoalWrap,
     {{Home, 0, "AS'"}, {Goal, 0, "2S-KS"}},
     "AS'",
     Goal,
     0,
     true},
    {"a fourteenth card", GoalWrap, {{Home, 0, "AS'"}, {Goal, 0, "AS-KS"}}, "AS'", Goal, 0, false},
    {"up on the lower half", UpDown, {{Home, 0, "8S"}, {Goal, 1, "7S"}}, "8S", Goal, 1, true},
    {"up on the upper half", UpDown, {{Home, 0, "8S"}, {Goal, 2, "7S"}}, "8S", Goal, 2, false},
    {"down on the upper half", UpDown, {{Home, 0, "6S"}, {Goal, 2, "7S"}}, "6S", Goal, 2, true},
    {"never where complete runs leave",
     CompleteRuns,
     {{Home, 0, "2S"}, {Goal, 2, "AS"}},
     "2S",
     Goal,
     2,
     false},
    {"never where complete runs leave: an Ace", CompleteRuns, {{Home, 0, "AS"}}, "AS", Goal, 0, false},
    // Stock and waste
    {"the waste takes nothing", AnyOrder, {{Home, 0, "5S"}}, "5S", Waste, 0, false},
    {"the stock takes nothing", AnyOrder, {{Home, 0, "5S"}}, "5S", Stock, 0, false},
};

TEST(Drop, Rules) {
    const Engine engine;
    gData->Set(Setting::Autoplay, 0);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Rule);
        TestGame game;
        game.Ext.Cards = 104;
        row.Change(game);
        mPosition::Begin(game);
        for (const Laid& laid : row.Piles) mPosition::Lay(laid.Cell, laid.Pile, laid.Cards);
        const int PicID = Card(row.Card);
        const CardRecord before = PicBack.PicCards(PicID);
        ASSERT_TRUE(mPosition::DragTo(PicID, row.Cell, row.Pile));
        const CardRecord& after = PicBack.PicCards(PicID);
        EXPECT_EQ(gTrans->GetTransID(), row.Accepted ? 1 : 0);
        EXPECT_EQ(after.Cell, row.Accepted ? row.Cell : before.Cell);
        EXPECT_EQ(after.Pile, row.Accepted ? row.Pile : before.Pile);
        if (!row.Accepted) {
            EXPECT_EQ(after.Left, before.Left);
            EXPECT_EQ(after.Top, before.Top);
        }
    }
}

// The rank that an empty pile takes may be rewritten by the deal, and the base rank of the foundations.
TEST(Drop, RanksSetByTheDeal) {
    const Engine engine;
    gData->Set(Setting::Autoplay, 0);
    mPosition::Begin({});
    gGames->EmptyNum = 4;
    gGoalBase = 1;
    mPosition::Lay(Home, 0, "9C AS 2S 6S 5S");
    EXPECT_TRUE(mPosition::DragTo(Card("5S"), Home, 1));
    EXPECT_TRUE(mPosition::DragTo(Card("6S"), Home, 2));
    EXPECT_TRUE(mPosition::DragTo(Card("6S"), Goal, 0));
    EXPECT_EQ(gTrans->GetTransID(), 1) << "only the Five";
    mPosition::Lay(Home, 3, "2H AH");
    EXPECT_TRUE(mPosition::DragTo(Card("AH"), Goal, 0));
    EXPECT_EQ(gTrans->GetTransID(), 1) << "the foundations start from the Twos";
    mPosition::Lay(Waste, 0, "2D");
    EXPECT_TRUE(mPosition::DragTo(Card("2D"), Goal, 0));
    EXPECT_EQ(mPosition::Pile(Goal, 0), "2D");
}

}  // namespace
