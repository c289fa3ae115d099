// The press on the stock and the click on its mark.
#include <string>

#include <gtest/gtest.h>

#include "rules/mFunc.h"
#include "rules/mPlay.h"
#include "shell/cData.h"
#include "state/cArray.h"
#include "state/cTrans.h"
#include "support/Fixture.h"
#include "table/cPlate.h"
#include "table/mMain.h"

namespace {

using mPosition::Card;

class StockTest : public testing::Test {
protected:
    void SetUp() override { gData->Set(Setting::Autoplay, 0); }
    static int StockPicture() { return PicBack.Mark(MarkKind::Stock, 0).Picture; }
    static void PressStock() { mPosition::Press(gArray->GetTopPicID(Stock)); }
    Engine engine_;
};

TEST_F(StockTest, PressByStockMove) {
    struct Row {
        StockMove Press;
        int Cards;  // in the stock
        const char* Waste;
        const char* Pile0;
        const char* Pile2;
        int Moves;
        int Step;  // moves that one Undo takes back
    };
    // The stock from its top: 9S 8S 7S ...
    const Row rows[] = {
        {StockMove::None, 5, "9S", "KH", "KD", 1, 1},
        {StockMove::OneToWaste, 5, "9S", "KH", "KD", 1, 1},
        {StockMove::ByHand, 5, "9S", "KH", "KD", 1, 1},
        {StockMove{7}, 5, "9S", "KH", "KD", 1, 1},
        {StockMove::ThreeToWaste, 5, "9S 8S 7S", "KH", "KD", 3, 1},
        {StockMove::ThreeToWaste, 2, "9S 8S", "KH", "KD", 2, 1},
        {StockMove::OneToEachPile, 5, "", "KH 9S", "KD 7S", 4, 4},
        {StockMove::OneToEachPile, 2, "", "KH 9S", "KD", 2, 2},
        {StockMove::FirstThreeToPiles, 5, "", "KH 9S", "KD 7S", 4, 4},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE("command " + std::to_string(Number(row.Press)) + ", cards " + std::to_string(row.Cards));
        TestGame game;
        game.Stock.StockMove = row.Press;
        mPosition::Begin(game);
        mPosition::Lay(Home, 0, "KH");
        mPosition::Lay(Home, 1, "KS");
        mPosition::Lay(Home, 2, "KD");
        const char* stock[] = {"(5S)", "(6S)", "(7S)", "(8S)", "(9S)"};
        for (int i = 5 - row.Cards; i < 5; ++i) mPosition::Lay(Stock, 0, stock[i]);
        // Whichever card of the stock the press names.
        mPosition::Press(gArray->GetPicID(Stock, 0, 0));
        EXPECT_EQ(mPosition::Pile(Waste, 0), row.Waste);
        EXPECT_EQ(mPosition::Pile(Home, 0), row.Pile0);
        EXPECT_EQ(mPosition::Pile(Home, 2), row.Pile2);
        EXPECT_EQ(gTrans->GetTransID(), row.Moves);
        EXPECT_FALSE(gDrag.gPicked);
        EXPECT_EQ(gTrans->Record(1).tMod, tMod::FromStock);
        // A row onto the piles is one step, three cards to the waste are three.
        mMain::Undo(0);
        EXPECT_EQ(gTrans->GetTransID(), row.Moves - row.Step);
    }
}

TEST_F(StockTest, TheFourthPressGoesToTheWaste) {
    TestGame game;
    game.Stock.StockMove = StockMove::FirstThreeToPiles;
    mPosition::Begin(game);
    mPosition::LayRestOnStock();
    for (int press = 1; press <= 3; ++press) {
        PressStock();
        mMain::Undo(0);
        EXPECT_EQ(gGames->CarreNapCount, press) << "undone presses stay counted";
    }
    PressStock();
    EXPECT_EQ(gArray->GetTop(Waste), 0);
    EXPECT_EQ(gArray->GetTop(Home, 0), -1);
    EXPECT_EQ(gGames->CarreNapCount, 3);
}

TEST_F(StockTest, AnOpenStockIsPlayedLikeAPile) {
    TestGame game;
    game.Stock.StockType = StockType::Open;
    mPosition::Begin(game);
    mPosition::Lay(Stock, 0, "5C QS");
    mPosition::Lay(Home, 1, "KH");
    EXPECT_TRUE(mPosition::DragTo(Card("QS"), Home, 1));
    EXPECT_EQ(mPosition::Pile(Home, 1), "KH QS");
    EXPECT_EQ(gTrans->Record(1).tMod, tMod::Play);
    mMain::Undo(0);
    EXPECT_EQ(mPosition::Pile(Stock, 0), "5C QS");
}

TEST_F(StockTest, RedealTurnsTheWasteOver) {
    TestGame game;
    game.Stock.StockNum = StockNum::Redeal;
    game.Ext.cRedeals = 2;
    mPosition::Deal(game, 1);
    const std::string stock = mPosition::Pile(Stock, 0);
    for (int redeal = 1; redeal <= 2; ++redeal) {
        while (gArray->GetTop(Stock) >= 0) PressStock();
        EXPECT_EQ(gArray->GetTop(Waste), 51);
        const int moves = gTrans->GetTransID();
        mMain::StockClick();
        EXPECT_EQ(mPosition::Pile(Stock, 0), stock) << "the same order as before";
        EXPECT_EQ(gRedealCount, redeal);
        EXPECT_EQ(gTrans->GetTransID(), moves + 52);
        EXPECT_EQ(gGames->StockNum, redeal == 2 ? StockNum::NoRedeal : StockNum::Redeal);
    }
    EXPECT_EQ(StockPicture(), 15);
    mMain::Undo(0);
    EXPECT_EQ(gArray->GetTop(Waste), 51) << "all its cards with one step";
    EXPECT_EQ(mFunc::CardFaceMode(gArray->GetTopPicID(Waste)), 0);
    EXPECT_EQ(gRedealCount, 2) << "stays counted";
    EXPECT_EQ(gGames->StockNum, StockNum::NoRedeal);
    mMain::StockClick();
    EXPECT_EQ(gArray->GetTop(Waste), 51) << "beyond the limit";
    mMain::Redo(0);
    EXPECT_EQ(mPosition::Pile(Stock, 0), stock);
}

TEST_F(StockTest, RedealsWithoutLimitOrWithoutCards) {
    TestGame game;
    game.Stock.StockNum = StockNum::Redeal;
    game.Ext.cRedeals = -1;
    mPosition::Begin(game);
    mPosition::Lay(Home, 0, "5C");
    for (int i = 0; i < 5; ++i) mMain::StockClick();
    EXPECT_EQ(gRedealCount, 5) << "an empty waste counts";
    EXPECT_EQ(gGames->StockNum, StockNum::Redeal);
    EXPECT_EQ(gTrans->GetTransID(), 0);

    game.Ext.cRedeals = 0;
    mPosition::Begin(game);
    mPosition::Lay(Waste, 0, "5C");
    mMain::StockClick();
    EXPECT_EQ(mPosition::Pile(Waste, 0), "5C");
    EXPECT_EQ(gRedealCount, 0);
}

// Every half second the mark says whether a click can still do something.
TEST_F(StockTest, TheMarkFollowsTheCards) {
    struct Row {
        GameType Type;
        StockNum Mark;
        const char* Stock;
        const char* Waste;
        int Picture;
    };
    const Row rows[] = {
        {GameType::Plain, StockNum::Redeal, "(5C)", "", 16},
        {GameType::Plain, StockNum::Redeal, "", "5C", 16},
        {GameType::Plain, StockNum::Redeal, "", "", 15},
        {GameType::OpenRedeal, StockNum::Redeal, "", "", 16},
        {GameType::Plain, StockNum::NoRedeal, "", "5C", 3},
    };
    for (const Row& row : rows) {
        TestGame game;
        game.Ext.GameType = row.Type;
        game.Stock.StockNum = row.Mark;
        mPosition::Begin(game);
        PicBack.ShowMark(MarkKind::Stock, 0, 3, 0, 0);
        mPosition::Lay(Stock, 0, row.Stock);
        mPosition::Lay(Waste, 0, row.Waste);
        mMain::TickTime();
        EXPECT_EQ(StockPicture(), row.Picture) << row.Stock << row.Waste;
    }
}

TEST_F(StockTest, GatheredTableauGoesOutInRows) {
    TestGame game;
    game.Home.Piles = 6;
    game.Stock.StockNum = StockNum::Redeal;
    game.Ext.cRedeals = 1;
    game.Ext.cRedealType = RedealType::GatherTableau;
    mPosition::Begin(game);
    mPosition::Lay(Home, 0, "(5C) (9D)");
    mPosition::Lay(Home, 2, "2S-8S");
    mPosition::Lay(Goal, 1, "AH");
    PicBack.ShowMark(MarkKind::Stock, 0, 16, 0, 0);
    mMain::StockClick();
    // Gathered 9D 5C 8S ... 2S, so that the Two of Spades leaves the stock first.
    EXPECT_EQ(mPosition::Pile(Home, 0), "2S 8S");
    EXPECT_EQ(mPosition::Pile(Home, 1), "3S 5C");
    EXPECT_EQ(mPosition::Pile(Home, 2), "4S 9D");
    EXPECT_EQ(mPosition::Pile(Home, 5), "7S");
    EXPECT_EQ(mPosition::Pile(Goal, 1), "AH");
    EXPECT_EQ(StockPicture(), 15);
    EXPECT_EQ(gTrans->GetTransID(), 18);
    mMain::Undo(0);
    EXPECT_EQ(gTrans->GetTransID(), 0);
    EXPECT_EQ(mPosition::Pile(Home, 0), "(5C) (9D)");
    EXPECT_EQ(mPosition::Pile(Home, 2), "2S 3S 4S 5S 6S 7S 8S");
    EXPECT_EQ(mPosition::Pile(Home, 5), "");
    mMain::Redo(0);
    EXPECT_EQ(mPosition::Pile(Home, 2), "4S 9D");
    mMain::StockClick();
    EXPECT_EQ(mPosition::Pile(Home, 2), "4S 9D");
}

// No autoplay between the cards of a row, one pass after it; none at all after the waste was turned.
TEST_F(StockTest, AutoplayAfterStockCommands) {
    gData->Set(Setting::Autoplay, 1);
    TestGame game;
    game.Stock.StockMove = StockMove::OneToEachPile;
    mPosition::Begin(game);
    mPosition::Lay(Home, 0, "2H");
    mPosition::Lay(Stock, 0, "(2S) (AS) (3C) (AH)");
    PressStock();
    // All four lie before the first goes up: the Ace of Hearts, the Two below it, the other Ace and its Two.
    EXPECT_EQ(mPosition::Pile(Goal, 0), "AH 2H");
    EXPECT_EQ(mPosition::Pile(Goal, 1), "AS 2S");
    EXPECT_EQ(gTrans->GetTransID(), 8);
    for (int i = 1; i <= 4; ++i) EXPECT_EQ(gTrans->Record(i).SCell, Stock);

    game.Stock.StockNum = StockNum::Redeal;
    game.Ext.cRedeals = -1;
    mPosition::Begin(game);
    mPosition::Lay(Home, 0, "AC");
    mPosition::Lay(Waste, 0, "9C");
    mMain::StockClick();
    EXPECT_EQ(mPosition::Pile(Home, 0), "AC");
    EXPECT_EQ(mPosition::Pile(Stock, 0), "(9C)");
}

}  // namespace
