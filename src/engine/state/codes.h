// The codes of a game definition: what each number of a game's row means.
// The numbers are fixed: they are printed in bug reports and by the text driver.
#pragma once

/// The pile groups of a table.
enum Cell : int {
    Home = 0,  ///< shown as "Tableau"
    Stock = 1,
    Waste = 2,
    Goal = 3,  ///< shown as "Foundation"
    Res = 4,   ///< shown as "Reserve"
};
inline constexpr int CellCount = 5;

// The room of the table, whatever a game uses of it.
inline constexpr int PilesOfCell = 21;     ///< places for piles in every group
inline constexpr int MostHomePiles = 18;   ///< with a mark each
inline constexpr int FoundationPiles = 8;  ///< a complete run may lie beyond the piles that the game shows
inline constexpr int MostResPiles = 10;

/// Which card may lie on which. "Down" means one rank lower than the card below it.
enum class RuleCode : int {
    Never = 0,
    DownSuit = 1,
    UpSuit = 2,
    EitherSuit = 3,
    DownAlt = 4,  ///< alternate colour
    UpAlt = 5,
    EitherAlt = 6,
    DownAny = 7,
    UpAny = 8,
    Always = 9,
    SameRank = 10,
    EitherAny = 12,
    DownOther = 15,  ///< any suit but the same
    DownColor = 16,  ///< same colour
    UpColor = 17,
    EitherColor = 18,
    UpOther = 19,
};

/// Kind of play.
enum class GameType : int {
    Plain = 0,
    LimitedRuns = 1,    ///< a lifted run is limited by the empty cells and piles
    CompleteRuns = 2,   ///< runs of 13 leave the tableau by themselves, nothing is dropped on a foundation
    BaseFills = 3,      ///< as LimitedRuns; an empty pile takes the rank below the base rank
    LowFoundation = 4,  ///< foundation cards above the first lie 250 twips lower
    OpenRedeal = 5,     ///< the redeal marker stays on while stock and waste are empty
};

/// How the foundations get their base cards.
enum class GoalType : int {
    Aces = 0,
    Twos = 1,
    Kings = 12,
    PlainAces = 13,      ///< base rank Ace, no card placed, a mark without rank
    AcesAndKings = 14,   ///< Aces on the first half of the piles, Kings on the second
    FirstCard = 16,      ///< the rank of the first card; a random rank where no card is placed
    OneOfEachSuit = 17,  ///< one card a pile, each with a rank of its own
};

/// How the stock behaves.
enum class StockType : int {
    Closed = 0,
    Open = 1,      ///< its top card lies open and is played like a waste card
    TwoSuits = 2,  ///< as Closed; the deal takes suits 0 and 1 only
};

/// What a press on a closed stock does.
enum class StockMove : int {
    None = 0,  ///< as OneToWaste
    OneToWaste = 1,
    OneToEachPile = 2,
    ByHand = 3,  ///< with an open stock: nothing, the top card is played by hand
    ThreeToWaste = 4,
    FirstThreeToPiles = 10,  ///< three presses as OneToEachPile, later ones as OneToWaste
};

/// The marker under the stock.
enum class StockNum : int {
    None = 0,
    NoRedeal = 1,
    Redeal = 2,
};

/// The deal pattern of the tableau.
enum class HomeType : int {
    Rows = 0,
    StairsRight = 1,
    BySuit = 2,
    Cone = 3,
    ClosedCone = 4,
    RandomSpread = 5,
    ClosedBlock = 6,
    StairsLeft = 7,
    AlternateRows = 8,
    EvenPilesOpen = 9,
    AllButPile4Open = 10,
    Pile4Open = 11,
    EndPilesOpen = 12,
    Piles048Open = 13,
    InverseCone = 14,
    ClosedInverseCone = 15,
    Yukon = 16,
    YukonRows = 17,
    DoubleYukon = 18,
};

/// What may fill an empty tableau pile.
enum class EmptyFillType : int {
    AnyCard = 0,
    KingOnly = 1,
    FromStock = 2,  ///< any card, but only from the stock or the waste
    Nothing = 3,
    AceOnly = 4,
};

/// How emptied tableau piles refill by themselves.
enum class AutoFill : int {
    None = 0,
    FromWaste = 1,   ///< from the waste or, where that is empty, from the stock
    NoneEither = 2,  ///< means the same as None; one game carries it
    FromReserve = 3,
};

/// How a redeal gathers the cards.
enum class RedealType : int {
    WasteToStock = 0,
    GatherTableau = 1,
};

/// How a card's suit follows from its value.
enum class SuitType : int {
    OneSuit = 0,
    TwoSuits = 1,
    FourSuits = 2,
};

/// How the piles of a group lie on the table and which way their cards fan.
enum class PileOrder : int {
    AcrossFanDown = 0,      ///< piles side by side, a new row of piles below
    AcrossFanDownWide = 1,  ///< as AcrossFanDown, a new row of piles to the right
    AcrossFanRight = 2,     ///< piles in rows, cards fan to the right
    DownFanRight = 3,       ///< piles one under another, cards fan to the right
    Cross = 4,              ///< five piles in a cross, not fanned
};

// What ResNum says of an empty reserve pile.
inline constexpr int ResFreeCells = 0;  ///< a single card may be dropped on an empty reserve pile
inline constexpr int ResNoDrop = 1;     ///< no card may be dropped on the reserve

/// Kind of a card move.
enum class tMod : int {
    Play = 0,
    FromStock = 1,
    ToStock = 2,  ///< back to the stock in a redeal
    Uncover = 3,  ///< set by MoveCard when a move uncovers a closed card
    UndoRedo = 4,
    Deal = 5,
    Reposition = 6,  ///< inside a pile, the caller answers for the tables
};

/// The plain number of a code.
template <typename Code>
constexpr int Number(Code code) {
    return static_cast<int>(code);
}
