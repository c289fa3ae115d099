// The log of the running game: every move in order, so that moves can be taken back and made again.
#pragma once

#include <array>
#include <bitset>
#include <string>
#include <vector>

#include "engine/state/cPlate.h"
#include "engine/state/codes.h"

/// One move of one card or one group of cards.
struct TransRec {
    int PicID = 0;
    int SCell = 0, SPile = 0, SPos = 0;
    int DCell = 0, DPile = 0, DPos = 0;
    int mCards = 0;  ///< further cards that moved with it
    ::tMod tMod = ::tMod::Play;
    int Multi = 0;  ///< 1: followed by another record of the same group
    // Closed cards can be lifted too, and a redeal may uncover cards on its way: the faces before and
    // after the move are kept, so that Undo and Redo restore the position exactly.
    std::bitset<MaxCards> ClosedBefore;  ///< bit i: the i-th card of the group lay closed
    bool ClosedAfter = false;
    bool operator==(const TransRec&) const = default;
};

enum class HistoryStyle { Plain, Current, Undone };

/// One row of the history list.
struct HistoryRow {
    std::array<std::string, 4> Columns;  ///< number, source, destination, cards
    HistoryStyle Style = HistoryStyle::Plain;
};

class cTrans {
public:
    /// Written before the card moves: the record takes the source place from the card.
    void SaveTrans(int PicID, int DCell, int DPile, int DPos, int mCards, ::tMod tMod, int DFace = 0);

    /// Take back or make again one step; false at the end of the log. `Speed` counts animation steps.
    bool Undo(int Speed = 1);
    bool Redo(int Speed = 1);
    // All of them, within the time of one StepBudget.
    void UndoAll(int Speed = 1);
    void RedoAll(int Speed = 1);

    [[nodiscard]] int GetTransID() const { return transID_; }
    [[nodiscard]] int MaxTrans() const { return static_cast<int>(records_.size()) - 1; }
    [[nodiscard]] bool UndoPossible() const { return transID_ > 0; }
    [[nodiscard]] bool RedoPossible() const { return transID_ < MaxTrans(); }

    /// What lies between the two is one step for Undo. Pairs may nest, as when one complete run that
    /// leaves the tableau sets free another: all of it is one step then.
    void StartMulti();
    void EndMulti();

    /// The record at 1 to MaxTrans; outside throws std::out_of_range.
    [[nodiscard]] const TransRec& Record(int i) const;
    /// The rows of the history list.
    [[nodiscard]] std::vector<HistoryRow> CreateLV() const;
    /// The name of a pile group for the player; empty for any other number.
    [[nodiscard]] static std::string ConvertCell(int i);

    bool operator==(const cTrans&) const = default;

private:
    /// How many steps the records `first` to `last` show, taken back or made again at that speed.
    [[nodiscard]] int StepsBack(int first, int last, int Speed) const;
    [[nodiscard]] int StepsForward(int first, int last, int Speed) const;

    int transID_ = 0;
    int multiDepth_ = 0;
    std::vector<TransRec> records_ = std::vector<TransRec>(1);  // index 0 stays empty
};

/// The log of the running game; a new one at every start of a game.
extern cTrans* gTrans;
