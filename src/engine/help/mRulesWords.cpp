// Numbers, lists and rule codes as words.
#include "engine/help/mRulesWords.h"

#include <array>
#include <cctype>

namespace mRulesWords {

namespace {

constexpr int LastInWords = 12;

enum class SuitWords { None, Same, Alternate, Any, Other, Color };

SuitWords SuitsOf(RuleCode code) {
    switch (code) {
        case RuleCode::DownSuit:
        case RuleCode::UpSuit:
        case RuleCode::EitherSuit:
            return SuitWords::Same;
        case RuleCode::DownAlt:
        case RuleCode::UpAlt:
        case RuleCode::EitherAlt:
            return SuitWords::Alternate;
        case RuleCode::DownAny:
        case RuleCode::UpAny:
        case RuleCode::EitherAny:
            return SuitWords::Any;
        case RuleCode::DownOther:
        case RuleCode::UpOther:
            return SuitWords::Other;
        case RuleCode::DownColor:
        case RuleCode::UpColor:
        case RuleCode::EitherColor:
            return SuitWords::Color;
        case RuleCode::Never:
        case RuleCode::Always:
        case RuleCode::SameRank:
            break;
    }
    return SuitWords::None;
}

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
    static constexpr std::array<std::string_view, 13> names{"Ace",  "Two",   "Three", "Four", "Five",
                                                            "Six",  "Seven", "Eight", "Nine", "Ten",
                                                            "Jack", "Queen", "King"};
    return names.at(static_cast<std::size_t>(rank));
}

std::string ARank(int rank) {
    constexpr int Ace = 0;
    constexpr int Eight = 7;
    std::string text = rank == Ace || rank == Eight ? "an " : "a ";
    text += Rank(rank);
    return text;
}

std::string_view Suit(int suit) {
    static constexpr std::array<std::string_view, 4> names{"Hearts", "Spades", "Diamonds", "Clubs"};
    return names.at(static_cast<std::size_t>(suit));
}

Way WayOf(RuleCode code) {
    switch (code) {
        case RuleCode::DownSuit:
        case RuleCode::DownAlt:
        case RuleCode::DownAny:
        case RuleCode::DownOther:
        case RuleCode::DownColor:
            return Way::Down;
        case RuleCode::UpSuit:
        case RuleCode::UpAlt:
        case RuleCode::UpAny:
        case RuleCode::UpColor:
        case RuleCode::UpOther:
            return Way::Up;
        case RuleCode::EitherSuit:
        case RuleCode::EitherAlt:
        case RuleCode::EitherAny:
        case RuleCode::EitherColor:
            return Way::Either;
        case RuleCode::Never:
        case RuleCode::Always:
        case RuleCode::SameRank:
            break;
    }
    return Way::None;
}

std::string Suits(RuleCode code) {
    switch (SuitsOf(code)) {
        case SuitWords::Same:
            return "in suit";
        case SuitWords::Alternate:
            return "in alternating colors";
        case SuitWords::Any:
            return "regardless of suit";
        case SuitWords::Other:
            return "in any suit but the same";
        case SuitWords::Color:
            return "in the same color";
        case SuitWords::None:
            break;
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
    switch (SuitsOf(code)) {
        case SuitWords::Same:
            return "the " + ranks + " of Hearts goes on the Seven of Hearts";
        case SuitWords::Alternate:
            return "a red " + ranks + " goes on a black Seven";
        case SuitWords::Any:
            return "any " + ranks + " goes on any Seven";
        case SuitWords::Other:
            return (way == Way::Up ? "an " : "a ") + ranks + " goes on a Seven of another suit";
        case SuitWords::Color:
            return "a red " + ranks + " goes on a red Seven";
        case SuitWords::None:
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
