// The sentences about winning: every combination of won, lost and not found out has to read well.
#include "engine/help/mRulesWins.h"

#include "engine/catalogue/definition.h"
#include "engine/catalogue/mWinnability.h"
#include "engine/help/mRulesWords.h"
#include "engine/rules/mFunc.h"

namespace mRulesWins {

namespace {

/// "one", "7", "1,000".
std::string Few(int count) { return count == 1 ? "one" : mFunc::Grouped(count); }

std::string Deals(const Winnability& found) {
    return found.Deals == 1 ? "the one deal" : "the " + mFunc::Grouped(found.Deals) + " deals";
}

std::string Result(const Winnability& found) {
    const std::string tried = Deals(found) + (found.Deals == 1 ? " that was tried" : " that were tried");
    const bool one = found.Deals == 1;
    if (found.Won == found.Deals) {
        return (one ? mRulesWords::Capital(tried) : "All of " + tried) +
               " can be won by a player who sees all cards.";
    }
    if (found.Lost == found.Deals) {
        return (one ? mRulesWords::Capital(tried) + " cannot" : "None of " + tried + " can") +
               " be won, even by a player who sees all cards.";
    }
    if (found.Unknown == found.Deals) return "For " + tried + " no answer was found.";
    const std::string unknown =
        found.Unknown == 0 ? "" : "for " + Few(found.Unknown) + " no answer was found";
    std::string text = "Of " + mFunc::Grouped(found.Deals) + " deals ";
    if (found.Won == 0) {
        text += Few(found.Lost) + " cannot be won, even by a player who sees all cards";
    } else {
        text += Few(found.Won) + " can be won by a player who sees all cards";
        if (found.Lost > 0) text += " and " + Few(found.Lost) + " cannot";
    }
    return text + (unknown.empty() ? "" : "; " + unknown) + ".";
}

std::string Length(const Winnability& found) {
    if (found.Won == 1) {
        return "The win that was found takes " + mRulesWords::Count(found.Moves, "move") +
               "; there may be a shorter one.";
    }
    return "Half of the wins that were found take " + mRulesWords::Count(found.Moves, "move") +
           " or fewer; there may be shorter ones.";
}

}  // namespace

std::vector<std::string> Paragraphs(const Winnability& found) {
    std::vector<std::string> paragraphs{Result(found)};
    if (found.Won > 0) paragraphs.push_back(Length(found));
    std::string tried = found.Deals == 1
                            ? "The deal with the number 1 was tried by a solver, Autoplay being off"
                            : "The deals with the numbers 1 to " + mFunc::Grouped(found.Deals) +
                                  " were tried by a solver, Autoplay being off";
    if (found.Unknown > 0)
        tried += "; it gave a deal up after looking at " + mFunc::Grouped(found.States) + " positions";
    paragraphs.push_back(tried + ".");
    return paragraphs;
}

std::string Facts(const Definition& game, const Winnability* found) {
    constexpr int Pack = 52;
    std::string line = game.Deck == Pack ? "One deck" : game.Deck > Pack ? "Two decks" : "Half a deck";
    if (!found) return line;
    line += " \u00b7 ";
    const std::string deals = mFunc::Grouped(found->Deals) + (found->Deals == 1 ? " deal" : " deals");
    if (found->Won == found->Deals) {
        line += "all of " + deals + " can be won";
    } else if (found->Lost == found->Deals) {
        line += "none of " + deals + " can be won";
    } else if (found->Won == 0) {
        line += "no win found in " + deals;
    } else {
        line += mFunc::Grouped(found->Won) + " of " + deals + " can be won";
        if (found->Unknown > 0) line += ", " + mFunc::Grouped(found->Unknown) + " unknown";
    }
    if (found->Won > 0) line += " \u00b7 about " + mRulesWords::Count(found->Moves, "move");
    return line;
}

}  // namespace mRulesWins
