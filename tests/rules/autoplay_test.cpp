// What the table does by itself: complete runs, the foundation pass, refills.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rules/mPlay.h"
#include "shell/cData.h"
#include "state/cArray.h"
#include "state/cTrans.h"
#include "support/Fixture.h"
#include "table/mMain.h"

namespace {

using mPosition::Card;
using testing::Each;
using testing::SizeIs;

// The moved cards in their order, with the foundations that they went to: "AS>0".
std::string Moves() {
    std::string text;
    for (int i = 1; i <= gTrans->GetTransID(); ++i) {
        const TransRec& record = gTrans->Record(i);
        text += (i > 1 ? " " : "") + mPosition::Name(record.PicID) + (record.DCell == Goal ? ">" : ">pile ") +
                std::to_string(record.DPile);
    }
    return text;
}

class Autoplay : public testing::Test {
protected:
    Engine engine_;
};

TEST_F(Autoplay, AChainGoesUpAndEachCardIsAMove) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "3S");
    mPosition::Lay(Home, 1, "(2H) 2S");
    mPosition::Lay(Home, 2, "9C AS");
    mPosition::Lay(Home, 3, "(AH) 4S");
    engine_.Layer.Sounds.Played.clear();
    mPlay::AutoPlayAll();
    // The Ace first; then from the lowest pile, again after each card: nothing waits.
    EXPECT_EQ(Moves(), "AS>0 2S>0 3S>0 4S>0 AH>1 2H>1");
    EXPECT_EQ(mPosition::Pile(Home, 2), "9C");
    EXPECT_EQ(gTrans->Record(2).tMod, tMod::Uncover);
    EXPECT_THAT(engine_.Layer.Sounds.Played, SizeIs(6));
    EXPECT_THAT(engine_.Layer.Sounds.Played, Each("AUTOPLAY"));
}

TEST_F(Autoplay, TheOrderOfThePass) {
    TestGame game;
    game.Res.Piles = 2;
    game.Stock.StockType = StockType::Open;
    mPosition::Begin(game);
    mPosition::Lay(Stock, 0, "AC");
    mPosition::Lay(Waste, 0, "AD");
    mPosition::Lay(Res, 1, "AS");
    mPosition::Lay(Home, 3, "AH");
    mPlay::AutoPlayAll();
    EXPECT_EQ(Moves(), "AH>0 AS>1 AD>2 AC>3");
}

TEST_F(Autoplay, OnlyAnOpenStockIsOffered) {
    mPosition::Begin({});
    mPosition::Lay(Stock, 0, "(AC)");
    mPlay::AutoPlayAll();
    EXPECT_EQ(gTrans->GetTransID(), 0);
}

TEST_F(Autoplay, TwoDecksGoToTheLowestPileThatFits) {
    TestGame game;
    game.Goal.Piles = 8;
    game.Ext.Cards = 104;
    mPosition::Begin(game);
    mPosition::Lay(Goal, 2, "AS");
    mPosition::Lay(Goal, 5, "AS'");
    mPosition::Lay(Home, 0, "2S'");
    mPosition::Lay(Home, 1, "AH");
    mPlay::AutoPlayAll();
    EXPECT_EQ(Moves(), "2S'>2 AH>0");
}

TEST_F(Autoplay, ClosedTopCardsGoToo) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "9C (AS)");
    mPlay::AutoPlayAll();
    EXPECT_EQ(mPosition::Pile(Goal, 0), "AS");
    mMain::Undo(0);
    EXPECT_EQ(mPosition::Pile(Home, 0), "9C (AS)") << "closed as it lay";
    mMain::Redo(0);
    EXPECT_EQ(mPosition::Pile(Goal, 0), "AS");
}

TEST_F(Autoplay, SettingAndGameSwitchItOffButNotTheRefill) {
    struct Row {
        int Setting;
        bool Disabled;
        bool GoesUp;
    };
    for (const Row& row : {Row{1, false, true}, Row{0, false, false}, Row{1, true, false}}) {
        gData->Set(Setting::Autoplay, row.Setting);
        TestGame game;
        game.Ext.cDisAutoPlay = row.Disabled;
        game.Ext.cAutoFill = AutoFill::FromWaste;
        mPosition::Begin(game);
        mPosition::Lay(Home, 0, "5C AS");
        mPosition::Lay(Home, 1, "6C");
        mPosition::Lay(Home, 2, "7C");
        mPosition::Lay(Waste, 0, "9D");
        mPlay::AutoPlayAll();
        EXPECT_EQ(mPosition::Pile(Goal, 0), row.GoesUp ? "AS" : "");
        EXPECT_EQ(mPosition::Pile(Home, 3), "9D");
    }
}

TEST_F(Autoplay, SwitchingOnRunsAPassAtOnce) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "5C AS");
    mMain::FlipAutoplay();
    EXPECT_EQ(gData->Get(Setting::Autoplay), 0);
    EXPECT_EQ(gTrans->GetTransID(), 0);
    mMain::FlipAutoplay();
    EXPECT_EQ(gData->Get(Setting::Autoplay), 1);
    EXPECT_EQ(Moves(), "AS>0");
}

// What Undo put back goes up again with the next played move, not before.
TEST_F(Autoplay, UndoStartsNoPass) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "5C AS 9H");
    mPosition::Lay(Home, 1, "TC");
    mPosition::Lay(Home, 2, "2D");
    ASSERT_TRUE(mPosition::DragTo(Card("9H"), Home, 1));
    EXPECT_EQ(Moves(), "9H>pile 1 AS>0");
    mMain::Undo(0);
    EXPECT_EQ(mPosition::Pile(Home, 0), "5C AS");
    ASSERT_TRUE(mPosition::DragTo(Card("2D"), Home, 3));
    EXPECT_EQ(Moves(), "9H>pile 1 2D>pile 3 AS>0");
}

TEST_F(Autoplay, AFullFoundationOfAWrappingGameRefuses) {
    TestGame game;
    game.Goal.AK = -1;
    game.Goal.Piles = 4;
    game.Ext.Cards = 104;
    mPosition::Begin(game);
    mPosition::Lay(Goal, 0, "AS-KS");
    mPosition::Lay(Home, 0, "AS'");
    gGoalBase = 5;
    mPlay::AutoPlayAll();
    EXPECT_EQ(gArray->GetTop(Goal, 0), 12);
    EXPECT_EQ(gTrans->GetTransID(), 0);
    EXPECT_EQ(mPosition::Pile(Home, 0), "AS'");
}

TEST_F(Autoplay, CompleteRuns) {
    struct Row {
        const char* Rule;
        RuleCode Order;
        GoalType Base;
        const char* Pile;
        const char* Left;  // of the pile
    };
    constexpr const char* alternating = "KS QH JS TH 9S 8H 7S 6H 5S 4H 3S 2H AS";
    const Row rows[] = {
        {"thirteen of a suit", RuleCode::UpSuit, GoalType::Aces, "KS-AS", ""},
        {"on top of another card, which opens", RuleCode::UpSuit, GoalType::Aces, "(4H) KS-AS", "4H"},
        {"a wrong card at the bottom", RuleCode::UpSuit, GoalType::Aces, "KH QS-AS", "="},
        {"the wrong way round", RuleCode::UpSuit, GoalType::Aces, "AS-KS", "="},
        {"a King on top of thirteen", RuleCode::UpSuit, GoalType::Aces, "QS-AS KS", "="},
        {"twelve cards", RuleCode::UpSuit, GoalType::Aces, "QS-AS", "="},
        {"two suits", RuleCode::UpSuit, GoalType::Aces, alternating, "="},
        {"alternate colours where they build so", RuleCode::UpAlt, GoalType::Aces, alternating, ""},
        {"built down from the Kings", RuleCode::DownSuit, GoalType::Kings, "AS-KS", ""},
        {"built down from the Kings: not from an Ace", RuleCode::DownSuit, GoalType::Kings, "KS-AS", "="},
    };
    gData->Set(Setting::Autoplay, 0);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Rule);
        TestGame game;
        game.Ext.GameType = GameType::CompleteRuns;
        game.Ext.cDisAutoPlay = true;
        game.Goal.Order = row.Order;
        game.Goal.GoalType = row.Base;
        mPosition::Begin(game);
        mPosition::Lay(Home, 1, row.Pile);
        const std::string before = mPosition::Pile(Home, 1);
        mPlay::AutoPlayAll();
        const bool stays = std::string(row.Left) == "=";
        EXPECT_EQ(mPosition::Pile(Home, 1), stays ? before : row.Left);
        EXPECT_EQ(gTrans->GetTransID(), stays ? 0 : 13);
        mMain::Undo(0);
        EXPECT_EQ(mPosition::Pile(Home, 1), before) << "one step";
        EXPECT_EQ(gTrans->GetTransID(), 0);
    }
}

TEST_F(Autoplay, WhereCompleteRunsGo) {
    struct Row {
        int Div;
        int Piles;
        const char* Run;
        int Pile;
    };
    for (const Row& row : {Row{0, 8, "KD'-AD'", 6}, Row{4, 4, "KD'-AD'", 2}, Row{0, 1, "KC-AC", 3},
                           Row{8, 1, "KC'-AC'", 7}, Row{2, 2, "KC-AC", 1}}) {
        TestGame game;
        game.Ext.Cards = 104;
        game.Ext.GameType = GameType::CompleteRuns;
        game.Ext.cDisAutoPlay = true;
        game.Ext.GoalDiv = row.Div;
        game.Goal.Piles = row.Piles;
        mPosition::Begin(game);
        mPosition::Lay(Goal, row.Pile, "AS-KS");
        mPosition::Lay(Home, 0, row.Run);
        mPlay::AutoPlayAll();
        EXPECT_EQ(gArray->GetTop(Goal, row.Pile), 25) << "on top of what lies there";
        const std::string run = row.Run;
        EXPECT_EQ(mPosition::Name(gArray->GetTopPicID(Goal, row.Pile)), run.substr(0, run.find('-')));
    }
}

// The last card of one run uncovers nothing, but two runs can stand complete at once: they leave in one
// pass, nested, and one step takes both back.
TEST_F(Autoplay, TwoCompleteRunsAtOnce) {
    TestGame game;
    game.Ext.GameType = GameType::CompleteRuns;
    game.Ext.cDisAutoPlay = true;
    mPosition::Begin(game);
    mPosition::Lay(Home, 0, "(9H) KS-AS");
    mPosition::Lay(Home, 1, "(8H) KC-AC");
    mPlay::AutoPlayAll();
    EXPECT_EQ(gArray->TotalGoalCards(), 26);
    EXPECT_EQ(gTrans->GetTransID(), 26);
    mMain::Undo(0);
    EXPECT_EQ(gTrans->GetTransID(), 0);
    EXPECT_EQ(mPosition::Pile(Home, 1).substr(0, 7), "(8H) KC");
    EXPECT_EQ(mPosition::Pile(Home, 0).substr(0, 7), "(9H) KS");
    mMain::Redo(0);
    EXPECT_EQ(gArray->TotalGoalCards(), 26);
    EXPECT_EQ(mPosition::Pile(Home, 0), "9H");
}

TEST_F(Autoplay, Refills) {
    struct Row {
        const char* Rule;
        AutoFill Fill;
        const char* Waste;
        const char* Stock;
        const char* Reserve;
        const char* Tableau;  // piles 2 and 3, which were empty
    };
    const Row rows[] = {
        {"from the waste", AutoFill::FromWaste, "5C 9D", "", "7C", "9D | 5C"},
        {"then from the stock", AutoFill::FromWaste, "9D", "(4C) (3C)", "", "9D | 3C"},
        {"as far as cards reach", AutoFill::FromWaste, "", "(3C)", "", "3C | "},
        {"nothing to fill with", AutoFill::FromWaste, "", "", "7C", " | "},
        {"from the reserve", AutoFill::FromReserve, "5C", "", "7C 8C", "8C | 7C"},
        {"the reserve is empty", AutoFill::FromReserve, "5C", "(3C)", "", " | "},
        {"none", AutoFill::None, "5C", "(3C)", "7C", " | "},
        {"the code that means none", AutoFill::NoneEither, "5C", "(3C)", "7C", " | "},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Rule);
        TestGame game;
        game.Ext.cAutoFill = row.Fill;
        game.Res.Piles = 1;
        // Not a drop: what the player may put there plays no part.
        game.Home.EmptyFillType = EmptyFillType::Nothing;
        mPosition::Begin(game);
        mPosition::Lay(Home, 0, "KH");
        mPosition::Lay(Home, 1, "QH");
        mPosition::Lay(Waste, 0, row.Waste);
        mPosition::Lay(Stock, 0, row.Stock);
        mPosition::Lay(Res, 0, row.Reserve);
        mPlay::AutoPlayAll();
        EXPECT_EQ(mPosition::Pile(Home, 2) + " | " + mPosition::Pile(Home, 3), row.Tableau);
    }
}

// A card of the stock that refills is logged as dealt, so that Undo closes it again.
TEST_F(Autoplay, ARefillFromTheStockCanBeUndone) {
    TestGame game;
    game.Ext.cAutoFill = AutoFill::FromWaste;
    game.Home.Piles = 3;
    mPosition::Begin(game);
    mPosition::Lay(Home, 0, "KH");
    mPosition::Lay(Home, 1, "QH");
    mPosition::Lay(Stock, 0, "(4C)");
    mPlay::AutoPlayAll();
    EXPECT_EQ(mPosition::Pile(Home, 2), "4C");
    mMain::Undo(0);
    EXPECT_EQ(mPosition::Pile(Stock, 0), "(4C)");
    mMain::Redo(0);
    EXPECT_EQ(mPosition::Pile(Home, 2), "4C");
}

}  // namespace
