// The families as one.
#include "engine/catalogue/families.h"

#include <algorithm>

#include "engine/catalogue/definition.h"

namespace mFamilies {

const Definition* Find(std::string_view name) {
    for (const Family& family : Families) {
        const std::span<const Definition> games = family.Games();
        const auto found = std::find_if(games.begin(), games.end(),
                                        [name](const Definition& game) { return game.Name == name; });
        if (found != games.end()) return &*found;
    }
    return nullptr;
}

std::vector<const Definition*> All() {
    std::vector<const Definition*> games;
    for (const Family& family : Families) {
        for (const Definition& game : family.Games()) games.push_back(&game);
    }
    return games;
}

}  // namespace mFamilies
