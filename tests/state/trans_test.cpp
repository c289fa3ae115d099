// The log: groups, Undo and Redo of every kind of move, speeds and sounds, the rows of the history.
#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rules/mFunc.h"
#include "shell/cData.h"
#include "state/cArray.h"
#include "state/cTrans.h"
#include "support/Checks.h"
#include "support/Fixture.h"
#include "table/cPlate.h"
#include "table/mMain.h"

namespace {

using mPosition::Card;
using testing::ElementsAre;
using testing::IsEmpty;

class TransactionLog : public testing::Test {
protected:
    void SetUp() override { gData->Set(Setting::Autoplay, 0); }

    static void Move(const char* card, int Cell, int Pile) {
        gArray->MoveCard(Card(card), Cell, Pile, gArray->GetTop(Cell, Pile) + 1, tMod::Play, 0);
    }
    /// Whether Undo gives back `before` and Redo the position as it is now.
    static void ExpectBothWays(const std::vector<CardPlace>& before, int steps) {
        const auto exact = [](int) { return false; };
        const std::vector<CardPlace> after = mChecks::Places();
        for (int i = 0; i < steps; ++i) EXPECT_TRUE(gTrans->Undo(0));
        EXPECT_EQ(mChecks::Difference(before, mChecks::Places(), exact), "");
        for (int i = 0; i < steps; ++i) EXPECT_TRUE(gTrans->Redo(0));
        EXPECT_EQ(mChecks::Difference(after, mChecks::Places(), exact), "");
    }

    Engine engine_;
};

TEST_F(TransactionLog, ANewMoveDropsTheUndoneOnes) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "2C 3C 4C");
    for (const char* card : {"4C", "3C", "2C"}) Move(card, Home, 1);
    EXPECT_FALSE(gTrans->Redo());
    gTrans->Undo(0);
    gTrans->Undo(0);
    EXPECT_EQ(gTrans->GetTransID(), 1);
    EXPECT_EQ(gTrans->MaxTrans(), 3);
    EXPECT_TRUE(gTrans->RedoPossible());
    Move("3C", Home, 2);
    EXPECT_EQ(gTrans->MaxTrans(), 2);
    EXPECT_FALSE(gTrans->RedoPossible());
    gTrans->UndoAll(0);
    EXPECT_FALSE(gTrans->Undo());
    EXPECT_FALSE(gTrans->UndoPossible());
    EXPECT_EQ(mPosition::Pile(Home, 0), "2C 3C 4C");
    gTrans->RedoAll(0);
    EXPECT_EQ(mPosition::Pile(Home, 2), "3C");
}

TEST_F(TransactionLog, EveryKindOfMoveBothWays) {
    struct Row {
        const char* Kind;
        void (*Move)();
        int Steps;
    };
    const Row rows[] = {
        {"a group that uncovers", [] { gArray->MoveCard(Card("KH"), Home, 3, 0, tMod::Play, 0, 2); }, 1},
        {"a card from the stock", [] { gArray->AddtoWaste(gArray->GetTopPicID(Stock)); }, 1},
        {"three cards from the stock", [] { gArray->Stock3Waste(); }, 3},
        {"the waste turned over", [] { mMain::StockClick(); }, 1},
        {"a closed top card", [] { Move("7D", Home, 3); }, 1},
        {"a closed top card above closed ones", [] { Move("7D", Home, 2); }, 1},
        {"a group with closed cards", [] { gArray->MoveCard(Card("9S"), Home, 3, 0, tMod::Play, 0, 2); }, 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Kind);
        TestGame game;
        game.Stock.StockNum = StockNum::Redeal;
        game.Ext.cRedeals = -1;
        mPosition::Begin(game);
        mPosition::Lay(Home, 0, "(2D) (3D) KH QS JD");
        mPosition::Lay(Home, 1, "9S (8D) (7D)");
        mPosition::Lay(Home, 2, "(4S) (5S)");
        mPosition::Lay(Waste, 0, "2C 3C 4C");
        mPosition::LayRestOnStock();
        const std::vector<CardPlace> before = mChecks::Places();
        row.Move();
        ExpectBothWays(before, row.Steps);
        EXPECT_EQ(mChecks::TableFault(), "");
    }
}

// An uncovered card closes before the moved one comes back onto it, so that it finds its old place.
TEST_F(TransactionLog, UndoClosesWhatAMoveUncovered) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "(2D) (3D) KH");
    const int top = PicBack.PicCards(Card("KH")).Top;
    EXPECT_EQ(top, 2200 + 2 * 60);
    Move("KH", Home, 1);
    EXPECT_EQ(mPosition::Pile(Home, 0), "(2D) 3D");
    gTrans->Undo(0);
    EXPECT_EQ(mPosition::Pile(Home, 0), "(2D) (3D) KH");
    EXPECT_EQ(PicBack.PicCards(Card("KH")).Top, top);
    gTrans->Redo(0);
    EXPECT_EQ(mPosition::Pile(Home, 0), "(2D) 3D");
}

TEST_F(TransactionLog, AGroupIsOneStep) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "2C 3C 4C 5C 6C");
    Move("6C", Home, 1);
    gTrans->StartMulti();
    Move("5C", Home, 2);
    gTrans->StartMulti();
    Move("4C", Home, 2);
    gTrans->EndMulti();
    Move("3C", Home, 2);
    gTrans->EndMulti();
    Move("2C", Home, 2);
    std::string marks;
    for (int i = 1; i <= 5; ++i) marks += std::to_string(gTrans->Record(i).Multi);
    EXPECT_EQ(marks, "01100");
    gTrans->Undo(0);
    EXPECT_EQ(gTrans->GetTransID(), 4);
    gTrans->Undo(0);
    EXPECT_EQ(gTrans->GetTransID(), 1);
    EXPECT_EQ(mPosition::Pile(Home, 0), "2C 3C 4C 5C");
    gTrans->Redo(0);
    EXPECT_EQ(gTrans->GetTransID(), 4);
    EXPECT_EQ(mPosition::Pile(Home, 2), "5C 4C 3C");
}

// In a group only the record that moves first has the caller's speed; the others make one step.
TEST_F(TransactionLog, SpeedAndSound) {
    struct Row {
        int Cards;  // of the group; 1 is a single move
        int Speed;
        long Steps;
        std::vector<std::string> Sounds;
    };
    const Row rows[] = {
        {1, 0, 0, {}},       {1, 1, 1, {}}, {1, 3, 3, {}}, {1, 4, 4, {"UNDO"}},
        {3, 4, 6, {"UNDO"}}, {3, 3, 5, {}}, {3, 0, 2, {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(row.Cards) + " cards, speed " + std::to_string(row.Speed));
        mPosition::Begin({});
        mPosition::Lay(Home, 0, "2C 3C 4C");
        const char* cards[] = {"4C", "3C", "2C"};
        if (row.Cards > 1) gTrans->StartMulti();
        for (int i = 0; i < row.Cards; ++i) Move(cards[i], Home, 1);
        if (row.Cards > 1) gTrans->EndMulti();
        for (bool (cTrans::*step)(int) : {&cTrans::Undo, &cTrans::Redo}) {
            engine_.Layer.Stage.Steps = 0;
            engine_.Layer.Sounds.Played.clear();
            EXPECT_TRUE((gTrans.get()->*step)(row.Speed));
            EXPECT_EQ(engine_.Layer.Stage.Steps, row.Steps);
            EXPECT_EQ(engine_.Layer.Sounds.Played, row.Sounds);
        }
    }
}

TEST_F(TransactionLog, SoundsHaveTheirSettings) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "2C 3C");
    Move("3C", Home, 1);
    gData->Set(Setting::SoundUndo, 0);
    gTrans->Undo(5);
    EXPECT_THAT(engine_.Layer.Sounds.Played, IsEmpty());
    gTrans->Redo(5);
    EXPECT_THAT(engine_.Layer.Sounds.Played, ElementsAre("UNDO"));
}

// A game that wanders on for long loses nothing of its log; the shown count stops at 16 bits.
TEST_F(TransactionLog, FortyThousandRecords) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "2C 3C");
    const std::vector<CardPlace> before = mChecks::Places();
    constexpr int Records = 40000;
    for (int i = 0; i < Records; ++i) {
        gArray->MoveCard(Card("3C"), Home, 1 + i % 3, 0, tMod::Play, 0);
    }
    EXPECT_EQ(gTrans->GetTransID(), Records);
    EXPECT_EQ(gTrans->Record(1).DPile, 1);
    EXPECT_EQ(gTrans->Record(Records).DPile, 1);
    EXPECT_EQ(mMain::TickTime()[2], "Moves :40000");
    EXPECT_EQ(gData->Figures.CurMoves, 32767);
    const std::vector<CardPlace> after = mChecks::Places();
    gTrans->UndoAll(0);
    EXPECT_EQ(mChecks::Difference(before, mChecks::Places(), [](int) { return false; }), "");
    gTrans->RedoAll(0);
    EXPECT_EQ(gTrans->GetTransID(), Records);
    EXPECT_EQ(mChecks::Difference(after, mChecks::Places(), [](int) { return false; }), "");
    EXPECT_EQ(gTrans->CreateLV().back().Columns[0], "40000");
}

TEST_F(TransactionLog, HistoryRows) {
    TestGame game;
    game.Res.Piles = 2;
    mPosition::Begin(game);
    mPosition::Lay(Home, 0, "2C KH QS");
    mPosition::Lay(Stock, 0, "(5C)");
    mPosition::Lay(Goal, 3, "AD");
    gArray->MoveCard(Card("KH"), Home, 2, 0, tMod::Play, 0, 1);
    gArray->AddtoWaste(Card("5C"));
    Move("AD", Res, 1);
    gTrans->Undo(0);
    const std::vector<HistoryRow> rows = gTrans->CreateLV();
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_THAT(rows[0].Columns,
                ElementsAre("1", "Tableau (Pile 1, Card 2)", "Tableau (Pile 3, Card 1)", "2"));
    EXPECT_THAT(rows[1].Columns, ElementsAre("2", "Stock (Pile 1, Card 1)", "Waste (Pile 1, Card 1)", "1"));
    EXPECT_THAT(rows[2].Columns,
                ElementsAre("3", "Foundation (Pile 4, Card 1)", "Reserve (Pile 2, Card 1)", "1"));
    EXPECT_EQ(rows[0].Style, HistoryStyle::Plain);
    EXPECT_EQ(rows[1].Style, HistoryStyle::Current);
    EXPECT_EQ(rows[2].Style, HistoryStyle::Undone);
    EXPECT_EQ(cTrans::ConvertCell(5), "");
    EXPECT_THROW((void)gTrans->Record(0), std::out_of_range);
    EXPECT_THROW((void)gTrans->Record(4), std::out_of_range);
}

}  // namespace
