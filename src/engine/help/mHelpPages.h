// The general help pages, and the search over all pages. Addresses in the pages are those of mRules.h.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mHelpPages {

struct Page {
    std::string_view Key;  ///< as in "page:mouse"
    std::string_view Title;
    std::vector<std::string_view> Paragraphs;
};

/// The general pages in the order of the contents.
[[nodiscard]] const std::vector<Page>& All();
/// A general page as HTML; empty for an unknown key.
[[nodiscard]] std::string Html(std::string_view key);
/// The page of a group: its games. Empty for a number outside the catalogue.
[[nodiscard]] std::string Group(int Gid);

/// The ids of the games whose name or rules hold all the words, in any case: games found by their name
/// come first. No words find every game.
[[nodiscard]] std::vector<int> FindGames(std::string_view words);
/// The keys of the general pages that hold all the words.
[[nodiscard]] std::vector<std::string_view> FindPages(std::string_view words);

}  // namespace mHelpPages
