// The layouts that more than one family uses, and the measures that all layouts are made of (twips).
//
// A game is centred by its width BaseX. The stock and then the waste stand at the left of the top row,
// the foundations end flush with BaseX. The names count the piles of the tableau, the foundations and
// the reserve; without an ending the layout has places for a stock and a waste, "Stock" stands for a
// stock alone. A game that keeps no stock deals from the place of its first foundation or cell.
#pragma once

#include "engine/catalogue/definition.h"
#include "engine/state/cPlate.h"

namespace Layouts {

// clang-format off
inline constexpr int Across = CardWidth + 100;    ///< from pile to pile
inline constexpr int Squeezed = CardWidth + 50;   ///< from pile to pile in a top row that must fit
inline constexpr int Down = CardHeight + 100;     ///< from pile to pile, one under another
inline constexpr int DownTight = CardHeight + 50; ///< the same where it must fit
inline constexpr int Fan = 250;                   ///< from card to card of a tableau pile
inline constexpr int CloseFan = 180;              ///< the same where there is less space
inline constexpr int BelowTop = 1640;             ///< top of a tableau below a top row

using enum PileOrder;

// A top row over a tableau of the same width.

/// The reserve, where there is one, has two piles.
inline constexpr Layout Piles6Goals2NoStock = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 4660, .PileWidth = Across},
    .Stock = {.StartX = 4660},
    .Res   = {.StartX = 0, .PileWidth = Across},
    .BaseX = 6890};

inline constexpr Layout Piles6Goals4 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2330, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1165},
    .BaseX = 6890};

inline constexpr Layout Piles7Goals4 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 3495, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1265},
    .BaseX = 8055};

/// The reserve, where there is one, has two piles.
inline constexpr Layout Piles7Goals4NoStock = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 3495, .PileWidth = Across},
    .Stock = {.StartX = 3495},
    .Res   = {.StartX = 0, .PileWidth = Across},
    .BaseX = 8055};

inline constexpr Layout Piles8Goals4 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 4660, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1265},
    .BaseX = 9220};

inline constexpr Layout Piles8Goals4NoStock = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 4660, .PileWidth = Across},
    .Stock = {.StartX = 4660},
    .BaseX = 9220};

/// Cells and foundations stand a little wider than the tableau, to part them.
inline constexpr Layout Piles8Goals4Res4 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 4960, .PileWidth = Squeezed},
    .Stock = {.StartX = -150},
    .Res   = {.StartX = -150, .PileWidth = Squeezed},
    .BaseX = 9220};

inline constexpr Layout Piles9Goals4 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 5825, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1265},
    .BaseX = 10385};

inline constexpr Layout Piles9Goals8Stock = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 1515, .PileWidth = Squeezed},
    .Stock = {.StartX = 150},
    .BaseX = 10385};

inline constexpr Layout Piles10Goals4 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 6990, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1265},
    .BaseX = 11550};

/// Without a stock; the foundations stand in the middle.
inline constexpr Layout Piles10Goals4Middle = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 3495, .PileWidth = Across},
    .Stock = {.StartX = 3495},
    .BaseX = 11550};

inline constexpr Layout Piles10Goals4Res6 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 7140, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .PileWidth = Squeezed},
    .BaseX = 11550};

inline constexpr Layout Piles10Goals8Stock = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2130, .PileWidth = Squeezed},
    .Stock = {.StartX = 532},
    .BaseX = 11550};

inline constexpr Layout Piles10Goals8 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2680, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1315},
    .BaseX = 11550};

/// The reserve is a row of its own between foundations and tableau.
inline constexpr Layout Piles10Goals8Res10 = {
    .Home  = {.StartX = 0, .StartY = 3280, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2680, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1315},
    .Res   = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across},
    .BaseX = 11550};

// A top row wider than the tableau, which stands in the middle below it.

inline constexpr Layout Piles7Goals4Res2 = {
    .Home  = {.StartX = 682, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 5010, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1165},
    .Res   = {.StartX = 2530, .PileWidth = Squeezed},
    .BaseX = 9420};

inline constexpr Layout Piles8Goals8 = {
    .Home  = {.StartX = 1165, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2680, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1315},
    .BaseX = 11550};

inline constexpr Layout Piles9Goals8 = {
    .Home  = {.StartX = 582, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2680, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1315},
    .BaseX = 11550};

// Columns beside the tableau.

/// Eight foundations, four on each side.
inline constexpr Layout Piles8GoalsBeside = {
    .Home  = {.StartX = 1265, .StartY = 0, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 0, .StartY = 500, .PileWidth = Down, .Div = 4, .DivWidth = 10685, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0, .StartY = 500},
    .BaseX = 11750};

/// The same with a tableau of two rows.
inline constexpr Layout Piles16GoalsBeside = {
    .Home  = {.StartX = 1265, .StartY = 0, .PileWidth = Across, .PosWidth = Fan, .Div = 8, .DivWidth = 4000},
    .Goal  = {.StartX = 0, .StartY = 500, .PileWidth = Down, .Div = 4, .DivWidth = 10685, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0, .StartY = 500},
    .BaseX = 11750};

/// Eight cells on the left, eight foundations on the right.
inline constexpr Layout Piles6CellsGoalsBeside = {
    .Home  = {.StartX = 2430, .StartY = 0, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 9520, .PileWidth = DownTight, .Div = 4, .DivWidth = Across, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .PileWidth = DownTight, .Div = 4, .DivWidth = Across, .PileOrder = DownFanRight},
    .BaseX = 11750};

/// Two columns of piles that fan to the right, four foundations between them.
inline constexpr Layout SidewaysPiles8 = {
    .Home  = {.StartX = 0, .StartY = 0, .PileWidth = Down, .PosWidth = CloseFan, .Div = 4, .DivWidth = 5870,
              .PileOrder = DownFanRight},
    .Goal  = {.StartX = 4605, .PileWidth = Down, .PileOrder = DownFanRight},
    .Stock = {.StartX = 4605},
    .BaseX = 10475,
    .BaseY = 700};

// clang-format on

}  // namespace Layouts
