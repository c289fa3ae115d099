// Numbers, lists and rule codes as words.
#include "engine/help/mRulesWords.h"

#include <array>
#include <cctype>

namespace mRulesWords {

namespace {

using mOrder::SuitRule;

constexpr int LastInWords = 12;

}  // namespace

std::string Number(int number) {
    static constexpr std::array<const char*, LastInWords + 1> words{
        "no",    "one",   "two",  "three", "four",   "five",  "six",
        "seven", "eight", "nine", "ten",   "eleven", "twelve"};
    if (number < 0 || number > LastInWords) return std::to_string(number);
    return words[static_cast<std::size_t>(number)];
}

std::string Count(int number, std::string_view thing) {
    std::string text = Number(number) + ' ';
    text += thing;
    if (number != 1) text += 's';
    return text;
}

std::string Ordinal(int number) {
    static constexpr std::array<const char*, LastInWords + 1> words{
        "",        "first",  "second", "third", "fourth",   "fifth",  "sixth",
        "seventh", "eighth", "ninth",  "tenth", "eleventh", "twelfth"};
    // No pile has a number of 21 or more, where "th" would be wrong again.
    if (number < 1 || number > LastInWords) return std::to_string(number) + "th";
    return words[static_cast<std::size_t>(number)];
}

std::string Times(int number) {
    if (number == 1) return "once";
    if (number == 2) return "twice";
    return Number(number) + " times";
}

std::string List(const std::vector<std::string>& items, std::string_view last) {
    std::string text;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i > 0 && i + 1 == items.size()) {
            text += ' ';
            text += last;
            text += ' ';
        } else if (i > 0) {
            text += ", ";
        }
        text += items[i];
    }
    return text;
}

std::string Capital(std::string text) {
    if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
    return text;
}

std::string_view Rank(int rank) {
    static constexpr std::array<std::string_view, RankCount> names{"Ace",  "Two",   "Three", "Four", "Five",
                                                                   "Six",  "Seven", "Eight", "Nine", "Ten",
                                                                   "Jack", "Queen", "King"};
    return names.at(static_cast<std::size_t>(rank));
}

std::string ARank(int rank) {
    constexpr int Eight = 7;
    std::string text = rank == Ace || rank == Eight ? "an " : "a ";
    text += Rank(rank);
    return text;
}

std::string_view Suit(int suit) {
    static constexpr std::array<std::string_view, SuitCount> names{"Hearts", "Spades", "Diamonds", "Clubs"};
    return names.at(static_cast<std::size_t>(suit));
}

Way WayOf(RuleCode code) {
    const auto demand = mOrder::DemandOf(code);
    if (!demand || demand->Ranks == Way::SameRank || demand->Ranks == Way::AnyRank) return Way::None;
    return demand->Ranks;
}

std::string Suits(RuleCode code) {
    if (WayOf(code) == Way::None) return {};
    switch (mOrder::DemandOf(code)->Suits) {
        case SuitRule::Same:
            return "in suit";
        case SuitRule::Alternate:
            return "in alternating colors";
        case SuitRule::Any:
            return "regardless of suit";
        case SuitRule::Different:
            return "in any suit but the same";
        case SuitRule::SameColor:
            return "in the same color";
    }
    return {};
}

std::string Building(RuleCode code) {
    switch (WayOf(code)) {
        case Way::Down:
            return "down " + Suits(code);
        case Way::Up:
            return "up " + Suits(code);
        case Way::Either:
            return "up or down " + Suits(code);
        case Way::SameRank:
        case Way::AnyRank:
        case Way::None:
            break;
    }
    if (code == RuleCode::Always) return "in any order";
    if (code == RuleCode::SameRank) return "in the same rank";
    return "not at all";
}

std::string Example(RuleCode code) {
    const Way way = WayOf(code);
    if (way == Way::None) return {};
    std::string ranks = way == Way::Down ? "Six" : "Eight";
    if (way == Way::Either) ranks = "Six or Eight";
    switch (mOrder::DemandOf(code)->Suits) {
        case SuitRule::Same:
            return "the " + ranks + " of Hearts goes on the Seven of Hearts";
        case SuitRule::Alternate:
            return "a red " + ranks + " goes on a black Seven";
        case SuitRule::Any:
            return "any " + ranks + " goes on any Seven";
        case SuitRule::Different:
            return (way == Way::Up ? "an " : "a ") + ranks + " goes on a Seven of another suit";
        case SuitRule::SameColor:
            return "a red " + ranks + " goes on a red Seven";
    }
    return {};
}

std::string WrapText(Way way, bool wraps) {
    switch (way) {
        case Way::Down:
            return wraps ? "the ranks go round, so that a King goes on an Ace" : "nothing goes on an Ace";
        case Way::Up:
            return wraps ? "the ranks go round, so that an Ace goes on a King" : "nothing goes on a King";
        case Way::Either:
            return wraps ? "the ranks go round: an Ace goes on a King, and a King on an Ace"
                         : "Ace and King are not neighbors";
        case Way::SameRank:
        case Way::AnyRank:
        case Way::None:
            break;
    }
    return {};
}

std::string Escape(std::string_view text) {
    std::string safe;
    safe.reserve(text.size());
    for (const char letter : text) {
        switch (letter) {
            case '&':
                safe += "&amp;";
                break;
            case '<':
                safe += "&lt;";
                break;
            case '>':
                safe += "&gt;";
                break;
            default:
                safe += letter;
        }
    }
    return safe;
}

}  // namespace mRulesWords
