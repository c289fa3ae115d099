// The room that a game takes on the plate: now, and as far as its piles may usually grow.
#pragma once

#include "engine/state/cPlate.h"

namespace mRoom {

/// A rectangle of the plate, twips.
struct Area {
    int Left = 0, Top = 0, Right = 0, Bottom = 0;

    [[nodiscard]] bool Empty() const { return Left >= Right || Top >= Bottom; }
    /// The smallest rectangle around both; an empty one plays no part.
    [[nodiscard]] Area With(const Area& other) const;
    /// The same where it holds `other`; else it grows, and by `spare` more on each side that was too small.
    [[nodiscard]] Area Around(const Area& other, int spare) const;
    bool operator==(const Area&) const = default;
};

/// What the cards and marks that a plate shows cover.
[[nodiscard]] Area Taken(const cPlate& plate);

/// What the game whose numbers are in gGames needs, `dealt` being its opening deal: all its piles, and
/// where tableau and foundations may come to lie. A pile can outgrow it; that is rare, and Follow makes room
/// for it.
[[nodiscard]] Area OfGame(const cPlate& dealt);

/// To be called when a card of the running game has moved: lets `room` grow where the card lies beyond it,
/// and true then. A card in the hand may be anywhere, and those of a deal have their room already.
[[nodiscard]] bool Follow(Area& room, int PicID);

}  // namespace mRoom
