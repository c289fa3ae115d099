// The stock's commands and the redeals.
#include "engine/rules/mFunc.h"
#include "engine/rules/mPlay.h"
#include "engine/state/StepBudget.h"
#include "engine/state/cArray.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"

namespace mPlay {

namespace {

// The last permitted redeal turns the marker into a mere mark for the rest of the game.
void CloseStockAfterLastRedeal() {
    if (gRedealCount != gGames->Redeals()) return;
    PicBack.SetMarkPicture(MarkKind::Stock, 0, NoRedealMark);
    gGames->StockNum = StockNum::NoRedeal;
}

void DealFromStock(int Pile, int Pos, int Speed) {
    gArray->MoveCard(gArray->GetTopPicID(Stock), Home, Pile, Pos, tMod::FromStock, Speed, 0, 0, true);
}

}  // namespace

void PressStock() {
    constexpr int DealsToPiles = 3;
    switch (gGames->StockMove()) {
        case StockMove::OneToEachPile:
            DealStockToHome();
            return;
        case StockMove::FirstThreeToPiles:
            if (gGames->CarreNapCount < DealsToPiles) {
                DealStockToHome();
                ++gGames->CarreNapCount;
                return;
            }
            break;
        case StockMove::ThreeToWaste:
            gArray->Stock3Waste();
            return;
        case StockMove::None:
        case StockMove::OneToWaste:
        case StockMove::ByHand:
            break;
    }
    gArray->AddtoWaste(gArray->GetTopPicID(Stock));
}

void DealStockToHome() {
    constexpr int Speed = 5;
    gTrans->StartMulti();
    for (int p = 0; p < gGames->Piles(Home); ++p) {
        if (gArray->GetTop(Stock) >= 0) DealFromStock(p, gArray->GetTop(Home, p) + 1, Speed);
    }
    gTrans->EndMulti();
    AutoPlayAll();  // once after the whole row, not after each card
}

bool MayRedeal() {
    return gGames->StockNum == StockNum::Redeal &&
           (gGames->Redeals() == -1 || gRedealCount < gGames->Redeals());
}

void StockClick() {
    if (MayRedeal()) RedealClick();
}

void RedealClick() {
    switch (gGames->RedealType()) {
        case RedealType::WasteToStock:
            RedealToStock();
            break;
        case RedealType::GatherTableau:
            RedealGather();
            break;
    }
}

void RedealToStock() {
    constexpr int Speed = 2;
    const StepBudget budget(Speed * (gArray->GetTop(Waste) + 1));
    ++gRedealCount;
    gTrans->StartMulti();
    while (gArray->GetTop(Waste) >= 0) {
        gArray->MoveCard(gArray->GetTopPicID(Waste), Stock, 0, gArray->GetTop(Stock) + 1, tMod::ToStock,
                         Speed, 0, 1);
    }
    gTrans->EndMulti();
    CloseStockAfterLastRedeal();
}

void RedealGather() {
    ++gRedealCount;
    {
        int gathered = 0;
        for (int p = 0; p < gGames->Piles(Home); ++p) gathered += gArray->GetTop(Home, p) + 1;
        const StepBudget budget(2 * gathered + gArray->GetTop(Stock) + 1);
        gTrans->StartMulti();
        for (int p = 0; p < gGames->Piles(Home); ++p) {
            while (gArray->GetTop(Home, p) >= 0) {
                gArray->MoveCard(gArray->GetTopPicID(Home, p), Stock, 0, gArray->GetTop(Stock) + 1,
                                 tMod::ToStock, 1, 0, 1, true);
            }
        }
        for (int row = 0; gArray->GetTop(Stock) >= 0; ++row) {
            for (int p = 0; p < gGames->Piles(Home) && gArray->GetTop(Stock) >= 0; ++p)
                DealFromStock(p, row, 1);
        }
        gTrans->EndMulti();
    }
    CloseStockAfterLastRedeal();
    AutoPlayAll();
}

}  // namespace mPlay
