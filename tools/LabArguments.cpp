// Splitting a line into a command and JSON values, and reading them.
#include "tools/LabArguments.h"

#include <cstdint>
#include <limits>
#include <vector>

#include <fmt/format.h>

namespace {

constexpr std::string_view blanks = " \t\r";

// Takes the next word off the line; blanks inside a JSON string or array belong to the word.
std::string_view TakeWord(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    bool inString = false;
    int arrays = 0;  // open ones
    std::size_t end = 0;
    for (; end < line.size(); ++end) {
        const char c = line[end];
        if (!inString && arrays <= 0 && blanks.find(c) != std::string_view::npos) break;
        if (!inString) arrays += c == '[' ? 1 : c == ']' ? -1 : 0;
        if (c == '"') inString = !inString;
        if (c == '\\' && inString && end + 1 < line.size()) ++end;
    }
    const std::string_view word = line.substr(0, end);
    line.remove_prefix(end);
    return word;
}

}  // namespace

LabArguments::LabArguments(std::string_view line) : command_(TakeWord(line)) {
    while (true) {
        const std::string_view word = TakeWord(line);
        if (word.empty()) return;
        nlohmann::json value = nlohmann::json::parse(word, nullptr, false);
        if (value.is_discarded()) throw LabError(fmt::format("no JSON value: {}", word));
        values_.push_back(std::move(value));
    }
}

void LabArguments::ExpectCount(std::size_t fewest, std::size_t most) const {
    if (Count() < fewest || Count() > most) {
        throw LabError(
            fewest == most
                ? fmt::format("{} takes {} arguments, not {}", command_, fewest, Count())
                : fmt::format("{} takes {} to {} arguments, not {}", command_, fewest, most, Count()));
    }
}

std::string LabArguments::Text(std::size_t index, const char* what) const {
    if (!values_.at(index).is_string()) throw LabError(fmt::format("{} must be a JSON string", what));
    return values_[index].get<std::string>();
}

int LabArguments::Whole(std::size_t index, const char* what, int low, int high) const {
    const nlohmann::json& value = values_.at(index);
    // An unsigned number above the signed range would turn negative.
    const bool fits =
        value.is_number_integer() && (!value.is_number_unsigned() ||
                                      value.get<std::uint64_t>() <= std::numeric_limits<std::int64_t>::max());
    const std::int64_t number = fits ? value.get<std::int64_t>() : 0;
    if (!fits || number < low || number > high) {
        throw LabError(fmt::format("{} must be a whole number from {} to {}", what, low, high));
    }
    return static_cast<int>(number);
}

double LabArguments::Seconds(std::size_t index, double high) const {
    const nlohmann::json& value = values_.at(index);
    const double seconds = value.is_number() ? value.get<double>() : -1.0;
    if (seconds < 0.0 || seconds > high)
        throw LabError(fmt::format("the seconds must be from 0 to {:.0f}", high));
    return seconds;
}

std::vector<int> LabArguments::Deck(std::size_t index, int cards) const {
    const nlohmann::json& values = values_.at(index);
    std::vector<int> deck;
    std::vector<bool> taken(static_cast<std::size_t>(cards), false);
    if (values.is_array() && values.size() == taken.size()) {
        for (const nlohmann::json& value : values) {
            if (!value.is_number_unsigned() || value.get<std::uint64_t>() >= taken.size()) break;
            const auto card = value.get<std::size_t>();
            if (taken[card]) break;
            taken[card] = true;
            deck.push_back(static_cast<int>(card));
        }
    }
    if (deck.size() != taken.size()) {
        throw LabError(
            fmt::format("the deck must be an array that holds each number from 0 to {} once", cards - 1));
    }
    return deck;
}

GameNumber LabArguments::Number(std::size_t index) const {
    const nlohmann::json& value = values_.at(index);
    if (value.is_number()) return value.get<double>();
    if (value.is_string()) {
        std::string text = value.get<std::string>();
        if (mGameNumber::Parse(text)) return text;
    }
    throw LabError("the game number must be a number or the text of one");
}
