// The shuffle, and the one operation that moves cards.
#include <algorithm>
#include <array>
#include <stdexcept>

#include "engine/state/mRandom.h"
#include "support/Script.h"

namespace {

using mPosition::Card;

std::vector<int> Shuffled(int cards, const GameNumber& number) {
    TestGame game;
    game.Ext.Cards = cards;
    gGames->Ext(game.Ext);
    gArray->Init(number);
    std::vector<int> values;
    for (int PicID = 0; PicID < cards; ++PicID) values.push_back(gArray->GetRandom(PicID));
    return values;
}

TEST(Shuffle, GoesByTheValueOfTheNumber) {
    const Engine engine;
    const auto deal = [](const GameNumber& number) { return Shuffled(52, number); };
    EXPECT_EQ(deal(std::string("12")), deal(12.0));
    EXPECT_EQ(deal(std::string(" 012.0 ")), deal(12.0));
    EXPECT_EQ(deal(std::string("12.5")), deal(12.5));
    EXPECT_EQ(deal(0.0), deal(-0.0));
    EXPECT_NE(deal(12.5), deal(12.0));
    EXPECT_NE(deal(-12.0), deal(12.0));
    EXPECT_NE(deal(999999999999998.0), deal(999999999999999.0)) << "fifteen digits count";
}

// A player's favourite deal must stay what it is for ever. Nothing in these rows may ever be changed.
TEST(Shuffle, DealsNeverChange) {
    struct Row {
        int Cards;
        GameNumber Number;
        std::vector<int> Values;
    };
    // clang-format off
    const Row rows[] = {
        {26, 1.0,
         {6, 10, 13, 20, 18, 5, 21, 4, 22, 15, 8, 23, 11, 25, 14, 9, 17, 12, 2, 16, 3, 7, 19, 1, 0, 24}},
        {52, 1.0,
         {13, 22, 29, 44, 41, 11, 42, 46, 14, 39, 50, 37, 32, 19, 36, 31, 21, 23, 9, 40, 16, 15, 17, 49, 5, 4, 47, 28, 25, 48, 2, 3, 33, 18, 10, 30, 7, 26, 20, 38, 27, 12, 45, 24, 1, 34, 8, 35, 43, 6, 51, 0}},
        {52, 617.0,
         {12, 7, 13, 42, 31, 30, 19, 2, 45, 4, 49, 32, 23, 33, 44, 51, 35, 14, 40, 17, 25, 6, 15, 21, 22, 36, 10, 39, 9, 8, 29, 48, 3, 38, 24, 18, 1, 11, 37, 43, 5, 27, 26, 34, 16, 47, 20, 50, 41, 0, 46, 28}},
        {52, 123456789012345.0,
         {3, 36, 47, 13, 16, 24, 11, 19, 44, 22, 51, 28, 34, 21, 1, 35, 31, 5, 8, 14, 50, 48, 42, 29, 39, 17, 23, 15, 2, 18, 27, 12, 9, 41, 37, 45, 32, 38, 43, 26, 30, 49, 40, 6, 25, 7, 4, 10, 46, 20, 0, 33}},
        {52, std::string("2004"),
         {30, 48, 8, 11, 15, 42, 38, 37, 1, 49, 6, 29, 12, 32, 25, 9, 34, 21, 17, 31, 41, 7, 0, 45, 44, 43, 28, 47, 14, 19, 13, 27, 16, 22, 3, 24, 20, 51, 33, 50, 18, 35, 2, 46, 26, 10, 5, 36, 4, 40, 23, 39}},
        {104, 1.0,
         {26, 44, 59, 92, 87, 23, 100, 98, 30, 99, 51, 86, 74, 45, 97, 76, 93, 101, 24, 81, 42, 41, 49, 48, 13, 79, 67, 55, 72, 36, 8, 10, 34, 69, 83, 66, 31, 18, 16, 50, 103, 56, 94, 64, 6, 61, 7, 21, 102, 29, 53, 90, 75, 37, 80, 77, 89, 71, 25, 88, 0, 58, 20, 9, 5, 82, 62, 38, 17, 22, 65, 43, 47, 85, 84, 46, 32, 15, 78, 70, 91, 57, 52, 73, 12, 4, 95, 27, 40, 35, 2, 54, 60, 39, 11, 28, 68, 63, 19, 1, 96, 33, 14, 3}},
        {104, 123456789012345.0,
         {6, 73, 97, 28, 33, 50, 23, 42, 96, 49, 7, 64, 79, 98, 3, 85, 77, 12, 22, 37, 83, 34, 62, 63, 14, 51, 72, 46, 103, 81, 17, 45, 82, 86, 4, 48, 74, 88, 43, 89, 54, 55, 19, 95, 102, 18, 90, 41, 94, 16, 8, 27, 31, 0, 101, 59, 38, 5, 35, 30, 68, 20, 76, 100, 53, 26, 87, 57, 70, 66, 25, 9, 71, 69, 40, 65, 91, 15, 10, 93, 29, 67, 84, 61, 56, 13, 32, 75, 92, 44, 52, 24, 78, 80, 1, 47, 99, 60, 2, 11, 58, 39, 36, 21}},
    };
    // clang-format on
    const Engine engine;
    for (const Row& row : rows) {
        EXPECT_EQ(Shuffled(row.Cards, row.Number), row.Values)
            << row.Cards << " cards, " << mGameNumber::Text(row.Number);
    }
}

using MoveCard = RulesTest;

// Undo and repositioning open nothing and are not logged; repositioning leaves the tops alone.
TEST_F(MoveCard, SilentMoves) {
    for (const tMod kind : {tMod::UndoRedo, tMod::Reposition}) {
        mScript::Begin({}, "H0 (9D) 5C");
        gArray->MoveCard(Card("5C"), Home, 2, 0, kind);
        EXPECT_EQ(mFunc::CardFaceMode(Card("9D")), 1);
        EXPECT_EQ(gTrans->MaxTrans(), 0);
        EXPECT_EQ(gArray->GetTop(Home, 0), kind == tMod::Reposition ? 1 : 0);
        EXPECT_EQ(gArray->GetPicID(Home, 0, 1), kind == tMod::Reposition ? Card("5C") : -1);
    }
}

// Notes where a card is at each step.
class WatchingStage : public MemoryStage {
public:
    explicit WatchingStage(int PicID) : card_(PicID) {}
    void ShowStep(double) override {
        const CardRecord& card = PicBack.PicCards(card_);
        Seen.push_back({card.Left, card.Top, card.FaceMode});
    }
    std::vector<std::array<int, 3>> Seen;

private:
    int card_;
};

// Only the first card of a group travels, and the card turns when it arrives.
TEST_F(MoveCard, TravelsInSteps) {
    mScript::Begin({}, "H0 (9D); H2 KH (5C) 4D");
    WatchingStage stage(Card("5C"));
    PicBack.SetStage(&stage);
    gArray->MoveCard(Card("5C"), Home, 0, 1, tMod::Play, 5, 1);
    PicBack.SetStage(&engine_.Layer.Stage);
    const std::vector<std::array<int, 3>> expected = {
        {3710, 2412, 1}, {3230, 2374, 1}, {2750, 2336, 1}, {2270, 2298, 1}, {1790, 2260, 0}};
    EXPECT_EQ(stage.Seen, expected);
    EXPECT_EQ(mPosition::Pile(Home, 0), "(9D) 5C 4D");
}

TEST_F(MoveCard, AutoplayFollowsPlayedMovesOnly) {
    gData->Set(Setting::Autoplay, 1);
    const std::tuple<tMod, bool, bool> rows[] = {
        // kind, disabled, follows
        {tMod::Play, false, true},        {tMod::FromStock, false, true}, {tMod::Play, true, false},
        {tMod::ToStock, false, false},    {tMod::UndoRedo, false, false}, {tMod::Deal, false, false},
        {tMod::Reposition, false, false},
    };
    for (const auto& [kind, disabled, follows] : rows) {
        mScript::Begin({}, "H0 5C AS; H1 9H");
        gArray->MoveCard(Card("9H"), Home, 2, 0, kind, 0, 0, 0, disabled);
        EXPECT_EQ(gArray->GetTop(Goal, 0), follows ? 0 : -1) << Number(kind);
    }
}

// Whatever the rule for building would say of the next card.
TEST_F(MoveCard, AFoundationOfThirteenIsFull) {
    mScript::Begin({}, "G0 AS-KS; H0 AC");
    gArray->MoveCard(Card("AC"), Goal, 0, RankCount, tMod::Play);
    EXPECT_EQ(gArray->GetTop(Goal, 0), FullGoalTop);
    EXPECT_EQ(mPosition::Pile(Home, 0), "AC");
}

TEST_F(MoveCard, ReduceOneTakesTheTopCardOffTheTablesAlone) {
    mScript::Begin({}, "H0 5C 4H");
    const int four = Card("4H");
    const CardRecord before = PicBack.PicCards(four);
    gArray->ReduceOne(Home, 0);
    EXPECT_EQ(gArray->GetTop(Home, 0), 0);
    EXPECT_EQ(gArray->GetPicID(Home, 0, 1), -1);
    EXPECT_TRUE(PicBack.PicCards(four) == before);
    gArray->ReduceOne(Home, 0);
    EXPECT_THROW(gArray->ReduceOne(Home, 0), std::out_of_range);
    EXPECT_EQ(gArray->GetTop(Home, 0), -1);
}

TEST_F(MoveCard, PlacesOutsideTheTables) {
    mPosition::Begin({});
    EXPECT_THROW((void)gArray->GetTopPicID(Home, 1), std::out_of_range);
    EXPECT_THROW((void)gArray->GetPicID(Home, 21, 0), std::out_of_range);
    EXPECT_THROW((void)gArray->GetPicID(5, 0, 0), std::out_of_range);
    EXPECT_THROW((void)gArray->GetPicID(Home, 0, 53), std::out_of_range);
    EXPECT_THROW((void)gArray->GetRandom(52), std::out_of_range);
    EXPECT_EQ(gArray->GetPicID(Home, 0, 52), -1);
    EXPECT_THROW((void)gGames->Piles(-1), std::out_of_range);
    EXPECT_THROW((void)gGames->Piles(6), std::out_of_range);
}

}  // namespace
