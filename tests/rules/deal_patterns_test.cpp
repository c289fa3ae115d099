// The nineteen deal patterns of the tableau: the length of each pile, its closed cards, and the order in
// which the places fill.
#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "rules/mCards.h"
#include "rules/mFunc.h"
#include "shell/cData.h"
#include "state/cArray.h"
#include "state/cTrans.h"
#include "support/Fixture.h"
#include "table/cPlate.h"

namespace {

// The faces of a pile from the bottom up, as counts of closed and open cards in turn: "3-5" are three
// closed and five open ones; "." is an empty pile.
std::string Faces(int Pile) {
    if (gArray->GetTop(Home, Pile) < 0) return ".";
    std::string text;
    int closed = 1;
    int count = 0;
    for (int Pos = 0; Pos <= gArray->GetTop(Home, Pile); ++Pos) {
        if (mFunc::CardFaceMode(gArray->GetPicID(Home, Pile, Pos)) != closed) {
            text += std::to_string(count) + '-';
            closed = 1 - closed;
            count = 0;
        }
        ++count;
    }
    return text + std::to_string(count);
}

std::string Tableau() {
    std::string text;
    for (int pile = 0; pile < gGames->Piles(Home); ++pile) text += (pile > 0 ? " " : "") + Faces(pile);
    return text;
}

// Where the card lies that left the stock as the i-th, counted from 0.
std::string PlaceOfDealt(int i) {
    const int PicID = gGames->TotalCards() - 1 - i;
    return std::to_string(mFunc::CardPile(PicID)) + '/' + std::to_string(mFunc::CardPos(PicID));
}

struct Row {
    HomeType Pattern;
    int Piles;
    int Cards;
    int CardsOpen;
    StockMove Stock;
    int Deck;
    const char* Tag;
    const char* Faces;
    int Dealt;            // a card of the walk that tells its order ...
    const char* PlaceOf;  // ... and where it lies
};

constexpr auto Press = StockMove::OneToWaste;
constexpr auto NoPress = StockMove::None;

// clang-format off
const Row rows[] = {
    //                            piles cards open stock    deck tag
    {HomeType::Rows,                 7,  52,  0,  NoPress,  52, "", "0-8 0-8 0-8 0-7 0-7 0-7 0-7", 9, "2/1"},
    {HomeType::Rows,                 7,  28,  7,  Press,    52, "", "3-1 3-1 3-1 3-1 3-1 3-1 3-1", 27, "6/3"},
    {HomeType::Rows,                 4,  10,  3,  Press,    52, "", "2-1 2-1 2 1-1", 7, "3/1"},
    {HomeType::StairsRight,          7,   0,  7,  Press,    52, "", "0-1 1-1 2-1 3-1 4-1 5-1 6-1", 8, "2/1"},
    {HomeType::StairsRight,          7,   0,  0,  Press,    52, "", "0-1 0-2 0-3 0-4 0-5 0-6 0-7", 27, "6/6"},
    {HomeType::StairsRight,         10,   0, 10,  NoPress,  52, "", "0-1 1-1 2-1 3-1 4-1 5-1 6-1 7-1 7-1 7-1", 51, "9/7"},
    {HomeType::BySuit,               7,  52,  0,  NoPress,  52, "", "0-13 0-13 0-13 0-13 . . .", -1, ""},
    {HomeType::Cone,                 9,   0,  0,  NoPress,  52, "", "0-4 0-5 0-6 0-7 0-8 0-7 0-6 0-5 0-4", 4, "1/0"},
    {HomeType::Cone,                 9,  52,  0,  Press,    52, "", "0-2 0-3 0-4 0-5 0-6 0-5 0-4 0-3 0-2", 33, "8/1"},
    {HomeType::ClosedCone,           9,   0,  0,  NoPress,  52, "", "3-1 4-1 5-1 6-1 7-1 6-1 5-1 4-1 3-1", 5, "1/1"},
    {HomeType::ClosedCone,           9,   0,  0,  Press,    52, "", "1-1 2-1 3-1 4-1 5-1 4-1 3-1 2-1 1-1", 2, "1/0"},
    {HomeType::ClosedBlock,          7,  49,  0,  Press,    52, "", "3-4 3-4 3-4 3-4 0-7 0-7 0-7", 48, "6/6"},
    {HomeType::StairsLeft,          10,   0, 10,  NoPress,  52, "", "0-8 7-1 7-1 6-1 5-1 4-1 3-1 2-1 1-1 0-1", 10, "0/1"},
    {HomeType::StairsLeft,           4,   0,  0,  Press,    52, "", "0-4 0-3 0-2 0-1", 9, "0/3"},
    {HomeType::AlternateRows,        4,  24,  0,  Press,    52, "", "1-1-1-1-1-1 1-1-1-1-1-1 1-1-1-1-1-1 1-1-1-1-1-1", 5, "1/1"},
    {HomeType::EvenPilesOpen,        5,  20,  0,  Press,    52, "", "0-4 3-1 0-4 3-1 0-4", 6, "1/1"},
    {HomeType::AllButPile4Open,      6,  24,  0,  Press,    52, "", "0-4 0-4 0-4 0-4 3-1 0-4", 23, "5/3"},
    {HomeType::Pile4Open,            6,  24,  0,  Press,    52, "", "3-1 3-1 3-1 3-1 0-4 3-1", 23, "5/3"},
    {HomeType::EndPilesOpen,         5,  15,  0,  Press,    52, "", "0-3 2-1 2-1 2-1 0-3", 14, "4/2"},
    {HomeType::Piles048Open,         9,  27,  0,  Press,    52, "", "0-3 2-1 2-1 2-1 0-3 2-1 2-1 2-1 0-3", 9, "0/1"},
    {HomeType::InverseCone,          9,   0,  0,  NoPress,  52, "", "0-7 0-6 0-5 0-4 0-3 0-4 0-5 0-6 0-7", 7, "1/0"},
    {HomeType::InverseCone,          9,   0,  0,  Press,    52, "", "0-5 0-4 0-3 0-2 0-1 0-2 0-3 0-4 0-5", 28, "8/4"},
    {HomeType::ClosedInverseCone,    9,   0,  0,  NoPress, 104, "", "7-1 6-1 5-1 4-1 3-1 4-1 5-1 6-1 7-1", 8, "1/0"},
    {HomeType::ClosedInverseCone,    9,   0,  0,  Press,    52, "", "4-1 3-1 2-1 1-1 0-1 1-1 2-1 3-1 4-1", 28, "8/4"},
    {HomeType::Yukon,                7,  52,  0,  NoPress,  52, "", "0-1 1-5 2-5 3-5 4-5 5-5 6-5", 7, "1/1"},
    {HomeType::Yukon,                7,  52,  0,  Press,    52, "3", "0-1 1-3 2-3 3-3 4-3 5-3 6-3", 39, "6/8"},
    {HomeType::YukonRows,            7,  49,  0,  Press,    52, "", "0-7 1-6 2-5 3-4 4-3 5-2 6-1", 7, "0/1"},
    {HomeType::YukonRows,            9,  45,  0,  Press,    52, "", "0-5 1-4 2-3 3-2 4-1 5 5 0-5 0-5", 44, "8/4"},
    {HomeType::DoubleYukon,          9, 104,  0,  NoPress, 104, "", "0-4 1-8 2-8 3-8 4-8 5-8 6-8 7-8 8-8", 36, "1/4"},
    {HomeType::DoubleYukon,          9,  30,  0,  Press,   104, "", "0-4 1-8 2-7 3-6 4-5 5-4 6-3 7-2 8-1", 75, "8/8"},
};
// clang-format on

TEST(DealPatterns, EachHasItsShape) {
    const Engine engine;
    std::array<bool, 19> seen{};
    for (const Row& row : rows) {
        SCOPED_TRACE("pattern " + std::to_string(Number(row.Pattern)) + ", " + std::to_string(row.Piles) +
                     " piles");
        seen.at(static_cast<std::size_t>(Number(row.Pattern))) = true;
        TestGame game;
        game.Home.Piles = row.Piles;
        game.Home.Cards = row.Cards;
        game.Home.cHomeType = row.Pattern;
        game.Home.cCardsOpen = row.CardsOpen;
        game.Stock.StockMove = row.Stock;
        game.Ext.Cards = row.Deck;
        game.Ext.Tag = row.Tag;
        mPosition::Deal(game, 42);
        EXPECT_EQ(Tableau(), row.Faces);
        if (row.Dealt >= 0) {
            EXPECT_EQ(PlaceOfDealt(row.Dealt), row.PlaceOf);
            EXPECT_EQ(PlaceOfDealt(0), "0/0");
        }
        int out = 0;
        for (int pile = 0; pile < row.Piles; ++pile) out += gArray->GetTop(Home, pile) + 1;
        EXPECT_EQ(gArray->GetTop(Stock), row.Deck - out - 1) << "the rest stays in the stock";
        EXPECT_EQ(gTrans->MaxTrans(), 0) << "a deal is not in the log";
    }
    seen.at(static_cast<std::size_t>(Number(HomeType::RandomSpread))) = true;  // below
    for (std::size_t pattern = 0; pattern < seen.size(); ++pattern) EXPECT_TRUE(seen[pattern]) << pattern;
}

TEST(DealPatterns, BySuitKeepsTheOrderOfTheStock) {
    const Engine engine;
    TestGame game;
    game.Home.cHomeType = HomeType::BySuit;
    mPosition::Deal(game, 5);
    for (int suit = 0; suit < 4; ++suit) {
        for (int Pos = 0; Pos < 13; ++Pos) {
            const int PicID = gArray->GetPicID(Home, suit, Pos);
            EXPECT_EQ(mFunc::CardSuit(PicID), suit);
            if (Pos > 0) {
                EXPECT_LT(PicID, gArray->GetPicID(Home, suit, Pos - 1));
            }
        }
    }
}

// The draws are rounded, so the two end piles come up half as often as the others.
TEST(DealPatterns, RandomSpread) {
    const Engine engine;
    TestGame game;
    game.Home.Piles = 8;
    game.Home.cHomeType = HomeType::RandomSpread;
    std::vector<int> total(8);
    constexpr int Deals = 400;
    for (int number = 1; number <= Deals; ++number) {
        mPosition::Deal(game, number);
        EXPECT_EQ(gArray->GetTop(Stock), -1);
        for (int pile = 0; pile < 8; ++pile)
            total[static_cast<std::size_t>(pile)] += gArray->GetTop(Home, pile) + 1;
    }
    constexpr double Share = Deals * 52 / 14.0;
    for (std::size_t pile = 0; pile < 8; ++pile) {
        EXPECT_NEAR(total[pile], pile == 0 || pile == 7 ? Share : 2 * Share, 0.1 * Share) << "pile " << pile;
    }
}

TEST(DealPatterns, KingsSink) {
    const Engine engine;
    const std::pair<const char*, const char*> piles[] = {{"2C 3C 4C KS", "KS 2C 3C 4C"},
                                                         {"2C KS 3C KD", "KS KD 2C 3C"},
                                                         {"KS 2C 3C", "KS 2C 3C"},
                                                         {"2C KS", "KS 2C"}};
    for (const auto& [before, after] : piles) {
        mPosition::Begin({});
        mPosition::Lay(Home, 1, before);
        mCards::SinkKings();
        EXPECT_EQ(mPosition::Pile(Home, 1), after);
        int order = -1;
        for (int Pos = 0; Pos <= gArray->GetTop(Home, 1); ++Pos) {
            const CardRecord& card = PicBack.PicCards(gArray->GetPicID(Home, 1, Pos));
            EXPECT_EQ(card.Pos, Pos);
            EXPECT_EQ(card.Top, 2200 + 250 * Pos);
            EXPECT_GT(card.Order, order);
            order = card.Order;
        }
    }
}

}  // namespace
