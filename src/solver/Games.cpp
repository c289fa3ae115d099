// Games by name, from the tables of the families.
#include "solver/Games.h"

#include <algorithm>

#include "engine/catalogue/definition.h"
#include "engine/catalogue/families.h"

namespace Solver {

std::vector<const Definition*> AllGames() {
    std::vector<const Definition*> games;
    for (const auto& family : {gBDozen::Games(), gBeCastle::Games(), gCanfield::Games(), gFan::Games(),
                               gFortyThieves::Games(), gFourSeasons::Games(), gFreecell::Games(),
                               gKlondike::Games(), gSirTommy::Games(), gSpider::Games(), gYukon::Games()}) {
        for (const Definition& game : family) games.push_back(&game);
    }
    return games;
}

const Definition* FindGame(std::string_view name) {
    const std::vector<const Definition*> games = AllGames();
    const auto game = std::find_if(games.begin(), games.end(),
                                   [&](const Definition* candidate) { return candidate->Name == name; });
    return game != games.end() ? *game : nullptr;
}

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
