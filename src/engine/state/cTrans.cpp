// The transaction log: saving, undoing and redoing moves, and the rows of the history list.
#include "engine/state/cTrans.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include <fmt/format.h>

#include "engine/state/StepBudget.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"

namespace {

// The move back has opened all cards of the group: those that lay closed close again, and since closed
// cards lie closer together, the cards above them take their places anew.
void RestoreFaces(const TransRec& record) {
    if (record.ClosedBefore.none()) return;
    int closed = record.SCell == Home ? gArray->ClosedCards(record.SPile) : 0;
    for (int i = 0; i <= record.mCards; ++i) {
        const int PicID = gArray->GetPicID(record.SCell, record.SPile, record.SPos + i);
        const Point place = gGames->Position(record.SCell, record.SPile, record.SPos + i, closed);
        if (record.mCards > 0) PicBack.Move(PicID, place.X, place.Y);
        if (!record.ClosedBefore[static_cast<std::size_t>(i)]) continue;
        PicBack.SetFaceMode(PicID, 1);
        ++closed;
    }
}

// A step slower than this is long enough to be worth a sound.
constexpr int QuietSpeed = 3;

// The card that a record's move uncovered.
int UncoveredCard(const TransRec& record) {
    return gArray->GetPicID(record.SCell, record.SPile, record.SPos - 1);
}

}  // namespace

void cTrans::SaveTrans(int PicID, int DCell, int DPile, int DPos, int mCards, ::tMod tMod, int DFace) {
    ++transID_;
    records_.resize(static_cast<std::size_t>(transID_));  // a new move drops all undone moves
    const CardRecord& card = PicBack.PicCards(PicID);
    TransRec record{PicID, card.Cell, card.Pile, card.Pos, DCell, DPile,
                    DPos,  mCards,    tMod,      0,        {},    DFace != 0};
    record.Multi = multiDepth_ > 0 ? 1 : 0;
    record.ClosedBefore[0] = card.FaceMode == 1;
    for (int i = 1; i <= mCards; ++i) {
        const int above = gArray->GetPicID(card.Cell, card.Pile, card.Pos + i);
        record.ClosedBefore[static_cast<std::size_t>(i)] = PicBack.PicCards(above).FaceMode == 1;
    }
    records_.push_back(record);
}

void cTrans::StartMulti() { ++multiDepth_; }

void cTrans::EndMulti() {
    if (--multiDepth_ == 0) records_[static_cast<std::size_t>(transID_)].Multi = 0;
}

const TransRec& cTrans::Record(int i) const {
    if (i < 1 || i > MaxTrans()) throw std::out_of_range("cTrans: no such record");
    return records_[static_cast<std::size_t>(i)];
}

// Only the first record of a group goes at the speed asked for, the others in one step each.
int cTrans::StepsBack(int first, int last, int Speed) const {
    int steps = 0;
    for (int i = first; i <= last; ++i) steps += Record(i).Multi == 1 ? 1 : Speed;
    return steps;
}

int cTrans::StepsForward(int first, int last, int Speed) const {
    int steps = 0;
    for (int i = first; i <= last; ++i) steps += i > 1 && Record(i - 1).Multi == 1 ? 1 : Speed;
    return steps;
}

bool cTrans::Undo(int Speed) {
    if (transID_ < 1) return false;
    int first = transID_;
    while (first > 1 && Record(first - 1).Multi == 1) --first;
    const StepBudget budget(StepsBack(first, transID_, Speed));
    do {
        const TransRec record = records_[static_cast<std::size_t>(transID_)];
        if (record.Multi == 1) Speed = 1;
        if (Speed > QuietSpeed) gData->PlaySound("Undo");
        if (record.tMod == tMod::Uncover) PicBack.SetFaceMode(UncoveredCard(record), 1);
        gArray->MoveCard(record.PicID, record.SCell, record.SPile, record.SPos, tMod::UndoRedo, Speed,
                         record.mCards);
        RestoreFaces(record);
        --transID_;
    } while (records_[static_cast<std::size_t>(transID_)].Multi == 1);
    return true;
}

bool cTrans::Redo(int Speed) {
    int last = transID_ + 1;
    while (last < MaxTrans() && Record(last).Multi == 1) ++last;
    const StepBudget budget(StepsForward(transID_ + 1, std::min(last, MaxTrans()), Speed));
    while (true) {
        if (transID_ == MaxTrans()) return false;
        if (records_[static_cast<std::size_t>(transID_)].Multi == 1) Speed = 1;
        ++transID_;
        const TransRec record = records_[static_cast<std::size_t>(transID_)];
        if (Speed > QuietSpeed) gData->PlaySound("Redo");
        gArray->MoveCard(record.PicID, record.DCell, record.DPile, record.DPos, tMod::UndoRedo, Speed,
                         record.mCards, record.ClosedAfter ? 1 : 0);
        // A move that won the game has cleared the table; its cards are hidden and stay as they are.
        if (!gData->Figures.GameRunning) return true;
        if (record.tMod == tMod::Uncover) PicBack.SetFaceMode(UncoveredCard(record), 0);
        if (record.Multi != 1) return true;
    }
}

void cTrans::UndoAll(int Speed) {
    const StepBudget budget(StepsBack(1, transID_, Speed));
    while (transID_ >= 1 && gData->Figures.GameRunning) Undo(Speed);
}

void cTrans::RedoAll(int Speed) {
    const StepBudget budget(StepsForward(transID_ + 1, MaxTrans(), Speed));
    while (transID_ != MaxTrans() && gData->Figures.GameRunning) Redo(Speed);
}

std::string cTrans::ConvertCell(int i) {
    constexpr std::array<const char*, CellCount> names{"Tableau", "Stock", "Waste", "Foundation", "Reserve"};
    return i >= 0 && i < CellCount ? names[static_cast<std::size_t>(i)] : "";
}

std::vector<HistoryRow> cTrans::CreateLV() const {
    const auto place = [](int Cell, int Pile, int Pos) {
        return fmt::format("{} (Pile {}, Card {})", ConvertCell(Cell), Pile + 1, Pos + 1);
    };
    std::vector<HistoryRow> rows;
    rows.reserve(static_cast<std::size_t>(MaxTrans()));
    for (int i = 1; i <= MaxTrans(); ++i) {
        const TransRec& record = Record(i);
        HistoryRow row;
        row.Columns = {std::to_string(i), place(record.SCell, record.SPile, record.SPos),
                       place(record.DCell, record.DPile, record.DPos), std::to_string(record.mCards + 1)};
        if (i == transID_) row.Style = HistoryStyle::Current;
        if (i > transID_) row.Style = HistoryStyle::Undone;
        rows.push_back(std::move(row));
    }
    return rows;
}
