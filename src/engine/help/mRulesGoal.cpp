// The section on the foundations.
#include <algorithm>
#include <array>
#include <optional>

#include "engine/help/mRulesText.h"
#include "engine/help/mRulesWords.h"

namespace mRulesText {

using namespace mRulesWords;
using mRulesFacts::Facts;

namespace {

// The rank that all foundations begin with, where the numbers tell it.
std::optional<int> BaseRank(const Definition& game) {
    switch (game.GoalBase) {
        case GoalType::Aces:
        case GoalType::PlainAces:
            return 0;
        case GoalType::Twos:
            return 1;
        case GoalType::Kings:
            return King;
        case GoalType::AcesAndKings:
        case GoalType::FirstCard:
        case GoalType::OneOfEachSuit:
            break;
    }
    return std::nullopt;
}

// "the Aces of Hearts and Spades" for suits `from` up to but without `to`.
std::string OfSuits(int rank, int from, int to) {
    std::vector<std::string> names;
    for (int suit = from; suit < to; ++suit) names.emplace_back(Suit(suit));
    return "the " + std::string(Rank(rank)) + (to - from == 1 ? "" : "s") + " of " + List(names);
}

// The cards of one rank that the deal lays on the foundations.
std::string PlacedOfRank(const Facts& facts, int rank) {
    const int count = facts.Deal.GoalCards;
    const int all = facts.Game->Deck / RankCount;
    const std::string name{Rank(rank)};
    if (count == all) return "the " + Count(count, name);
    constexpr int Suits = 4;
    if (facts.SuitsUsed == Suits) {
        if (all == Suits) return OfSuits(rank, 0, count);
        if (count == Suits) return "one " + name + " of each suit";
    }
    return Number(count) + " of the " + Count(all, name);
}

std::string AcesAndKings(const Facts& facts) {
    const int all = facts.Game->Deck / RankCount;
    const int aces = std::min(all, (facts.Game->GoalCards + 1) / 2);
    constexpr int Suits = 4;
    if (facts.SuitsUsed == Suits && all == Suits && aces > 0 && aces < all) {
        return OfSuits(0, 0, aces) + " and " + OfSuits(King, aces, all);
    }
    if (facts.SuitsUsed == Suits && all == 2 * Suits && aces == Suits) {
        return "one Ace and one King of each suit";
    }
    return Count(aces, "Ace") + " and " + Count(all - aces, "King");
}

std::string Are(int count) { return count == 1 ? "is" : "are"; }

std::string FirstCardStart(const Facts& facts) {
    const int count = facts.Deal.GoalCards;
    if (count == 0) {
        return "the foundations begin with a base rank that each deal draws at random, from Ace to Queen, "
               "and "
               "shows on the empty foundations";
    }
    const int all = facts.Game->Deck / RankCount;
    std::string text = "the first card of the pack is laid on a foundation at the deal";
    if (count == all) {
        text += ", and with it all the others of its rank, the base rank of the foundations";
        return text;
    }
    if (count > 1)
        text += ", and with it the next " + (count == 2 ? "card" : Count(count - 1, "card")) + " of its rank";
    return text + "; its rank is the base rank, with which the other foundations begin as well";
}

// What a run shows that leaves by itself, from its lowest card on the pile to the card on top.
std::string RunText(const Definition& game) {
    const bool kingOnTop = game.GoalBase == GoalType::Kings;
    const bool usual = WayOf(game.GoalOrder) == (kingOnTop ? Way::Down : Way::Up);
    if (!usual) {
        return "13 cards that, read from " + std::string(kingOnTop ? "a King" : "an Ace") +
               " on top to the lowest card, build " + Building(game.GoalOrder);
    }
    const std::string ends =
        kingOnTop ? "from the Ace up to the King on top" : "from the King down to the Ace on top";
    switch (game.GoalOrder) {
        case RuleCode::UpAny:
        case RuleCode::DownAny:
            return "13 cards " + ends + ", whatever their suits";
        case RuleCode::UpOther:
            return "13 cards " + ends + ", each of another suit than its neighbors";
        default:
            return "13 cards " + ends + ", " + Suits(game.GoalOrder);
    }
}

std::string RunPlaces(const Facts& facts) {
    const int piles = facts.Game->GoalPiles;
    if (piles == 1) return "all runs are gathered in one place";
    const int runs = facts.Game->Deck / RankCount;
    const int division = facts.Game->GoalDiv;
    if (division > 0 && division < runs) {
        return "there are " + Count(piles, "foundation") + ", of which each takes " +
               Count((runs + division - 1) / division, "run");
    }
    return "there are " + Count(piles, "foundation") + ", one for each run";
}

// "from the Ace to the King" for a base rank that is known.
std::string Range(int base, Way way, bool wraps) {
    const std::string from = " from the " + std::string(Rank(base));
    const int last = way == Way::Up ? King : 0;
    if (!wraps && base == last) return "";
    if (!wraps) return from + " to the " + std::string(Rank(last));
    if (base == King - last) {
        return from + " to the " + std::string(Rank(last)) +
               "; the ranks would go round, but 13 cards are the end";
    }
    const int end = (base + (way == Way::Up ? King : 1)) % RankCount;
    return from + " to the " + std::string(Rank(end)) +
           (way == Way::Up ? ", the Ace following the King" : ", the King following the Ace");
}

// Whether a card that is taken back from a foundation can go anywhere.
bool TakesBack(const Facts& facts) {
    const Definition& game = *facts.Game;
    if (facts.FreeCells || game.HomeOrder != RuleCode::Never) return true;
    return game.HomeFill != EmptyFillType::Nothing && game.HomeFill != EmptyFillType::FromStock;
}

}  // namespace

std::string StartClause(const Facts& facts) {
    if (facts.CompleteRuns) return RunPlaces(facts);
    const Definition& game = *facts.Game;
    const int count = facts.Deal.GoalCards;
    if (game.GoalBase == GoalType::FirstCard) return FirstCardStart(facts);
    if (game.GoalBase == GoalType::OneOfEachSuit) {
        return "each foundation gets the first card of its suit in the pack at the deal, so that their base "
               "ranks can differ";
    }
    if (game.GoalBase == GoalType::AcesAndKings) {
        return AcesAndKings(facts) + " are laid on the foundations at the deal";
    }
    const int rank = BaseRank(game).value_or(0);
    if (count == 0) return "each foundation begins with " + ARank(rank);
    std::string text = PlacedOfRank(facts, rank) + ' ' + Are(count) + " laid on the foundations at the deal";
    if (count == 1) text = PlacedOfRank(facts, rank) + " is laid on a foundation at the deal";
    if (count < game.GoalPiles) text += "; the others begin with " + ARank(rank) + " as well";
    return text;
}

std::string GoalClause(const Facts& facts) {
    const Definition& game = *facts.Game;
    if (facts.CompleteRuns) return "complete runs leave the tableau by themselves: " + RunText(game);
    const bool wraps = game.GoalAK != 0;
    const Way way = WayOf(game.GoalOrder);
    if (game.GoalUpDown) {
        const bool aces = game.GoalBase == GoalType::AcesAndKings;
        const std::string first = aces ? "the foundations with Aces" : "the first half of the foundations";
        const std::string last = aces ? ", those with Kings " : ", the other half ";
        std::string text = first + " build " + Building(game.GoalOrder) +
                           (aces && way == Way::Up ? " to the King" : "") + last + "down in suit" +
                           (aces ? " to the Ace" : "");
        if (wraps) text += "; the ranks go round";
        return text;
    }
    std::string text = "the foundations build " + Building(game.GoalOrder);
    if (way == Way::None) return text;
    if (way == Way::Either) return text + (wraps ? ", and the ranks go round" : "");
    if (const auto base = BaseRank(game)) return text + Range(*base, way, wraps);
    if (wraps) {
        return text + (way == Way::Up ? ", the Ace following the King," : ", the King following the Ace,") +
               " until each holds 13 cards";
    }
    return text + " and end with the " + (way == Way::Up ? "King" : "Ace");
}

Paragraphs Foundations(const Facts& facts) {
    const Definition& game = *facts.Game;
    Paragraphs paragraphs;
    if (facts.CompleteRuns) {
        paragraphs.push_back(
            "No card is put on a foundation by hand. A complete run leaves the tableau by itself: " +
            RunText(game) + ".");
        if (facts.Deal.AnyClosed())
            paragraphs.back() += " Face-down cards that continue the run count as well.";
        paragraphs.back() += ' ' + Sentence(RunPlaces(facts));
        if (facts.Deal.GoalCards > 0) {
            paragraphs.push_back(Capital(Count(facts.Deal.GoalCards, "card")) + ' ' +
                                 Are(facts.Deal.GoalCards) + " laid on the foundations at the deal.");
        } else if (game.GoalBase == GoalType::FirstCard) {
            paragraphs.back() +=
                " The rank that the empty foundations show is drawn anew for each deal and "
                "plays no part.";
        }
    } else {
        paragraphs.push_back((game.GoalPiles == 1
                                  ? "There is one foundation. "
                                  : "There are " + Count(game.GoalPiles, "foundation") + ". ") +
                             Sentence(StartClause(facts)));
        paragraphs.push_back(Sentence(GoalClause(facts)));
        const Way way = WayOf(game.GoalOrder);
        if (game.GoalBase == GoalType::FirstCard && game.GoalAK == 0 &&
            (way == Way::Up || way == Way::Down)) {
            paragraphs.back() += " So only a deal whose base rank is the " +
                                 std::string(way == Way::Up ? "Ace" : "King") + " can be won.";
        }
        if (game.Kind == GameType::LowFoundation) {
            paragraphs.back() +=
                " The other cards lie a little lower than the first one, which stays in sight.";
        }
    }
    if (TakesBack(facts)) {
        paragraphs.emplace_back("The top card of a foundation can be taken back into play.");
        if (!game.NoAuto) paragraphs.back() += " While Autoplay is on, it goes straight up again.";
        // Whatever lay there first: the pile asks for the base rank, which stays the Ace in these games.
        if (game.GoalBase == GoalType::AcesAndKings || game.GoalBase == GoalType::OneOfEachSuit) {
            paragraphs.back() += " But leave its first card there: an emptied foundation takes only an Ace.";
        }
    }
    return paragraphs;
}

}  // namespace mRulesText
