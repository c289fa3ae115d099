// What a search is given: the numbers of a game, and a deck.
#pragma once

#include <vector>

#include "engine/state/cGames.h"
#include "engine/state/mDeal.h"

struct Definition;

namespace Solver {

/// The numbers of a game.
[[nodiscard]] cGames NumbersOf(const Definition& game);

/// Whether the values are those of a whole pack, each once.
[[nodiscard]] bool IsDeck(const std::vector<int>& values, int cards);

}  // namespace Solver
