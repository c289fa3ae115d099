// The main window's commands, states and figures, apart from any window.
#include "engine/commands/mMain.h"

#include <algorithm>
#include <limits>

#include "engine/commands/mGen.h"
#include "engine/records/cScore.h"
#include "engine/rules/mFunc.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"
#include "engine/state/mRandom.h"

namespace mMain {

namespace {

int draggedCard = -1;
Replay replay = Replay::Stopped;
bool stopEnabled = false;
StatusTexts status;

bool Running() { return gData->Figures.GameRunning; }

// The command as one action of the player, only while a game runs.
template <typename Command>
void InGame(Command command) {
    if (!Running()) return;
    const mGen::Action action;
    CancelDrag();  // before the command changes the piles under the card in the hand
    command();
}

template <typename Command>
void OutsideDeal(Command command) {
    if (mGen::Dealing()) return;
    const mGen::Action action;
    CancelDrag();
    command();
}

}  // namespace

void Load() {
    draggedCard = -1;
    status = {};
    StopReplay();
    mGen::InitApp();
    gData->Layer().Forms.SetCaption(gData->ProdName());
}

void MouseDown(int PicID, double X, double Y) {
    if (!Running() || gDrag.gPicked) return;
    const mGen::Action action;
    const CardRecord& card = PicBack.PicCards(PicID);
    gDrag.gPickCount = 0;
    gDrag.gDownX = RoundToEven(X);
    gDrag.gDownY = RoundToEven(Y);
    gDrag.gDownLeft = card.Left;
    gDrag.gDownTop = card.Top;
    draggedCard = PicID;
    mFunc::TryPick(PicID, card.Cell, card.Pile, card.Pos);
    gData->PlaySound("CardDown");
}

void MouseMove(int PicID, double X, double Y) {
    if (!Running() || !gDrag.gPicked || PicID != draggedCard) return;
    const CardRecord& card = PicBack.PicCards(PicID);
    mPlay::DragMove(PicID, card.Pile, card.Pos, X, Y);
}

void MouseUp(int PicID) {
    if (!Running() || !gDrag.gPicked || PicID != draggedCard) return;
    const mGen::Action action;
    gDrag.gPicked = false;
    const CardRecord card = PicBack.PicCards(PicID);
    mPlay::DropCard(PicID, card.Cell, card.Pile, card.Pos);
    gData->PlaySound("CardUp");
}

void CancelDrag() {
    if (Running() && gDrag.gPicked) {
        const CardRecord& card = PicBack.PicCards(draggedCard);
        mPlay::ReturnCards(draggedCard, card.Pile, card.Pos);
    }
    gDrag.gPicked = false;
}

void StockClick() { InGame(mPlay::StockClick); }

void NewGame() {
    OutsideDeal([] { mGen::StartGame(gData->LastGName(), mFunc::NewGameNo()); });
}

void RestartGame() {
    OutsideDeal([] {
        if (Running()) mGen::StartGame(gData->Figures.CurGName, gData->Figures.CurGNo);
    });
}

void CloseGame() {
    InGame([] { mGen::CloseGame(0); });
}

void RecentGame(int i) {
    OutsideDeal([i] { mGen::StartGame(gData->GetRecent(i), mFunc::NewGameNo()); });
}

void Undo(int Speed) {
    InGame([Speed] { gTrans->Undo(Speed); });
}

void Redo(int Speed) {
    InGame([Speed] { gTrans->Redo(Speed); });
}

void UndoAll(int Speed) {
    InGame([Speed] { gTrans->UndoAll(Speed); });
}

void RedoAll(int Speed) {
    InGame([Speed] { gTrans->RedoAll(Speed); });
}

void FlipAutoplay() {
    const bool on = gData->Get(Setting::Autoplay) != 1;
    gData->Set(Setting::Autoplay, on ? 1 : 0);
    if (on) InGame(mPlay::AutoPlayAll);
}

void FlipToolbar() {
    gData->Set(Setting::ShowToolbar, gData->Get(Setting::ShowToolbar) != 1 ? 1 : 0);
    gData->Layer().Forms.LayoutTable();
}

void AddFavourite() {
    const SessionFigures& figures = gData->Figures;
    if (!figures.GameRunning) return;
    if (!gScore->AddFav(figures.CurGName, figures.CurGNo)) return;
    gData->Layer().Forms.Inform("Game <" + mGameNumber::Text(figures.CurGNo) +
                                "> Successfully Added to Favorites Under <" + figures.CurGName + "> Folder");
}

Replay ReplayState() { return replay; }

void ReplayForward() { replay = Replay::Forward; }

void ReplayBackward() { replay = Replay::Backward; }

void ReplayAll() {
    UndoAll(1);
    ReplayForward();
}

void StopReplay() {
    stopEnabled = false;
    replay = Replay::Stopped;
}

void TickReplay() {
    if (replay == Replay::Stopped) return;
    if (!Running()) {
        StopReplay();
        return;
    }
    stopEnabled = true;
    if (gDrag.gPicked) return;  // the next step waits until the card in the hand lies
    const mGen::Action action;
    const int Speed = gData->Get(Setting::ReplaySpeed);
    const bool done = replay == Replay::Forward ? gTrans->Redo(Speed) : gTrans->Undo(Speed);
    if (!done) StopReplay();
}

CommandStates UpdateMenus() {
    CommandStates states;
    states.Toolbar = gData->Get(Setting::ShowToolbar) != 0;
    states.GameRunning = Running();
    states.AutoplayChecked = gData->Get(Setting::Autoplay) != 0;
    states.AutoplayEnabled = !gGames->DisAutoPlay();
    states.Stop = stopEnabled;
    if (Running() && replay == Replay::Stopped) {
        states.Undo = states.Back = gTrans->UndoPossible();
        states.Redo = states.Forward = gTrans->RedoPossible();
        states.ReplayAll = states.Undo || states.Redo;
    }
    mGen::RefreshRecent();
    return states;
}

StatusTexts TickTime() {
    SessionFigures& figures = gData->Figures;
    status = {};
    if (!Running()) return status;
    const int moves = gTrans->GetTransID();
    if (gData->Get(Setting::ShowScore) == 1) status[0] = "Score :" + std::to_string(mGen::CalcScore());
    if (gData->Get(Setting::ShowTime) == 1) status[1] = "Time :" + mFunc::FormatTime(mFunc::ElapsedSecs());
    if (gData->Get(Setting::ShowMoves) == 1) status[2] = "Moves :" + std::to_string(moves);
    // In this order: the stored score lags one tick behind time and moves.
    figures.CurScore = mGen::CalcScore();
    figures.CurTime = mFunc::ElapsedSecs();
    figures.CurMoves = std::min<int>(moves, std::numeric_limits<short>::max());
    if (gGames->StockNum == StockNum::Redeal) {
        const bool cards = gArray->GetTop(Stock) >= 0 || gArray->GetTop(Waste) >= 0;
        const bool open = cards || gGames->GameType() == GameType::OpenRedeal;
        PicBack.SetMarkPicture(MarkKind::Stock, 0, open ? RedealMark : NoRedealMark);
    }
    return status;
}

const StatusTexts& Status() { return status; }

}  // namespace mMain
