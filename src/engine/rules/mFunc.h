// Questions of play: what a card's record says, which card may lie on which, what may be lifted, what a pile
// accepts. They are answered from the game's numbers and the cards on the table; nothing here knows a game.
// The press on a card, fresh game numbers and the texts of times and numbers stand here too.
#pragma once

#include <string>

#include "engine/state/DragState.h"
#include "engine/state/GameNumber.h"
#include "engine/state/cGames.h"
#include "engine/state/codes.h"
#include "engine/state/mOrder.h"

namespace mFunc {

// What a card's record says, by PicID.
[[nodiscard]] int CardCell(int PicID);
[[nodiscard]] int CardPile(int PicID);
[[nodiscard]] int CardPos(int PicID);
[[nodiscard]] int CardNum(int PicID);
[[nodiscard]] int CardSuit(int PicID);
[[nodiscard]] int CardSuitpile(int PicID);
[[nodiscard]] int CardColor(int PicID);
[[nodiscard]] int CardFaceMode(int PicID);
[[nodiscard]] int CardLeft(int PicID);
[[nodiscard]] int CardTop(int PicID);

// Of two cards alone; the rule codes ask the same of faces (mOrder).
[[nodiscard]] bool SameSuit(int A, int B);
[[nodiscard]] bool DiffSuit(int A, int B);
[[nodiscard]] bool SameColor(int A, int B);
[[nodiscard]] bool AltColor(int A, int B);

using mOrder::Direction;
using mOrder::SuitRule;

/// Whether card B fits on card A. `AK`: Ace and King are neighbours.
[[nodiscard]] bool RankSuitOK(int A, int B, Direction Dir, SuitRule Rule, bool AK);
[[nodiscard]] bool OrderOK(int A, int B, RuleCode Order, bool AK);

/// Whether the `Count` pairs of cards from PicID upward in its tableau pile obey MultiOrder.
[[nodiscard]] bool IsSeq(int PicID, int Count);
[[nodiscard]] int CountEmpty(int Cell);
/// How many cards may follow the lifted card where the game limits runs.
[[nodiscard]] int MaxMoveCards();

/// Why a card may not be lifted.
enum class LiftRefusal {
    None,
    NotOnTop,       ///< only the top card of its pile may
    Closed,         ///< with cards on it
    SingleCards,    ///< the game moves no groups
    NotInSequence,  ///< the cards on it do not follow
    TooMany,        ///< more cards than the free places allow
};
/// Whether a card may be lifted; `above` receives the cards that go with it.
[[nodiscard]] LiftRefusal WhyNotLift(int PicID, int& above);
[[nodiscard]] inline bool CanLift(int PicID, int& above) {
    return WhyNotLift(PicID, above) == LiftRefusal::None;
}
/// What a pile accepts from a card that lies at (SCell, SPile) with `above` cards on it.
[[nodiscard]] bool HomeAccepts(int PicID, int SCell, int SPile, int Pile);
[[nodiscard]] bool ResAccepts(int Pile, int above);
[[nodiscard]] bool GoalAccepts(int PicID, int Pile, int above);
/// The same for a pile of any group; stock and waste accept nothing.
[[nodiscard]] bool Accepts(int PicID, int above, int Cell, int Pile);

/// The press on a card: lifts it and what lies above it, or runs a stock command.
void TryPick(int PicID, int Cell, int Pile, int Pos);
/// Whether the dragged card hits a place: with its centre (`Mode` false) or with any part (`Mode` true).
[[nodiscard]] bool IsOverlap(int PicID, int Cell, int Pile, int Pos, bool Mode);

/// A fresh random game number, 1 to 10^RangeIndex - 1, and 1 where that is 0.
[[nodiscard]] GameNumber NewGameNo();
/// Seconds since the start of the running game, 0 when none runs or the clock was set back.
[[nodiscard]] int ElapsedSecs();
/// "1:02:03" for 3723 seconds, "-0:00:05" for -5; hours count on without a limit.
[[nodiscard]] std::string FormatTime(int seconds);
/// A whole number with a comma between groups of three digits.
[[nodiscard]] std::string Grouped(double number);

}  // namespace mFunc
