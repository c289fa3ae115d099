// Limits and peculiarities that only some games have, each as a little play.
#include "support/Script.h"

namespace {

using Limits = RulesTest;

// A run of n cards moves where n <= (empty cells + 1) * (empty piles + 1), wherever it goes.
TEST_F(Limits, MaxMoveCards) {
    game_.Home.Piles = 4;
    game_.Res.cResNum = ResFreeCells;
    const std::string run = "QS JH TS 9H 8S 7H 6S 5H 4S 3H 2S AH";
    struct Case {
        int Cells;
        const char* Filled;  // beside the run and the King of Hearts that it goes to
        int Cards;           // the most that move
    };
    const Case cases[] = {
        {0, "; H2 2C; H3 2D", 1},
        {1, "; H2 2C; H3 2D", 2},
        {2, "; H2 2C; H3 2D; R1 AC", 2},
        {4, "; H2 2C; H3 2D", 5},
        {0, "; H2 2C", 2},
        {0, "", 3},
        {1, "", 6},
        {1, "; H2 2C", 4},
        {2, "", 9},
        {4, "; H2 2C", 10},
    };
    for (const GameType kind : {GameType::LimitedRuns, GameType::BaseFills}) {
        game_.Ext.GameType = kind;
        for (const Case& row : cases) {
            game_.Res.Piles = row.Cells;
            const std::string all = run.substr(0, static_cast<std::size_t>(row.Cards) * 3 - 1);
            const std::string more = run.substr(0, static_cast<std::size_t>(row.Cards) * 3 + 2);
            Expect({{"as many as the free places allow",
                     "H0 " + all + "; H1 KH" + row.Filled + " | QS>H1 | H1 KH " + all + row.Filled},
                    {"and not one more", "H0 " + more + "; H1 KH" + row.Filled + " | QS>H1 | ="}});
        }
    }
    game_.Res.Piles = 0;
    for (const GameType kind :
         {GameType::Plain, GameType::CompleteRuns, GameType::LowFoundation, GameType::OpenRedeal}) {
        game_.Ext.GameType = kind;
        Expect({{"without limit in other kinds of game",
                 "H0 " + run + "; H1 KH; H2 2C; H3 2D | QS>H1 | H1 KH " + run + "; H2 2C; H3 2D"}});
    }
}

TEST_F(Limits, WhatMayBeLiftedTogether) {
    game_.Home.cMultiOrder = RuleCode::DownSuit;
    Expect({
        {"a run by a rule of its own", "H0 QS JS; H1 KH | QS>H1 | H1 KH QS JS"},
        {"not a run by the rule of the tableau", "H0 QS JH; H1 KH | QS>H1 | ="},
    });
    game_.Home.cMultiOrder = RuleCode::Always;
    Expect({
        {"any group", "H0 QS 3S 7D; H1 KH | QS>H1 | H1 KH QS 3S 7D"},
        {"any group, but only where its lowest card fits", "H0 QD JS; H1 KH | QD>H1 | ="},
        {"any group, but not below a closed card", "H0 (QS) JH; H1 KH | QS>H1 | ="},
    });
    game_.Home.MultiMove = false;
    Expect({
        {"no group at all", "H0 QS JH; H1 KH | QS>H1 | ="},
        {"no group, but the top card", "H0 KC QS; H1 KH | QS>H1 | H0 KC; H1 KH QS"},
    });
}

TEST_F(Limits, HomeMaxCards) {
    game_.HomeMaxCards = 3;
    Expect({
        {"a third card", "H0 QS; H1 9C KH | QS>H1 | H1 9C KH QS"},
        {"no fourth card", "H0 QS; H1 9C 8S KH | QS>H1 | ="},
        {"no fourth card from the waste", "W QS; H1 9C 8S KH | QS>H1 | ="},
        {"the group counts as one", "H0 QS JD TC; H1 9C KH | QS>H1 | H1 9C KH QS JD TC"},
        {"any group on an empty pile", "H0 KS QH JS TH | KS>H1 | H1 KS QH JS TH"},
    });
}

TEST_F(Limits, NoH2HMove) {
    game_.NoH2HMove = true;
    game_.Res.Piles = 1;
    Expect({
        {"not from a pile to another", "H0 2C QS; H1 KH | QS>H1 | ="},
        {"to an empty pile", "H0 2C QS | QS>H1 | H0 2C; H1 QS"},
        {"from the waste", "W QS; H1 KH | QS>H1 | H1 KH QS"},
        {"from the reserve", "R0 QS; H1 KH | QS>H1 | H1 KH QS"},
        {"from a foundation", "G0 QS; H1 KH | QS>H1 | H1 KH QS"},
        {"to a foundation", "H0 2C AS | AS>G0 | H0 2C; G0 AS"},
    });
}

// Who may fill an empty pile: each kind of fill, with cards of three ranks from every group.
TEST_F(Limits, EmptyFillTypes) {
    const std::tuple<EmptyFillType, const char*, const char*> rows[] = {
        // fill                   ranks   from
        {EmptyFillType::AnyCard, "AQK", "HSWGR"}, {EmptyFillType::KingOnly, "K", "HSWGR"},
        {EmptyFillType::FromStock, "AQK", "SW"},  {EmptyFillType::Nothing, "", ""},
        {EmptyFillType::AceOnly, "A", "HSWGR"},
    };
    game_.Stock.StockType = StockType::Open;
    game_.Res.Piles = 1;
    for (const auto& [fill, ranks, from] : rows) {
        game_.Home.EmptyFillType = fill;
        for (const char rank : std::string("AQK")) {
            for (const char group : std::string("HSWGR")) {
                const bool taken = std::string(ranks).find(rank) != std::string::npos &&
                                   std::string(from).find(group) != std::string::npos;
                const std::string card = {rank, 'S'};
                const std::string pile = std::string(1, group) + "0 ";
                Expect({{"fill of an empty pile", pile + "7D " + card + " | " + card + ">H1 | " +
                                                      (taken ? "H1 " + card + "; " + pile + "7D" : "=")}});
            }
        }
    }
    // Where the deal has chosen another rank, that one counts.
    game_.Home.EmptyFillType = EmptyFillType::KingOnly;
    Expect({
        {"the rank of the deal", "H0 7D 5S | H=5 5S>H1 | H0 7D; H1 5S"},
        {"no other rank than that of the deal", "H0 7D KS | H=5 KS>H1 | H0 7D KS"},
    });
}

TEST_F(Limits, Reserve) {
    game_.Res.Piles = 2;
    Expect({{"takes none", "H0 KH 2C | 2C>R0 | ="}});
    game_.Res.cResNum = ResFreeCells;
    Expect({
        {"takes any single card", "H0 KH 2C; W 9D | 2C>R0 9D>R1 | H0 KH; R0 2C; R1 9D"},
        {"not a second one", "H0 KD QS; R0 KH | QS>R0 | ="},
        {"not a group", "H0 KH QS | KH>R0 | ="},
        {"from a foundation", "G0 AS; R1 9D | AS>R0 | R0 AS; R1 9D"},
        {"from cell to cell", "R1 9D | 9D>R0 | R0 9D"},
    });
}

// A card that may lie on any other does not come to lie on itself.
TEST_F(Limits, TheOwnPile) {
    game_.Home.Order = RuleCode::Always;
    Expect({{"a card on its own pile", "H0 KH 2C | 2C>H0 | ="},
            {"a group on its own pile", "H0 KH 2C 7S | 2C>H0 | ="},
            {"any card on another", "H0 KH 2C; H1 9D | 2C>H1 | H0 KH; H1 9D 2C"}});
}

// Stock and waste take nothing from the player.
TEST_F(Limits, StockAndWaste) {
    Expect(
        {{"not on the waste", "H0 KH 2C; W 3D | 2C>W0 | ="}, {"not on the stock", "H0 KH 2C | 2C>S0 | ="}});
}

}  // namespace
