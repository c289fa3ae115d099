// A game's numbers from its row, and what makes a deck.
#include "solver/Games.h"

#include "engine/catalogue/definition.h"

namespace Solver {

cGames NumbersOf(const Definition& game) {
    cGames numbers;
    numbers.NewGameStart();
    mDefine::Apply(game, numbers);
    return numbers;
}

bool IsDeck(const std::vector<int>& values, int cards) {
    if (values.size() != static_cast<std::size_t>(cards)) return false;
    std::vector<bool> seen(values.size());
    for (const int value : values) {
        if (value < 0 || value >= cards || seen[static_cast<std::size_t>(value)]) return false;
        seen[static_cast<std::size_t>(value)] = true;
    }
    return true;
}

}  // namespace Solver
