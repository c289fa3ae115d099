// The rules as predicates, the press on a card, and the small figures of play.
#include "engine/rules/mFunc.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include <fmt/format.h>

#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/mRandom.h"

namespace mFunc {

int CardCell(int PicID) { return PicBack.PicCards(PicID).Cell; }
int CardPile(int PicID) { return PicBack.PicCards(PicID).Pile; }
int CardPos(int PicID) { return PicBack.PicCards(PicID).Pos; }
int CardNum(int PicID) { return PicBack.PicCards(PicID).Num; }
int CardSuit(int PicID) { return PicBack.PicCards(PicID).Suit; }
int CardSuitpile(int PicID) { return PicBack.PicCards(PicID).Suitpile; }
int CardColor(int PicID) { return PicBack.PicCards(PicID).Color(); }
int CardFaceMode(int PicID) { return PicBack.PicCards(PicID).FaceMode; }
int CardLeft(int PicID) { return PicBack.PicCards(PicID).Left; }
int CardTop(int PicID) { return PicBack.PicCards(PicID).Top; }

bool SameSuit(int A, int B) { return CardSuit(A) == CardSuit(B); }
bool DiffSuit(int A, int B) { return !SameSuit(A, B); }
bool SameColor(int A, int B) { return CardColor(A) == CardColor(B); }
bool AltColor(int A, int B) { return !SameColor(A, B); }

bool RankSuitOK(int A, int B, Direction Dir, SuitRule Rule, bool AK) {
    return mOrder::RankSuitOK(PicBack.PicCards(A), PicBack.PicCards(B), Dir, Rule, AK);
}

bool OrderOK(int A, int B, RuleCode Order, bool AK) {
    return mOrder::OrderOK(PicBack.PicCards(A), PicBack.PicCards(B), Order, AK);
}

bool IsSeq(int PicID, int Count) {
    const int pile = CardPile(PicID);
    const int first = CardPos(PicID);
    for (int i = first; i < first + Count; ++i) {
        const int A = gArray->GetPicID(Home, pile, i);
        const int B = gArray->GetPicID(Home, pile, i + 1);
        if (!OrderOK(A, B, gGames->MultiOrder(), gGames->AK(Home) != 0)) return false;
    }
    return true;
}

int CountEmpty(int Cell) {
    int empty = 0;
    for (int pile = 0; pile < gGames->Piles(Cell); ++pile) {
        if (gArray->GetTop(Cell, pile) < 0) ++empty;
    }
    return empty;
}

// A run of n cards can be carried over by single cards when n <= (cells + 1) × (piles + 1); the card
// that is lifted is not counted here.
int MaxMoveCards() {
    const int piles = CountEmpty(Home);
    const int cells = CountEmpty(Res);
    return (cells + 1) * piles + cells;
}

LiftRefusal WhyNotLift(int PicID, int& above) {
    using enum LiftRefusal;
    const CardRecord& card = PicBack.PicCards(PicID);
    const bool onTop = card.Pos == gArray->GetTop(card.Cell, card.Pile);
    above = 0;
    switch (card.Cell) {
        case Stock:
            return gGames->StockType() == StockType::Open && onTop ? None : NotOnTop;
        case Waste:
            return card.Pile == 0 && onTop ? None : NotOnTop;
        case Goal:
        case Res:
            return onTop ? None : NotOnTop;
        default:
            break;
    }
    if (onTop) return None;
    above = gArray->GetTop(card.Cell, card.Pile) - card.Pos;
    if (card.FaceMode == 1) return Closed;
    if (!gGames->MultiMove()) return SingleCards;
    if (!IsSeq(PicID, above)) return NotInSequence;
    const bool limited =
        gGames->GameType() == GameType::LimitedRuns || gGames->GameType() == GameType::BaseFills;
    return limited && above > MaxMoveCards() ? TooMany : None;
}

bool HomeAccepts(int PicID, int SCell, int SPile, int Pile) {
    const int top = gArray->GetTop(Home, Pile);
    if (top < 0) {
        if (gGames->EmptyNum != -1 && gGames->EmptyNum != CardNum(PicID)) return false;
        return gGames->EmptyFillType() != EmptyFillType::FromStock || SCell == Stock || SCell == Waste;
    }
    if (SCell == Home && (SPile == Pile || gGames->NoH2HMove)) return false;
    if (gGames->HomeMaxCards != 0 && top >= gGames->HomeMaxCards - 1) return false;
    return OrderOK(gArray->GetPicID(Home, Pile, top), PicID, gGames->Order(Home, 0), gGames->AK(Home) != 0);
}

bool ResAccepts(int Pile, int above) {
    return gGames->ResNum() == ResFreeCells && above == 0 && gArray->GetTop(Res, Pile) < 0;
}

bool GoalAccepts(int PicID, int Pile, int above) {
    if (gGames->GameType() == GameType::CompleteRuns || above != 0) return false;
    const int top = gArray->GetTop(Goal, Pile);
    if (top < 0) return CardNum(PicID) == gGoalBase;
    if (top == FullGoalTop) return false;
    return OrderOK(gArray->GetPicID(Goal, Pile, top), PicID, gGames->Order(Goal, Pile),
                   gGames->AK(Goal) != 0);
}

bool Accepts(int PicID, int above, int Cell, int Pile) {
    switch (Cell) {
        case Home:
            return HomeAccepts(PicID, CardCell(PicID), CardPile(PicID), Pile);
        case Res:
            return ResAccepts(Pile, above);
        case Goal:
            return GoalAccepts(PicID, Pile, above);
        default:
            return false;
    }
}

void TryPick(int PicID, int Cell, int Pile, int Pos) {
    if (Cell == Stock && gGames->StockType() != StockType::Open) {
        mPlay::PressStock();
        return;
    }
    if (!CanLift(PicID, gDrag.gPickCount)) return;
    gDrag.gPicked = true;
    for (int i = 1; i <= gDrag.gPickCount; ++i) PicBack.ToFront(gArray->GetPicID(Cell, Pile, Pos + i));
}

bool IsOverlap(int PicID, int Cell, int Pile, int Pos, bool Mode) {
    const Point place = gGames->Position(Cell, Pile, Pos);
    const int left = CardLeft(PicID);
    const int top = CardTop(PicID);
    if (Mode) {
        return top + CardHeight > place.Y && top < place.Y + CardHeight && left + CardWidth > place.X &&
               left < place.X + CardWidth;
    }
    const int x = RoundToEven(left + CardWidth / 2.0);
    const int y = top + CardHeight / 2;
    return x > place.X && x < place.X + CardWidth && y > place.Y && y < place.Y + CardHeight;
}

GameNumber NewGameNo() {
    double range = 1.0;
    for (int i = 0; i < gData->Get(Setting::RangeIndex); ++i) range *= 10.0;
    RandomSource source;
    source.SeedNegative(-1.0 - static_cast<double>(gData->Layer().Calendar.Now()));
    return std::max(1.0, std::floor(range * static_cast<double>(source.Next())));
}

int ElapsedSecs() {
    if (!gData->Figures.GameRunning) return 0;
    // Between the seconds that the two moments show, as whoever subtracts one text from the other would.
    const auto seconds = [](Moment moment) { return moment / 1000; };
    const Moment passed = seconds(gData->Layer().Calendar.Now()) - seconds(gData->Figures.GameStart);
    constexpr Moment Longest = 0x7fffffff;
    return static_cast<int>(std::clamp<Moment>(passed, 0, Longest));
}

}  // namespace mFunc
