// What the pictures share: the card's outline, the suits and the letterforms of the ranks.
#pragma once

#include <string>
#include <string_view>
#include <vector>

class Drawing;

namespace Shapes {

inline constexpr double CardWidth = 71.0;  ///< designed pixels, the unit of all card pictures
inline constexpr double CardHeight = 96.0;
inline constexpr double CardRadius = 4.5;  ///< of the corners

inline constexpr std::string_view Paper = "#fffefa";
inline constexpr std::string_view Ink = "#17181f";
inline constexpr std::string_view Red = "#d21f2e";
// The two more of a deck in four colours. They and the other two stay apart for who sees no red, no green or
// no blue light, and dark on paper: the tests look through such eyes.
inline constexpr std::string_view Blue = "#1f4fe0";
inline constexpr std::string_view Green = "#008c48";

/// Two colours, red and black, or one for each suit.
enum class Colors { Two, Four };

/// 0 Hearts, 1 Spades, 2 Diamonds, 3 Clubs: a path in a box of 100 × 100 around the origin.
[[nodiscard]] std::string_view Suit(int suit);
[[nodiscard]] std::string_view SuitColor(int suit, Colors colors = Colors::Two);

/// Draws rank 0 (Ace) to 12 (King) with its box of 8.4 × 9 at the left and top given, times `scale`.
void DrawRank(Drawing& drawing, int rank, double left, double top, double scale, std::string_view color);

/// A blank card with its hairline edge.
void DrawCard(Drawing& drawing, std::string_view paper = Paper);
/// Only the edge: what is drawn last on a picture that fills the card.
void DrawCardEdge(Drawing& drawing);

struct Corner {
    double X, Y;
};
/// The part of a convex polygon that lies in a box, as a closed path; empty where none does.
[[nodiscard]] std::string Cut(const std::vector<Corner>& corners, double left, double top, double right,
                              double bottom);
/// A star of that many points around x, y; the first point upwards, then turned (degrees).
[[nodiscard]] std::string Star(double x, double y, int points, double outer, double inner, double turn = 0);

}  // namespace Shapes
