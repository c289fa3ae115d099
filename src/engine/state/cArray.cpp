// The card table: tables, shuffle, and the move that all play, deal, Undo and Redo go through.
#include "engine/state/cArray.h"

#include <algorithm>
#include <stdexcept>

#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"
#include "engine/state/mDeal.h"

std::size_t cArray::PileIndex(int Cell, int Pile) {
    if (Cell < 0 || Cell >= CellCount || Pile < 0 || Pile >= PilesOfCell) {
        throw std::out_of_range("cArray: no such pile");
    }
    return static_cast<std::size_t>(Cell * PilesOfCell + Pile);
}

std::size_t cArray::PlaceIndex(int Cell, int Pile, int Pos) const {
    if (Pos < 0 || Pos > totalCards_) throw std::out_of_range("cArray: no such place");
    return PileIndex(Cell, Pile) * static_cast<std::size_t>(totalCards_ + 1) + static_cast<std::size_t>(Pos);
}

void cArray::Init(const GameNumber& GameNo) {
    totalCards_ = gGames->TotalCards();
    const auto places = static_cast<std::size_t>(CellCount * PilesOfCell * (totalCards_ + 1));
    posTable_.assign(places, -1);
    topTable_.fill(-1);
    randTable_ = mDeal::Shuffle(totalCards_, mGameNumber::Value(GameNo), Random);
}

void cArray::SetDeck(const std::vector<int>& values) {
    if (static_cast<int>(values.size()) != totalCards_) throw std::invalid_argument("cArray: no whole deck");
    std::transform(values.begin(), values.end(), randTable_.begin(),
                   [](int value) { return static_cast<short>(value); });
}

int cArray::GetRandom(int PicID) const {
    if (PicID < 0 || PicID >= totalCards_) throw std::out_of_range("cArray: no such card");
    return randTable_[static_cast<std::size_t>(PicID)];
}

int cArray::GetTop(int Cell, int Pile) const { return topTable_[PileIndex(Cell, Pile)]; }

int cArray::GetTopPicID(int Cell, int Pile) const { return GetPicID(Cell, Pile, GetTop(Cell, Pile)); }

int cArray::GetPicID(int Cell, int Pile, int Pos) const { return posTable_[PlaceIndex(Cell, Pile, Pos)]; }

std::span<const short> cArray::Cards(int Cell, int Pile) const {
    const auto count = static_cast<std::size_t>(GetTop(Cell, Pile) + 1);
    return std::span(posTable_).subspan(PlaceIndex(Cell, Pile, 0), count);
}

int cArray::TotalGoalCards() const {
    int total = 0;
    for (int pile = 0; pile < FoundationPiles; ++pile) total += GetTop(Goal, pile) + 1;
    return total;
}

int cArray::ClosedCards(int Pile) const {
    const auto cards = Cards(Home, Pile);
    return static_cast<int>(std::count_if(cards.begin(), cards.end(),
                                          [](int PicID) { return PicBack.PicCards(PicID).FaceMode == 1; }));
}

void cArray::MoveCard(int PicID, int DCell, int DPile, int DPos, ::tMod tMod, int Speed, int mCards,
                      int DFace, bool DisAutoMove) {
    if (DCell == Goal && gGames->GameType() != GameType::CompleteRuns && GetTop(Goal, DPile) == FullGoalTop)
        return;

    const CardRecord& card = PicBack.PicCards(PicID);
    const int SCell = card.Cell;
    const int SPile = card.Pile;
    const int SPos = card.Pos;

    if (tMod != tMod::UndoRedo && tMod != tMod::Reposition && SCell == Home && SPos >= 1) {
        const int below = GetPicID(Home, SPile, SPos - 1);
        if (below >= 0 && PicBack.PicCards(below).FaceMode == 1) {
            tMod = tMod::Uncover;
            PicBack.SetFaceMode(below, 0);
        }
    }

    const bool logged = tMod != tMod::UndoRedo && tMod != tMod::Deal && tMod != tMod::Reposition;
    // Before the card moves: the record takes the source place from the card.
    if (logged) gTrans->SaveTrans(PicID, DCell, DPile, DPos, mCards, tMod, DFace);

    PlaceCard(PicID, DCell, DPile, DPos, tMod, Speed, DFace);
    for (int i = 1; i <= mCards; ++i) {
        PlaceCard(GetPicID(SCell, SPile, SPos + i), DCell, DPile, DPos + i, tMod, 0, DFace);
    }

    if (tMod != tMod::Reposition) {
        // The group is everything from SPos upward.
        topTable_[PileIndex(SCell, SPile)] = static_cast<short>(SPos - 1);
        topTable_[PileIndex(DCell, DPile)] = static_cast<short>(DPos + mCards);
    }
    if (OnMoved) OnMoved(logged && tMod != tMod::ToStock && !DisAutoMove);
}

void cArray::PlaceCard(int PicID, int DCell, int DPile, int DPos, ::tMod tMod, int Speed, int DFace) {
    // Before the tables change, so that the closed cards of the destination are counted as they lie.
    const Point end = gGames->Position(DCell, DPile, DPos);
    PicBack.ToFront(PicID);
    PicBack.SetVisible(PicID, true);
    if (Speed > 0) {
        const CardRecord& card = PicBack.PicCards(PicID);
        const int left = card.Left;
        const int top = card.Top;
        for (int i = 1; i <= Speed; ++i) {
            PicBack.Move(PicID, left + i * (end.X - left) / Speed, top + i * (end.Y - top) / Speed);
            // The card turns on arrival: the last step is shown with its face, so that it counts as
            // one refresh of the screen and not as two.
            if (i < Speed) PicBack.ShowStep();
        }
    }
    PicBack.Move(PicID, end.X, end.Y);
    PicBack.SetFaceMode(PicID, DFace != 0 ? 1 : 0);
    if (Speed > 0) PicBack.ShowStep();

    if (tMod != tMod::Deal && tMod != tMod::Reposition) {
        const CardRecord& card = PicBack.PicCards(PicID);
        posTable_[PlaceIndex(card.Cell, card.Pile, card.Pos)] = -1;
    }
    PicBack.SetLoc(PicID, DCell, DPile, DPos);
    posTable_[PlaceIndex(DCell, DPile, DPos)] = static_cast<short>(PicID);
    if (tMod == tMod::Deal) PicBack.LetEventsRun();
}

void cArray::ReduceOne(int Cell, int Pile) {
    short& top = topTable_[PileIndex(Cell, Pile)];
    posTable_[PlaceIndex(Cell, Pile, top)] = -1;
    --top;
}

void cArray::AddtoWaste(int PicID) {
    MoveCard(PicID, Waste, 0, GetTop(Waste) + 1, tMod::FromStock, 1, 0, 0, false);
}

void cArray::Stock3Waste() {
    for (int i = 0; i < 3; ++i) {
        if (GetTop(Stock) >= 0) AddtoWaste(GetTopPicID(Stock));
    }
}
