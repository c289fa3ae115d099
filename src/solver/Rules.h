// The rules of one game as tables that a search can ask without a branch: which kinds of cards fit where,
// what happens by itself, what the stock does. Made from the game's numbers, the same that the table plays
// by.
#pragma once

#include <array>
#include <cstdint>

#include "engine/state/Card.h"
#include "engine/state/cGames.h"
#include "engine/state/codes.h"

namespace Solver {

/// A card: its kind, 0 to 51 (suit × 13 + rank, by the value of the pack), a bit for the second pack and a
/// bit for a closed card.
using Card = std::uint8_t;
inline constexpr Card KindBits = 63;
inline constexpr Card SecondDeck = 64;
inline constexpr Card Closed = 128;
inline constexpr int Kinds = DeckCards;
[[nodiscard]] constexpr int KindOf(Card card) { return card & KindBits; }
[[nodiscard]] constexpr int RankOf(int kind) { return kind % RankCount; }

/// A set of kinds: bit k stands for kind k.
using KindSet = std::uint64_t;
[[nodiscard]] constexpr KindSet Only(int kind) { return KindSet{1} << kind; }
[[nodiscard]] constexpr bool Has(KindSet set, int kind) { return (set >> kind & 1U) != 0; }

// All piles of a table in one row: the tableau, the reserve, the foundations, stock and waste.
inline constexpr int FirstHome = 0;
inline constexpr int FirstRes = 18;
inline constexpr int FirstGoal = 28;
inline constexpr int StockPile = 36;
inline constexpr int WastePile = 37;
inline constexpr int PileCount = 38;
/// A set of piles of the tableau and the reserve: bit p stands for pile p.
using PileSet = std::uint32_t;
[[nodiscard]] constexpr bool IsHome(int pile) { return pile < FirstRes; }
[[nodiscard]] constexpr bool IsRes(int pile) { return pile >= FirstRes && pile < FirstGoal; }
[[nodiscard]] constexpr bool IsGoal(int pile) { return pile >= FirstGoal && pile < StockPile; }
/// The Cell of a pile, and its number in there.
[[nodiscard]] int CellOf(int pile);
[[nodiscard]] int NumberOf(int pile);

/// Rules that are stricter, or otherwise, than those that a player has with Autoplay off.
struct Switches {
    bool NoReturn = false;     ///< no card comes back from a foundation
    bool SingleCards = false;  ///< only top cards are lifted, one at a time
    bool Autoplay = false;  ///< cards that fit go to the foundations by themselves, where the game allows it
};

struct Rules {
    Rules(const cGames& game, Switches switches);

    /// What the deal settles: the rank that the foundations start from and the one that an empty pile takes.
    void SetBase(int base, int emptyNum);

    int HomePiles, ResPiles, GoalPiles;
    int TotalCards, CardsToWin;
    int Base = Ace;
    int EmptyNum = -1;       ///< -1 any rank, -10 none
    KindSet BaseKinds = 0;   ///< of the rank that the foundations start from
    KindSet EmptyTakes = 0;  ///< the kinds that an empty tableau pile takes

    // By kind A: the kinds that may lie on it in the tableau, inside a lifted run, on a foundation (of the
    // lower and of the upper half of the piles), and next to it in a run that leaves by itself.
    std::array<KindSet, Kinds> HomeFits{}, LiftFits{}, RunFits{};
    /// By kind: the kinds that it may lie on in the tableau.
    std::array<KindSet, Kinds> HomeUnder{};
    std::array<std::array<KindSet, Kinds>, 2> GoalFits{};
    /// By kind: the number of its cards in the pack.
    std::array<std::uint8_t, Kinds> Copies{};
    /// The kinds that are in each pack.
    std::array<KindSet, 2> Packs{};
    std::size_t PackCount = 1;
    /// By kind: the lowest kind that the rules cannot tell from it.
    std::array<std::uint8_t, Kinds> Alike{};
    /// By card: a random number, the same for cards that the rules cannot tell apart.
    std::array<std::uint64_t, 256> Key{};

    bool MultiMove;      ///< more than a top card may be lifted
    bool LimitedRuns;    ///< a lifted run is limited by the empty places
    bool RunsLeave;      ///< complete runs leave, nothing is dropped on a foundation
    int RunTop;          ///< the rank on top of a complete run
    int GoalDiv;         ///< see cGames
    bool OwnBases;       ///< each foundation begins with a rank of its own
    bool UpDown;         ///< the upper half of the foundations builds by another rule
    bool FreeCells;      ///< a single card may be dropped on an empty reserve pile
    bool FillFromStock;  ///< an empty tableau pile takes cards of stock and waste only
    bool NoH2H;
    int HomeMax;  ///< cards that a drop may bring a tableau pile to; 0 no limit
    AutoFill Refill;
    bool Returns;   ///< cards come back from the foundations
    bool Autoplay;  ///< cards that fit go to the foundations by themselves

    bool FollowUps;  ///< something may happen by itself after a play, other than that a closed card opens

    StockMove Press;
    bool OpenStock;
    bool CanRedeal;  ///< a click on the stock's marker redeals, within the limit
    int Redeals;     ///< -1 no limit
    bool Gathers;    ///< a redeal gathers the tableau
    bool DealsOnto;  ///< a press of the stock or a redeal may deal onto the piles
    /// Presses of the stock and redeals change nothing but which card lies on top of the waste, so that they
    /// can wait until that card is played.
    bool TalonFree;

    [[nodiscard]] int GoalHalf(int goal) const { return UpDown && 2 * goal >= GoalPiles ? 1 : 0; }
};

}  // namespace Solver
