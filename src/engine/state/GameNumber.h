// A game number: a number, or the text of one as the player typed it.
#pragma once

#include <optional>
#include <string>
#include <variant>

/// A drawn number is a whole number held as a floating-point value; one that came from a text box or
/// a list is a text. Both name the same deal when they are equal in value.
using GameNumber = std::variant<double, std::string>;

namespace mGameNumber {

/// The value of a text of digits with at most one sign and a decimal point, blanks around it allowed;
/// nothing for any other text. Independent of the locale.
[[nodiscard]] std::optional<double> Parse(const std::string& text);

/// The numeric value; a text that is no number counts as 0.
[[nodiscard]] double Value(const GameNumber& number);

/// The text shown to the player: a typed text as it stands, a number in plain digits without grouping.
[[nodiscard]] std::string Text(const GameNumber& number);

}  // namespace mGameNumber
