// The log: groups, speeds and sounds, length, the rows of the history.
#include <stdexcept>

#include "support/Script.h"

namespace {

using mPosition::Card;

class TransactionLog : public RulesTest {
protected:
    static void Move(const char* card, int Cell, int Pile) {
        gArray->MoveCard(Card(card), Cell, Pile, gArray->GetTop(Cell, Pile) + 1, tMod::Play, 0);
    }
};

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
        mScript::Begin({}, "H0 2C 3C 4C");
        const char* cards[] = {"4C", "3C", "2C"};
        if (row.Cards > 1) gTrans->StartMulti();
        for (int i = 0; i < row.Cards; ++i) Move(cards[i], Home, 1);
        if (row.Cards > 1) gTrans->EndMulti();
        for (bool (cTrans::*step)(int) : {&cTrans::Undo, &cTrans::Redo}) {
            engine_.Layer.Stage.Steps = 0;
            engine_.Layer.Sounds.Played.clear();
            EXPECT_TRUE((gTrans->*step)(row.Speed));
            EXPECT_EQ(engine_.Layer.Stage.Steps, row.Steps);
            EXPECT_EQ(engine_.Layer.Sounds.Played, row.Sounds);
        }
    }
    gData->Set(Setting::SoundUndo, 0);
    gTrans->Undo(5);
    gTrans->Redo(5);
    EXPECT_THAT(engine_.Layer.Sounds.Played, ElementsAre("UNDO")) << "of the Redo";
}

// All steps are shown, each for one refresh of the screen where three seconds are enough for that.
TEST_F(TransactionLog, ACommandTakesThreeSecondsAtMost) {
    constexpr double Refresh = 1000.0 / 60;
    MemoryStage& stage = engine_.Layer.Stage;
    const auto expect = [&](int steps, const std::string& what) {
        EXPECT_EQ(stage.Steps, steps) << what;
        EXPECT_EQ(stage.Begun, 1) << what;
        EXPECT_NEAR(stage.Waited, std::min(3000.0, steps * Refresh), 1e-6) << what;
        stage.Steps = 0;
        stage.Waited = 0;
        stage.Begun = 0;
    };
    mScript::Begin({}, "H0 2C-6C");
    for (int i = 0; i < 30; ++i) Move("6C", Home, 1 + i % 3);
    gTrans->StartMulti();
    for (const char* card : {"5C", "4C", "3C"}) Move(card, Home, 3);
    gTrans->EndMulti();
    for (int speed = 0; speed <= 50; ++speed) {
        const std::string at = " at speed " + std::to_string(speed);
        mMain::UndoAll(speed);
        expect(31 * speed + 2, "undo all" + at);
        mMain::RedoAll(speed);
        expect(31 * speed + 2, "redo all" + at);
    }
    mMain::Undo(50);
    expect(52, "the next command has its own time");

    game_.Ext.Cards = 104;
    game_.Ext.cRedeals = -1;
    game_.Stock.StockNum = StockNum::Redeal;
    for (const auto type : {RedealType::WasteToStock, RedealType::GatherTableau}) {
        game_.Ext.cRedealType = type;
        mPosition::Begin(game_);
        mPosition::LayRestOnStock();
        const int pile = type == RedealType::WasteToStock ? Waste : Home;
        while (gArray->GetTop(Stock) >= 0) {
            gArray->MoveCard(gArray->GetTopPicID(Stock), pile, 0, gArray->GetTop(pile) + 1, tMod::Deal, 0);
        }
        mMain::StockClick();
        expect(208, "a redeal of 104 cards");
    }
}

// A game that wanders on for long loses nothing of its log; the shown count stops at 16 bits.
TEST_F(TransactionLog, FortyThousandRecords) {
    mScript::Begin({}, "H0 2C 3C");
    constexpr int Records = 40000;
    for (int i = 0; i < Records; ++i) Move("3C", Home, 1 + i % 3);
    EXPECT_EQ(gTrans->GetTransID(), Records);
    EXPECT_EQ(mMain::TickTime()[2], "Moves :40000");
    EXPECT_EQ(gData->Figures.CurMoves, 32767);
    gTrans->UndoAll(0);
    EXPECT_EQ(mPosition::Pile(Home, 0), "2C 3C");
    gTrans->RedoAll(0);
    EXPECT_EQ(mPosition::Pile(Home, 1), "3C");
    EXPECT_EQ(gTrans->CreateLV().back().Columns[0], "40000");
}

TEST_F(TransactionLog, HistoryRows) {
    game_.Res.Piles = 2;
    mScript::Begin(game_, "H0 2C KH QS; S (5C); G3 AD");
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
    EXPECT_THROW((void)gTrans->Record(0), std::out_of_range);
    EXPECT_THROW((void)gTrans->Record(4), std::out_of_range);
    EXPECT_EQ(cTrans::ConvertCell(-1), "");
    EXPECT_EQ(cTrans::ConvertCell(CellCount), "");
}

}  // namespace
