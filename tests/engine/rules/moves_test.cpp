// What may be lifted and where it may lie: the rules of the drag, each as a little play.
#include "support/Script.h"

namespace {

using Moves = RulesTest;

TEST_F(Moves, WhatIsLifted) {
    Expect({
        {"the top card of a pile", "H0 KH 3S | 3S>H1 | H0 KH; H1 3S"},
        {"a closed top card", "H0 KH (3S) | 3S>H1 | H0 KH; H1 3S"},
        {"a run with all above it", "H0 KH QS JD TC | QS>H1 | H0 KH; H1 QS JD TC #1"},
        {"not a closed card under the top", "H0 KH (QS) JD | QS>H1 | ="},
        {"no run: a break in the middle", "H0 KH QS 9D | KH>H1 | ="},
        {"no run from an Ace to a King", "H0 AS KH | AS>H1 | ="},
        {"faces above the lifted card play no part", "H0 KH QS (JD) | KH>H1 | H1 KH QS JD"},
        {"a closed card that is uncovered opens", "H0 (2D) (3D) KH | KH>H1 | H0 (2D) 3D; H1 KH"},
        {"the top of the waste", "W 2H 9C | 9C>H1 | H1 9C; W 2H"},
        {"not a lower card of the waste", "W 2H 9C | 2H>H1 | ="},
        {"the top of a foundation", "G1 AH 2H | 2H>H1 | H1 2H; G1 AH"},
        {"not a lower card of a foundation", "G1 AH 2H | AH>H1 | ="},
    });
    game_.Stock.StockType = StockType::Open;
    Expect({
        {"the top of an open stock is played like a pile's", "S 5C QS; H1 KH | QS>H1 | H1 KH QS; S 5C"},
        {"not a lower card of an open stock", "S 2H 9C | 2H>H1 | ="},
    });
    game_.Res.Piles = 2;
    Expect({
        {"the top of a reserve that takes none", "R1 5H 5S | 5S>H1 | H1 5S; R1 5H"},
        {"not a lower card of a reserve", "R1 5H 5S | 5H>H1 | ="},
    });
}

TEST_F(Moves, OnACardOfTheTableau) {
    Expect({
        {"a black Queen on a red King", "H0 QS; H1 KH | QS>H1 | H1 KH QS"},
        {"not a King on an Ace", "H0 KS; H1 AH | KS>H1 | ="},
        {"a group by its lowest card", "H0 QS JD; H1 KH | QS>H1 | H1 KH QS JD"},
        {"on a closed card as on an open one", "H0 QS; H1 (KH) | QS>H1 | H1 (KH) QS"},
        {"from the waste", "W QS; H1 KH | QS>H1 | H1 KH QS"},
        {"back from a foundation", "G0 AS 2S; H1 3H | 2S>H1 | H1 3H 2S; G0 AS"},
    });
    game_.Home.AK = -1;
    Expect({
        {"a King on an Ace where they are neighbours", "H0 KS; H1 AH | KS>H1 | H1 AH KS"},
        {"a run through the wrap", "H0 2H AS KH QC | 2H>H1 | H1 2H AS KH QC"},
    });
}

TEST_F(Moves, OnAFoundation) {
    game_.Ext.Cards = 104;
    Expect({
        {"an Ace on any empty one", "H0 AS | AS>G3 | G3 AS"},
        {"not a Two on an empty one", "H0 2S | 2S>G0 | ="},
        {"the next of the suit", "H0 2S; G2 AS | 2S>G2 | G2 AS 2S"},
        {"not the next of another suit", "H0 2H; G2 AS | 2H>G2 | ="},
        {"not a group", "H0 2S AH; G2 AS | 2S>G2 | ="},
        {"not an Ace on a King", "H0 AS'; G0 2S-KS | AS'>G0 | ="},
        {"the base rank of the deal", "H0 AS 2D | G=2 2D>G0 | H0 AS; G0 2D"},
        {"no other rank than that", "H0 AS | G=2 AS>G0 | ="},
    });
    game_.Goal.AK = -1;
    Expect({
        {"an Ace on a King where they are neighbours", "H0 AS'; G0 2S-KS | AS'>G0 | G0 2S-KS AS'"},
        {"not a fourteenth card", "H0 AS'; G0 AS-KS | AS'>G0 | ="},
        {"not a fourteenth card by autoplay", "H0 QS'; G0 KS AS-QS | G=13 auto | ="},
    });
    EXPECT_THAT(engine_.Layer.Sounds.Played, testing::Not(testing::Contains("AUTOPLAY")));
    game_.Goal.GoalUpDown = true;
    Expect({
        {"up on the lower half", "H0 8S; G1 7S | 8S>G1 | G1 7S 8S"},
        {"not up on the upper half", "H0 8S; G2 7S | 8S>G2 | ="},
        {"down on the upper half", "H0 6S; G2 7S | 6S>G2 | G2 7S 6S"},
    });
    game_.Ext.GameType = GameType::CompleteRuns;
    Expect({
        {"nothing where complete runs leave", "H0 2S; G2 AS | 2S>G2 | ="},
        {"nothing where complete runs leave: an Ace", "H0 AS | AS>G0 | ="},
    });
}

TEST_F(Moves, TheLog) {
    Expect({
        {"a new move drops the undone ones",
         "H0 2C 3C 4C | 4C>H1 3C>H2 undo undo redo 3C>H3 | H0 2C; H1 4C; H3 3C #2 | redo | H0 2C; H1 4C; H3 "
         "3C #2"},
        {"an uncovered card closes before the other comes back",
         "H0 (2D) (3D) KH | KH>H1 undo | = | redo | H0 (2D) 3D; H1 KH #1"},
        {"a closed card lies closed again", "H0 (4S) (5S) | 5S>H2 undo | = | redo 4S>H1 | H1 4S; H2 5S #2"},
    });
}

}  // namespace
