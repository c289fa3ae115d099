// Sentences about moves.
#include "engine/commands/mSpoken.h"

#include <algorithm>
#include <map>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "engine/help/mRulesWords.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cData.h"
#include "engine/state/cTrans.h"

namespace mSpoken {

namespace {

using mReader::PilePlace;

// More than that many parts are not listed but counted.
constexpr std::size_t MostParts = 6;

PilePlace PlaceOf(const CardRecord& card) { return {card.Cell, card.Pile}; }

std::string Cards(int number) { return mRulesWords::Count(number, "card"); }

std::string AndMore(int number) {
    if (number == 0) return {};
    return fmt::format(" and {} more card{}", mRulesWords::Number(number), number == 1 ? "" : "s");
}

// Cards that went the same way, from bottom to top.
using Group = std::vector<int>;

std::vector<std::string> Names(const Group& cards) {
    std::vector<std::string> names;
    names.reserve(cards.size());
    for (const int PicID : cards) names.push_back(mReader::CardText(PicID));
    return names;
}

bool LiesLower(int a, int b) {
    const CardRecord& first = PicBack.PicCards(a);
    const CardRecord& second = PicBack.PicCards(b);
    return std::pair(PlaceOf(first), first.Pos) < std::pair(PlaceOf(second), second.Pos);
}

// Piles of one group: "tableau pile 3", "tableau piles 2, 4 and 5".
std::string Together(const std::vector<PilePlace>& piles) {
    if (piles.size() == 1) return mReader::PileInSentence(piles.front());
    std::vector<std::string> numbers;
    numbers.reserve(piles.size());
    for (const PilePlace& pile : piles) numbers.push_back(std::to_string(pile.Pile + 1));
    const std::string first = mReader::PileInSentence(piles.front());
    return first.substr(0, first.rfind(' ')) + "s " + mRulesWords::List(numbers);
}

std::string ToFoundations(const Group& cards) {
    if (cards.size() == 1) return mReader::CardText(cards.front()) + " went to a foundation";
    return Cards(static_cast<int>(cards.size())) + " went to the foundations";
}

}  // namespace

void Say(const std::string& text) {
    if (!text.empty() && gData->Layer().Forms.Listens())
        gData->Layer().Forms.Announce(mRulesWords::Capital(text));
}

std::string Refusal(mFunc::LiftRefusal why) {
    switch (why) {
        case mFunc::LiftRefusal::None:
            break;
        case mFunc::LiftRefusal::NotOnTop:
            return "Only the top card can be lifted here";
        case mFunc::LiftRefusal::Closed:
            return "Closed";
        case mFunc::LiftRefusal::SingleCards:
            return "Covered, and this game moves single cards only";
        case mFunc::LiftRefusal::NotInSequence:
            return "Covered by a card that does not follow";
        case mFunc::LiftRefusal::TooMany:
            return fmt::format("More cards than free places allow ({})", mFunc::MaxMoveCards() + 1);
    }
    return {};
}

std::string Refusal(int PicID, const PilePlace& pile) {
    return fmt::format("{} does not take the {}", mReader::PileName(pile), mReader::CardText(PicID));
}

std::string NoRedeal() {
    return gRedealCount > 0 ? "The stock is empty, and no redeal is left"
                            : "The stock is empty, and this game has no redeal";
}

std::string Lifted(int PicID, int above) {
    std::map<int, std::vector<PilePlace>> takers;  // by group
    std::size_t count = 0;
    for (const PilePlace& pile : mReader::Piles()) {
        if (!mFunc::Accepts(PicID, above, pile.Cell, pile.Pile)) continue;
        takers[pile.Cell].push_back(pile);
        ++count;
    }
    std::vector<std::string> groups;
    groups.reserve(takers.size());
    for (const auto& [Cell, piles] : takers) groups.push_back(Together(piles));
    const std::string verb = count == 1 ? " takes it" : " take it";
    return fmt::format("{}{} lifted, {}", mReader::CardText(PicID), AndMore(above),
                       count == 0 ? "no pile takes it" : mRulesWords::List(groups) + verb);
}

std::optional<Change> Watch() {
    if (!gData->Layer().Forms.Listens()) return {};
    return Change();
}

Change::Change() : records_(gTrans->GetTransID()) {
    for (int PicID = 0; PicID < gGames->TotalCards(); ++PicID) {
        const CardRecord& card = PicBack.PicCards(PicID);
        before_[static_cast<std::size_t>(PicID)] = {card.Cell, card.Pile, card.Pos, card.FaceMode == 1};
    }
}

std::string Change::Text(int byHand) const {
    if (!gData->Figures.GameRunning || gTrans->GetTransID() == records_) return {};
    std::map<PilePlace, Group> elsewhere;
    Group fromStock, toStock, toGoal, turned;
    for (int PicID = 0; PicID < gGames->TotalCards(); ++PicID) {
        const Place& was = before_[static_cast<std::size_t>(PicID)];
        const CardRecord& is = PicBack.PicCards(PicID);
        if (was.Cell == is.Cell && was.Pile == is.Pile && was.Pos == is.Pos) {
            if (was.Closed && is.FaceMode != 1) turned.push_back(PicID);
        } else if (is.Cell == Stock) {
            toStock.push_back(PicID);
        } else if (is.Cell == Goal && PicID != byHand) {
            toGoal.push_back(PicID);
        } else if (was.Cell == Stock && PicID != byHand) {
            fromStock.push_back(PicID);
        } else {
            elsewhere[PlaceOf(is)].push_back(PicID);
        }
    }
    std::vector<std::string> parts;
    for (auto& [pile, cards] : elsewhere) {
        std::sort(cards.begin(), cards.end(), LiesLower);
        const std::string part = mReader::CardText(cards.front()) +
                                 AndMore(static_cast<int>(cards.size()) - 1) + " to " +
                                 mReader::PileInSentence(pile);
        const bool own = std::find(cards.begin(), cards.end(), byHand) != cards.end();
        parts.insert(own ? parts.begin() : parts.end(), part);
    }
    if (!fromStock.empty()) {
        std::sort(fromStock.begin(), fromStock.end(), LiesLower);
        const PilePlace first = PlaceOf(PicBack.PicCards(fromStock.front()));
        const PilePlace last = PlaceOf(PicBack.PicCards(fromStock.back()));
        const std::string target = first == last ? mReader::PileInSentence(first) : "the tableau";
        parts.push_back(fmt::format("{} dealt to {}", mRulesWords::List(Names(fromStock)), target));
    }
    if (!toStock.empty()) {
        parts.push_back(Cards(static_cast<int>(toStock.size())) + " went back to the stock");
    }
    for (const int PicID : turned) parts.push_back(mReader::CardText(PicID) + " turned up");
    if (parts.size() > MostParts) {
        std::size_t moved = 0;
        for (const auto& [pile, cards] : elsewhere) moved += cards.size();
        parts = {Cards(static_cast<int>(moved + fromStock.size() + toStock.size())) + " moved"};
    }
    if (!toGoal.empty()) parts.push_back((parts.empty() ? "" : "and ") + ToFoundations(toGoal));
    return fmt::format("{}", fmt::join(parts, ", "));
}

}  // namespace mSpoken
