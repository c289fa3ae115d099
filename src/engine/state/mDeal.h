// The deal of a game, from its numbers and its game number alone: which card goes where, in order. The table
// carries the steps out as moves; others count them, or play on from the position that they come to.
#pragma once

#include <array>
#include <vector>

#include "engine/state/Card.h"
#include "engine/state/cGames.h"
#include "engine/state/codes.h"
#include "engine/state/mRandom.h"

namespace mDeal {

/// The card values 0 to `cards` - 1 by PicID: the same number, the same order. Restarts the source, from
/// which the deal goes on drawing.
[[nodiscard]] std::vector<short> Shuffle(int cards, double number, RandomSource& source);
/// The card of a value.
[[nodiscard]] CardFace FaceOf(int value, SuitType suits);

/// The cards of a deal, by PicID.
using Faces = std::vector<CardFace>;
/// The stock as PicIDs, its top card last. What deals from it takes cards off.
using Pack = std::vector<int>;

/// A card goes to a place.
struct Step {
    int PicID;
    int Cell;
    int Pile;
    int Pos;
    bool Closed;
};
using Steps = std::vector<Step>;

struct Foundations {
    Steps Placed;
    int Base = Ace;  ///< the rank that an empty foundation pile accepts
};
/// The foundations' cards and their base rank, which is drawn where the game says so.
[[nodiscard]] Foundations DealGoal(const cGames& game, const Faces& cards, RandomSource& source);
/// All cards to the stock, in the order of their PicIDs, but those that `placed` says lie already.
[[nodiscard]] Steps DealStock(const cGames& game, const Faces& cards, const std::vector<bool>& placed);
// From the stock, as long as it has cards.
[[nodiscard]] Steps DealWaste(const cGames& game, Pack& stock);
[[nodiscard]] Steps DealRes(const cGames& game, Pack& stock);
/// The tableau, by the game's deal pattern.
[[nodiscard]] Steps DealHome(const cGames& game, const Faces& cards, Pack& stock, RandomSource& source);

/// Whether the pattern in the end opens the top card of each pile.
[[nodiscard]] bool OpensTops(HomeType pattern);
/// The rank that an empty tableau pile takes after the deal; -1 any, -10 none.
[[nodiscard]] int EmptyNum(const cGames& game, int base);

/// Where Kings sink, each pile is swept so often; a sweep takes its highest King to the bottom.
inline constexpr int KingSweeps = 2;
/// One sweep over a pile of these ranks, bottom first: the places, in order, from which a King changes
/// place with the card below it. `ranks` is left as the pile lies then.
[[nodiscard]] std::vector<int> SinkKings(std::vector<int>& ranks);

/// A card in the opening position.
struct Lying {
    int PicID;
    bool Closed;
};

/// The position that a game begins with, before autoplay has its first turn.
struct Opening {
    Faces Cards;
    int Base = Ace;     ///< the rank that an empty foundation pile accepts
    int EmptyNum = -1;  ///< the rank that an empty tableau pile takes; -1 any, -10 none
    /// By pile group and pile, the bottom card first. A card that the deal leaves out lies nowhere.
    std::array<std::vector<std::vector<Lying>>, CellCount> Piles;
};
/// The whole deal of a game under a number.
[[nodiscard]] Opening Deal(const cGames& game, double number);
/// The deal of a given deck: the card values by PicID, as many as the game has. What the deal itself
/// draws comes from `source`, which the shuffle has left behind.
[[nodiscard]] Opening Deal(const cGames& game, const std::vector<short>& values, RandomSource source);

}  // namespace mDeal
