// The plate's records, and telling the stage what changed.
#include "engine/state/cPlate.h"

#include <stdexcept>

namespace {

constexpr std::array<int, 5> MarkCounts{MostHomePiles, FoundationPiles, MostResPiles, 1, 1};  // by MarkKind

std::size_t MarkIndex(MarkKind kind, int index) {
    if (index < 0 || index >= cPlate::MarkCount(kind)) throw std::out_of_range("cPlate: no such mark");
    int first = 0;
    for (std::size_t k = 0; k < static_cast<std::size_t>(kind); ++k) first += MarkCounts[k];
    return static_cast<std::size_t>(first + index);
}

}  // namespace

int cPlate::MarkCount(MarkKind kind) { return MarkCounts.at(static_cast<std::size_t>(kind)); }

const CardRecord& cPlate::PicCards(int PicID) const {
    if (PicID < 0 || PicID >= MaxCards) throw std::out_of_range("cPlate: no such card");
    return cards_[static_cast<std::size_t>(PicID)];
}

CardRecord& cPlate::At(int PicID) {
    if (PicID < 0 || PicID >= MaxCards) throw std::out_of_range("cPlate: no such card");
    return cards_[static_cast<std::size_t>(PicID)];
}

const MarkRecord& cPlate::Mark(MarkKind kind, int index) const { return marks_[MarkIndex(kind, index)]; }

MarkRecord& cPlate::MarkAt(MarkKind kind, int index) { return marks_[MarkIndex(kind, index)]; }

void cPlate::SetValue(int PicID, int mSuit, int mNum, int mSuitPile) {
    CardRecord& card = At(PicID);
    card.Suit = mSuit;
    card.Num = mNum;
    card.Suitpile = mSuitPile;
    if (stage_) stage_->CardChanged(PicID);
}

void cPlate::SetLoc(int PicID, int Cell, int Pile, int Pos) {
    CardRecord& card = At(PicID);
    card.Cell = Cell;
    card.Pile = Pile;
    card.Pos = Pos;
}

void cPlate::SetFaceMode(int PicID, int mode) {
    CardRecord& card = At(PicID);
    if (card.FaceMode == mode) return;
    card.FaceMode = mode;
    if (stage_) stage_->CardChanged(PicID);
}

void cPlate::SetSelected(int PicID, bool selected) {
    CardRecord& card = At(PicID);
    if (card.Selected == selected) return;
    card.Selected = selected;
    if (stage_) stage_->CardChanged(PicID);
}

void cPlate::SetMainPic(int PicID, int picture) {
    if (picture == 0) return;
    At(PicID).MainPic = picture;
    if (stage_) stage_->CardChanged(PicID);
}

void cPlate::SetDeckPic(int PicID, int picture) {
    if (picture == 0) return;
    At(PicID).DeckPic = picture;
    if (stage_) stage_->CardChanged(PicID);
}

void cPlate::Move(int PicID, int Left, int Top) {
    CardRecord& card = At(PicID);
    card.Left = Left;
    card.Top = Top;
    if (stage_) stage_->CardMoved(PicID);
}

void cPlate::ToFront(int PicID) {
    At(PicID).Order = nextOrder_++;
    if (stage_) stage_->CardRaised(PicID);
}

void cPlate::SetVisible(int PicID, bool visible) {
    CardRecord& card = At(PicID);
    if (card.Visible == visible) return;
    card.Visible = visible;
    if (stage_) stage_->CardShown(PicID);
}

void cPlate::ShowMark(MarkKind kind, int index, int picture, int Left, int Top) {
    MarkAt(kind, index) = {picture, Left, Top, true};
    if (stage_) stage_->MarkChanged(kind, index);
}

void cPlate::SetMarkPicture(MarkKind kind, int index, int picture) {
    MarkRecord& mark = MarkAt(kind, index);
    if (mark.Picture == picture) return;
    mark.Picture = picture;
    if (stage_) stage_->MarkChanged(kind, index);
}

void cPlate::HideMark(MarkKind kind, int index) {
    MarkRecord& mark = MarkAt(kind, index);
    if (!mark.Visible) return;
    mark.Visible = false;
    if (stage_) stage_->MarkChanged(kind, index);
}

void cPlate::Refresh() {
    if (stage_) stage_->Refresh();
}

void cPlate::ShowStep() {
    if (stage_ && !hurried_) stage_->ShowStep(stepLimit_);
}

void cPlate::SetStepLimit(double milliseconds) {
    stepLimit_ = milliseconds;
    if (stage_ && milliseconds != NoStepLimit) stage_->BeginSteps();
}

void cPlate::LetEventsRun() {
    if (stage_) stage_->LetEventsRun();
}
