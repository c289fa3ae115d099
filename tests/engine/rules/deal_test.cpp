// The deal: what lies on the foundations, which pile each next card goes to, and which cards lie closed.
#include <algorithm>
#include <set>

#include <fmt/format.h>

#include "engine/rules/mCards.h"
#include "engine/state/mDeal.h"
#include "support/Script.h"

namespace {

using enum HomeType;

using Deal = RulesTest;

// All piles of a group, an empty one as "-".
std::string Piles(int Cell) {
    std::string text;
    for (int p = 0; p < gGames->Piles(Cell); ++p) {
        const std::string cards = mPosition::Pile(Cell, p);
        text += (p > 0 ? "; " : "") + (cards.empty() ? "-" : cards);
    }
    return text;
}

// The pictures of a kind's marks, a hidden one as "-".
std::string Marks(MarkKind kind, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        const MarkRecord& mark = PicBack.Mark(kind, i);
        text += (i > 0 ? " " : "") + (mark.Visible ? std::to_string(mark.Picture) : "-");
    }
    return text;
}

// Number 617 deals KH 7... first: its cards by PicID are KH 8H AS 4C 6D 5D 7S 3H ... KC ... KS ... KD.
constexpr double Number617 = 617.0;

TEST_F(Deal, Foundations) {
    struct Case {
        GoalType Type;
        int Cards, Deck, Piles;
        int Base;
        const char* Laid;
        const char* Marks;
    };
    using enum GoalType;
    // clang-format off
    constexpr Case cases[] = {
    //   starts with   cards deck piles base  laid                                    marks
        {Aces,             4,  52,    4,   0, "AH; AS; AD; AC",                       "0 0 0 0"},
        {Aces,             4, 104,    8,   0, "AH; AS; AD; AC; -; -; -; -",           "0 0 0 0 0 0 0 0"},
        {Aces,             8, 104,    8,   0, "AH; AS; AD; AC; AH'; AS'; AD'; AC'",   "0 0 0 0 0 0 0 0"},
        {Aces,             0,  52,    4,   0, "-; -; -; -",                           "0 0 0 0"},
        {Twos,             4,  52,    4,   1, "2H; 2S; 2D; 2C",                       "1 1 1 1"},
        {Twos,             0,  52,    4,   1, "-; -; -; -",                           "1 1 1 1"},
        {Kings,            4,  52,    4,  12, "KH; KS; KD; KC",                       "12 12 12 12"},
        {Kings,            0,  52,    4,  12, "-; -; -; -",                           "12 12 12 12"},
        {PlainAces,        0,  52,    4,   0, "-; -; -; -",                           "13 13 13 13"},
        {AcesAndKings,     4,  52,    4,   0, "AH; AS; KD; KC",                       "0 0 12 12"},
        {AcesAndKings,     8, 104,    8,   0, "AH; AS; AD; AC; KH'; KS'; KD'; KC'",   "0 0 0 0 12 12 12 12"},
        {FirstCard,        1,  52,    4,  12, "KH; -; -; -",                          "12 12 12 12"},
        {FirstCard,        3,  52,    4,  12, "KH; KC; KS; -",                        "12 12 12 12"},
        {FirstCard,        4,  52,    4,  12, "KH; KC; KS; KD",                       "12 12 12 12"},
        {OneOfEachSuit,    4,  52,    4,   0, "KH; AS; 6D; 4C",                       "12 0 5 3"},
    };
    // clang-format on
    for (const Case& row : cases) {
        game_.Goal.GoalType = row.Type;
        game_.Goal.Cards = row.Cards;
        game_.Goal.Piles = row.Piles;
        game_.Ext.Cards = row.Deck;
        // As in the games: the upper half builds down from Kings.
        game_.Goal.GoalUpDown = row.Type == AcesAndKings;
        mPosition::Deal(game_, Number617);
        SCOPED_TRACE(fmt::format("type {}, {} cards", Number(row.Type), row.Cards));
        EXPECT_EQ(gGoalBase, row.Base);
        EXPECT_EQ(Piles(Goal), row.Laid);
        EXPECT_EQ(Marks(MarkKind::Right, row.Piles), row.Marks);
        EXPECT_EQ(gArray->GetTop(Stock), row.Deck - 1 - gArray->TotalGoalCards());
        // The rest is the stock in the order of the shuffle, closed.
        int last = -1;
        for (int Pos = 0; Pos <= gArray->GetTop(Stock); ++Pos) {
            const int PicID = gArray->GetPicID(Stock, 0, Pos);
            EXPECT_LT(last, PicID);
            EXPECT_EQ(mFunc::CardFaceMode(PicID), 1);
            last = PicID;
        }
    }
    EXPECT_THAT(engine_.Layer.Sounds.Played, testing::Contains("START"));
}

// A base rank by chance is never a King; where the base fills the empty piles, they take the rank below it.
TEST_F(Deal, ABaseRankByChance) {
    game_.Goal.GoalType = GoalType::FirstCard;
    game_.Ext.GameType = GameType::BaseFills;
    std::set<int> bases;
    for (int number = 1; number <= 200; ++number) {
        mPosition::Deal(game_, number);
        bases.insert(gGoalBase);
        EXPECT_EQ(gGames->EmptyNum, gGoalBase == 0 ? 12 : gGoalBase - 1);
        EXPECT_EQ(Marks(MarkKind::Home, 1), std::to_string(gGames->EmptyNum));
    }
    EXPECT_EQ(bases, (std::set<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

TEST_F(Deal, MarksOfEmptyPiles) {
    const std::tuple<EmptyFillType, int, const char*> fills[] = {
        {EmptyFillType::AnyCard, -1, "14 14 14 14 -"},   {EmptyFillType::KingOnly, 12, "12 12 12 12 -"},
        {EmptyFillType::FromStock, -1, "14 14 14 14 -"}, {EmptyFillType::Nothing, -10, "14 14 14 14 -"},
        {EmptyFillType::AceOnly, 0, "0 0 0 0 -"},
    };
    for (const auto& [fill, emptyNum, marks] : fills) {
        game_.Home.EmptyFillType = fill;
        mPosition::Deal(game_, 1.0);
        EXPECT_EQ(gGames->EmptyNum, emptyNum);
        EXPECT_EQ(Marks(MarkKind::Home, 5), marks);
    }
    const std::tuple<StockNum, const char*> stocks[] = {
        {StockNum::None, "-"}, {StockNum::NoRedeal, "15"}, {StockNum::Redeal, "16"}};
    for (const auto& [mark, picture] : stocks) {
        game_.Stock.StockNum = mark;
        mPosition::Deal(game_, 1.0);
        EXPECT_EQ(Marks(MarkKind::Stock, 1), picture);
    }
    EXPECT_EQ(Marks(MarkKind::Waste, 1) + Marks(MarkKind::Res, 1), "14-");
    game_.Waste.Piles = 0;
    game_.Res.Piles = 2;
    mPosition::Deal(game_, 1.0);
    EXPECT_EQ(Marks(MarkKind::Waste, 1) + Marks(MarkKind::Res, 3), "-14 14 -");
    for (const MarkKind kind : {MarkKind::Home, MarkKind::Right, MarkKind::Res}) {
        const int Cell = kind == MarkKind::Home ? Home : kind == MarkKind::Right ? Goal : Res;
        const MarkRecord& mark = PicBack.Mark(kind, 1);
        EXPECT_EQ((Point{mark.Left, mark.Top}), gGames->Position(Cell, 1, 0));
    }
}

TEST_F(Deal, ReserveAndStock) {
    game_.Res.Piles = 3;
    game_.Res.Cards = 7;
    game_.Ext.Cards = 26;
    const std::string reserve = "QS 7S 4S; AH 8H; 2H 4H";
    mPosition::Deal(game_, 1.0);
    EXPECT_EQ(Piles(Res), reserve) << "in rows over the piles, open";
    EXPECT_EQ(gArray->GetTop(Stock), 18);
    game_.Stock.StockType = StockType::Open;
    mPosition::Deal(game_, 1.0);
    EXPECT_EQ(mFunc::CardFaceMode(gArray->GetTopPicID(Stock)), 0);
    EXPECT_EQ(mFunc::CardFaceMode(gArray->GetPicID(Stock, 0, 0)), 0);
    game_.Stock.StockType = StockType::TwoSuits;
    game_.Ext.Cards = 52;
    game_.Res.Cards = 0;
    mPosition::Deal(game_, 1.0);
    EXPECT_EQ(gArray->GetTop(Stock), 25) << "two suits of four";
    for (int Pos = 0; Pos <= 25; ++Pos) EXPECT_LT(mFunc::CardSuit(gArray->GetPicID(Stock, 0, Pos)), 2);
    EXPECT_EQ(mFunc::CardFaceMode(gArray->GetTopPicID(Stock)), 1);
}

enum class Walk { Rows, Piles };

// The tableau's cards in the order of a walk, a letter a card and a word a pile: o open, x closed.
std::string Shape() {
    std::string text;
    for (int p = 0; p < gGames->Piles(Home); ++p) {
        if (p > 0) text += ' ';
        for (int Pos = 0; Pos <= gArray->GetTop(Home, p); ++Pos)
            text += mFunc::CardFaceMode(gArray->GetPicID(Home, p, Pos)) == 1 ? 'x' : 'o';
        if (gArray->GetTop(Home, p) < 0) text += '-';
    }
    return text;
}

// Whether the stock's cards, from its top down, lie as the walk says.
void ExpectDealtIn(Walk walk) {
    int next = gGames->TotalCards() - 1;
    const auto expectAt = [&](int Pile, int Pos) {
        if (Pos > gArray->GetTop(Home, Pile)) return;
        EXPECT_EQ(gArray->GetPicID(Home, Pile, Pos), next);
        --next;
    };
    const int piles = gGames->Piles(Home);
    const int rows = gGames->TotalCards();
    for (int i = 0; i < piles * rows; ++i) {
        if (walk == Walk::Rows) expectAt(i % piles, i / piles);
        if (walk == Walk::Piles) expectAt(i / rows, i % rows);
    }
    EXPECT_EQ(gArray->GetTop(Stock), next) << "the rest stays in the stock";
}

// The opening position that is worked out without a table, for the rules pages, is the one dealt on it.
void ExpectTheOpeningOnTheTable() {
    const mDeal::Opening opening = mDeal::Deal(*gGames, 1.0);
    const auto isSame = [](const mDeal::Lying& lying, int PicID) {
        return lying.PicID == PicID && lying.Closed == (mFunc::CardFaceMode(PicID) == 1);
    };
    for (const std::size_t Cell : {Home, Stock}) {
        for (int Pile = 0; const auto& cards : opening.Piles.at(Cell)) {
            const auto table = gArray->Cards(static_cast<int>(Cell), Pile++);
            EXPECT_TRUE(std::equal(cards.begin(), cards.end(), table.begin(), table.end(), isSame)) << Pile;
        }
    }
}

TEST_F(Deal, Patterns) {
    struct Case {
        HomeType Type;
        int Deck, Piles, Cards, Open;
        const char* Shape;
        Walk Order = Walk::Rows;
        StockMove Press = StockMove::OneToWaste;
        const char* Tag = "";
    };
    constexpr StockMove NoStock = StockMove::None;
    // clang-format off
    const Case cases[] = {
    //   pattern         deck piles cards open
        {Rows,             52,    3,    7,   0, "ooo oo oo"},
        {Rows,             52,    3,    7,   3, "xxo xo xo"},
        {Rows,             26,    9,   30,   9, "xxx xxx xxx xxo xxo xxo xxo xxo xx"},
        {StairsRight,      52,    4,    9,   4, "o xo xxo xxxo"},
        {StairsRight,      52,    4,    9,   0, "o oo ooo oooo"},
        {StairsRight,      26,    7,   28,   7, "o xo xxo xxxo xxxxo xxxxxo xxxxo"},
        {StairsLeft,       52,    4,    9,   4, "oooo xxo xo o"},
        {StairsLeft,       52,    4,    9,   0, "oooo ooo oo o"},
        {StairsLeft,       26,    7,   28,   7, "oooooo xxxxo xxxxo xxxo xxo xo o"},
        {Cone,             52,    9,   52,   0, "oo ooo oooo ooooo oooooo ooooo oooo ooo oo", Walk::Piles},
        {Cone,             52,    9,    1,   0, "oooo ooooo oooooo ooooooo oooooooo ooooooo oooooo ooooo oooo", Walk::Piles, NoStock},
        {ClosedCone,       52,    9,   52,   0, "xo xxo xxxo xxxxo xxxxxo xxxxo xxxo xxo xo", Walk::Piles},
        {InverseCone,      52,    9,   52,   0, "ooooo oooo ooo oo o oo ooo oooo ooooo", Walk::Piles},
        {InverseCone,      52,    9,   52,   0, "ooooooo oooooo ooooo oooo ooo oooo ooooo oooooo ooooooo", Walk::Piles, NoStock},
        {ClosedInverseCone, 52,   9,   52,   0, "xxxxo xxxo xxo xo o xo xxo xxxo xxxxo", Walk::Piles},
        {ClosedInverseCone, 104,  9,   52,   0, "xxxxxxxo xxxxxxo xxxxxo xxxxo xxxo xxxxo xxxxxo xxxxxxo xxxxxxxo", Walk::Piles, NoStock},
        {ClosedBlock,      52,    6,   24,   0, "xxxo xxxo xxxo xxxo oooo oooo"},
        {AlternateRows,    52,    3,   10,   0, "xoxo xox xox"},
        {EvenPilesOpen,    52,    4,   11,   0, "ooo xxo ooo xo"},
        {AllButPile4Open,  52,    6,   12,   0, "oo oo oo oo xo oo"},
        {Pile4Open,        52,    6,   12,   0, "xo xo xo xo oo xo"},
        {EndPilesOpen,     52,    4,    8,   0, "oo xo xo oo"},
        {Piles048Open,     52,   10,   20,   0, "oo xo xo xo oo xo xo xo oo xo"},
        {Yukon,            52,    7,   52,   0, "o xooooo xxooooo xxxooooo xxxxooooo xxxxxooooo xxxxxxooooo"},
        {Yukon,            52,    7,   26,   0, "o xooooo xxooooo xxxoooo xxxxooo xxxxxoo xxxxxxo"},
        {Yukon,            52,    7,   52,   0, "o xooo xxooo xxxooo xxxxooo xxxxxooo xxxxxxooo", Walk::Rows, NoStock, "3"},
        {YukonRows,        52,    9,   18,   0, "oo xo xx xx xx xx xx oo oo"},
        {DoubleYukon,     104,    9,   30,   0, "oooo xoooooooo xxooooooo xxxoooooo xxxxooooo xxxxxoooo xxxxxxooo xxxxxxxoo xxxxxxxxo"},
        {DoubleYukon,     104,    9,  104,   0, "oooo xoooooooo xxoooooooo xxxoooooooo xxxxoooooooo xxxxxoooooooo xxxxxxoooooooo xxxxxxxoooooooo xxxxxxxxoooooooo"},
    };
    // clang-format on
    for (const Case& row : cases) {
        SCOPED_TRACE(fmt::format("pattern {}, {} piles, {} cards", Number(row.Type), row.Piles, row.Cards));
        game_.Home.cHomeType = row.Type;
        game_.Home.Piles = row.Piles;
        game_.Home.Cards = row.Cards;
        game_.Home.cCardsOpen = row.Open;
        game_.Stock.StockMove = row.Press;
        game_.Ext.Cards = row.Deck;
        game_.Ext.Tag = row.Tag;
        mPosition::Deal(game_, 1.0);
        EXPECT_EQ(Shape(), row.Shape);
        ExpectDealtIn(row.Order);
        ExpectTheOpeningOnTheTable();
    }
}

TEST_F(Deal, PatternsThatFollowCardsOrChance) {
    game_.Home.Piles = 5;
    game_.Home.cHomeType = BySuit;
    game_.Ext.Cards = 26;
    mPosition::Deal(game_, 1.0);
    EXPECT_EQ(Piles(Home),
              "AH 2H 8H 4H 3H KH TH QH 9H 5H 6H JH 7H; "
              "QS 7S 4S 5S 2S KS JS 3S TS 9S 6S 8S AS; -; -; -");
    game_.Home.cHomeType = RandomSpread;
    mPosition::Deal(game_, 1.0);
    EXPECT_EQ(Piles(Home),
              "4H 3H 9H; 4S QH TS 6H 6S AS; 2S 3S 8S 7H; QS 2H 7S KH 5S KS JS 5H 9S JH; AH 8H TH");
}

TEST_F(Deal, KingsSink) {
    const std::tuple<const char*, const char*> rows[] = {
        {"2C 3C 4C KH", "KH 2C 3C 4C"},
        {"2C (KH) 3C (4C)", "KH 2C 3C (4C)"},
        {"2C 3C KS KH", "KS KH 2C 3C"},
        {"2C KD KS KH", "KS KH 2C KD"},
        {"KH QC", "KH QC"},
    };
    for (const auto& [before, after] : rows) {
        mPosition::Begin(game_);
        mPosition::Lay(Home, 1, before);
        mPosition::Lay(Home, 2, "9D KC");
        mCards::SinkKings();
        EXPECT_EQ(mPosition::Pile(Home, 1), after);
        EXPECT_EQ(mPosition::Pile(Home, 2), "KC 9D") << "every pile";
    }
    game_.Home.Cards = 40;
    for (const bool sink : {false, true}) {
        game_.Ext.cMoveKings = sink;
        mPosition::Deal(game_, 1.0);
        ExpectTheOpeningOnTheTable();
        bool above = false;
        for (int PicID = 0; PicID < 52; ++PicID) {
            above = above || (mFunc::CardNum(PicID) == 12 && mFunc::CardCell(PicID) == Home &&
                              mFunc::CardPos(PicID) > 1);
        }
        EXPECT_NE(above, sink);
    }
}

}  // namespace
