// The engine's table and the solver's position side by side.
#pragma once

#include <string>
#include <vector>

#include "engine/catalogue/definition.h"
#include "solver/Moves.h"
#include "solver/Position.h"

namespace EngineTable {

/// Every move that the engine accepts on its table: the lift and the drop of each card on each pile, the
/// press of the stock, the click on its marker. Sorted.
[[nodiscard]] std::vector<Solver::Move> Moves();
/// Makes it, where a drop and a press end up.
void Make(const Solver::Move& move);
/// Empty where both lie alike, else where they differ.
[[nodiscard]] std::string Difference(const Solver::Position& position);

}  // namespace EngineTable

/// "tableau 3 -> foundation 0, 1" for a message.
[[nodiscard]] std::string Text(const Solver::Move& move);
/// The order in which Moves lists them.
[[nodiscard]] std::vector<Solver::Move> Sorted(std::vector<Solver::Move> moves);
