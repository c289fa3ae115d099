// The sections on the deck and the deal.
#include <algorithm>
#include <array>
#include <functional>
#include <numeric>
#include <optional>

#include "engine/help/mRulesText.h"
#include "engine/help/mRulesWords.h"

namespace mRulesText {

using namespace mRulesWords;
using mRulesFacts::Facts;

namespace {

std::vector<int> Lengths(const Facts& facts) {
    std::vector<int> lengths;
    for (const std::vector<bool>& pile : facts.Deal.Piles) lengths.push_back(static_cast<int>(pile.size()));
    return lengths;
}

std::vector<int> ClosedCounts(const Facts& facts) {
    std::vector<int> closed;
    for (const std::vector<bool>& pile : facts.Deal.Piles) {
        closed.push_back(static_cast<int>(std::count(pile.begin(), pile.end(), true)));
    }
    return closed;
}

bool AllEqual(const std::vector<int>& values) {
    return std::adjacent_find(values.begin(), values.end(), std::not_equal_to<>{}) == values.end();
}

/// Whether each value is `step` more than the one before.
bool Steps(const std::vector<int>& values, int step) {
    return std::adjacent_find(values.begin(), values.end(), [=](int a, int b) { return b != a + step; }) ==
           values.end();
}

/// Where the values are of two kinds, the first ones alike and the others alike: how many come first.
std::optional<std::size_t> SplitAt(const std::vector<int>& values) {
    const auto change =
        std::find_if(values.begin(), values.end(), [&](int v) { return v != values.front(); });
    if (change == values.end()) return std::nullopt;
    if (std::any_of(change, values.end(), [&](int v) { return v != *change; })) return std::nullopt;
    return static_cast<std::size_t>(change - values.begin());
}

std::string NumberList(const std::vector<int>& values) {
    std::vector<std::string> words;
    words.reserve(values.size());
    for (const int value : values) words.push_back(Number(value));
    return List(words);
}

bool InOneLine(const Definition& game) { return game.Places->Home.Div >= game.HomePiles; }

// How the eye goes from the first pile to the last.
std::string ReadingOrder(const Definition& game) {
    const bool down = game.Places->Home.PileOrder == PileOrder::DownFanRight;
    if (InOneLine(game)) return down ? "from top to bottom" : "from left to right";
    return down ? "column by column" : "row by row";
}

std::string OtherPiles(std::size_t count) {
    return count == 1 ? "the last one holds" : "the other " + Number(static_cast<int>(count)) + " hold";
}

// Lengths that climb or fall by one, some equal ones at the high end; else all of them.
std::string Staircase(const std::vector<int>& lengths) {
    const int low = std::min(lengths.front(), lengths.back());
    const int high = std::max(lengths.front(), lengths.back());
    const bool climbs = lengths.back() == high;
    std::vector<int> upwards = lengths;
    if (!climbs) std::reverse(upwards.begin(), upwards.end());
    const auto top = std::find(upwards.begin(), upwards.end(), high);
    const std::vector<int> steps(upwards.begin(), top);
    const auto same = static_cast<int>(upwards.end() - top);
    const bool regular = !steps.empty() && Steps(steps, 1) && steps.back() + 1 == high &&
                         std::all_of(top, upwards.end(), [=](int v) { return v == high; });
    if (!regular) return NumberList(lengths) + " cards";
    if (same == 1) {
        return climbs ? Number(low) + " to " + Count(high, "card")
                      : Count(high, "card") + " down to " + Number(low);
    }
    return climbs ? Number(low) + " to " + Count(high - 1, "card") + ", and the last " + Number(same) + ' ' +
                        Number(high) + " each"
                  : Count(high, "card") + " in each of the first " + Number(same) + ", then " +
                        Number(high - 1) + " down to " + Number(low);
}

// "the first pile", "the first four piles".
std::string FirstPiles(std::size_t count) {
    return count == 1 ? "the first pile" : "the first " + Count(static_cast<int>(count), "pile");
}

std::string UnevenPiles(const Facts& facts) {
    const std::vector<int> lengths = Lengths(facts);
    const std::string piles = Count(facts.Game->HomePiles, "pile");
    if (facts.Game->HomePattern == HomeType::BySuit) {
        std::vector<std::string> placed;
        placed.reserve(static_cast<std::size_t>(facts.SuitsUsed));
        for (int suit = 0; suit < facts.SuitsUsed; ++suit) {
            placed.push_back("the " + std::string(Suit(suit)) + " to the " + Ordinal(suit + 1));
        }
        return "the tableau has " + piles + "; the cards are dealt to them by suit, " + List(placed) +
               ", while the other " + Count(facts.Game->HomePiles - facts.SuitsUsed, "pile") + " begin empty";
    }
    return "the tableau has " + piles +
           ", over which the cards are dealt at random: their lengths differ from deal to deal, the first "
           "and the last pile get about half as many cards as the others, and a pile may even stay empty";
}

}  // namespace

std::string Sentence(const std::string& clause) { return clause.empty() ? clause : Capital(clause) + '.'; }

std::string PilesClause(const Facts& facts) {
    if (!facts.Deal.Known) return UnevenPiles(facts);
    const Definition& game = *facts.Game;
    const std::vector<int> lengths = Lengths(facts);
    const std::string piles = Count(game.HomePiles, "pile");
    if (AllEqual(lengths)) {
        return "the tableau is dealt in " + piles + " of " + Count(lengths.front(), "card") + " each";
    }
    const std::string has = "the tableau has " + piles + "; ";
    if (const auto first = SplitAt(lengths)) {
        return has + FirstPiles(*first) + (*first == 1 ? " holds " : " hold ") +
               Count(lengths.front(), "card") + (*first == 1 ? ", " : " each, ") +
               OtherPiles(lengths.size() - *first) + ' ' + Number(lengths.back());
    }
    return has + ReadingOrder(game) + " they hold " + Staircase(lengths);
}

namespace {

// Piles of two kinds: some lie open, of the others only the top card. Names the fewer.
std::string OpenAndClosedPiles(const std::vector<int>& closed) {
    std::vector<std::string> open;
    std::vector<std::string> covered;
    for (std::size_t p = 0; p < closed.size(); ++p) {
        (closed[p] == 0 ? open : covered).push_back(Ordinal(static_cast<int>(p) + 1));
    }
    const auto named = [](const std::vector<std::string>& piles) {
        return "the " + List(piles) + (piles.size() == 1 ? " pile" : " piles");
    };
    if (open.size() <= covered.size()) {
        return "all cards of " + named(open) + " lie face up; of the other piles only the top card is seen";
    }
    return "in " + named(covered) + " only the top card lies face up; the other piles are face up throughout";
}

std::string LowestCards(int count) {
    return count == 1 ? "the lowest card" : "the " + Number(count) + " lowest cards";
}

std::string ClosedBelow(const Facts& facts) {
    const std::vector<int> closed = ClosedCounts(facts);
    const std::vector<int> lengths = Lengths(facts);
    std::vector<int> open;
    bool topsOnly = true;
    bool openOrTop = true;
    for (std::size_t p = 0; p < closed.size(); ++p) {
        open.push_back(lengths[p] - closed[p]);
        topsOnly = topsOnly && open[p] == std::min(1, lengths[p]);
        openOrTop = openOrTop && (closed[p] == 0 || open[p] == 1);
    }
    if (topsOnly) return "only the top card of each pile lies face up";
    if (AllEqual(closed)) {
        return LowestCards(closed.front()) + " of each pile " + (closed.front() == 1 ? "lies" : "lie") +
               " face down, the others face up";
    }
    if (AllEqual(open)) {
        return "the top " + Count(open.front(), "card") + " of each pile lie face up, the others face down";
    }
    if (closed.front() == 0 && Steps(closed, 1)) {
        return "in the first pile no card lies face down, in the second the lowest one, in the third the "
               "lowest two, and so on to " +
               Number(closed.back()) + " in the last; all other cards lie face up";
    }
    if (const auto first = SplitAt(closed); first && closed.back() == 0) {
        return LowestCards(closed.front()) + " of " + FirstPiles(*first) +
               (closed.front() == 1 && *first == 1 ? " lies" : " lie") + " face down, all others face up";
    }
    if (openOrTop) return OpenAndClosedPiles(closed);
    return NumberList(closed) + " cards lie face down at the bottom of the piles, " +
           ReadingOrder(*facts.Game) + "; the others lie face up";
}

}  // namespace

std::string FacesClause(const Facts& facts) {
    if (!facts.Deal.AnyClosed()) return "all cards lie face up";
    if (!facts.Deal.ClosedOnOpen()) return ClosedBelow(facts);
    // Only the alternating rows put closed cards on open ones.
    return "the cards of each pile lie face down and face up by turns, beginning with a face-down card at "
           "the bottom";
}

std::string SightClause(const Facts& facts, const Facts* other) {
    const Definition& game = *facts.Game;
    if (other && other->ReserveHidden != facts.ReserveHidden) {
        return facts.ReserveHidden ? "of the reserve only the top card can be read"
                                   : "all cards of the reserve can be read";
    }
    const GroupLayout& home = game.Places->Home;
    const int lines = (game.HomePiles + home.Div - 1) / home.Div;
    const int rest = game.HomePiles - (lines - 1) * home.Div;
    const auto inLines = [&](const std::string& line) {
        if (rest == home.Div) return "in " + Count(lines, line) + " of " + Number(home.Div);
        if (lines == 2) return "in two " + line + "s of " + Number(home.Div) + " and " + Number(rest);
        return "in " + Count(lines - 1, line) + " of " + Number(home.Div) + " and a last one of " +
               (rest == 1 ? "a single pile" : Number(rest));
    };
    std::string clause;
    switch (home.PileOrder) {
        case PileOrder::AcrossFanDown:
        case PileOrder::AcrossFanDownWide:
            clause = "the piles stand " + (lines == 1 ? "side by side" : inLines("row"));
            break;
        case PileOrder::AcrossFanRight:
            clause = "the piles lie as fans " + (lines == 1 ? "in one row" : inLines("row"));
            break;
        case PileOrder::DownFanRight:
            clause = "the piles lie " + (lines == 1 ? "one under another" : inLines("column")) +
                     (home.PosWidth > 0 ? " and spread to the right" : "");
            break;
        case PileOrder::Cross:
            clause = "the piles form a cross, with the foundations in its corners";
            break;
    }
    if (home.PosWidth == 0 || home.PileOrder == PileOrder::Cross) {
        clause += "; the cards of a pile lie squarely on one another, so that only the top one can be seen";
    }
    return clause;
}

std::string DeckClause(const Facts& facts) {
    const std::string each = Times(facts.Game->Deck / RankCount / facts.SuitsUsed);
    switch (facts.SuitsUsed) {
        case 1:
            return "all cards are Hearts, each rank " + each;
        case 2:
            return "there are only Hearts and Spades, each card " + each;
        default:
            return facts.Game->Deck == TwoDecks ? "there are all four suits, each card twice"
                                                : "there are all four suits";
    }
}

Paragraphs Deck(const Facts& facts) {
    const Definition& game = *facts.Game;
    const std::string cards = std::to_string(game.Deck) + " cards";
    if (facts.SuitsUsed == 4) {
        const std::string text = game.Deck == TwoDecks ? "Two decks are used, " + cards + " in all."
                                                       : "One deck of " + cards + " is used.";
        if (game.StockKind != StockType::TwoSuits) return {text};
        return {text + " The Diamonds and the Clubs stay out of the game."};
    }
    if (game.Deck < DeckCards && game.Suits == SuitType::FourSuits) {
        return {"Half a deck is used: the Hearts and the Spades, " + cards + " in all."};
    }
    const std::string each = Times(game.Deck / RankCount / facts.SuitsUsed);
    if (facts.SuitsUsed == 2) {
        return {"The " + cards + " are of two suits only: each rank occurs " + each + " in Hearts and " +
                each + " in Spades."};
    }
    return {"The " + cards + " are all Hearts: each rank occurs " + each + '.'};
}

Paragraphs Deal(const Facts& facts) {
    const Definition& game = *facts.Game;
    Paragraphs paragraphs{Sentence(PilesClause(facts)) + ' ' + Sentence(FacesClause(facts))};
    std::string& first = paragraphs.front();
    if (game.MoveKings) {
        first += " Then the Kings sink to the bottom of their piles, at most two in each pile.";
    }
    const GroupLayout& home = game.Places->Home;
    const bool usual = home.PileOrder == PileOrder::AcrossFanDown && InOneLine(game) && home.PosWidth > 0;
    if (!usual) first += ' ' + Sentence(SightClause(facts));
    if (facts.Deal.StockCards > 0) {
        const std::string rest = facts.Deal.StockCards == 1
                                     ? "The last card forms"
                                     : "The other " + Number(facts.Deal.StockCards) + " cards form";
        paragraphs.push_back(rest + " the stock" +
                             (facts.Stock == mRulesFacts::StockUse::Open ? ", which lies face up." : "."));
    } else {
        paragraphs.emplace_back("All cards are dealt; no stock is left.");
    }
    return paragraphs;
}

}  // namespace mRulesText
