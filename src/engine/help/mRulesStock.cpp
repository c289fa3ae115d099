// The sections on the stock, the reserve, what happens by itself, and winning.
#include "engine/help/mRulesText.h"
#include "engine/help/mRulesWords.h"

namespace mRulesText {

using namespace mRulesWords;
using mRulesFacts::Facts;
using mRulesFacts::StockUse;

namespace {

// How many deals over the tableau the stock gives; nothing where refilling takes cards from it.
std::string DealsText(const Facts& facts) {
    if (facts.Refill == AutoFill::FromWaste) return {};
    const int piles = facts.Game->HomePiles;
    const int deals = facts.Deal.StockCards / piles;
    const int rest = facts.Deal.StockCards % piles;
    const std::string firstPiles = rest == 1 ? "the first pile" : "the first " + Count(rest, "pile");
    if (deals == 0) return " Its " + Count(rest, "card") + " reach only " + firstPiles + '.';
    if (rest == 0)
        return deals == 1 ? " There is one such deal." : " There are " + Count(deals, "such deal") + '.';
    return (deals == 1 ? " There is one full deal" : " There are " + Count(deals, "full deal")) +
           ", and a last one that reaches only " + firstPiles + '.';
}

std::string OftenText(int redeals) {
    if (redeals == -1) return "as often as you like";
    return Times(redeals);
}

}  // namespace

std::string StockClause(const Facts& facts) {
    switch (facts.Stock) {
        case StockUse::None:
            return "there is no stock";
        case StockUse::OneToWaste:
            return "a press on the stock turns one card onto the waste";
        case StockUse::ThreeToWaste:
            return "a press on the stock turns three cards onto the waste";
        case StockUse::ToPiles:
            return "a press on the stock deals one card face up onto every tableau pile, empty ones included";
        case StockUse::ThreeToPilesThenWaste:
            return "the first three presses on the stock deal one card face up onto every tableau pile, "
                   "empty "
                   "ones included; from then on a press turns one card onto the waste";
        case StockUse::Open:
            break;
    }
    return "the stock lies face up, and its top card can be played";
}

std::string RedealClause(const Facts& facts) {
    if (facts.Redeals == 0) return "there is no redeal";
    const std::string often = OftenText(facts.Redeals);
    if (!facts.Gathers) {
        return "when the stock is empty, a click on its place turns the waste over to form the stock again, "
               "unshuffled; this redeal can be made " +
               often;
    }
    return "the cards can be gathered and dealt anew " + often +
           ": for this redeal, a click on the stock's mark takes up the tableau pile by pile and deals it "
           "out again "
           "unshuffled, "
           "face up, in rows over all " +
           Count(facts.Game->HomePiles, "pile") + ", empty ones included";
}

std::string ReserveClause(const Facts& facts) {
    const Definition& game = *facts.Game;
    const int piles = game.ResPiles;
    const int cards = facts.Deal.ResCards;
    if (piles == 0) return "there is no reserve";
    if (facts.FreeCells) {
        std::string text = "the reserve has " + Count(piles, "free cell");
        if (cards == 0) return text;
        if (cards == piles) return text + (piles == 1 ? ", filled at the deal" : ", all filled at the deal");
        if (cards < piles) {
            return text + ", of which " + Number(cards) + (cards == 1 ? " is" : " are") +
                   " filled at the deal";
        }
        return text + ", to which " + Number(cards) + " cards are dealt";
    }
    if (cards == 0) {
        return piles == 1 ? "the reserve pile stays empty: no card may be put there"
                          : "the " + Number(piles) + " reserve piles stay empty: no card may be put there";
    }
    if (piles == 1) return "the reserve is one pile of " + Count(cards, "face-up card");
    if (cards % piles == 0) {
        return "the reserve has " + Count(piles, "pile") + " of " + Count(cards / piles, "face-up card") +
               " each";
    }
    return "the reserve has " + Count(piles, "pile") + ", to which " + Count(cards, "card") +
           (cards == 1 ? " is" : " are") + " dealt face up";
}

Paragraphs Stock(const Facts& facts) {
    if (facts.Stock == StockUse::None && !facts.Gathers) return {};
    Paragraphs paragraphs;
    std::string text = facts.Stock == StockUse::None ? "" : Sentence(StockClause(facts));
    switch (facts.Stock) {
        case StockUse::OneToWaste:
        case StockUse::ThreeToPilesThenWaste:
            text += " The top card of the waste can be played.";
            break;
        case StockUse::ThreeToWaste:
            text +=
                " Only the top card of the waste can be played; the cards below it follow as it goes. Where "
                "fewer than three cards are left, the press turns those.";
            break;
        case StockUse::ToPiles:
            text += DealsText(facts);
            break;
        case StockUse::Open:
        case StockUse::None:
            break;
    }
    if (!text.empty()) paragraphs.push_back(text);
    if (facts.ToWaste || facts.Gathers) paragraphs.push_back(Sentence(RedealClause(facts)));
    return paragraphs;
}

Paragraphs Reserve(const Facts& facts) {
    const Definition& game = *facts.Game;
    if (game.ResPiles == 0) return {};
    std::string text = Sentence(ReserveClause(facts));
    const int cards = facts.Deal.ResCards;
    if (facts.FreeCells) {
        text += game.ResPiles == 1 ? " It holds one card of any kind, which can be played at any time."
                                   : " Each holds one card of any kind, which can be played at any time.";
        return {text};
    }
    if (cards == 0) {
        if (facts.Limited && facts.LiftOrder != RuleCode::Never) {
            text += " They count only as free places when a run is moved.";
        }
        return {text};
    }
    if (cards > game.ResPiles) {
        text += facts.ReserveHidden ? " They lie so close together that only the top one can be read."
                                    : " They are spread so that all of them can be read.";
        text += game.ResPiles == 1 ? " Its top card can be played" : " The top cards can be played";
    } else {
        text += cards == 1 ? " The card can be played" : " These cards can be played";
    }
    return {text + ", but no card may be put on the reserve."};
}

Paragraphs ByItself(const Facts& facts) {
    const Definition& game = *facts.Game;
    Paragraphs paragraphs;
    std::string text;
    if (facts.CompleteRuns) {
        text = "Complete runs leave the tableau at once, whether Autoplay is on or off.";
    } else if (game.NoAuto) {
        text = "In this game no card goes to the foundations by itself, whether Autoplay is on or off.";
    }
    if (!game.NoAuto) {
        std::vector<std::string> places{"the tableau"};
        if (facts.FreeCells || facts.Deal.ResCards > 0) places.emplace_back("the reserve");
        if (facts.ToWaste) places.emplace_back("the waste");
        if (facts.Stock == StockUse::Open) places.emplace_back("the stock");
        if (!text.empty()) text += ' ';
        text += "While Autoplay is on, every top card of " + List(places) +
                " that fits on a foundation goes there by itself.";
    }
    paragraphs.push_back(text);
    if (facts.Deal.AnyClosed()) {
        paragraphs.emplace_back("A face-down card is turned face up as soon as the card on it leaves.");
    }
    return paragraphs;
}

Paragraphs Winning(const Facts& facts) {
    const Definition& game = *facts.Game;
    const int cards = mRulesFacts::CardsToWin(facts);
    if (cards == game.Deck) {
        return {"The game is won when all " + std::to_string(cards) + " cards lie on the " +
                (game.GoalPiles == 1 ? "foundation." : "foundations.")};
    }
    return {"The game is won when the foundations are full: " + std::to_string(cards) + " of the " +
            std::to_string(game.Deck) + " cards lie there then."};
}

}  // namespace mRulesText
