// What a game's numbers come to in play: numbers that mean the same here give the same facts.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/catalogue/definition.h"

namespace mRulesFacts {

/// What one game can differ in from another.
enum class Respect {
    Deck,
    Piles,   ///< how many cards lie in which tableau pile
    Faces,   ///< which of them lie face down
    Kings,   ///< Kings sink after the deal
    Sight,   ///< how the piles lie, and whether covered cards can be read
    Build,   ///< what goes on a tableau card
    Lift,    ///< what moves together
    Limit,   ///< how many cards move at once
    Fill,    ///< what an empty pile takes
    Refill,  ///< what fills it by itself
    Start,   ///< what the foundations begin with
    Goal,    ///< how they build
    Stock,
    Redeal,
    Reserve,
    Auto,
    Derived,  ///< follows from the others
};
inline constexpr std::size_t RespectCount = static_cast<std::size_t>(Respect::Derived);

/// What the stock does.
enum class StockUse { None, OneToWaste, ThreeToWaste, ToPiles, ThreeToPilesThenWaste, Open };

/// The opening deal without its cards: for each tableau pile, from its lowest card up, whether the card
/// lies closed.
struct Shape {
    /// False where the lengths of the piles differ from deal to deal.
    bool Known = true;
    std::vector<std::vector<bool>> Piles;
    int GoalCards = 0;
    int ResCards = 0;
    /// Cards left for the stock.
    int StockCards = 0;

    [[nodiscard]] bool AnyClosed() const;
    /// Whether somewhere a closed card lies on an open one.
    [[nodiscard]] bool ClosedOnOpen() const;
};

struct Facts {
    explicit Facts(const Definition& definition);

    const Definition* Game;
    Shape Deal;
    bool CompleteRuns;   ///< runs of 13 leave by themselves, nothing is put on a foundation
    bool Limited;        ///< the free places limit a lifted run
    bool BaseFills;      ///< an empty pile takes the rank below the base rank
    RuleCode LiftOrder;  ///< what a lifted group must obey; Never: single cards only
    StockUse Stock;
    bool ToWaste;        ///< the stock puts cards on the waste
    int Redeals;         ///< -1 without limit
    bool Gathers;        ///< a redeal gathers the tableau
    AutoFill Refill;     ///< None where nothing could fill a pile
    bool ReserveHidden;  ///< of a reserve pile only the top card can be read
    bool FreeCells;      ///< a single card may be put on an empty reserve pile
    int SuitsUsed;       ///< 1, 2 or 4

    /// The facts of each respect as a text: equal texts, equal play in that respect.
    std::array<std::string, RespectCount> Keys;

    [[nodiscard]] const std::string& Key(Respect respect) const {
        return Keys[static_cast<std::size_t>(respect)];
    }
};

/// Works out the opening deal from the numbers.
[[nodiscard]] Shape ShapeOf(const Definition& game);

/// How many cards the foundations must hold for a win.
[[nodiscard]] int CardsToWin(const Facts& facts);

}  // namespace mRulesFacts
