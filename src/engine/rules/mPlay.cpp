// Play by hand: cards get their faces, are dragged, dropped and sent back.
#include "engine/rules/mPlay.h"

#include "engine/rules/mCards.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/mDeal.h"
#include "engine/state/mRandom.h"

namespace mPlay {

namespace {

// The steps of a dragged group are constants: it keeps this spacing whatever the pile's own.
constexpr int DragStepDown = 250;   // twips
constexpr int DragStepRight = 180;  // twips, where the tableau fans to the right

// Puts the cards above the lifted one in their steps from its place.
void TrailGroup(int Pile, int Pos, int left, int top, bool raise) {
    const PileOrder order = gGames->HomePileOrder();
    const bool right = order == PileOrder::AcrossFanRight || order == PileOrder::DownFanRight;
    for (int i = 1; i <= gDrag.gPickCount; ++i) {
        const int PicID = gArray->GetPicID(Home, Pile, Pos + i);
        PicBack.Move(PicID, right ? left + DragStepRight * i : left, right ? top : top + DragStepDown * i);
        if (raise) PicBack.ToFront(PicID);
    }
}

// One pass of the scan: the first pile that the card hits and that accepts it takes it.
bool DropInPass(int PicID, bool Mode) {
    for (const int Cell : {Home, Res, Goal}) {
        for (int p = 0; p < gGames->Piles(Cell); ++p) {
            const int Pos = Cell == Home ? gArray->GetTop(Home, p) : 0;
            if (mFunc::IsOverlap(PicID, Cell, p, Pos, Mode) && DropOn(PicID, Cell, p)) return true;
        }
    }
    return false;
}

}  // namespace

void LoadControls() {
    for (int PicID = 0; PicID < MaxCards; ++PicID) PicBack.SetDeckPic(PicID, gData->Get(Setting::DeckIndex));
}

void AssignFaces() {
    for (int PicID = 0; PicID < gGames->TotalCards(); ++PicID) {
        const CardFace card = mDeal::FaceOf(gArray->GetRandom(PicID), gGames->SuitType());
        PicBack.SetValue(PicID, card.Suit, card.Num, card.Suitpile);
        PicBack.SetMainPic(PicID, card.Suit * RankCount + card.Num + 1);
        PicBack.ToFront(PicID);
    }
}

void StartDeal() {
    mCards::DealGoal();
    mCards::DealMarkers();
    mCards::DealStock();
    mCards::DealWaste();
    mCards::DealRes();
    gData->PlaySound("Start");
    mCards::DealHome();
}

void DragMove(int PicID, int Pile, int Pos, double X, double Y) {
    const int left = RoundToEven(mFunc::CardLeft(PicID) + X - gDrag.gDownX);
    const int top = RoundToEven(mFunc::CardTop(PicID) + Y - gDrag.gDownY);
    PicBack.Move(PicID, left, top);
    PicBack.ToFront(PicID);
    TrailGroup(Pile, Pos, left, top, true);
    PicBack.Refresh();
}

void DropCard(int PicID, int Pile, int Pos) {
    if (DropInPass(PicID, false) || DropInPass(PicID, true)) return;
    ReturnCards(PicID, Pile, Pos);
}

bool DropOn(int PicID, int DCell, int DPile) {
    const int above = gDrag.gPickCount;
    if (!mFunc::Accepts(PicID, above, DCell, DPile)) return false;
    gArray->MoveCard(PicID, DCell, DPile, gArray->GetTop(DCell, DPile) + 1, tMod::Play, 1, above);
    return true;
}

void ReturnCards(int PicID, int Pile, int Pos) {
    PicBack.Move(PicID, gDrag.gDownLeft, gDrag.gDownTop);
    TrailGroup(Pile, Pos, gDrag.gDownLeft, gDrag.gDownTop, false);
}

}  // namespace mPlay
