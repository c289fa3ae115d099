// The section on the tableau: building, lifting, empty piles.
#include <vector>

#include "engine/help/mRulesText.h"
#include "engine/help/mRulesWords.h"

namespace mRulesText {

using namespace mRulesWords;
using mRulesFacts::Facts;
using mRulesFacts::StockUse;

namespace {

bool Groups(const Facts& facts) { return facts.LiftOrder != RuleCode::Never; }

// Where a card may come from that fills a pile by hand from the stock only.
std::string StockSources(const Facts& facts) {
    if (facts.Stock == StockUse::Open) return "the stock";
    return facts.ToWaste ? "the waste" : "";
}

std::string Building(const Facts& facts) {
    const Definition& game = *facts.Game;
    std::string text;
    switch (game.HomeOrder) {
        case RuleCode::Never:
            text = "Nothing is built on the tableau: no card may be put on another.";
            break;
        case RuleCode::Always:
            text = "Any card may be put on any other card of the tableau.";
            break;
        case RuleCode::SameRank:
            text = "The tableau builds by rank alone: a Seven goes on any other Seven.";
            break;
        default:
            text = "The tableau builds " + mRulesWords::Building(game.HomeOrder) + ": " +
                   Example(game.HomeOrder) + ". " +
                   Sentence(WrapText(WayOf(game.HomeOrder), game.HomeAK != 0));
            break;
    }
    if (game.NoH2H) {
        text += " But no card moves from one tableau pile onto the cards of another.";
    }
    if (game.MaxCards > 0) {
        text += " No card may be put on a pile that already holds " + Count(game.MaxCards, "card") + '.';
    }
    return text;
}

std::string Lifting(const Facts& facts) {
    const Definition& game = *facts.Game;
    if (!Groups(facts)) return "Only the top card of a pile can be taken: cards move one at a time.";
    if (facts.LiftOrder == RuleCode::Always) {
        return "Any face-up card can be taken together with all the cards on it, whether or not they are in "
               "sequence; the lowest card of the group must fit where it goes.";
    }
    if (facts.LiftOrder == game.HomeOrder) {
        if (game.HomeOrder == RuleCode::SameRank) {
            return "Cards of one rank that lie on each other form a run, which moves as a whole or in part.";
        }
        return "Cards that follow each other by this rule form a run, which moves as a whole or in part.";
    }
    if (facts.LiftOrder == RuleCode::SameRank) {
        return "Only cards of one rank that lie on each other form a run, which moves as a whole or in part.";
    }
    std::string text = "Only cards that lie " + mRulesWords::Building(facts.LiftOrder) +
                       " form a run, which moves as a whole or in part.";
    if (WayOf(game.HomeOrder) == Way::None && game.HomeAK != 0) {
        text += " In a run Ace and King follow each other.";
    }
    return text;
}

// The free places that a game's limit counts.
std::string LimitText(const Facts& facts) {
    const int piles = facts.Game->ResPiles;
    if (piles == 0) {
        return "At most one card more than there are empty tableau piles can move at once: with two empty "
               "piles, three cards.";
    }
    if (facts.Deal.ResCards == 0 && !facts.FreeCells) {
        const int cards = piles + 1;
        return "At most " + Count(cards, "card") + " can move at once, " + Number(2 * cards) +
               " while one tableau pile is empty, " + Number(3 * cards) + " while two are, and so on.";
    }
    const std::string places = facts.FreeCells ? "free cells" : "reserve piles";
    return "How many cards can move at once depends on the free places: the number of empty " + places +
           " plus one, times the number of empty tableau piles plus one. With two empty " + places +
           " and one empty tableau pile that is six cards, wherever they go.";
}

}  // namespace

std::string BuildClause(const Facts& facts, const Facts& other) {
    const Definition& game = *facts.Game;
    const Definition& than = *other.Game;
    std::vector<std::string> clauses;
    if (game.HomeOrder != than.HomeOrder) {
        if (game.HomeOrder == RuleCode::Never) {
            clauses.emplace_back("nothing is built on the tableau");
        } else if (game.HomeOrder == RuleCode::Always) {
            clauses.emplace_back("any card goes on any other card of the tableau");
        } else {
            clauses.push_back("the tableau builds " + mRulesWords::Building(game.HomeOrder));
        }
    }
    if ((game.HomeAK != 0) != (than.HomeAK != 0) && WayOf(game.HomeOrder) != Way::None) {
        clauses.push_back(WrapText(WayOf(game.HomeOrder), game.HomeAK != 0));
    }
    if (game.NoH2H != than.NoH2H) {
        clauses.emplace_back(game.NoH2H ? "no card moves from one tableau pile onto the cards of another"
                                        : "cards move from one tableau pile onto another");
    }
    if (game.MaxCards != than.MaxCards) {
        clauses.push_back(game.MaxCards == 0
                              ? "a tableau pile may hold any number of cards"
                              : "a tableau pile is built to no more than " + Count(game.MaxCards, "card"));
    }
    return List(clauses);
}

std::string LiftClause(const Facts& facts) {
    if (!Groups(facts)) return "cards move one at a time";
    if (facts.LiftOrder == RuleCode::Always)
        return "any face-up card moves together with all the cards on it";
    if (facts.LiftOrder == facts.Game->HomeOrder)
        return "a run built on the tableau moves as a whole or in part";
    return "only cards that lie " + mRulesWords::Building(facts.LiftOrder) + " move as a run";
}

std::string FillClause(const Facts& facts) {
    const Definition& game = *facts.Game;
    const bool groups = Groups(facts);
    const std::string with = facts.LiftOrder == RuleCode::Always ? ", alone or with the cards on it"
                                                                 : ", alone or with the run on it";
    const std::string sources = StockSources(facts);
    if (facts.BaseFills) {
        std::string text =
            "an empty pile takes only a card one rank below the base rank (a King where the "
            "base rank is the Ace)";
        if (game.HomeFill == EmptyFillType::FromStock) text += ", and only from the stock or the waste";
        return text + (groups ? with : "");
    }
    switch (game.HomeFill) {
        case EmptyFillType::AnyCard:
            if (facts.LiftOrder == RuleCode::Always) return "an empty pile takes any card" + with;
            return groups ? "an empty pile takes any card or run" : "an empty pile takes any card";
        case EmptyFillType::KingOnly:
            return "an empty pile takes only a King" + (groups ? with : "");
        case EmptyFillType::AceOnly:
            return "an empty pile takes only an Ace" + (groups ? with : "");
        case EmptyFillType::FromStock:
            if (sources.empty())
                return "no card can be put on an empty pile, unless the stock or the waste gave it";
            return "an empty pile takes any card, but only from " + sources;
        case EmptyFillType::Nothing:
            break;
    }
    return "no card can be put on an empty pile";
}

std::string RefillClause(const Facts& facts) {
    switch (facts.Refill) {
        case AutoFill::FromReserve:
            return std::string("an empty pile is filled at once with the top card of the ") +
                   (facts.Game->ResPiles == 1 ? "reserve" : "first reserve pile");
        case AutoFill::FromWaste:
            return facts.ToWaste ? "an empty pile is filled at once with the top card of the waste or, while "
                                   "the waste is empty, of the stock"
                                 : "an empty pile is filled at once with the top card of the stock";
        case AutoFill::None:
        case AutoFill::NoneEither:
            break;
    }
    return "empty piles do not fill by themselves";
}

namespace {

// What an empty pile takes, after what fills it by itself.
std::string Filling(const Facts& facts) {
    const Definition& game = *facts.Game;
    const bool fromStock = game.HomeFill == EmptyFillType::FromStock && !facts.BaseFills;
    std::string text = FillClause(facts);
    if (game.HomeFill == EmptyFillType::Nothing && !facts.BaseFills) {
        if (facts.Gathers) {
            text += "; only a redeal brings cards there";
        } else if (facts.Stock == StockUse::ToPiles || facts.Stock == StockUse::ThreeToPilesThenWaste) {
            text += "; only the stock brings cards there";
        } else if (facts.Refill == AutoFill::None) {
            text = "an empty pile stays empty";
        }
    } else if (fromStock && StockSources(facts).empty()) {
        text = facts.Stock == StockUse::ToPiles
                   ? "no card can be put on an empty pile by hand; only the stock "
                     "brings cards there"
                   : "no card can be put on an empty pile by hand";
    }
    if (facts.Refill == AutoFill::None) return Sentence(text);
    if (facts.Refill == AutoFill::FromReserve) {
        return Sentence(RefillClause(facts)) + " Once the reserve is used up, " + text + '.';
    }
    if (fromStock)
        return Sentence(RefillClause(facts)) + " Once both have run out, an empty pile stays empty.";
    return Sentence(RefillClause(facts)) +
           (facts.ToWaste ? " Once both have run out, " : " Once it has run out, ") + text + '.';
}

}  // namespace

Paragraphs Tableau(const Facts& facts) {
    Paragraphs paragraphs{Building(facts), Lifting(facts)};
    if (Groups(facts) && facts.Limited) paragraphs.back() += ' ' + LimitText(facts);
    if (Groups(facts) && facts.Deal.ClosedOnOpen()) {
        paragraphs.back() +=
            " A face-down card among them is judged like the others, though it cannot be seen, "
            "and is turned up by the move.";
    }
    paragraphs.push_back(Filling(facts));
    return paragraphs;
}

}  // namespace mRulesText
