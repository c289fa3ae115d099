// Winning a game in every way, and what the end-of-game dialog starts afterwards: by then the chain of
// moves that won must have ended, so that nothing of it touches the new deal.
#include "engine/records/cScore.h"
#include "engine/rules/mPlay.h"
#include "support/Script.h"
#include "tools/mChecks.h"

namespace {

using mPosition::Card;

constexpr const char* AllButOne = "G0 AH-KH; G1 AS-KS; G2 AD-KD; G3 AC-QC; H0 KC";

void Lay(const TestGame& game, const char* table, int autoplay) {
    gData->Set(Setting::Autoplay, autoplay);
    mScript::Begin(game, table);
}

void WinByDrag() {
    Lay({}, AllButOne, 0);
    mPosition::DragTo(Card("KC"), Goal, 3);
}

// The move to the tableau frees the rest, which goes up in a chain.
void WinByAutoplay() {
    Lay({}, "G0 AH-KH; G1 AS-KS; G2 AD-TD; G3 AC-TC; H0 (KD) (QC) JD; H1 (QD) JC; H2 KC", 1);
    mPosition::DragTo(Card("KC"), Home, 3);
}

// The log of this position holds the winning move and one more after it, both undone. By play it cannot
// come to that, as a win ends the game; so the moves are made while no game counts as running.
void LogTheWinningMove() {
    Lay({}, AllButOne, 0);
    mPosition::DragTo(Card("KC"), Home, 1);
    gData->Figures.GameRunning = false;
    gArray->MoveCard(Card("KC"), Goal, 3, 12, tMod::Play, 0, 0, 0, true);
    gArray->MoveCard(Card("KC"), Home, 2, 0, tMod::Play, 0, 0, 0, true);
    while (gTrans->UndoPossible()) gTrans->Undo(0);
    gData->Figures.GameRunning = true;
}

void WinByRedo() {
    LogTheWinningMove();
    mMain::Redo(0);
    EXPECT_TRUE(gData->Figures.GameRunning);
    mMain::Redo(0);
}

void WinByReplay() {
    LogTheWinningMove();
    mMain::ReplayForward();
    for (int i = 0; i < 10; ++i) mMain::TickReplay();
    EXPECT_EQ(mMain::ReplayState(), mMain::Replay::Stopped);
}

void WinBySwitchingAutoplayOn() {
    Lay({}, AllButOne, 0);
    mMain::FlipAutoplay();
}

void WinByACompleteRun() {
    TestGame game;
    game.Home.Order = RuleCode::DownSuit;
    game.Ext.GameType = GameType::CompleteRuns;
    game.Ext.cDisAutoPlay = true;
    Lay(game, "G0 AH-KH; G1 AS-KS; G2 AD-KD; H0 KC-2C; H2 AC", 1);
    mPosition::DragTo(Card("AC"), Home, 0);
}

void WinByTheStock() {
    TestGame game;
    game.Stock.StockMove = StockMove::OneToEachPile;
    Lay(game, "G0 AH-KH; G1 AS-KS; G2 AD-KD; G3 AC-TC; S (JC) (KC) (QC)", 1);
    mPosition::Press(Card("QC"));
}

// The deal is rearranged when its last card lies: what is left goes up in the first autoplay pass.
int dealtCards = 0;
cArray::AfterMove afterMove = nullptr;

void RearrangeTheDeal(bool autoplay) {
    constexpr int KlondikeDeal = 52 + 28;  // cards to the stock, and from it to the tableau
    if (++dealtCards == KlondikeDeal) {
        gArray->Init(gData->Figures.CurGNo);
        for (int PicID = 0; PicID < 52; ++PicID) PicBack.SetLoc(PicID, Res, 20, 0);
        mScript::Lay("G0 AH-KH; G1 AS-KS; G2 AD-KD; G3 AC-JC; H3 KC QC");
        gArray->OnMoved = afterMove;
    }
    afterMove(autoplay);
}

void WinByTheFirstPass() {
    gData->Set(Setting::Autoplay, 1);
    dealtCards = 0;
    afterMove = gArray->OnMoved;
    gArray->OnMoved = RearrangeTheDeal;
    mGen::StartGame("Klondike", 1.0);
}

// The deal that stands is the one of its number, whole, with no more than its first autoplay pass made.
void ExpectFreshDeal() {
    ASSERT_TRUE(gData->Figures.GameRunning);
    EXPECT_EQ(mChecks::TableFault(), "");
    EXPECT_FALSE(gDrag.gPicked);
    EXPECT_EQ(gRedealCount, 0);
    EXPECT_FALSE(gTrans->RedoPossible());
    for (int i = 1; i <= gTrans->MaxTrans(); ++i) EXPECT_EQ(gTrans->Record(i).DCell, Goal);
    mMain::UndoAll(0);
    const std::vector<CardPlace> found = mChecks::Places();
    mGen::AsideGame aside;
    const std::string name = gData->Figures.CurGName;
    const GameNumber number = gData->Figures.CurGNo;
    aside.Deal(name, number);
    EXPECT_EQ(mChecks::Difference(mChecks::Places(), found, [](int) { return false; }), "");
}

constexpr std::pair<const char*, void (*)()> Ways[] = {
    {"drag", WinByDrag},
    {"autoplay", WinByAutoplay},
    {"redo", WinByRedo},
    {"replay", WinByReplay},
    {"autoplay switched on", WinBySwitchingAutoplayOn},
    {"a complete run", WinByACompleteRun},
    {"the stock", WinByTheStock},
    {"the first autoplay pass", WinByTheFirstPass},
};

void WinAndGoOn(MemoryForms& forms, void (*win)(), AfterGame choice) {
    gData->SetCurGName("Canfield");  // the game of the position counts as this one
    const int recorded = gScore->SesTop();
    const int finished = forms.Finished;
    const int selected = forms.SelectShown;
    cTrans log;
    forms.Choice = choice;
    forms.OnFinish = [&] {
        // Behind the open dialog the timers go on.
        log = *gTrans;
        EXPECT_FALSE(gData->Figures.GameRunning);
        EXPECT_EQ(gScore->SesTop(), recorded + 1);
        for (const std::string& text : mMain::TickTime()) EXPECT_EQ(text, "");
        EXPECT_FALSE(mMain::UpdateMenus().Undo);
        mMain::TickReplay();
        mMain::Undo(0);
        mMain::StockClick();
        EXPECT_TRUE(*gTrans == log);
    };
    win();
    EXPECT_EQ(forms.Finished, finished + 1);
    ASSERT_EQ(gScore->SesTop(), recorded + 1);
    EXPECT_EQ(gScore->GetSes(recorded + 1).Won, 1);
    EXPECT_EQ(forms.SelectShown - selected, choice == AfterGame::SelectGame ? 1 : 0);
    if (choice == AfterGame::NewGame || choice == AfterGame::RestartGame) return ExpectFreshDeal();
    EXPECT_FALSE(gData->Figures.GameRunning);
    EXPECT_EQ(gTrans->MaxTrans(), log.MaxTrans()) << "the log is kept until the next game";
    EXPECT_FALSE(PicBack.PicCards(0).Visible);
}

TEST(Winning, IsRecordedOnceAndTheNextGameIsWhole) {
    Engine engine;
    for (const auto& [name, win] : Ways) {
        for (const AfterGame choice :
             {AfterGame::NewGame, AfterGame::RestartGame, AfterGame::SelectGame, AfterGame::Nothing}) {
            SCOPED_TRACE(std::string(name) + ", then " + std::to_string(static_cast<int>(choice)));
            if (gData->Figures.GameRunning) mMain::CloseGame();
            WinAndGoOn(engine.Layer.Forms, win, choice);
        }
    }
}

TEST(Winning, LeadsToADealThatWasAskedForOverItsDialog) {
    Engine engine;
    engine.Layer.Forms.OnFinish = [] { mGen::StartAfter("Yukon", "0007"); };
    for (const auto& [name, win] : Ways) {
        SCOPED_TRACE(name);
        if (gData->Figures.GameRunning) mMain::CloseGame();
        engine.Layer.Forms.Choice = AfterGame::NewGame;  // the deal was asked for later
        win();
        EXPECT_EQ(gData->Figures.CurGName, "Yukon");
        EXPECT_EQ(gData->Figures.CurGNo, GameNumber("0007"));
        ExpectFreshDeal();
    }
}

// The card that completes smaller foundations wins, and no card before it.
TEST(CardsToWin, AGameWithCardsLeftOverIsWon) {
    Engine engine;
    TestGame game;
    game.Goal.Piles = 1;
    Lay(game, "G0 AH-JH; H0 2C KH QH", 0);
    mPosition::DragTo(Card("QH"), Goal, 0);
    EXPECT_TRUE(gData->Figures.GameRunning);
    mPosition::DragTo(Card("KH"), Goal, 0);
    EXPECT_EQ(engine.Layer.Forms.Finished, 1);
}

// The dialog shows the figures of the last tick; a negative score is drawn as none.
TEST(Finish, ShowsTheFiguresOfTheGame) {
    Engine engine;
    Lay({}, AllButOne, 0);
    gData->SetCurGName("Klondike");
    gData->Figures.CurGNo = std::string("007");
    gData->Figures.CurTime = 3723;
    gData->Figures.CurMoves = 12;
    gData->Figures.CurScore = -5;
    mPosition::DragTo(Card("KC"), Goal, 3);
    const FinishSummary& summary = engine.Layer.Forms.Last;
    const std::vector<std::string> lines = {" Game : 007", " Player : Player1", " Time : 1:02:03",
                                            " Moves : 12", " Score : -5"};
    EXPECT_EQ(summary.GameName, "Klondike");
    EXPECT_EQ(summary.Lines, lines);
    EXPECT_EQ(summary.Score, 0);
    EXPECT_EQ(summary.Moves, 12);
    EXPECT_EQ(summary.Seconds, 3723);
    EXPECT_EQ(engine.Layer.Sounds.Played.back(), "WIN");
}

}  // namespace
