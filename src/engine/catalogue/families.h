// The eleven families: each lists its games for the catalogue and fills in one of them by name.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct Definition;

/// What a family offers.
struct Family {
    void (*ListGames)();                       ///< adds it to the catalogue, in the order of its table
    void (*SetGame)(const std::string& name);  ///< fills gGames; does nothing for a name of another family
    std::span<const Definition> (*Games)();    ///< the table itself
};

// The one list of families. Its order numbers them, and through them the games: a new family goes to the end.
// clang-format off
#define TARNIVAL_FAMILIES(USE) \
    USE(gBDozen) USE(gBeCastle) USE(gCanfield) USE(gFan) USE(gFortyThieves) USE(gFourSeasons) \
    USE(gFreecell) USE(gKlondike) USE(gSirTommy) USE(gSpider) USE(gYukon)
// clang-format on

#define TARNIVAL_DECLARE(family)           \
    namespace family {                     \
    void ListGames();                      \
    void SetGame(const std::string& name); \
    std::span<const Definition> Games();   \
    }
TARNIVAL_FAMILIES(TARNIVAL_DECLARE)
#undef TARNIVAL_DECLARE

#define TARNIVAL_ENTRY(family) Family{family::ListGames, family::SetGame, family::Games},
inline constexpr std::array Families{TARNIVAL_FAMILIES(TARNIVAL_ENTRY)};
#undef TARNIVAL_ENTRY

namespace mFamilies {

/// The game of that name, or nullptr where no family has one.
[[nodiscard]] const Definition* Find(std::string_view name);
/// All games, in the order of the catalogue.
[[nodiscard]] std::vector<const Definition*> All();

}  // namespace mFamilies
