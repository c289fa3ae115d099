// Where the keyboard's frame can stand on the table, and how keys lead it from place to place: by what the
// eye sees, whatever the layout. It only looks at the running game.
#pragma once

#include <optional>
#include <vector>

#include "engine/commands/mReader.h"

namespace mFrame {

/// A card that can be told from the one above it or, with Pos -1, the mark of a pile without cards.
struct Stop {
    mReader::PilePlace Pile;
    int Pos = -1;
    auto operator<=>(const Stop&) const = default;  // NOLINT(modernize-use-nullptr): no pointer
};

/// What a key asks for.
enum class Step {
    Left,
    Right,
    Up,
    Down,
    RowStart,  ///< the first pile from the left in the same row
    RowEnd,
    GroupStart,  ///< the first pile of the same group
    GroupEnd,
    NextGroup,  ///< Tableau, Reserve, Waste, Stock, Foundation, and round again
    PreviousGroup,
};

/// All places, by group, pile and card. While a card is in the hand: the piles without what was lifted, one
/// place each.
[[nodiscard]] std::vector<Stop> Stops();
/// The card or mark, in twips of the plate.
[[nodiscard]] mReader::Extent AreaOf(const Stop& stop);
/// What can be seen of it: of a card in a fan the part that the next one leaves free.
[[nodiscard]] mReader::Extent SeenOf(const Stop& stop);
/// Where the step leads; the same place where nothing lies that way. `from` is one of the places.
[[nodiscard]] Stop Next(const Stop& from, Step step);
/// The place on top of a pile; nothing for a pile that is not on the table.
[[nodiscard]] std::optional<Stop> TopOf(const mReader::PilePlace& pile);

}  // namespace mFrame
