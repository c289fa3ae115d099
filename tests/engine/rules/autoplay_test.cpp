// What the table does by itself: complete runs, the foundation pass, refills.
#include "support/Script.h"

namespace {

using testing::Each;

class Autoplay : public RulesTest {
protected:
    void SetUp() override { gData->Set(Setting::Autoplay, 1); }
};

TEST_F(Autoplay, TheFoundationPass) {
    Expect({
        {"a chain goes up, and each card is a move",
         "H0 3S; H1 (2H) 2S; H2 9C AS; H3 (AH) 4S | auto | H2 9C; G0 AS-4S; G1 AH 2H #6"},
        {"closed top cards go too", "H0 9C (AS) | auto | H0 9C; G0 AS | undo | = | redo | H0 9C; G0 AS"},
        {"no closed stock is offered", "S (AC) | auto | ="},
        {"Undo starts no pass, the next move does",
         "H0 5C AS 9H; H1 TC; H2 2D | 9H>H1 | H0 5C; H1 TC 9H; H2 2D; G0 AS #2 | undo | H0 5C AS; H1 TC 9H; "
         "H2 2D #1 "
         "| 2D>H3 | H0 5C; H1 TC 9H; H3 2D; G0 AS #3"},
    });
    EXPECT_THAT(engine_.Layer.Sounds.Played, testing::Contains("AUTOPLAY"));
    Expect({{"the base rank of the deal", "H0 2D; H1 AS | G=2 auto | H1 AS; G0 2D"}});
    game_.Goal.AK = -1;
    Expect({{"an Ace on a King where they are neighbours", "H0 AS; G0 2S-KS | G=2 auto | G0 2S-KS AS"}});
    game_.Goal.AK = 0;
    game_.Goal.GoalUpDown = true;
    Expect({{"down on the upper half", "H0 6S; H1 8S; G2 7S | auto | H1 8S; G2 7S 6S"}});
    game_.Goal.GoalUpDown = false;
    game_.Res.Piles = 2;
    game_.Stock.StockType = StockType::Open;
    Expect({{"tableau, reserve, waste, open stock",
             "S AC; W AD; R1 AS; H3 AH | auto | G0 AH; G1 AS; G2 AD; G3 AC #4"}});
    game_.Ext.Cards = 104;
    game_.Goal.Piles = 8;
    Expect(
        {{"to the lowest pile that fits", "G2 AS; G5 AS'; H0 2S'; H1 AH | auto | G0 AH; G2 AS 2S'; G5 AS'"}});
}

TEST_F(Autoplay, SettingAndGameSwitchItOffButNotTheRefill) {
    game_.Ext.cAutoFill = AutoFill::FromWaste;
    game_.Home.Piles = 2;
    const std::string table = "H0 5C AS; W 9D | auto | ";
    Expect({{"on", table + "H0 5C; H1 9D; G0 AS"}});
    gData->Set(Setting::Autoplay, 0);
    Expect({{"off by the setting", table + "H0 5C AS; H1 9D"}});
    gData->Set(Setting::Autoplay, 1);
    game_.Ext.cDisAutoPlay = true;
    Expect({{"off by the game", table + "H0 5C AS; H1 9D"}});
    game_.Ext.cDisAutoPlay = false;
    Expect({{"foundations before the refill", "H0 5C; W 9D AS | auto | H0 5C; H1 9D; G0 AS #2"}});
}

TEST_F(Autoplay, CompleteRuns) {
    const std::string alternating = "KS QH JS TH 9S 8H 7S 6H 5S 4H 3S 2H AS";
    gData->Set(Setting::Autoplay, 0);
    game_.Ext.GameType = GameType::CompleteRuns;
    game_.Ext.cDisAutoPlay = true;
    game_.Goal.Piles = 8;
    Expect({
        {"thirteen of a suit, as one step", "H1 KS-AS | auto | G1 AS-KS #13 | undo | ="},
        {"two at once, nested, as one step",
         "H0 (9H) KS-AS; H1 KC-AC | auto | H0 9H; G1 AS-KS; G3 AC-KC #26 | undo | ="},
        {"not with a wrong card at the bottom", "H1 KH QS-AS | auto | ="},
        {"not with a King on top of thirteen", "H1 QS-AS KS | auto | ="},
        {"not of two suits", "H1 " + alternating + " | auto | ="},
    });
    game_.Goal.AK = -1;
    game_.Goal.Order = RuleCode::EitherSuit;
    Expect({{"not through the wrap", "H1 2S-KS AS | auto | ="}});
    game_.Goal.Order = RuleCode::UpAlt;
    Expect({{"alternate colours where they build so",
             "H1 " + alternating + " | auto | G1 AS 2H 3S 4H 5S 6H 7S 8H 9S TH JS QH KS"}});
    game_.Goal.Order = RuleCode::DownSuit;
    game_.Goal.GoalType = GoalType::Kings;
    Expect({
        {"built down from the Kings", "H1 AS-KS | auto | G1 KS-AS"},
        {"built down from the Kings: not from an Ace", "H1 KS-AS | auto | ="},
    });
}

// One foundation may take several runs, and runs lie on foundations that the game does not show.
TEST_F(Autoplay, WhereCompleteRunsGo) {
    game_.Ext.GameType = GameType::CompleteRuns;
    game_.Ext.Cards = 104;
    game_.Goal.Piles = 1;
    Expect({{"by suit and deck", "H0 KC'-AC'; H1 KS-AS | auto | G1 AS-KS; G7 AC'-KC' #26"}});
    EXPECT_EQ(gArray->TotalGoalCards(), 26);
    game_.Goal.Order = RuleCode::EitherSuit;
    Expect({{"only with the Ace on top", "H0 QS-4S 3S' 2S' AS 2S | auto | ="}});
    game_.Goal.Order = RuleCode::UpSuit;
    game_.Ext.GoalDiv = 4;
    Expect({{"folded", "H0 KC'-AC'; H1 KS-AS; G3 AC-KC | auto | G1 AS-KS; G3 AC-KC AC'-KC' #26"}});
}

TEST_F(Autoplay, Refills) {
    game_.Home.Piles = 3;
    game_.Res.Piles = 1;
    game_.Home.EmptyFillType = EmptyFillType::Nothing;  // not a drop: what may lie there plays no part
    game_.Ext.cAutoFill = AutoFill::FromWaste;
    Expect({
        {"from the waste", "H0 KH; W 5C 9D; R0 7C | auto | H0 KH; H1 9D; H2 5C; R0 7C"},
        {"then from the stock",
         "H0 KH; S (4C) (3C); W 9D | auto | H0 KH; H1 9D; H2 3C; S (4C) | undo redo | H0 KH; H1 9D; H2 3C; S "
         "(4C)"},
        {"as far as the cards reach", "H0 KH; S (3C) | auto | H0 KH; H1 3C"},
    });
    game_.Ext.cAutoFill = AutoFill::FromReserve;
    Expect({
        {"from the reserve", "H0 KH; W 5C; R0 7C 8C | auto | H0 KH; H1 8C; H2 7C; W 5C"},
    });
    for (const AutoFill none : {AutoFill::None, AutoFill::NoneEither}) {
        game_.Ext.cAutoFill = none;
        Expect({{"none", "H0 KH; S (3C); W 5C; R0 7C | auto | ="}});
    }
}

}  // namespace
