// The eleven families: each lists its games for the catalogue and fills in one of them by name.
#pragma once

#include <span>
#include <string>
#include <string_view>

struct Definition;

// ListGames adds the family to the catalogue, in the order of its table. SetGame fills gGames with the
// game of that name and does nothing for a name of another family. Games is the table itself.

// clang-format off
namespace gBDozen       { void ListGames(); void SetGame(const std::string& name); std::span<const Definition> Games(); }
namespace gBeCastle     { void ListGames(); void SetGame(const std::string& name); std::span<const Definition> Games(); }
namespace gCanfield     { void ListGames(); void SetGame(const std::string& name); std::span<const Definition> Games(); }
namespace gFan          { void ListGames(); void SetGame(const std::string& name); std::span<const Definition> Games(); }
namespace gFortyThieves { void ListGames(); void SetGame(const std::string& name); std::span<const Definition> Games(); }
namespace gFourSeasons  { void ListGames(); void SetGame(const std::string& name); std::span<const Definition> Games(); }
namespace gFreecell     { void ListGames(); void SetGame(const std::string& name); std::span<const Definition> Games(); }
namespace gKlondike     { void ListGames(); void SetGame(const std::string& name); std::span<const Definition> Games(); }
namespace gSirTommy     { void ListGames(); void SetGame(const std::string& name); std::span<const Definition> Games(); }
namespace gSpider       { void ListGames(); void SetGame(const std::string& name); std::span<const Definition> Games(); }
namespace gYukon        { void ListGames(); void SetGame(const std::string& name); std::span<const Definition> Games(); }
// clang-format on

namespace mFamilies {

/// The game of that name, or nullptr where no family has one.
[[nodiscard]] const Definition* Find(std::string_view name);

}  // namespace mFamilies
