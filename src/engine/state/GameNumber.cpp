// Game numbers: parsing and printing, the same in every locale.
#include "engine/state/GameNumber.h"

#include <array>
#include <charconv>
#include <cmath>

namespace mGameNumber {

std::optional<double> Parse(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos) return std::nullopt;
    const auto last = text.find_last_not_of(" \t");
    const char* begin = text.data() + first;
    const char* const end = text.data() + last + 1;
    if (*begin == '+' && begin[1] != '-') ++begin;
    double value = 0.0;
    const auto [stop, fault] = std::from_chars(begin, end, value, std::chars_format::fixed);
    // from_chars also reads "inf" and "nan", which are texts to a player.
    if (fault != std::errc{} || stop != end || !std::isfinite(value)) return std::nullopt;
    return value;
}

double Value(const GameNumber& number) {
    if (const auto* value = std::get_if<double>(&number)) return *value;
    return Parse(std::get<std::string>(number)).value_or(0.0);
}

std::string Text(const GameNumber& number) {
    if (const auto* text = std::get_if<std::string>(&number)) return *text;
    // Never with an exponent, which Parse takes for a text: a record would be written that nobody can read.
    // As short as it can be and still be the same number; the longest has 1 + 2 + 16 + 323 characters.
    std::array<char, 400> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), std::get<double>(number),
                                       std::chars_format::fixed);
    return {text.data(), written.ptr};
}

}  // namespace mGameNumber
