// The deal carried out on the table: each step of it a move, and the markers of the empty piles.
#include "engine/rules/mCards.h"

#include <span>
#include <vector>

#include "engine/rules/mFunc.h"
#include "engine/state/cArray.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/codes.h"
#include "engine/state/mDeal.h"

namespace mCards {

namespace {

void ShowAt(MarkKind kind, int index, int Cell, int Pile, int picture) {
    const Point place = gGames->Position(Cell, Pile, 0);
    PicBack.ShowMark(kind, index, picture, place.X, place.Y);
}

std::span<const CardRecord> GameCards() {
    return PicBack.Cards().first(static_cast<std::size_t>(gGames->TotalCards()));
}

// The cards as the deal sees them.
mDeal::Faces Faces() {
    const auto cards = GameCards();
    return {cards.begin(), cards.end()};
}

mDeal::Pack StockCards() {
    const auto stock = gArray->Cards(Stock);
    return {stock.begin(), stock.end()};
}

void Make(const mDeal::Step& step, int Speed) {
    gArray->MoveCard(step.PicID, step.Cell, step.Pile, step.Pos, tMod::Deal, Speed, 0, step.Closed ? 1 : 0);
}

// The base cards and the stock build up in one sweep, the other groups card by card.
constexpr int AtOnce = 0;
constexpr int InSteps = 1;

void MakeAll(const mDeal::Steps& steps, int Speed) {
    for (const mDeal::Step& step : steps) Make(step, Speed);
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
    const mDeal::Foundations goal = mDeal::DealGoal(*gGames, Faces(), gArray->Random);
    const bool ownRanks = gGames->GoalType() == GoalType::OneOfEachSuit;
    gGoalBase = goal.Base;
    for (const mDeal::Step& step : goal.Placed) {
        Make(step, AtOnce);
        if (ownRanks) SetGoalMarker(step.Pile, step.Pile, mFunc::CardNum(step.PicID));
    }
    if (ownRanks) return;
    for (int j = 0; j < gGames->Piles(Goal); ++j) SetGoalMarker(j, j, GoalPicture(j, gGames->Cards(Goal)));
}

void DealMarkers() {
    for (int j = 0; j < gGames->Piles(Res); ++j) SetResMarker(j, j);
    gGames->EmptyNum = mDeal::EmptyNum(*gGames, gGoalBase);
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
    std::vector<bool> placed;
    placed.reserve(GameCards().size());
    for (const CardRecord& card : GameCards()) placed.push_back(card.Cell == Goal);
    MakeAll(mDeal::DealStock(*gGames, Faces(), placed), AtOnce);
}

void DealWaste() {
    mDeal::Pack stock = StockCards();
    MakeAll(mDeal::DealWaste(*gGames, stock), InSteps);
}

void DealRes() {
    mDeal::Pack stock = StockCards();
    MakeAll(mDeal::DealRes(*gGames, stock), InSteps);
}

void DealHome() {
    mDeal::Pack stock = StockCards();
    MakeAll(mDeal::DealHome(*gGames, Faces(), stock, gArray->Random), InSteps);
    if (mDeal::OpensTops(gGames->HomeType())) {
        for (int p = 0; p < gGames->Piles(Home); ++p) {
            if (gArray->GetTop(Home, p) >= 0) PicBack.SetFaceMode(gArray->GetTopPicID(Home, p), 0);
        }
    }
    if (gGames->MoveKings()) SinkKings();
}

void SinkKings() {
    for (int sweep = 0; sweep < mDeal::KingSweeps; ++sweep) {
        for (int p = 0; p < gGames->Piles(Home); ++p) {
            std::vector<int> ranks;
            for (int i = 0; i <= gArray->GetTop(Home, p); ++i) {
                ranks.push_back(mFunc::CardNum(gArray->GetPicID(Home, p, i)));
            }
            const std::vector<int> places = mDeal::SinkKings(ranks);
            for (const int i : places) {
                const int king = gArray->GetPicID(Home, p, i);
                const int other = gArray->GetPicID(Home, p, i - 1);
                gArray->MoveCard(king, Home, p, i - 1, tMod::Reposition, 0);
                gArray->MoveCard(other, Home, p, i, tMod::Reposition, 0);
            }
            if (places.empty()) continue;
            for (int i = 0; i <= gArray->GetTop(Home, p); ++i) PicBack.ToFront(gArray->GetPicID(Home, p, i));
        }
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
