// The main window's commands, states and figures, apart from any window.
#include "engine/commands/mMain.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "engine/commands/mGen.h"
#include "engine/commands/mSpoken.h"
#include "engine/records/mFavourites.h"
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
Hand holder = Hand::Mouse;  // of draggedCard, while gDrag says that a card is lifted
Replay replay = Replay::Stopped;
bool stopEnabled = false;
StatusTexts status;

bool Running() { return gData->Figures.GameRunning; }

// Tells who listens what the command does to the cards; `byHand` is the card that the player moves.
template <typename Command>
void Told(Command command, const char* lead = "", int byHand = -1) {
    const std::optional<mSpoken::Change> change = mSpoken::Watch();
    command();
    if (!change) return;
    if (const std::string text = change->Text(byHand); !text.empty()) mSpoken::Say(lead + text);
}

// The command as one action of the player, only while a game runs.
template <typename Command>
void InGame(Command command) {
    if (!Running()) return;
    const mGen::Action action;
    CancelDrag();  // before the command changes the piles under the card in the hand
    command();
}

void Press(int PicID, double X, double Y, Hand by) {
    if (!Running() || gDrag.gPicked) return;
    const mGen::Action action;
    const CardRecord& card = PicBack.PicCards(PicID);
    gDrag.gPickCount = 0;
    gDrag.gDownX = RoundToEven(X);
    gDrag.gDownY = RoundToEven(Y);
    gDrag.gDownLeft = card.Left;
    gDrag.gDownTop = card.Top;
    draggedCard = PicID;
    holder = by;
    Told([&] { mFunc::TryPick(PicID, card.Cell, card.Pile, card.Pos); });
    gData->PlaySound("CardDown");
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

void MouseDown(int PicID, double X, double Y) { Press(PicID, X, Y, Hand::Mouse); }

void MouseMove(int PicID, double X, double Y) {
    if (!Running() || InHand() != Hand::Mouse || PicID != draggedCard) return;
    const CardRecord& card = PicBack.PicCards(PicID);
    mPlay::DragMove(PicID, card.Pile, card.Pos, X, Y);
}

void MouseUp(int PicID) {
    if (!Running() || InHand() != Hand::Mouse || PicID != draggedCard) return;
    const mGen::Action action;
    gDrag.gPicked = false;
    const CardRecord card = PicBack.PicCards(PicID);
    Told([&] { mPlay::DropCard(PicID, card.Pile, card.Pos); }, "", PicID);
    gData->PlaySound("CardUp");
}

void MouseLost() {
    if (InHand() == Hand::Mouse) CancelDrag();
}

Hand InHand() { return gDrag.gPicked ? holder : Hand::Empty; }

int CardInHand() { return gDrag.gPicked ? draggedCard : -1; }

void Lift(int PicID) { Press(PicID, CardWidth / 2.0, CardHeight / 2.0, Hand::Keys); }

void Carry(int Left, int Top) {
    if (!Running() || InHand() != Hand::Keys) return;
    const CardRecord& card = PicBack.PicCards(draggedCard);
    mPlay::DragMove(draggedCard, card.Pile, card.Pos, gDrag.gDownX + Left - card.Left,
                    gDrag.gDownY + Top - card.Top);
}

bool DropOn(int Cell, int Pile) {
    if (!Running() || InHand() != Hand::Keys) return false;
    if (!mFunc::Accepts(draggedCard, gDrag.gPickCount, Cell, Pile)) return false;
    const mGen::Action action;
    gDrag.gPicked = false;
    Told([=] { mPlay::DropOn(draggedCard, Cell, Pile); }, "", draggedCard);
    gData->PlaySound("CardUp");
    return true;
}

void PutBack() {
    if (!Running() || InHand() != Hand::Keys) return;
    CancelDrag();
    gData->PlaySound("CardUp");
}

void CancelDrag() {
    if (!std::exchange(gDrag.gPicked, false) || !Running()) return;
    const CardRecord& card = PicBack.PicCards(draggedCard);
    mPlay::ReturnCards(draggedCard, card.Pile, card.Pos);
}

void StockClick() {
    InGame([] {
        const bool gathers = gGames->RedealType() == RedealType::GatherTableau && mPlay::MayRedeal();
        if (gathers) mSpoken::Say("The tableau is gathered and dealt again");
        Told(mPlay::StockClick);
    });
}

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
    InGame([Speed] { Told([Speed] { gTrans->Undo(Speed); }, "Undone: "); });
}

void Redo(int Speed) {
    InGame([Speed] { Told([Speed] { gTrans->Redo(Speed); }, "Redone: "); });
}

void UndoAll(int Speed) {
    InGame([Speed] { Told([Speed] { gTrans->UndoAll(Speed); }, "All undone: "); });
}

void RedoAll(int Speed) {
    InGame([Speed] { Told([Speed] { gTrans->RedoAll(Speed); }, "All redone: "); });
}

void FlipAutoplay() {
    const bool on = gData->Get(Setting::Autoplay) != 1;
    gData->Set(Setting::Autoplay, on ? 1 : 0);
    if (on) InGame([] { Told(mPlay::AutoPlayAll); });
}

void FlipToolbar() {
    gData->Set(Setting::ShowToolbar, gData->Get(Setting::ShowToolbar) != 1 ? 1 : 0);
    gData->Layer().Forms.LayoutTable();
}

void AddFavourite() {
    const SessionFigures& figures = gData->Figures;
    if (figures.GameRunning) mFavourites::Add(figures.CurGName, figures.CurGNo);
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
    mGen::RefreshCaption();
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
