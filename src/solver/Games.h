// The games by their names, and a deal of one as a search begins it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/state/cGames.h"
#include "engine/state/mDeal.h"

struct Definition;

namespace Solver {

/// The game of that name, or nullptr.
[[nodiscard]] const Definition* FindGame(std::string_view name);
/// All games, in the order of the catalogue.
[[nodiscard]] std::vector<const Definition*> AllGames();
/// Its numbers.
[[nodiscard]] cGames NumbersOf(const Definition& game);

/// Whether the values are those of a whole pack, each once.
[[nodiscard]] bool IsDeck(const std::vector<int>& values, int cards);

}  // namespace Solver
