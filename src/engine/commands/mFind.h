// Finding games by words: of their names, of their rules, and by facets, which are words with a meaning of
// their own such as "two decks" or "never played".
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace mFind {

/// A facet as a menu offers it.
struct Facet {
    const char* Label;
    const char* Words;  ///< what a search types for it
};
/// The facets that a menu offers, in groups.
[[nodiscard]] const std::vector<std::vector<Facet>>& Menu();

/// The searches of one dialog. What the player has played is read at the first search that asks for it, and
/// holds as long as the object lives.
class Search {
public:
    /// The SiDs of the games that hold all words of the query, in any case: games of that name first, then in
    /// the order of the catalogue. Words that are a facet are asked of the game's numbers, the player's
    /// records or the favorites; all others must stand in its name or rules. No words find every game.
    [[nodiscard]] std::vector<int> Games(std::string_view query);

private:
    [[nodiscard]] bool Played(const std::string& game);
    [[nodiscard]] bool Favorite(const std::string& game);

    std::optional<std::set<std::string>> played_;
    std::optional<std::set<std::string>> favorites_;
};

}  // namespace mFind
