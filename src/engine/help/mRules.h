// The rules pages: one for each game of the catalogue, written from the game's own numbers, so that a page
// says what the engine does.
//
// Links and pictures in a page carry what they lead to in their address: "game:830" the rules of the game
// with that id, "deal:830" the picture of its opening deal, "group:8" a group, "page:mouse" a general page,
// "contents:" the contents.
#pragma once

#include <string>
#include <utility>
#include <vector>

struct Definition;

namespace mRules {

struct Section {
    std::string Heading;
    std::vector<std::string> Paragraphs;  ///< plain text, never empty
};

/// What a game's numbers say, without its name; plain text.
[[nodiscard]] std::vector<Section> Sections(const Definition& game);
/// The same as one text, a paragraph a line.
[[nodiscard]] std::string PlainText(const Definition& game);

/// The definition of the game with that id, nullptr where there is none.
[[nodiscard]] const Definition* Find(int gameID);
/// The ids of all games in the order of the catalogue.
[[nodiscard]] const std::vector<int>& AllGames();
/// The name of the game with that id.
[[nodiscard]] std::string Name(int gameID);

/// What is so in `game` and not in `than`, as a clause after "but"; empty where they differ in more than one
/// respect, or in none.
[[nodiscard]] std::string Difference(const Definition& game, const Definition& than);

/// Games that differ from this one in one respect only: their ids, each with what is different there, such
/// as "the tableau builds down in suit". In the order of the catalogue.
[[nodiscard]] std::vector<std::pair<int, std::string>> Relatives(int gameID);

/// The whole page of a game, as HTML for a rich-text browser. Needs gData's catalogue; an unknown id gives
/// an empty text.
[[nodiscard]] std::string Page(int gameID);

}  // namespace mRules
