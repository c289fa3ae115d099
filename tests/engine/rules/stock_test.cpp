// The press on the stock, the click on its mark, and what the mark shows.
#include "engine/rules/mPlay.h"
#include "support/Script.h"

namespace {

class StockTest : public RulesTest {
protected:
    static int Picture() { return PicBack.Mark(MarkKind::Stock, 0).Picture; }
};

TEST_F(StockTest, Presses) {
    for (const StockMove one : {StockMove::None, StockMove::OneToWaste, StockMove::ByHand, StockMove{7}}) {
        game_.Stock.StockMove = one;
        Expect({{"one card to the waste", "S (5S-9S); H0 KH | stock | H0 KH; S (5S-8S); W 9S #1"}});
    }
    game_.Stock.StockMove = StockMove::ThreeToWaste;
    Expect({
        {"three cards to the waste are three steps",
         "S (5S-9S) | stock | S (5S-6S); W 9S-7S #3 | undo | S (5S-7S); W 9S 8S #2"},
        {"three to the waste: as many as there are", "S (8S) (9S) | stock | W 9S 8S #2"},
    });
    for (const StockMove row : {StockMove::OneToEachPile, StockMove::FirstThreeToPiles}) {
        game_.Stock.StockMove = row;
        Expect({
            {"one card to each pile is one step",
             "S (5S-9S); H1 KH | stock | H0 9S; H1 KH 8S; H2 7S; H3 6S; S (5S) #4 | undo | ="},
            {"to the piles: as far as the cards reach", "S (8S-9S); H0 KH | stock | H0 KH 9S; H1 8S #2"},
        });
    }
    Expect({{"the fourth press goes to the waste, undone ones counted",
             "S (AS-9S) | stock undo stock undo stock undo | = | stock | S (AS-8S); W 9S #1"}});
}

TEST_F(StockTest, AutoplayFollows) {
    gData->Set(Setting::Autoplay, 1);
    Expect({{"a card to the waste", "S (2C) (AS) | stock | S (2C); G0 AS #2"}});
    game_.Stock.StockMove = StockMove::ThreeToWaste;
    Expect({{"each of three cards", "S (2C) (AS) (5D) (AD) | stock | S (2C); W 5D; G0 AD; G1 AS #5"}});
    game_.Stock.StockMove = StockMove::OneToEachPile;
    Expect({{"a whole row, as a step of its own",
             "S (5C) (6C) (7C) (AS); H1 2C | stock | H1 2C 7C; H2 6C; H3 5C; G0 AS #5 "
             "| undo | H0 AS; H1 2C 7C; H2 6C; H3 5C #4 | undo | ="}});
    game_.Stock.StockNum = StockNum::Redeal;
    game_.Ext.cRedeals = 1;
    Expect({{"not the waste turned over", "H0 AS; W 3C | mark | H0 AS; S (3C) #1"}});
    game_.Ext.cRedealType = RedealType::GatherTableau;
    Expect({{"a gathered tableau, as a step of its own",
             "H0 (3C) AS 5D | mark | H0 3C; H2 5D; G0 AS #7 | undo | H0 3C; H1 AS; H2 5D #6"}});
}

TEST_F(StockTest, Redeals) {
    game_.Ext.cRedeals = 1;
    for (const StockNum mark : {StockNum::None, StockNum::NoRedeal}) {
        game_.Stock.StockNum = mark;
        Expect({{"no redeal without the mark for one", "W 5C | mark | ="}});
    }
    game_.Stock.StockNum = StockNum::Redeal;
    game_.Ext.cRedeals = 2;
    Expect({
        {"the waste turned over is one step",
         "W 3C 2C | mark | S (2C) (3C) #2 | undo | = | redo | S (2C) (3C) #2"},
        {"the limit", "W 3C 2C | mark stock stock mark stock stock mark | W 3C 2C #8"},
        {"an undone redeal stays counted", "W 3C 2C | mark undo mark undo mark | ="},
        {"an empty waste counts", "S (5C) | mark mark stock mark | W 5C #1"},
        {"the waste goes onto the stock", "S (5C); W 3C 2C | mark | S (5C) (2C) (3C)"},
    });
    for (const RedealType kind : {RedealType::WasteToStock, RedealType::GatherTableau}) {
        game_.Ext.cRedealType = kind;
        mScript::Begin(game_, "W 3C; H0 5D");
        PicBack.SetMarkPicture(MarkKind::Stock, 0, RedealMark);
        mMain::StockClick();
        EXPECT_EQ(gGames->StockNum, StockNum::Redeal);
        EXPECT_EQ(Picture(), RedealMark) << "one is left";
        mMain::StockClick();
        EXPECT_EQ(gGames->StockNum, StockNum::NoRedeal);
        EXPECT_EQ(Picture(), NoRedealMark) << "that was the last";
    }
    game_.Ext.cRedealType = RedealType::WasteToStock;
    game_.Ext.cRedeals = -1;
    Expect({{"without limit", "W 2C | mark stock mark stock mark stock mark stock mark | S (2C)"}});
    game_.Ext.cRedeals = 0;
    Expect({{"without any", "W 2C | mark | ="}});
    game_.Ext.cRedeals = 1;
    game_.Ext.cRedealType = RedealType::GatherTableau;
    game_.Home.Piles = 6;
    // Gathered 9D 5C 8S ... 2S, so that the Two of Spades leaves the stock first.
    const std::string rows = "H0 2S 8S; H1 3S 5C; H2 4S 9D; H3 5S; H4 6S; H5 7S; G1 AH #18";
    Expect({{"a gathered tableau goes out in rows, as one step, once",
             "H0 (5C) (9D); H2 2S-8S; G1 AH | mark | " + rows + " | undo | = | redo mark | " + rows}});
}

}  // namespace
