// What may be lifted and where it may lie: the rules of the drag, each as a little play.
#include "state/codes.h"
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
        {"no run: two of one colour", "H0 KH QD | KH>H1 | ="},
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

TEST_F(Moves, RunsHaveARuleOfTheirOwn) {
    game_.Home.cMultiOrder = RuleCode::DownSuit;
    Expect({
        {"a run of one suit", "H0 KH-JH | KH>H1 | H1 KH-JH"},
        {"not what builds on the tableau", "H0 KH QS | KH>H1 | ="},
    });
    game_.Home.cMultiOrder = RuleCode::Always;
    Expect({
        {"any group", "H0 2C 9H 9S | 2C>H1 | H1 2C 9H 9S"},
        {"a free group lands only by its lowest card", "H0 9S QS; H1 KH | 9S>H1 | ="},
        {"closed cards of a group open", "H0 9S (8D) (7D) | 9S>H3 | H3 9S 8D 7D"},
    });
    game_.Home.MultiMove = false;
    Expect({
        {"single cards only", "H0 KH QS | KH>H1 | ="},
        {"single cards only: the top", "H0 KH QS | QS>H1 | H0 KH; H1 QS"},
    });
}

// A limited run has at most (empty cells + 1) × (empty piles + 1) cards, whatever its target.
TEST_F(Moves, LimitedRuns) {
    game_.Home.Piles = 3;
    game_.Home.cMultiOrder = RuleCode::DownSuit;
    game_.Res.Piles = 2;
    game_.Res.cResNum = ResFreeCells;
    for (const GameType type : {GameType::LimitedRuns, GameType::BaseFills}) {
        game_.Ext.GameType = type;
        Expect({
            {"two cells, two piles: nine", "H0 KH-AH | 9H>H1 | H0 KH-TH; H1 9H-AH"},
            {"two cells, two piles: not ten", "H0 KH-AH | TH>H1 | ="},
            {"one cell, one pile: four", "H0 KH-AH; H2 KS; R1 KC | 4H>H1 | H0 KH-5H; H1 4H-AH; H2 KS; R1 KC"},
            {"one cell, one pile: not five", "H0 KH-AH; H2 KS; R1 KC | 5H>H1 | ="},
            {"no cell, two piles: three",
             "H0 KH-AH; R0 KD; R1 KC | 3H>H2 | H0 KH-4H; H2 3H-AH; R0 KD; R1 KC"},
            {"no cell, two piles: not four", "H0 KH-AH; R0 KD; R1 KC | 4H>H1 | ="},
            {"one cell, no pile: two", "H0 8H 7H; H1 9S; H2 KS; R0 KC | 8H>H1 | H1 9S 8H 7H; H2 KS; R0 KC"},
            {"no cell, no pile: not two", "H0 8H 7H; H1 9S; H2 KS; R0 KC; R1 KD | 8H>H1 | ="},
            {"no cell, no pile: one",
             "H0 8H; H1 9S; H2 KS; R0 KC; R1 KD | 8H>H1 | H1 9S 8H; H2 KS; R0 KC; R1 KD"},
        });
    }
    game_.Ext.GameType = GameType::Plain;
    Expect({{"no limit in other games",
             "H0 KH-AH; H1 KS; R0 KC; R1 KD | QH>H2 | H0 KH; H1 KS; H2 QH-AH; R0 KC; R1 KD"}});
}

TEST_F(Moves, OnACardOfTheTableau) {
    Expect({
        {"a black Queen on a red King", "H0 QS; H1 KH | QS>H1 | H1 KH QS"},
        {"not a red Queen on a red King", "H0 QD; H1 KH | QD>H1 | ="},
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

TEST_F(Moves, LimitsOfTheTableau) {
    game_.HomeMaxCards = 3;
    Expect({
        {"a third card of three", "H0 QS; H1 2C KH | QS>H1 | H1 2C KH QS"},
        {"not a fourth card of three", "H0 QS; H1 2C 3C KH | QS>H1 | ="},
        {"the limit counts one place for a group", "H0 QS JD; H1 2C KH | QS>H1 | H1 2C KH QS JD"},
        {"any group on an empty pile", "H0 8S 7H 6S 5H | 8S>H1 | H1 8S 7H 6S 5H"},
    });
    game_.HomeMaxCards = 0;
    game_.NoH2HMove = true;
    Expect({
        {"no move between piles", "H0 QS; H1 KH | QS>H1 | ="},
        {"no move between piles: from the waste", "W QS; H1 KH | QS>H1 | H1 KH QS"},
        {"no move between piles, but to an empty one", "H0 2C 5S | 5S>H1 | H0 2C; H1 5S"},
    });
    game_.NoH2HMove = false;
    game_.Home.Order = RuleCode::Always;
    Expect({
        {"not onto its own pile", "H0 QS KH | KH>H0 | ="},
        {"the waste takes nothing", "H0 5S | 5S>W | ="},
        {"the stock takes nothing", "H0 5S | 5S>S | ="},
    });
    game_.Home.Order = RuleCode::Never;
    Expect({{"no building at all", "H0 QS; H1 KH | QS>H1 | ="}});
}

TEST_F(Moves, OnAnEmptyPile) {
    game_.Home.EmptyFillType = EmptyFillType::KingOnly;
    Expect({
        {"a King where only Kings may", "H0 2C KS | KS>H1 | H0 2C; H1 KS"},
        {"not a Queen where only Kings may", "H0 2C QS | QS>H1 | ="},
        {"the rank that the deal has set", "H0 2C KS 5S | H=5 5S>H1 | H0 2C KS; H1 5S"},
        {"not another rank than that", "H0 2C KS | H=5 KS>H1 | ="},
    });
    game_.Home.EmptyFillType = EmptyFillType::AceOnly;
    Expect({
        {"an Ace where only Aces may", "H0 2C AS | AS>H1 | H0 2C; H1 AS"},
        {"not a King where only Aces may", "H0 2C KS | KS>H1 | ="},
    });
    game_.Home.EmptyFillType = EmptyFillType::Nothing;
    Expect({{"nothing, not even a King", "H0 2C KS | KS>H1 | ="}});
    game_.Home.EmptyFillType = EmptyFillType::FromStock;
    game_.Res.Piles = 1;
    Expect({
        {"from the waste where only stock and waste may", "W 5S | 5S>H1 | H1 5S"},
        {"not from the tableau", "H0 2C 5S | 5S>H1 | ="},
        {"not from the reserve", "R0 5S | 5S>H1 | ="},
        {"not from a foundation", "G0 AS | AS>H1 | ="},
    });
    game_.Stock.StockType = StockType::Open;
    Expect({{"from the open stock", "S 5S | 5S>H1 | H1 5S"}});
}

TEST_F(Moves, OnTheReserve) {
    game_.Res.Piles = 2;
    Expect({{"not a card on a reserve", "H0 5S | 5S>R1 | ="}});
    game_.Res.cResNum = ResFreeCells;
    Expect({
        {"one card on a free cell", "H0 5S | 5S>R1 | R1 5S"},
        {"not a second card on a cell", "H0 5S; R1 6H | 5S>R1 | ="},
        {"not a group on a cell", "H0 5S 4H | 5S>R1 | ="},
        {"from cell to cell", "R0 5S | 5S>R1 | R1 5S"},
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
