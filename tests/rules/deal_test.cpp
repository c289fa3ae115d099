// The deal before the tableau: base cards on the foundations, marks, stock, reserve.
#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "rules/mFunc.h"
#include "shell/cData.h"
#include "state/cArray.h"
#include "support/Fixture.h"
#include "table/cPlate.h"

namespace {

std::string Foundations() {
    std::string text;
    for (int pile = 0; pile < gGames->Piles(Goal); ++pile) {
        text += (pile > 0 ? " | " : "") + mPosition::Pile(Goal, pile);
    }
    return text;
}

std::string Pictures(MarkKind kind, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        const MarkRecord& mark = PicBack.Mark(kind, i);
        text += (i > 0 ? " " : "") + (mark.Visible ? std::to_string(mark.Picture) : std::string("-"));
    }
    return text;
}

TEST(Deal, BaseCards) {
    struct Row {
        GoalType Type;
        int Cards;
        int Piles;
        int Deck;
        const char* Foundations;
        int Base;
        const char* Pictures;
    };
    const Row rows[] = {
        {GoalType::Aces, 0, 4, 52, " |  |  | ", 0, "0 0 0 0"},
        {GoalType::Aces, 4, 4, 104, "AH | AS | AD | AC", 0, "0 0 0 0"},
        {GoalType::Aces, 8, 8, 104, "AH | AS | AD | AC | AH' | AS' | AD' | AC'", 0, "0 0 0 0 0 0 0 0"},
        {GoalType::Aces, 2, 2, 26, "AH | AS", 0, "0 0"},
        {GoalType::Twos, 0, 4, 52, " |  |  | ", 1, "1 1 1 1"},
        {GoalType::Twos, 4, 4, 52, "2H | 2S | 2D | 2C", 1, "1 1 1 1"},
        {GoalType::Kings, 4, 4, 52, "KH | KS | KD | KC", 12, "12 12 12 12"},
        {GoalType::Kings, 0, 2, 52, " | ", 12, "12 12"},
        {GoalType::PlainAces, 0, 4, 52, " |  |  | ", 0, "13 13 13 13"},
        {GoalType::AcesAndKings, 4, 4, 52, "AH | AS | KD | KC", 0, "0 0 12 12"},
        {GoalType::AcesAndKings, 8, 8, 104, "AH | AS | AD | AC | KH' | KS' | KD' | KC'", 0,
         "0 0 0 0 12 12 12 12"},
    };
    const Engine engine;
    for (const Row& row : rows) {
        SCOPED_TRACE("type " + std::to_string(Number(row.Type)) + ", cards " + std::to_string(row.Cards));
        TestGame game;
        game.Goal.GoalType = row.Type;
        game.Goal.Cards = row.Cards;
        game.Goal.Piles = row.Piles;
        game.Ext.Cards = row.Deck;
        mPosition::Deal(game, 7);
        EXPECT_EQ(Foundations(), row.Foundations);
        EXPECT_EQ(gGoalBase, row.Base);
        EXPECT_EQ(Pictures(MarkKind::Right, 8).substr(0, std::string(row.Pictures).size()), row.Pictures);
        EXPECT_FALSE(row.Piles < 8 && PicBack.Mark(MarkKind::Right, 7).Visible);
        EXPECT_EQ(gArray->GetTop(Stock), row.Deck - row.Cards - 1);
        EXPECT_EQ(gArray->TotalGoalCards(), row.Cards);
    }
}

TEST(Deal, TheFirstCardIsTheBase) {
    const Engine engine;
    TestGame game;
    game.Goal.GoalType = GoalType::FirstCard;
    for (const int cards : {1, 4}) {
        game.Goal.Cards = cards;
        mPosition::Deal(game, 11);
        EXPECT_EQ(gGoalBase, mFunc::CardNum(0));
        EXPECT_EQ(gArray->TotalGoalCards(), cards);
        int next = 0;  // the next card of that rank in the pack
        for (int pile = 0; pile < cards; ++pile, ++next) {
            while (mFunc::CardNum(next) != gGoalBase) ++next;
            EXPECT_EQ(gArray->GetPicID(Goal, pile, 0), next);
        }
        EXPECT_EQ(PicBack.Mark(MarkKind::Right, 3).Picture, gGoalBase);
    }
}

TEST(Deal, OneOfEachSuit) {
    const Engine engine;
    TestGame game;
    game.Goal.GoalType = GoalType::OneOfEachSuit;
    game.Goal.Cards = 4;
    mPosition::Deal(game, 3);
    EXPECT_EQ(gGoalBase, 0);
    EXPECT_EQ(gArray->TotalGoalCards(), 4);
    for (int pile = 0; pile < 4; ++pile) {
        int first = 0;  // of the suit in the pack
        while (mFunc::CardSuit(first) != pile) ++first;
        EXPECT_EQ(gArray->GetPicID(Goal, pile, 0), first);
        EXPECT_EQ(PicBack.Mark(MarkKind::Right, pile).Picture, mFunc::CardNum(first));
    }
}

// Where no card is placed the base rank is drawn, Ace to Queen, the same for the same number; an empty
// pile then takes the rank below it.
TEST(Deal, RandomBaseAndTheRankBelowIt) {
    const Engine engine;
    TestGame game;
    game.Goal.GoalType = GoalType::FirstCard;
    game.Ext.GameType = GameType::BaseFills;
    game.Home.EmptyFillType = EmptyFillType::Nothing;
    int seen[13] = {};
    for (int number = 1; number <= 200; ++number) {
        mPosition::Deal(game, number);
        const int base = gGoalBase;
        ASSERT_TRUE(base >= 0 && base <= 11);
        ++seen[base];
        EXPECT_EQ(gGames->EmptyNum, base == 0 ? 12 : base - 1);
        EXPECT_EQ(PicBack.Mark(MarkKind::Home, 0).Picture, gGames->EmptyNum);
        EXPECT_EQ(PicBack.Mark(MarkKind::Right, 0).Picture, base);
        mPosition::Deal(game, number);
        EXPECT_EQ(gGoalBase, base);
    }
    EXPECT_EQ(std::count(seen, seen + 12, 0), 0) << "every rank comes up";
}

TEST(Deal, Marks) {
    const Engine engine;
    TestGame game;
    game.Res.Piles = 2;
    const std::pair<EmptyFillType, const char*> fills[] = {{EmptyFillType::AnyCard, "14 14 14 14 -"},
                                                           {EmptyFillType::KingOnly, "12 12 12 12 -"},
                                                           {EmptyFillType::FromStock, "14 14 14 14 -"},
                                                           {EmptyFillType::Nothing, "14 14 14 14 -"},
                                                           {EmptyFillType::AceOnly, "0 0 0 0 -"}};
    for (const auto& [fill, pictures] : fills) {
        game.Home.EmptyFillType = fill;
        mPosition::Deal(game, 1);
        EXPECT_EQ(Pictures(MarkKind::Home, 5), pictures) << Number(fill);
    }
    EXPECT_EQ(Pictures(MarkKind::Res, 3), "14 14 -");
    EXPECT_EQ(Pictures(MarkKind::Waste, 1), "14");
    game.Waste.Piles = 0;
    const std::pair<StockNum, const char*> stocks[] = {
        {StockNum::None, "-"}, {StockNum::NoRedeal, "15"}, {StockNum::Redeal, "16"}};
    for (const auto& [mark, picture] : stocks) {
        game.Stock.StockNum = mark;
        mPosition::Deal(game, 1);
        EXPECT_EQ(Pictures(MarkKind::Stock, 1), picture);
        EXPECT_EQ(Pictures(MarkKind::Waste, 1), "-");
    }
}

// Bottom first, the stock holds the pack in its shuffled order.
TEST(Deal, TheStockIsThePack) {
    const Engine engine;
    for (const StockType type : {StockType::Closed, StockType::Open}) {
        TestGame game;
        game.Stock.StockType = type;
        mPosition::Deal(game, 9);
        for (int Pos = 0; Pos < 52; ++Pos) {
            ASSERT_EQ(gArray->GetPicID(Stock, 0, Pos), Pos);
            EXPECT_EQ(mFunc::CardFaceMode(Pos), type == StockType::Open ? 0 : 1);
        }
    }
    TestGame game;
    game.Stock.StockType = StockType::TwoSuits;
    mPosition::Deal(game, 9);
    EXPECT_EQ(gArray->GetTop(Stock), 25);
    for (int Pos = 0; Pos < 26; ++Pos) EXPECT_LT(mFunc::CardSuit(gArray->GetPicID(Stock, 0, Pos)), 2);
}

TEST(Deal, TheReserveGoesOutInRows) {
    const Engine engine;
    TestGame game;
    game.Res.Piles = 3;
    game.Res.Cards = 7;
    game.Home.Cards = 4;
    mPosition::Deal(game, 2);
    for (int i = 0; i < 7; ++i) EXPECT_EQ(gArray->GetPicID(Res, i % 3, i / 3), 51 - i);
    EXPECT_EQ(gArray->GetPicID(Home, 0, 0), 44) << "the tableau after the reserve";
    EXPECT_EQ(gArray->GetTop(Stock), 40);
}

}  // namespace
