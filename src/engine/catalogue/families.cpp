// The families as one.
#include "engine/catalogue/families.h"

#include <algorithm>

#include "engine/catalogue/definition.h"

namespace mFamilies {

const Definition* Find(std::string_view name) {
    for (const auto games : {gBDozen::Games, gBeCastle::Games, gCanfield::Games, gFan::Games,
                             gFortyThieves::Games, gFourSeasons::Games, gFreecell::Games, gKlondike::Games,
                             gSirTommy::Games, gSpider::Games, gYukon::Games}) {
        const std::span<const Definition> family = games();
        const auto found = std::find_if(family.begin(), family.end(),
                                        [name](const Definition& game) { return game.Name == name; });
        if (found != family.end()) return &*found;
    }
    return nullptr;
}

}  // namespace mFamilies
