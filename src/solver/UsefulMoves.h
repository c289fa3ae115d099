// The moves that a search tries: of all that the rules allow, those that can lead to something new.
#pragma once

#include "solver/Dominance.h"
#include "solver/Moves.h"

namespace Solver {

/// Fills the list. What is left out leads to a position that differs in nothing but which of several like
/// piles is which, or is left out by the dominances.
void UsefulMoves(Position& position, const Dominance& dominance, MoveList& list);

/// The plays of cards of the talon after as many presses and redeals as they take, each after the moves of
/// `chain`; to the pile `only`, or to any where it is -1. The game's talon must be free.
void AddTalonPlays(const Position& position, const std::vector<Move>& chain, MoveList& list, int only = -1);

}  // namespace Solver
