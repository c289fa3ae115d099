// The card table: where every card lies, the shuffle, and the one operation that moves cards.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "engine/state/Card.h"
#include "engine/state/GameNumber.h"
#include "engine/state/codes.h"
#include "engine/state/mRandom.h"

class cArray {
public:
    /// Empties the tables and shuffles by the game number: the same number, the same order of cards.
    void Init(const GameNumber& GameNo);
    /// Puts these card values, by PicID, in place of those of the shuffle. They are a permutation of 0 to
    /// TotalCards - 1; another count throws std::invalid_argument. The source stays where the shuffle left
    /// it.
    void SetDeck(const std::vector<int>& values);

    /// The card value of a PicID, 0 to TotalCards - 1.
    [[nodiscard]] int GetRandom(int PicID) const;
    /// The Pos of a pile's top card, -1 for an empty pile.
    [[nodiscard]] int GetTop(int Cell, int Pile = 0) const;
    /// The top card of a pile that is not empty; an empty one throws std::out_of_range.
    [[nodiscard]] int GetTopPicID(int Cell, int Pile = 0) const;
    /// The card at a place, or -1. A place outside the tables throws std::out_of_range.
    [[nodiscard]] int GetPicID(int Cell, int Pile, int Pos) const;
    /// The cards of a pile, bottom first; until the next move. A pile outside the tables throws.
    [[nodiscard]] std::span<const short> Cards(int Cell, int Pile = 0) const;
    /// Cards on the foundations, eight piles whatever the game shows.
    [[nodiscard]] int TotalGoalCards() const;
    /// Closed cards of a tableau pile.
    [[nodiscard]] int ClosedCards(int Pile) const;

    /// Moves PicID, and the mCards cards above it, to a place whose Pos counts from 0. The caller has
    /// decided that the move is allowed; only a full foundation pile refuses, in silence. `Speed` is
    /// the number of animation steps of the first card, 0 jumps. `DFace` 0 opens the moved cards.
    void MoveCard(int PicID, int DCell, int DPile, int DPos, ::tMod tMod = ::tMod::Play, int Speed = 1,
                  int mCards = 0, int DFace = 0, bool DisAutoMove = false);
    /// The top card leaves the tables, its record stays as it is. An empty pile throws std::out_of_range.
    /// For a deal that takes cards out of play; no pattern of today's games does.
    void ReduceOne(int Cell, int Pile);
    void AddtoWaste(int PicID);
    /// Up to three cards from the stock to the waste.
    void Stock3Waste();

    /// Called at the end of every move; `autoplay` says whether the move gives autoplay its turn. The
    /// card table does not know the rules: the spine sets this to autoplay and win check.
    using AfterMove = void (*)(bool autoplay);
    AfterMove OnMoved = nullptr;

    /// The source of the shuffle; the deal goes on drawing from it.
    RandomSource Random;

    bool operator==(const cArray&) const = default;

private:
    void PlaceCard(int PicID, int DCell, int DPile, int DPos, ::tMod tMod, int Speed, int DFace);
    [[nodiscard]] std::size_t PlaceIndex(int Cell, int Pile, int Pos) const;
    [[nodiscard]] static std::size_t PileIndex(int Cell, int Pile);

    int totalCards_ = 0;
    std::vector<short> posTable_;  // Cell, Pile, Pos 0 to TotalCards
    std::array<short, std::size_t{CellCount} * PilesOfCell> topTable_{};
    std::vector<short> randTable_;
};

/// The card table; there from InitApp to Shutdown.
extern cArray* gArray;
