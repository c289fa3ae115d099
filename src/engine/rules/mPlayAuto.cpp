// What the table does by itself after a move: complete runs leave, cards go to the foundations,
// emptied piles refill. There is no notion of a safe move: a card that fits goes.
#include "engine/rules/mFunc.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cTrans.h"

namespace mPlay {

namespace {

// A move inside a pass may win the game, whose table is cleared then: the passes further out end.
bool Running() { return gData->Figures.GameRunning; }

// Whether thirteen cards from the pile's top down form a run by the foundation's rule, read with the
// roles reversed (the card nearer the top is the lower one of a pair) and without wrap. The run's top
// is the rank that the foundations start from: an Ace, or a King where they build down from Kings.
bool HasCompleteRun(int Pile) {
    const int top = gArray->GetTop(Home, Pile);
    if (top < RankCount - 1) return false;
    const int first = gGames->GoalType() == GoalType::Kings ? King : Ace;
    if (mFunc::CardNum(gArray->GetPicID(Home, Pile, top)) != first) return false;
    for (int i = top; i > top - (RankCount - 1); --i) {
        const int A = gArray->GetPicID(Home, Pile, i);
        const int B = gArray->GetPicID(Home, Pile, i - 1);
        if (!mFunc::OrderOK(A, B, gGames->Order(Goal, 0), false)) return false;
    }
    return true;
}

void MoveCompleteRun(int Pile) {
    const int suitpile = mFunc::CardSuitpile(gArray->GetTopPicID(Home, Pile));
    const int destination = gGames->GoalDiv() != 0 ? suitpile % gGames->GoalDiv() : suitpile;
    gTrans->StartMulti();
    for (int i = 0; i < RankCount; ++i) {
        gArray->MoveCard(gArray->GetTopPicID(Home, Pile), Goal, destination,
                         gArray->GetTop(Goal, destination) + 1);
    }
    gTrans->EndMulti();
}

void OfferTop(int Cell, int Pile) {
    if (Running() && gArray->GetTop(Cell, Pile) >= 0) AutoPlayCard(gArray->GetTopPicID(Cell, Pile));
}

void FoundationPass() {
    for (int p = 0; p < gGames->Piles(Home); ++p) OfferTop(Home, p);
    for (int p = 0; p < gGames->Piles(Res); ++p) OfferTop(Res, p);
    OfferTop(Waste, 0);
    if (gGames->StockType() == StockType::Open) OfferTop(Stock, 0);
}

void Refill(int Cell, int Pile, tMod kind) {
    gArray->MoveCard(gArray->GetTopPicID(Cell), Home, Pile, 0, kind);
}

void RefillPass() {
    for (int p = 0; p < gGames->Piles(Home) && Running(); ++p) {
        if (gArray->GetTop(Home, p) >= 0) continue;
        if (gGames->AutoFill() == AutoFill::FromWaste) {
            if (gArray->GetTop(Waste) >= 0) {
                Refill(Waste, p, tMod::Play);
            } else if (gArray->GetTop(Stock) >= 0) {
                Refill(Stock, p, tMod::FromStock);
            }
        } else if (gGames->AutoFill() == AutoFill::FromReserve && gArray->GetTop(Res) >= 0) {
            Refill(Res, p, tMod::Play);
        }
    }
}

}  // namespace

void AutoPlayAll() {
    if (gGames->GameType() == GameType::CompleteRuns) {
        for (int p = 0; p < gGames->Piles(Home) && Running(); ++p) {
            if (HasCompleteRun(p)) MoveCompleteRun(p);
        }
    }
    if (gData->Get(Setting::Autoplay) != 0 && !gGames->DisAutoPlay()) FoundationPass();
    RefillPass();
}

bool AutoPlayCard(int PicID) {
    for (int p = 0; p < gGames->Piles(Goal); ++p) {
        const int top = gArray->GetTop(Goal, p);
        const bool fits = top < 0 ? mFunc::CardNum(PicID) == gGoalBase
                                  : mFunc::OrderOK(gArray->GetPicID(Goal, p, top), PicID,
                                                   gGames->Order(Goal, p), gGames->AK(Goal) != 0);
        if (!fits) continue;
        const int moves = gTrans->GetTransID();
        gArray->MoveCard(PicID, Goal, p, top + 1);
        // After the whole chain that the move starts. A full pile of a wrapping game refuses in silence.
        if (gTrans->GetTransID() != moves) gData->PlaySound("AutoPlay");
        return true;
    }
    return false;
}

}  // namespace mPlay
