// What a screen reader reads of the table: the piles that lie there, the names of piles and cards, and
// what lies at a point. It looks at the running game and changes nothing; while a move is under way it
// may meet a pile half built, and then reads what is there.
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <vector>

#include "engine/state/cGames.h"

namespace mReader {

/// A pile of the running game.
struct PilePlace {
    int Cell = 0;
    int Pile = 0;
    auto operator<=>(const PilePlace&) const = default;  // NOLINT(modernize-use-nullptr): no pointer
};

/// A part of the plate, in twips.
struct Extent {
    int Left = 0, Top = 0, Width = 0, Height = 0;
    [[nodiscard]] bool Contains(const Point& point) const;
    bool operator==(const Extent&) const = default;
};

/// The piles that can be seen, by group and number; none while no game runs. A pile without a mark is
/// there as long as it has cards.
[[nodiscard]] std::vector<PilePlace> Piles();
[[nodiscard]] int Count(const PilePlace& pile);
/// The card at `Pos`, counted from the bottom, or -1.
[[nodiscard]] int Card(const PilePlace& pile, int Pos);
/// Whether the card above lies exactly on this one.
[[nodiscard]] bool IsCovered(const PilePlace& pile, int Pos);

/// "Seven of Hearts", or "Face-down card".
[[nodiscard]] std::string CardText(int PicID);
/// "Tableau pile 3"; "Stock" where a group has one pile.
[[nodiscard]] std::string PileName(const PilePlace& pile);
/// The same within a sentence: "tableau pile 3", "the stock".
[[nodiscard]] std::string PileInSentence(const PilePlace& pile);
/// Where a card lies: "tableau pile 3, card 4 of 6".
[[nodiscard]] std::string PlaceText(const PilePlace& pile, int Pos);
/// "Tableau pile 3, 5 cards"; "Stock, 1 card" where a group has one pile; "Foundation pile 1, empty,
/// takes an Ace" where the mark tells.
[[nodiscard]] std::string PileText(const PilePlace& pile);

[[nodiscard]] Extent CardArea(int PicID);
/// The pile's own place: that of its mark or its first card.
[[nodiscard]] Extent BaseArea(const PilePlace& pile);
/// All cards and the pile's own place.
[[nodiscard]] Extent PileArea(const PilePlace& pile);
/// The pile of the card or mark that is seen at that point of the plate.
[[nodiscard]] std::optional<PilePlace> PileAt(const Point& point);
/// The Pos of the pile's card that is seen there, or -1. Other piles play no part.
[[nodiscard]] int PosAt(const PilePlace& pile, const Point& point);

}  // namespace mReader
