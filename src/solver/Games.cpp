// Games by name, from the tables of the families.
#include "solver/Games.h"

#include "engine/catalogue/definition.h"
#include "engine/catalogue/families.h"

namespace Solver {

std::vector<const Definition*> AllGames() {
    std::vector<const Definition*> games;
    for (const Family& family : Families) {
        for (const Definition& game : family.Games()) games.push_back(&game);
    }
    return games;
}

const Definition* FindGame(std::string_view name) { return mFamilies::Find(name); }

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
