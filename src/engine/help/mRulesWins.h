// In words how often a game can be won. They claim no more than was found.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct Definition;
struct Winnability;

namespace mRulesWins {

/// The paragraphs of the section "How often it can be won".
[[nodiscard]] std::vector<std::string> Paragraphs(const Winnability& found);

/// One line for the selection: the decks, how often the game can be won, how long a win is. `found` may be
/// nullptr: then the line tells of the decks alone.
[[nodiscard]] std::string Facts(const Definition& game, const Winnability* found);

}  // namespace mRulesWins
