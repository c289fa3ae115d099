// English for the rules pages and for screen readers: numbers, lists, cards, and how the rule codes read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/state/codes.h"
#include "engine/state/mOrder.h"

namespace mRulesWords {

/// "seven"; digits above twelve.
[[nodiscard]] std::string Number(int number);
/// "one card", "seven cards", "28 cards".
[[nodiscard]] std::string Count(int number, std::string_view thing);
/// "first"; "13th" above twelve.
[[nodiscard]] std::string Ordinal(int number);
/// "once", "twice", "three times".
[[nodiscard]] std::string Times(int number);
/// "a, b and c".
[[nodiscard]] std::string List(const std::vector<std::string>& items, std::string_view last = "and");
/// The text with a capital at its beginning.
[[nodiscard]] std::string Capital(std::string text);
/// The name of a rank, 0 "Ace" to 12 "King".
[[nodiscard]] std::string_view Rank(int rank);
/// "an Ace", "a King".
[[nodiscard]] std::string ARank(int rank);
/// The name of a suit, 0 "Hearts" to 3 "Clubs".
[[nodiscard]] std::string_view Suit(int suit);

using Way = mOrder::Direction;
/// In which direction a rule code builds; None where ranks need not follow each other.
[[nodiscard]] Way WayOf(RuleCode code);
/// "down in suit"; the codes without a direction give a phrase as well.
[[nodiscard]] std::string Building(RuleCode code);
/// "in suit": the suits alone; empty for the codes without a direction.
[[nodiscard]] std::string Suits(RuleCode code);
/// "a red Six goes on a black Seven"; empty for the codes without a direction.
[[nodiscard]] std::string Example(RuleCode code);
/// What becomes of Ace and King where ranks follow each other; `wraps`: they are neighbors.
[[nodiscard]] std::string WrapText(Way way, bool wraps);

/// The text with &, < and > made safe for HTML.
[[nodiscard]] std::string Escape(std::string_view text);

}  // namespace mRulesWords
