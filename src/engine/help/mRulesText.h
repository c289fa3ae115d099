// The sentences of a rules page, one group of statements for each section.
#pragma once

#include <string>
#include <vector>

#include "engine/help/mRulesFacts.h"

namespace mRulesText {

/// The paragraphs of a section; an empty section is left out of the page.
using Paragraphs = std::vector<std::string>;

[[nodiscard]] Paragraphs Deck(const mRulesFacts::Facts& facts);
[[nodiscard]] Paragraphs Deal(const mRulesFacts::Facts& facts);
[[nodiscard]] Paragraphs Tableau(const mRulesFacts::Facts& facts);
[[nodiscard]] Paragraphs Foundations(const mRulesFacts::Facts& facts);
[[nodiscard]] Paragraphs Stock(const mRulesFacts::Facts& facts);
[[nodiscard]] Paragraphs Reserve(const mRulesFacts::Facts& facts);
[[nodiscard]] Paragraphs ByItself(const mRulesFacts::Facts& facts);
[[nodiscard]] Paragraphs Winning(const mRulesFacts::Facts& facts);

// Statements that the comparison of games uses as well: without a full stop and in lower case. Those with
// `other` say what is different there.

[[nodiscard]] std::string DeckClause(const mRulesFacts::Facts& facts);
[[nodiscard]] std::string PilesClause(const mRulesFacts::Facts& facts);
[[nodiscard]] std::string FacesClause(const mRulesFacts::Facts& facts);
[[nodiscard]] std::string SightClause(const mRulesFacts::Facts& facts,
                                      const mRulesFacts::Facts* other = nullptr);
[[nodiscard]] std::string BuildClause(const mRulesFacts::Facts& facts, const mRulesFacts::Facts& other);
[[nodiscard]] std::string LiftClause(const mRulesFacts::Facts& facts);
[[nodiscard]] std::string FillClause(const mRulesFacts::Facts& facts);
[[nodiscard]] std::string RefillClause(const mRulesFacts::Facts& facts);
[[nodiscard]] std::string StartClause(const mRulesFacts::Facts& facts);
[[nodiscard]] std::string GoalClause(const mRulesFacts::Facts& facts);
[[nodiscard]] std::string StockClause(const mRulesFacts::Facts& facts);
[[nodiscard]] std::string RedealClause(const mRulesFacts::Facts& facts);
[[nodiscard]] std::string ReserveClause(const mRulesFacts::Facts& facts);

/// A clause as a sentence.
[[nodiscard]] std::string Sentence(const std::string& clause);

}  // namespace mRulesText
