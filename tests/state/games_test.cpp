// The place of a card on the plate: the layouts, closed cards, centring.
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "state/cArray.h"
#include "state/cGames.h"
#include "support/Fixture.h"

namespace {

std::string Text(const Point& point) { return std::to_string(point.X) + ", " + std::to_string(point.Y); }

// Nine places in each layout: piles wrap after three, StartX 100, StartY 2000, 1200 from pile to pile,
// 250 from card to card, 5000 from row to row. The plate's margins are 1790 and 200.
TEST(CardPlace, PileOrders) {
    struct Row {
        PileOrder Order;
        int Pile, Pos;
        Point Place;
    };
    // clang-format off
    const Row rows[] = {
        {PileOrder::AcrossFanDown,     0, 0, {1890, 2200}},
        {PileOrder::AcrossFanDown,     2, 3, {4290, 2950}},
        {PileOrder::AcrossFanDown,     4, 1, {3090, 7450}},
        {PileOrder::AcrossFanDown,     1, -1, {3090, 1950}},
        {PileOrder::AcrossFanDownWide, 2, 3, {4290, 2950}},
        {PileOrder::AcrossFanDownWide, 4, 1, {8090, 2450}},
        {PileOrder::AcrossFanRight,    2, 3, {5040, 2200}},
        {PileOrder::AcrossFanRight,    4, 1, {3340, 7200}},
        {PileOrder::AcrossFanRight,    1, -1, {2840, 2200}},
        {PileOrder::DownFanRight,      2, 3, {2640, 4600}},
        {PileOrder::DownFanRight,      4, 1, {7140, 3400}},
        {PileOrder::Cross,             0, 5, {3455, 2200}},
        {PileOrder::Cross,             1, 0, {1890, 4140}},
        {PileOrder::Cross,             2, 0, {3455, 4140}},
        {PileOrder::Cross,             3, 9, {5020, 4140}},
        {PileOrder::Cross,             4, 0, {3455, 6080}},
    };
    // clang-format on
    const Engine engine;
    for (const Row& row : rows) {
        TestGame game;
        game.Home.StartX = 100;
        game.Home.Div = 3;
        game.Home.DivWidth = 5000;
        game.Home.PileOrder = row.Order;
        mPosition::Begin(game);
        EXPECT_EQ(Text(gGames->Position(Home, row.Pile, row.Pos)), Text(row.Place))
            << "order " << Number(row.Order) << ", pile " << row.Pile << ", pos " << row.Pos;
    }
}

TEST(CardPlace, AClosedCardTakesLessRoom) {
    struct Row {
        PileOrder Order;
        int Pos;
        Point Place;
    };
    const Row rows[] = {
        {PileOrder::AcrossFanDown, 3, {1790, 2380}},     {PileOrder::AcrossFanDown, 4, {1790, 2630}},
        {PileOrder::AcrossFanRight, 3, {1970, 2200}},    {PileOrder::AcrossFanRight, 4, {2220, 2200}},
        {PileOrder::AcrossFanDownWide, 3, {1790, 2950}}, {PileOrder::DownFanRight, 3, {2540, 2200}},
    };
    const Engine engine;
    for (const Row& row : rows) {
        TestGame game;
        game.Home.PileOrder = row.Order;
        mPosition::Begin(game);
        mPosition::Lay(Home, 0, "(2C) (3C) (4C)");
        EXPECT_EQ(gArray->ClosedCards(0), 3);
        EXPECT_EQ(Text(gGames->Position(Home, 0, row.Pos)), Text(row.Place)) << Number(row.Order);
    }
    // Only the tableau: a foundation that fans downward does not look at the tableau's closed cards.
    TestGame game;
    game.Goal.PosWidth = 250;
    mPosition::Begin(game);
    mPosition::Lay(Home, 0, "(2C) (3C)");
    EXPECT_EQ(Text(gGames->Position(Goal, 0, 2)), "7790, 700");
}

// One step to the upper left for each band of cards.
TEST(CardPlace, StockAndWasteArePacks) {
    const Engine engine;
    TestGame game;
    game.Stock.PosWidth = 30;
    game.Waste.PosWidth = 40;
    mPosition::Begin(game);
    const std::pair<int, int> rows[] = {{-1, 0}, {0, 0},  {2, 0},  {3, 1},  {12, 1},
                                        {13, 2}, {30, 2}, {31, 3}, {103, 5}};
    for (const auto& [Pos, step] : rows) {
        EXPECT_EQ(gGames->Position(Stock, 0, Pos), (Point{1790 - 30 * step, 200 - 30 * step})) << Pos;
        EXPECT_EQ(gGames->Position(Waste, 0, Pos), (Point{2990 - 40 * step, 200 - 40 * step})) << Pos;
    }
}

TEST(CardPlace, TheBaseCardShowsInOneKindOfGame) {
    const Engine engine;
    for (const GameType type : {GameType::Plain, GameType::LowFoundation}) {
        TestGame game;
        game.Ext.GameType = type;
        mPosition::Begin(game);
        const int lower = type == GameType::LowFoundation ? 250 : 0;
        EXPECT_EQ(gGames->GetCordY(Goal, 1, 0), 200);
        EXPECT_EQ(gGames->GetCordY(Goal, 1, 1), 200 + lower);
        EXPECT_EQ(gGames->GetCordY(Home, 1, 1), 2450);
    }
}

TEST(CardPlace, CentringRoundsHalfTwipsToTheEvenNeighbour) {
    const Engine engine;
    const std::pair<int, int> rows[] = {
        {11900, 1790}, {8055, 3712}, {8057, 3712}, {8053, 3714}, {12001, 1740}};
    for (const auto& [width, left] : rows) {
        TestGame game;
        game.Ext.BaseX = width;
        mPosition::Begin(game);
        EXPECT_EQ(gGames->GetCordX(Home, 0, 0), left) << width;
    }
}

TEST(Definition, UpperFoundationsBuildDown) {
    struct Row {
        bool UpDown;
        int Piles, Pile;
        RuleCode Order;
    };
    const Engine engine;
    TestGame game;
    game.Goal.Order = RuleCode::UpAlt;
    for (const Row& row : {Row{true, 4, 1, RuleCode::UpAlt}, Row{true, 4, 2, RuleCode::DownSuit},
                           Row{false, 4, 3, RuleCode::UpAlt}, Row{true, 3, 1, RuleCode::UpAlt},
                           Row{true, 3, 2, RuleCode::DownSuit}}) {
        game.Goal.GoalUpDown = row.UpDown;
        game.Goal.Piles = row.Piles;
        mPosition::Begin(game);
        EXPECT_EQ(gGames->Order(Goal, row.Pile), row.Order);
        EXPECT_EQ(gGames->Order(Home, row.Pile), RuleCode::DownAlt);
    }
    EXPECT_NO_THROW((void)gGames->Record(5));
    EXPECT_THROW((void)gGames->Record(6), std::out_of_range);
}

}  // namespace
