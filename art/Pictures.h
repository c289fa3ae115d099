// The pictures of the program by kind and number, each as SVG text.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "Shapes.h"

class Drawing;

namespace Pictures {

/// Card face 1 to 52: suit × 13 + rank + 1.
[[nodiscard]] std::string Face(int number, Shapes::Colors colors);
/// The same in another drawing, where DefineSuit() has told the suit.
void DrawFace(Drawing& drawing, int suit, int rank, Shapes::Colors colors = Shapes::Colors::Two);
void DefineSuit(Drawing& drawing, int suit);
/// The name under which DefineSuit() defines it.
[[nodiscard]] std::string SuitName(int suit);
/// The half-figures of Jack, Queen and King (rank 10 to 12) in their frame, on a blank card.
void DrawCourt(Drawing& drawing, int suit, int rank, Shapes::Colors colors);

/// The numbers of all card backs.
[[nodiscard]] std::span<const int> BackNumbers();
/// A card back of that list.
[[nodiscard]] std::string Back(int number);

/// Pile mark 0 to 17.
[[nodiscard]] std::string Mark(int number);

/// The names of all icons.
[[nodiscard]] std::span<const std::string_view> IconNames();
/// An icon of that list.
[[nodiscard]] std::string Icon(std::string_view name);

[[nodiscard]] std::string ApplicationIcon();
/// For sizes up to 24 pixels.
[[nodiscard]] std::string SmallApplicationIcon();
[[nodiscard]] std::string Splash();

}  // namespace Pictures
