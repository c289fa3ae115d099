// The deal up to the tableau: foundations, markers, stock, waste and reserve.
#include "engine/rules/mCards.h"

#include "engine/rules/mFunc.h"
#include "engine/state/cArray.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/codes.h"

namespace mCards {

namespace {

constexpr int Ace = 0;
constexpr int King = 12;

void PlaceOnGoal(int PicID, int Pile) { gArray->MoveCard(PicID, Goal, Pile, 0, tMod::Deal, 0); }

void ShowAt(MarkKind kind, int index, int Cell, int Pile, int picture) {
    const Point place = gGames->Position(Cell, Pile, 0);
    PicBack.ShowMark(kind, index, picture, place.X, place.Y);
}

// Aces, Twos or Kings, each on the pile of its deck and suit; for half and half, Aces on the first
// piles and Kings on the others.
void PlaceBaseRanks(int count) {
    const GoalType type = gGames->GoalType();
    for (int c = 0; c < gGames->TotalCards(); ++c) {
        const int rank = mFunc::CardNum(c);
        const int S = mFunc::CardSuitpile(c);
        bool placed = rank == Number(type) && S < count;
        if (type == GoalType::AcesAndKings) {
            placed = (rank == Ace && 2 * S < count) || (rank == King && 2 * S >= count);
        }
        if (placed) PlaceOnGoal(c, S);
    }
}

// The deck's first card and the next ones of its rank, until `count` lie.
void PlaceFirstRank(int count) {
    gGoalBase = mFunc::CardNum(0);
    int placed = 0;
    for (int c = 0; c < gGames->TotalCards() && placed < count; ++c) {
        if (mFunc::CardNum(c) == gGoalBase) PlaceOnGoal(c, placed++);
    }
}

// For each pile the first card of its suit, whose rank the marker shows.
void PlaceOneOfEachSuit() {
    constexpr int Suits = 4;
    for (int c = 0; c < gGames->TotalCards(); ++c) {
        for (int j = 0; j < gGames->Piles(Goal); ++j) {
            if (mFunc::CardSuit(c) != j % Suits || gArray->GetTop(Goal, j) >= 0) continue;
            PlaceOnGoal(c, j);
            SetGoalMarker(j, j, mFunc::CardNum(c));
            break;
        }
    }
}

int GoalPicture(int Pile, int count) {
    switch (gGames->GoalType()) {
        case GoalType::AcesAndKings:
            return 2 * Pile < count ? Ace : King;
        case GoalType::PlainAces:
            return PlainMark;
        case GoalType::FirstCard:
            return gGoalBase;
        default:
            return Number(gGames->GoalType());
    }
}

}  // namespace

void HideAll() {
    for (int PicID = 0; PicID < MaxCards; ++PicID) {
        PicBack.SetVisible(PicID, false);
        PicBack.SetLoc(PicID, 0, 0, 0);
        PicBack.SetValue(PicID, 0, 0, 0);
    }
    cPlate::ForEachMark([](MarkKind kind, int index) { PicBack.HideMark(kind, index); });
}

void DealGoal() {
    const int count = gGames->Cards(Goal);
    const GoalType type = gGames->GoalType();
    if (type == GoalType::Twos) gGoalBase = 1;
    if (type == GoalType::Kings) gGoalBase = King;
    if (count > 0) {
        switch (type) {
            case GoalType::FirstCard:
                PlaceFirstRank(count);
                break;
            case GoalType::OneOfEachSuit:
                PlaceOneOfEachSuit();
                break;
            default:
                PlaceBaseRanks(count);
                break;
        }
    } else if (type == GoalType::FirstCard) {
        gGoalBase = static_cast<int>(gArray->Random.Next() * 12.0F);  // Ace to Queen
    }
    if (type == GoalType::OneOfEachSuit) return;
    for (int j = 0; j < gGames->Piles(Goal); ++j) SetGoalMarker(j, j, GoalPicture(j, count));
}

void DealMarkers() {
    for (int j = 0; j < gGames->Piles(Res); ++j) SetResMarker(j, j);
    if (gGames->GameType() == GameType::BaseFills) gGames->EmptyNum = gGoalBase == Ace ? King : gGoalBase - 1;
    for (int j = 0; j < gGames->Piles(Home); ++j) {
        if (gGames->EmptyNum >= Ace && gGames->EmptyNum <= PlainMark) {
            SetHomeMarker(j, j, gGames->EmptyNum);
        } else {
            SetHomeMarker(j, j);
        }
    }
    if (gGames->Piles(Waste) > 0) SetWasteMarker(0, 0);
}

void DealStock() {
    if (gGames->StockNum != StockNum::None) SetStockMarker(Number(gGames->StockNum));
    if (gGames->Piles(Stock) == 0) return;
    const bool open = gGames->StockType() == StockType::Open;
    for (int c = 0; c < gGames->TotalCards(); ++c) {
        if (mFunc::CardCell(c) == Goal) continue;
        if (gGames->StockType() == StockType::TwoSuits && mFunc::CardSuit(c) >= 2) continue;
        gArray->MoveCard(c, Stock, 0, gArray->GetTop(Stock) + 1, tMod::Deal, 0, 0, open ? 0 : 1);
    }
}

void DealWaste() {
    for (int i = 0; i < gGames->Cards(Waste); ++i) {
        gArray->MoveCard(gArray->GetTopPicID(Stock), Waste, i, 0, tMod::Deal, 1);
    }
}

void DealRes() {
    const int piles = gGames->Piles(Res);
    for (int i = 0; i < gGames->Cards(Res); ++i) {
        gArray->MoveCard(gArray->GetTopPicID(Stock), Res, i % piles, i / piles, tMod::Deal, 1);
    }
}

void SetGoalMarker(int Index, int Pile, int Picture) { ShowAt(MarkKind::Right, Index, Goal, Pile, Picture); }

void SetResMarker(int Index, int Pile) { ShowAt(MarkKind::Res, Index, Res, Pile, EmptyMark); }

void SetHomeMarker(int Index, int Pile, std::optional<int> Picture) {
    ShowAt(MarkKind::Home, Index, Home, Pile, Picture.value_or(EmptyMark));
}

void SetWasteMarker(int Index, int Pile) { ShowAt(MarkKind::Waste, Index, Waste, Pile, EmptyMark); }

void SetStockMarker(int StockNum) { ShowAt(MarkKind::Stock, 0, Stock, 0, StockNum + EmptyMark); }

}  // namespace mCards
