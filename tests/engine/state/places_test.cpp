// Where a card lies on the plate: every way in which piles lie and fan, and what shifts a card.
#include "engine/state/mRandom.h"
#include "support/Script.h"

namespace {

class Places : public RulesTest {
protected:
    // A group of its own numbers, so that none can stand for another.
    Places() {
        game_.Home = {.Piles = 8,
                      .Order = RuleCode::DownAlt,
                      .Cards = 0,
                      .AK = 0,
                      .EmptyFillType = EmptyFillType::AnyCard,
                      .MultiMove = true,
                      .StartX = 10,
                      .StartY = 2000,
                      .PileWidth = 1200,
                      .PosWidth = 250,
                      .Div = 3,
                      .DivWidth = 5000};
        game_.Res = {.Piles = 8,
                     .Cards = 0,
                     .StartX = 20,
                     .StartY = 3000,
                     .PileWidth = 1300,
                     .PosWidth = 40,
                     .Div = 3,
                     .DivWidth = 6000};
        game_.Stock.StartX = 500;
        game_.Stock.StartY = 600;
        game_.Ext.BaseY = 7;
    }
    // From the origin of the game's layout, which stands 1790 from the plate's left where it is 11900 wide.
    static Point At(int Cell, int Pile, int Pos) {
        const Point point = gGames->Position(Cell, Pile, Pos);
        return {point.X - 1790, point.Y - 7};
    }
};

TEST_F(Places, OfPilesAndCards) {
    using enum PileOrder;
    struct Case {
        PileOrder Order;
        int Cell, Pile, Pos;
        Point Place;
    };
    // clang-format off
    const Case cases[] = {
    //   order              cell pile pos  without closed cards
        {AcrossFanDown,     Home, 0,  0, {10, 2000}},
        {AcrossFanDown,     Home, 2,  3, {10 + 2 * 1200, 2000 + 3 * 250}},
        {AcrossFanDown,     Home, 4,  3, {10 + 1 * 1200, 2000 + 3 * 250 + 5000}},
        {AcrossFanDown,     Home, 7, -1, {10 + 1 * 1200, 2000 - 250 + 2 * 5000}},
        {AcrossFanDownWide, Home, 4,  3, {10 + 1 * 1200 + 5000, 2000 + 3 * 250}},
        {AcrossFanRight,    Home, 4,  3, {10 + 1 * 1200 + 3 * 250, 2000 + 5000}},
        {DownFanRight,      Home, 4,  3, {10 + 3 * 250 + 5000, 2000 + 1 * 1200}},
        {AcrossFanDown,     Res,  4,  3, {20 + 1 * 1300, 3000 + 3 * 40 + 6000}},
        {AcrossFanRight,    Res,  4,  3, {20 + 1 * 1300 + 3 * 40, 3000 + 6000}},
        {Cross,             Home, 0,  2, {10 + 1565, 2000}},
        {Cross,             Home, 1,  0, {10, 2000 + 1940}},
        {Cross,             Home, 2,  0, {10 + 1565, 2000 + 1940}},
        {Cross,             Home, 3,  0, {10 + 3130, 2000 + 1940}},
        {Cross,             Home, 4,  9, {10 + 1565, 2000 + 3880}},
    };
    // clang-format on
    for (const Case& row : cases) {
        game_.Home.PileOrder = game_.Res.PileOrder = row.Order;
        mPosition::Begin(game_);
        EXPECT_EQ(At(row.Cell, row.Pile, row.Pos), row.Place) << Number(row.Order) << ", pile " << row.Pile;
    }
}

// Closed cards of a tableau pile lie 60 twips apart: where piles fan down or in rows to the right, and there
// also in the other groups, by the tableau pile of the same number.
TEST_F(Places, AboveClosedCards) {
    using enum PileOrder;
    const std::tuple<PileOrder, int, Point> rows[] = {
        {AcrossFanDown, Home, {10 + 1200, 2000 + 2 * 60 + 2 * 250}},
        {AcrossFanDownWide, Home, {10 + 1200, 2000 + 4 * 250}},
        {AcrossFanRight, Home, {10 + 1200 + 2 * 60 + 2 * 250, 2000}},
        {DownFanRight, Home, {10 + 4 * 250, 2000 + 1200}},
        {AcrossFanDown, Res, {20 + 1300, 3000 + 4 * 40}},
        {AcrossFanRight, Res, {20 + 1300 + 2 * 60 + 2 * 40, 3000}},
    };
    for (const auto& [order, Cell, place] : rows) {
        game_.Home.PileOrder = game_.Res.PileOrder = order;
        mScript::Begin(game_, "H0 (2C) (3C) (4C); H1 (9D) (8D) 7D");
        EXPECT_EQ(At(Cell, 1, 4), place) << Number(order);
    }
}

TEST_F(Places, OfAPack) {
    mPosition::Begin(game_);
    const std::tuple<int, int> rows[] = {{-1, 0}, {0, 0},  {2, 0},  {3, 1},  {12, 1}, {13, 2},
                                         {30, 2}, {31, 3}, {56, 3}, {57, 4}, {103, 5}};
    for (const auto& [Pos, steps] : rows) {
        EXPECT_EQ(At(Stock, 0, Pos), (Point{500 - steps * 30, 600 - steps * 30})) << Pos;
        EXPECT_EQ(At(Waste, 0, Pos), (Point{1200 - steps * 30, -steps * 30})) << Pos;
    }
}

TEST_F(Places, OfFoundationsAndOfNarrowGames) {
    for (const GameType kind : {GameType::Plain, GameType::LowFoundation, GameType::OpenRedeal}) {
        game_.Ext.GameType = kind;
        mPosition::Begin(game_);
        const int low = kind == GameType::LowFoundation ? 250 : 0;
        EXPECT_EQ(At(Goal, 1, 0), (Point{7200, 0}));
        EXPECT_EQ(At(Goal, 1, 1), (Point{7200, low}));
        EXPECT_EQ(At(Goal, 1, 12), (Point{7200, low}));
        EXPECT_EQ(At(Home, 0, 1), (Point{10, 2250}));
    }
    const std::tuple<int, int> widths[] = {{11900, 1790}, {8055, 3712}, {8053, 3714}, {11000, 2240}};
    for (const auto& [width, left] : widths) {
        game_.Ext.BaseX = width;
        game_.Home.StartX = 0;
        mPosition::Begin(game_);
        EXPECT_EQ(gGames->GetCordX(Home, 0, 0), left) << "half a twip goes to the even one";
        EXPECT_EQ(gGames->GetCordY(Home, 0, 0), 2007);
    }
}

TEST(Rounding, HalvesGoToTheEvenOne) {
    const std::tuple<double, int> rows[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},   {2.4, 2},
                                            {2.6, 3},   {-0.5, 0},  {-1.5, -2}, {-2.5, -2},
                                            {-1.4, -1}, {-1.6, -2}, {3.0, 3},   {0.49999, 0}};
    for (const auto& [value, whole] : rows) EXPECT_EQ(RoundToEven(value), whole) << value;
}

}  // namespace
