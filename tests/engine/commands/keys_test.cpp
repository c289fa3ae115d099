// Play by keys: where the frame goes, what the hand may do, and what is said of it.
#include <algorithm>
#include <map>
#include <set>

#include "engine/commands/mFrame.h"
#include "engine/commands/mKeys.h"
#include "support/Script.h"
#include "tools/RandomPlayer.h"

namespace {

using mFrame::Step;
using mFrame::Stop;
using mKeys::Answer;

constexpr Step arrows[] = {Step::Left, Step::Right, Step::Up, Step::Down};

class Keys : public testing::Test {
protected:
    Keys() {
        gData->Set(Setting::Autoplay, 0);
        mKeys::Follow();  // no game runs: what another test left is forgotten
        mKeys::Hide();
    }
    // What was said since the last call.
    std::vector<std::string> Heard() { return std::exchange(engine_.Layer.Forms.Heard, {}); }
    static Answer Stand(int Cell, int Pile, int Pos) { return mKeys::GoTo({{Cell, Pile}, Pos}); }

    Engine engine_;
};

// The places that arrows do not lead to from every other one. All that arrows reach from one place, and
// every place that reaches this one, are the whole table where nothing is wrong.
std::vector<std::string> Unreached() {
    const std::vector<Stop> stops = mFrame::Stops();
    std::map<Stop, std::vector<Stop>> forth;
    std::map<Stop, std::vector<Stop>> back;
    for (const Stop& stop : stops) {
        for (const Step step : arrows) {
            const Stop next = mFrame::Next(stop, step);
            forth[stop].push_back(next);
            back[next].push_back(stop);
        }
    }
    std::vector<std::string> lost;
    for (auto& ways : {forth, back}) {
        std::set<Stop> seen{stops.front()};
        std::vector<Stop> open{stops.front()};
        while (!open.empty()) {
            const Stop stop = open.back();
            open.pop_back();
            const auto found = ways.find(stop);
            if (found == ways.end()) continue;
            for (const Stop& next : found->second) {
                if (seen.insert(next).second) open.push_back(next);
            }
        }
        for (const Stop& stop : stops) {
            if (!seen.contains(stop)) lost.push_back(mReader::PlaceText(stop.Pile, stop.Pos));
        }
    }
    return lost;
}

// Every card whose index can be seen has a place of its own, and every pile has one.
std::size_t SeenPlaces() {
    std::size_t places = 0;
    for (const mReader::PilePlace& pile : mReader::Piles()) {
        ++places;
        for (int Pos = 1; Pos < mReader::Count(pile); ++Pos) {
            const mReader::Extent lower = mReader::CardArea(mReader::Card(pile, Pos - 1));
            const mReader::Extent upper = mReader::CardArea(mReader::Card(pile, Pos));
            const int apart = std::abs(lower.Left - upper.Left) + std::abs(lower.Top - upper.Top);
            if (apart >= 100 || (apart >= 60 && pile.Cell == Home)) ++places;
        }
    }
    return places;
}

// A hand is carried to every pile, too.
void ExpectAllReached(const std::string& says) {
    ASSERT_THAT(Unreached(), IsEmpty()) << says;
    for (const Stop& stop : mFrame::Stops()) {
        if (mKeys::Offers(stop) != std::vector{mKeys::Offer::Lift}) continue;
        ASSERT_EQ(mKeys::LiftAt(stop), Answer::Done) << says;
        ASSERT_EQ(mFrame::Stops().size(), mReader::Piles().size()) << says;
        ASSERT_THAT(Unreached(), IsEmpty()) << says << " with a card in the hand";
        mKeys::PutBack();
    }
}

TEST_F(Keys, ArrowsReachEveryCardAndPileOfEveryGame) {
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        const std::string game = gData->GetGame(SiD);
        mGen::StartGame(game, static_cast<double>(SiD));
        ASSERT_THAT(Unreached(), IsEmpty()) << game;
        ASSERT_EQ(mFrame::Stops().size(), SeenPlaces()) << game;
        RandomPlayer player(static_cast<std::uint32_t>(SiD));
        for (int i = 0; i < 60 && gData->Figures.GameRunning; ++i) player.Act();
        mMain::CancelDrag();
        if (!gData->Figures.GameRunning) continue;
        ExpectAllReached(game + " after moves");
    }
}

TEST_F(Keys, StepsGoWhereTheEyeExpectsThem) {
    TestGame game;
    game.Res.Piles = 2;
    mScript::Begin(game, "H0 KS QH; H1 2S; H2 (4C) JD TC 9H");
    cPlate::ForEachMark([](MarkKind kind, int index) {
        const auto show = [&](int Cell, int piles) {
            if (index >= piles) return;
            PicBack.ShowMark(kind, index, EmptyMark, gGames->GetCordX(Cell, index, 0),
                             gGames->GetCordY(Cell, index, 0));
        };
        if (kind == MarkKind::Home) show(Home, 4);
        if (kind == MarkKind::Right) show(Goal, 4);
        if (kind == MarkKind::Res) show(Res, 2);
    });
    mPosition::Lay(Stock, 0, "(3S) (4S) (5S)");
    mPosition::Lay(Waste, 0, "9D 8D");
    const Stop queen{{Home, 0}, 1}, two{{Home, 1}, 0}, nine{{Home, 2}, 3}, emptyPile{{Home, 3}, -1};
    struct Row {
        const char* Says;
        Stop From;
        Step Way;
        Stop To;
    };
    const Row rows[] = {
        {"up to the card below", queen, Step::Up, {{Home, 0}, 0}},
        {"the fan's end", queen, Step::Down, queen},
        {"the next pile, however short", nine, Step::Left, two},
        {"the card at the same height", {{Home, 0}, 1}, Step::Right, two},
        {"an empty pile", nine, Step::Right, emptyPile},
        {"to what lies further right, though not beside it", emptyPile, Step::Right, {{Goal, 0}, -1}},
        {"the edge", {{Goal, 3}, -1}, Step::Right, {{Goal, 3}, -1}},
        {"from the stock, a pack of which only the top is told, to the pile below",
         {{Stock, 0}, 2},
         Step::Down,
         {{Home, 0}, 0}},
        {"past the tableau's first card to the row above", {{Home, 0}, 0}, Step::Up, {{Stock, 0}, 2}},
        {"the row's first pile, at its top", emptyPile, Step::RowStart, queen},
        {"the row's last pile", queen, Step::RowEnd, emptyPile},
        {"a row of several groups", {{Stock, 0}, 2}, Step::RowEnd, {{Goal, 3}, -1}},
        {"the group's first pile", {{Goal, 3}, -1}, Step::GroupStart, {{Goal, 0}, -1}},
        {"the group's last pile", queen, Step::GroupEnd, emptyPile},
        {"tableau, reserve", queen, Step::NextGroup, {{Res, 0}, -1}},
        {"reserve, waste", {{Res, 1}, -1}, Step::NextGroup, {{Waste, 0}, 1}},
        {"foundation, tableau", {{Goal, 2}, -1}, Step::NextGroup, queen},
        {"tableau, foundation", nine, Step::PreviousGroup, {{Goal, 0}, -1}},
    };
    for (const Row& row : rows) EXPECT_EQ(mFrame::Next(row.From, row.Way), row.To) << row.Says;
}

TEST_F(Keys, TheHandEndsInTheMovesOfTheMouse) {
    mScript::Begin({}, "H0 (KC) 8H 7S 6D; H1 8D; H2 KH; W AC");
    const cPlate before = PicBack;
    // The first key shows the frame and does nothing else.
    EXPECT_EQ(mKeys::Act(), Answer::Done);
    EXPECT_EQ(mKeys::Place(), (Stop{{Home, 0}, 3}));
    EXPECT_EQ(PicBack, before);

    EXPECT_EQ(mKeys::Go(Step::Up), Answer::Done);
    EXPECT_EQ(mKeys::Act(), Answer::Done);
    EXPECT_THAT(Heard(), ElementsAre("Seven of Spades and one more card lifted, tableau pile 2 takes it"));
    const mKeys::View lifted = mKeys::Seen();
    ASSERT_EQ(lifted.Targets.size(), 1U);
    EXPECT_EQ(lifted.Targets[0], mReader::CardArea(mPosition::Card("8D")));
    EXPECT_EQ(lifted.Frame, mReader::CardArea(mPosition::Card("7S")));
    // A pile that does not take it leaves it in the hand; its own takes it back; neither is a move.
    EXPECT_EQ(mKeys::DropAt({Home, 2}), Answer::Refused);
    EXPECT_THAT(Heard(), ElementsAre("Tableau pile 3 does not take the Seven of Spades"));
    EXPECT_EQ(mMain::InHand(), mMain::Hand::Keys);
    EXPECT_EQ(mKeys::PutBack(), Answer::Done);
    EXPECT_EQ(mMain::InHand(), mMain::Hand::Empty);
    EXPECT_EQ(gTrans->GetTransID(), 0);
    EXPECT_EQ(mPosition::Pile(Home, 0), "(KC) 8H 7S 6D");
    EXPECT_EQ(mKeys::Place(), (Stop{{Home, 0}, 2}));

    Heard();
    mKeys::Act();
    EXPECT_EQ(mKeys::Go(Step::Right), Answer::Done);
    EXPECT_EQ(mKeys::Act(), Answer::Done);
    EXPECT_EQ(mPosition::Pile(Home, 1), "8D 7S 6D");
    EXPECT_EQ(gTrans->GetTransID(), 1);
    EXPECT_EQ(Heard().back(), "Seven of Spades and one more card to tableau pile 2");
    EXPECT_EQ(mKeys::Place(), (Stop{{Home, 1}, 1}));

    // To the first foundation, and what the move uncovers.
    Stand(Waste, 0, 0);
    EXPECT_EQ(mKeys::ToFoundation(), Answer::Done);
    EXPECT_EQ(mPosition::Pile(Goal, 0), "AC");
    Stand(Home, 0, 1);
    EXPECT_EQ(mKeys::ToFoundation(), Answer::Refused);
    EXPECT_EQ(Heard().back(), "No foundation takes the Eight of Hearts");
    mMain::Undo(0);
    EXPECT_THAT(Heard(), ElementsAre("Undone: Ace of Clubs to the waste"));
}

TEST_F(Keys, ARefusedLiftSaysWhy) {
    TestGame game;
    game.Ext.GameType = GameType::LimitedRuns;
    game.Res = {.Piles = 1,
                .Cards = 0,
                .StartX = 2400,
                .StartY = 0,
                .PileWidth = 1200,
                .PosWidth = 0,
                .cResNum = ResFreeCells};
    mScript::Begin(game, "H0 (KC) KH QS JH 5C; H1 9S 8H 7S; H2 9C; H3 3H");
    struct Row {
        int Pile, Pos;
        const char* Why;
    };
    const Row rows[] = {{0, 0, "Closed"},
                        {0, 1, "Covered by a card that does not follow"},
                        {1, 0, "More cards than free places allow (2)"},
                        {1, 1, "Eight of Hearts and one more card lifted, tableau pile 3 takes it"}};
    for (const Row& row : rows) {
        mKeys::LiftAt({{Home, row.Pile}, row.Pos});
        EXPECT_THAT(Heard(), ElementsAre(row.Why));
    }
    mKeys::PutBack();
    game.Home.MultiMove = false;
    mScript::Begin(game, "H0 9S 8H");
    Heard();
    EXPECT_EQ(mKeys::LiftAt({{Home, 0}, 0}), Answer::Refused);
    EXPECT_THAT(Heard(), ElementsAre("Covered, and this game moves single cards only"));
}

TEST_F(Keys, TheStockDealsAndRedealsAndSaysWhatItBrought) {
    TestGame game;
    game.Stock.StockNum = StockNum::Redeal;
    game.Ext.cRedeals = 1;
    mScript::Begin(game, "H0 9S; S (5H) (AC)");
    PicBack.ShowMark(MarkKind::Stock, 0, RedealMark, 0, 0);
    gData->Set(Setting::Autoplay, 1);
    Heard();
    EXPECT_EQ(mKeys::Redeal(), Answer::Refused);  // cards cover the mark
    EXPECT_THAT(Heard(), ElementsAre("Stock, 2 cards"));
    EXPECT_EQ(mKeys::Deal(), Answer::Done);
    EXPECT_EQ(mKeys::Act(), Answer::Done);
    EXPECT_THAT(Heard(),
                ElementsAre("Ace of Clubs went to a foundation", "Five of Hearts dealt to the waste"));
    EXPECT_EQ(mKeys::Place(), (Stop{{Stock, 0}, -1}));
    EXPECT_EQ(mReader::PileText({Stock, 0}), "Stock, empty, a redeal is possible");
    EXPECT_EQ(mKeys::Act(), Answer::Done);
    EXPECT_THAT(Heard(), ElementsAre("One card went back to the stock"));
    mKeys::Act();
    Heard();
    EXPECT_EQ(mReader::PileText({Stock, 0}), "Stock, empty, no redeal");
    EXPECT_EQ(mKeys::Act(), Answer::Refused);
    EXPECT_THAT(Heard(), ElementsAre("The stock is empty, and no redeal is left"));
    // Four games show the sign of a redeal and grant none: what is said goes by the rule.
    for (const char* name : {"Vertical Klondike", "Simple Klondike", "Splash", "Tornado"}) {
        mGen::StartGame(name, 1.0);
        EXPECT_EQ(PicBack.Mark(MarkKind::Stock, 0).Picture, RedealMark) << name;
        while (gArray->GetTop(Stock) >= 0) mKeys::Deal();
        EXPECT_EQ(mReader::PileText({Stock, 0}), "Stock, empty, no redeal") << name;
    }
}

TEST_F(Keys, WhatAMoveSetsOffIsTold) {
    const TestGame game;
    mScript::Begin(game, "H0 (JC) AH; H1 2H; H2 3H; H3 2C");
    gData->Set(Setting::Autoplay, 1);
    Heard();
    PicBack.ShowMark(MarkKind::Right, 1, 0, 0, 0);
    PicBack.ShowMark(MarkKind::Right, 3, 0, 0, 0);
    ASSERT_EQ(mKeys::LiftAt({{Home, 0}, 1}), Answer::Done);
    EXPECT_THAT(Heard(),
                ElementsAre("Ace of Hearts lifted, tableau pile 4 and foundation piles 2 and 4 take it"));
    ASSERT_EQ(mKeys::DropAt({Goal, 1}), Answer::Done);
    EXPECT_THAT(Heard(), ElementsAre("Ace of Hearts to foundation pile 2, Jack of Clubs turned up, and two "
                                     "cards went to the foundations"));
    // The last card of a game.
    mScript::Begin(game, "G0 AS-KS; G1 AH-KH; G2 AD-KD; G3 AC-QC; H0 KC");
    Heard();
    Stand(Home, 0, 0);
    EXPECT_EQ(mKeys::ToFoundation(), Answer::Done);
    EXPECT_THAT(Heard(), ElementsAre("The game is won"));
    EXPECT_EQ(engine_.Layer.Forms.Finished, 1);
    EXPECT_EQ(mKeys::Place(), std::nullopt);
    EXPECT_EQ(mKeys::Go(Step::Left), Answer::Nothing);
}

TEST_F(Keys, MouseAndKeysDoNotMeddleWithEachOther) {
    mScript::Begin({}, "H0 9S; H1 TH");
    const int nine = mPosition::Card("9S");
    const auto place = std::pair(mFunc::CardLeft(nine), mFunc::CardTop(nine));
    ASSERT_EQ(mKeys::LiftAt({{Home, 0}, 0}), Answer::Done);
    // The mouse on the carried card, or on another, does nothing while the keys hold it.
    mMain::MouseDown(nine, 10, 10);
    mMain::MouseMove(nine, 3000, 3000);
    mMain::MouseUp(nine);
    mMain::MouseLost();
    EXPECT_EQ(mMain::InHand(), mMain::Hand::Keys);
    mKeys::Hide();
    EXPECT_EQ(mMain::InHand(), mMain::Hand::Empty);
    EXPECT_EQ(std::pair(mFunc::CardLeft(nine), mFunc::CardTop(nine)), place);
    EXPECT_EQ(mKeys::Seen(), mKeys::View{});

    mMain::MouseDown(nine, 10, 10);
    for (const Answer answer : {mKeys::Go(Step::Right), mKeys::Act(), mKeys::ToFoundation(), mKeys::PutBack(),
                                mKeys::LiftAt({{Home, 1}, 0}), mKeys::DropAt({Home, 1}), mKeys::Deal()}) {
        EXPECT_EQ(answer, Answer::Nothing);
    }
    EXPECT_EQ(mMain::InHand(), mMain::Hand::Mouse);
    mMain::MouseUp(nine);
    // A command takes the card out of the hand of the keys as out of that of the mouse.
    ASSERT_EQ(mKeys::LiftAt({{Home, 0}, 0}), Answer::Done);
    mMain::Undo(0);
    EXPECT_EQ(mMain::InHand(), mMain::Hand::Empty);
    EXPECT_EQ(mKeys::PutBack(), Answer::Nothing);
}

// The pile that the frame stands on gets the card, also where another one that accepts it lies in the way.
TEST_F(Keys, TheChosenPileGetsTheCard) {
    TestGame game;
    game.Home.PileWidth = 100;  // all piles lie almost over one another
    mScript::Begin(game, "H0 TH; H1 TD; H2 9S");
    mKeys::LiftAt({{Home, 2}, 0});
    EXPECT_EQ(mKeys::DropAt({Home, 1}), Answer::Done);
    EXPECT_EQ(mPosition::Pile(Home, 1), "TD 9S");
    mKeys::LiftAt({{Home, 1}, 1});
    mKeys::DropAt({Home, 0});
    EXPECT_EQ(mPosition::Pile(Home, 0), "TH 9S");
}

TEST_F(Keys, TheFrameStaysWithItsPile) {
    mScript::Begin({}, "H0 9S 8H; H1 9D");
    PicBack.ShowMark(MarkKind::Home, 1, EmptyMark, 0, 0);
    Stand(Home, 0, 1);
    gArray->MoveCard(mPosition::Card("9D"), Home, 0, 2);
    mKeys::Follow();
    EXPECT_EQ(mKeys::Place(), (Stop{{Home, 0}, 2}));  // stood on top
    Stand(Home, 0, 1);
    mMain::Undo(0);
    mKeys::Follow();
    EXPECT_EQ(mKeys::Place(), (Stop{{Home, 0}, 1}));
    Stand(Home, 1, 0);
    mMain::Redo(0);
    mKeys::Follow();
    EXPECT_EQ(mKeys::Place(), (Stop{{Home, 1}, -1}));  // its mark
    mGen::StartGame("Klondike", 7.0);
    mKeys::Follow();
    EXPECT_EQ(mKeys::Place(), (Stop{{Home, 0}, 0}));
    mMain::CloseGame();
    mKeys::Follow();
    EXPECT_EQ(mKeys::Place(), std::nullopt);
}

}  // namespace
