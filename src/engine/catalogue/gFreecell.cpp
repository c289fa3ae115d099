// The family "Freecell": open tableaus around a reserve whose piles are mostly free cells.
#include "engine/catalogue/columns.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/family.h"
#include "engine/catalogue/layouts.h"

namespace gFreecell {

namespace {

using namespace Columns;
using namespace Layouts;

// clang-format off

// Seven piles below the same top row.
constexpr Layout Piles7Goals4Res4 = {
    .Home  = {.StartX = 582, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 4960, .PileWidth = Squeezed},
    .Stock = {.StartX = -150},
    .Res   = {.StartX = -150, .PileWidth = Squeezed},
    .BaseX = 9220};

// The foundations' cards lie 250 lower than their base cards: the tableau makes room.
constexpr Layout Piles8LowGoals4Res2 = {
    .Home  = {.StartX = 0, .StartY = BelowTop + 250, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 4960, .PileWidth = Squeezed},
    .Stock = {.StartX = -150},
    .Res   = {.StartX = -150, .PileWidth = Squeezed},
    .BaseX = 9220};

// Stock and waste, two cells, the foundations: a top row a little wider than the tableau.
constexpr Layout Piles8Goals4Res2 = {
    .Home  = {.StartX = 100, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 5010, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1165},
    .Res   = {.StartX = 2530, .PileWidth = Squeezed},
    .BaseX = 9420};

constexpr Layout Piles8Goals4Res2Stock = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 4660, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 1748, .PileWidth = Across},
    .BaseX = 9220};

constexpr Layout Piles9Goals4Res4 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 5825, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .PileWidth = Across},
    .BaseX = 10385};

constexpr Layout Piles10Goals4Res4 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 6990, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .PileWidth = Across},
    .BaseX = 11550};

// The cells stand under the stock, the tableau ends where the foundations end.
constexpr Layout Piles8Goals8Res3Stock = {
    .Home  = {.StartX = 1265, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 1265, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .StartY = BelowTop, .PileWidth = Down, .PileOrder = DownFanRight},
    .BaseX = 10485};

constexpr Layout Piles9Goals8Res2 = {
    .Home  = {.StartX = 1165, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2680, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1315},
    .Res   = {.StartX = 0, .StartY = BelowTop, .PileWidth = Down, .PileOrder = DownFanRight},
    .BaseX = 11550};

// A cell above every pile, the foundations at the right.
constexpr Layout CellAbovePile7 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 8255, .PileWidth = DownTight, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .PileWidth = Across},
    .BaseX = 9320};

constexpr Layout CellAbovePile8 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 9420, .PileWidth = DownTight, .Div = 4, .DivWidth = Across, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .PileWidth = Across},
    .BaseX = 10485};

constexpr Layout CellAbovePile8Goals8 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 9420, .PileWidth = DownTight, .Div = 4, .DivWidth = Across, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .PileWidth = Across},
    .BaseX = 11650};

// Two rows of piles between the cells and the foundations.
constexpr Layout Piles12CellsGoalsBeside = {
    .Home  = {.StartX = 1265, .StartY = 0, .PileWidth = Across, .PosWidth = Fan, .Div = 6, .DivWidth = 4000},
    .Goal  = {.StartX = 8355, .PileWidth = DownTight, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .PileWidth = DownTight, .PileOrder = DownFanRight},
    .BaseX = 9420};

constexpr Layout Fans12 = {
    .Home  = {.StartX = 0, .StartY = 1540, .PileWidth = 3765, .PosWidth = CloseFan, .Div = 3, .DivWidth = DownTight,
              .PileOrder = AcrossFanRight},
    .Goal  = {.StartX = 6735, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .PileWidth = Across},
    .BaseX = 11295,
    .BaseY = 50};

// Four piles that fan to the right, between eight cells and four foundations.
constexpr Layout SidewaysPiles4 = {
    .Home  = {.StartX = 2430, .StartY = 500, .PileWidth = Down, .PosWidth = CloseFan, .Div = 4, .DivWidth = 4000,
              .PileOrder = DownFanRight},
    .Goal  = {.StartX = 7955, .StartY = 500, .PileWidth = Down, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0, .StartY = 500},
    .Res   = {.StartX = 0, .StartY = 500, .PileWidth = Down, .Div = 4, .DivWidth = Across, .PileOrder = DownFanRight},
    .BaseX = 9020};

// clang-format on

// What all games of the family have in common.
constexpr Definition shared = {.HomeMove = yes};

// The columns of the table.
using Table = mFamily::Table<
    &Definition::Name, &Definition::Original, &Definition::HomePiles, &Definition::HomeCards,
    &Definition::HomeOpen, &Definition::HomeOrder, &Definition::HomeMulti, &Definition::HomeAK,
    &Definition::HomeFill, &Definition::HomePattern, &Definition::Suits, &Definition::GoalPiles,
    &Definition::GoalCards, &Definition::GoalOrder, &Definition::GoalBase, &Definition::GoalAK,
    &Definition::GoalUpDown, &Definition::StockPress, &Definition::StockMark, &Definition::StockKind,
    &Definition::Waste, &Definition::ResPiles, &Definition::ResCards, &Definition::ResNum, &Definition::Deck,
    &Definition::NoAuto, &Definition::GoalDiv, &Definition::Kind, &Definition::Places>;

// clang-format off
constexpr Table::Rows<65> rows = {{
//                                        H      H     H  H            H         H  H         H                             G      G  G         G               G  G       S              S         S                       R      R  R
//   Game                        O    Piles  Cards  Open  Order        Multi    AK  Fill      Type           Suits      Piles  Cards  Order     Type           AK  UpDown  Move           Num       Type         Waste  Piles  Cards  Num      Deck  NoAuto  GoalDiv  GameType       layout
    {"Avenue",                   yes,     8,    48,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     4, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Baker's Game",             no,      8,    52,    0, DownSuit,    AsOrder,  0, KingOnly, Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Bastion",                  no,     10,    50,    0, EitherSuit,  AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        2,     2, OneCard,   52, no,           0, LimitedRuns,   &Piles10Goals4Res4},
    {"Bouquet",                  yes,     8,    52,    0, DownOther,   AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Carnival",                 yes,    12,    48,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     4, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles12CellsGoalsBeside},
    {"Cascade",                  yes,     7,    35,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpAlt,    Aces,           0, no,     OneToWaste,    NoRedeal, Closed,      yes,       2,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles7Goals4Res2},
    {"Color Cell",               yes,     8,    52,    0, DownColor,   AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Color Fantasy",            yes,     8,    52,   24, DownColor,   AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpColor,  Aces,           0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Cone Freecell",            yes,     9,    52,    0, DownAlt,     AsOrder,  0, AnyCard,  Cone,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles9Goals4Res4},
    {"Double Baker's Game",      yes,     6,    96,    0, DownSuit,    AsOrder,  0, AnyCard,  Rows,          FourSuits,     8,     8, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, OneCard,  104, no,           0, LimitedRuns,   &Piles6CellsGoalsBeside},
    {"Double Bouquet",           yes,     6,    96,    0, DownOther,   AsOrder,  0, AnyCard,  Rows,          FourSuits,     8,     8, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, OneCard,  104, no,           0, LimitedRuns,   &Piles6CellsGoalsBeside},
    {"Double Cascade",           yes,    10,    40,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     8,     8, UpAlt,    Aces,           0, no,     none,          NoRedeal, Closed,      yes,      10,     0, OneCard,  104, no,           0, LimitedRuns,   &Piles10Goals8Res10},
    {"Double Color Cell",        yes,     6,    96,    0, DownColor,   AsOrder,  0, AnyCard,  Rows,          FourSuits,     8,     8, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, OneCard,  104, no,           0, LimitedRuns,   &Piles6CellsGoalsBeside},
    {"Double Color Fantasy",     yes,     6,    96,   18, DownColor,   AsOrder,  0, AnyCard,  Rows,          FourSuits,     8,     8, UpColor,  Aces,           0, no,     none,          none,     Closed,      no,        8,     0, NoDrop,   104, no,           0, LimitedRuns,   &Piles6CellsGoalsBeside},
    {"Double Freecell",          yes,     6,    96,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     8,     8, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, OneCard,  104, no,           0, LimitedRuns,   &Piles6CellsGoalsBeside},
    {"Double Freecell AK",       yes,     6,    96,   30, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     8,     8, UpSuit,   AcesAndKings,   0, yes,    none,          none,     Closed,      no,        8,     0, NoDrop,   104, no,           0, LimitedRuns,   &Piles6CellsGoalsBeside},
    {"Double Gateway",           yes,     6,    96,    0, DownAlt,     AsOrder,  0, AnyCard,  EvenPilesOpen, FourSuits,     8,     8, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, OneCard,  104, no,           0, LimitedRuns,   &Piles6CellsGoalsBeside},
    {"Double Klondike Freecell", yes,     9,    45,    0, DownAlt,     AsOrder,  0, AnyCard,  StairsRight,   FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed,      yes,       2,     0, OneCard,  104, no,           0, LimitedRuns,   &Piles9Goals8Res2},
    {"Double Majesty",           yes,     9,    45,    9, DownAlt,     AsOrder,  0, AnyCard,  StairsRight,   FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed,      yes,       2,     0, NoDrop,   104, no,           0, LimitedRuns,   &Piles9Goals8Res2},
    {"Double Ocean",             yes,     6,    96,    0, DownAlt,     AsOrder,  0, AnyCard,  AlternateRows, FourSuits,     8,     8, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, OneCard,  104, no,           0, LimitedRuns,   &Piles6CellsGoalsBeside},
//                                        H      H     H  H            H         H  H         H                             G      G  G         G               G  G       S              S         S                       R      R  R
//   Game                        O    Piles  Cards  Open  Order        Multi    AK  Fill      Type           Suits      Piles  Cards  Order     Type           AK  UpDown  Move           Num       Type         Waste  Piles  Cards  Num      Deck  NoAuto  GoalDiv  GameType       layout
    {"Double Spidercells",       yes,    10,   104,    0, DownAlt,     DownAlt,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpAlt,    Aces,           0, no,     none,          none,     Closed,      no,        6,     0, OneCard,  104, yes,          4, CompleteRuns,  &Piles10Goals4Res6},
    {"Dream Fan",                yes,    12,    48,   12, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     4, UpAlt,    Aces,           0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Fans12},
    {"Eight Off",                no,      8,    48,    0, DownSuit,    AsOrder,  0, KingOnly, Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     4, OneCard,   52, no,           0, LimitedRuns,   &CellAbovePile8},
    {"Fancell",                  yes,    12,    48,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     4, UpAlt,    Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Fans12},
    {"Forecell",                 no,      8,    48,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     4, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Four Colors",              no,      7,    52,    0, DownAlt,     AsOrder,  0, AnyCard,  BySuit,        FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles7Goals4Res4},
    {"Freecell",                 no,      8,    52,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Freecell AK",              yes,     8,    48,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     4, UpSuit,   AcesAndKings,   0, yes,    none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Freecell Reversed",        yes,     8,    48,    0, UpAlt,       AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     4, DownSuit, Kings,          0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Freecell Two Suit",        yes,     8,    52,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          TwoSuits,      4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Gateway",                  yes,     8,    52,    0, DownAlt,     AsOrder,  0, AnyCard,  EvenPilesOpen, FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Gazette",                  yes,     8,    52,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpColor,  Aces,           0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Klondike Freecell",        yes,     8,    36,    0, DownAlt,     AsOrder,  0, AnyCard,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed,      yes,       2,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res2},
    {"Little Gazette",           yes,     8,    52,   24, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpColor,  Aces,           0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Luxury",                   yes,     8,    52,    0, EitherColor, AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Magic Freecell",           yes,     7,    49,    0, SameRank,    Always,   0, AnyCard,  ClosedBlock,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     3, NoDrop,    52, no,           0, Plain,         &Piles7Goals4Res4},
    {"Majesty",                  yes,     8,    36,    8, DownAlt,     AsOrder,  0, AnyCard,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed,      yes,       2,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res2},
    {"Mania",                    yes,     8,    52,    0, EitherAlt,   AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Marine Drive",             yes,     4,    48,    0, DownSuit,    AsOrder,  0, AnyCard,  Rows,          OneSuit,       4,     4, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, NoDrop,    52, no,           0, LimitedRuns,   &SidewaysPiles4},
    {"Milligan Cell",            no,      8,     8,    0, DownAlt,     AsOrder,  0, KingOnly, Rows,          FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToEachPile, NoRedeal, Closed,      no,        3,     0, OneCard,  104, no,           0, LimitedRuns,   &Piles8Goals8Res3Stock},
//                                        H      H     H  H            H         H  H         H                             G      G  G         G               G  G       S              S         S                       R      R  R
//   Game                        O    Piles  Cards  Open  Order        Multi    AK  Fill      Type           Suits      Piles  Cards  Order     Type           AK  UpDown  Move           Num       Type         Waste  Piles  Cards  Num      Deck  NoAuto  GoalDiv  GameType       layout
    {"Mission",                  yes,     8,    48,    0, DownAlt,     AsOrder,  1, AnyCard,  Rows,          FourSuits,     4,     4, UpSuit,   Twos,           1, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Moon Cell",                yes,     9,    32,    0, DownAlt,     AsOrder,  0, AnyCard,  InverseCone,   FourSuits,     4,     4, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     1, OneCard,   52, no,           0, LimitedRuns,   &Piles9Goals4Res4},
    {"Oasis",                    yes,     8,    32,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     ByHand,        NoRedeal, Open,        no,        2,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res2Stock},
    {"Ocean",                    yes,     8,    48,    0, DownAlt,     AsOrder,  0, AnyCard,  AlternateRows, FourSuits,     4,     4, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Old Avenue",               yes,     8,    48,    8, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     4, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Opera",                    yes,     8,    52,    8, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpAlt,    Aces,           0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Penguin",                  no,      7,    49,    0, DownSuit,    AsOrder, -1, KingOnly, Rows,          FourSuits,     4,     3, UpSuit,   FirstCard,      1, no,     none,          none,     Closed,      no,        7,     0, OneCard,   52, no,           0, BaseFills,     &CellAbovePile7},
    {"Petal",                    yes,     8,    44,    0, DownAlt,     AsOrder,  1, AnyCard,  Rows,          FourSuits,     4,     4, UpSuit,   OneOfEachSuit,  1, no,     none,          none,     Closed,      no,        4,     4, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Scorpion Freecell",        yes,     7,    49,    0, DownAlt,     Always,   0, KingOnly, ClosedBlock,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     3, NoDrop,    52, no,           0, Plain,         &Piles7Goals4Res4},
    {"Sea Towers",               no,     10,    50,    0, DownSuit,    AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     2, OneCard,   52, no,           0, LimitedRuns,   &Piles10Goals4Res4},
    {"See-Saw",                  yes,     8,    52,    0, DownAlt,     AsOrder,  0, AnyCard,  RandomSpread,  FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Seven By Four",            no,      7,    52,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles7Goals4Res4},
    {"Simon Freecell",           yes,    10,    52,    0, DownAlt,     AsOrder,  0, AnyCard,  StairsLeft,    FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles10Goals4Res4},
    {"Simple Carnival",          yes,    12,    48,   12, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     4, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     0, NoDrop,    52, no,           0, LimitedRuns,   &Piles12CellsGoalsBeside},
    {"Simple Zodiac",            yes,     8,    96,   32, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     8,     8, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, NoDrop,   104, no,           0, LimitedRuns,   &CellAbovePile8Goals8},
    {"Spidercells",              no,      8,    52,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpAlt,    PlainAces,      0, no,     none,          none,     Closed,      no,        4,     0, OneCard,   52, yes,          0, CompleteRuns,  &Piles8Goals4Res4},
    {"Spider Freecell",          yes,     8,    48,    0, DownAny,     DownAlt,  0, AnyCard,  Rows,          FourSuits,     4,     2, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        4,     2, NoDrop,    52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Stalactites",              no,      8,    48,    0, Never,       AsOrder,  0, Nothing,  Rows,          FourSuits,     4,     4, UpAny,    OneOfEachSuit,  1, no,     none,          none,     Closed,      no,        2,     0, OneCard,   52, yes,          0, LowFoundation, &Piles8LowGoals4Res2},
    {"Stripped Freecell",        yes,     6,    24,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     2,     2, UpSuit,   Aces,           0, no,     none,          none,     TwoSuitDeal, no,        2,     0, OneCard,   26, no,           0, LimitedRuns,   &Piles6Goals2NoStock},
    {"Tower Cell",               yes,     6,    96,    0, DownAlt,     AsOrder,  0, AnyCard,  EndPilesOpen,  FourSuits,     8,     8, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, OneCard,  104, no,           0, LimitedRuns,   &Piles6CellsGoalsBeside},
//                                        H      H     H  H            H         H  H         H                             G      G  G         G               G  G       S              S         S                       R      R  R
//   Game                        O    Piles  Cards  Open  Order        Multi    AK  Fill      Type           Suits      Piles  Cards  Order     Type           AK  UpDown  Move           Num       Type         Waste  Piles  Cards  Num      Deck  NoAuto  GoalDiv  GameType       layout
    {"Tuxedo",                   no,      7,    52,    0, DownSuit,    AsOrder,  0, KingOnly, Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        7,     0, OneCard,   52, no,           0, LimitedRuns,   &CellAbovePile7},
    {"Two Cells",                no,      8,    52,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        2,     0, OneCard,   52, no,           0, LimitedRuns,   &Piles8Goals4Res4},
    {"Vertical Freecell",        yes,     4,    48,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     4, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, OneCard,   52, no,           0, LimitedRuns,   &SidewaysPiles4},
    {"Yellow Sea",               yes,     4,    48,    4, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     4,     4, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, OneCard,   52, no,           0, LimitedRuns,   &SidewaysPiles4},
    {"Zodiac",                   yes,     8,    96,    0, DownAlt,     AsOrder,  0, AnyCard,  Rows,          FourSuits,     8,     8, UpSuit,   Aces,           0, no,     none,          none,     Closed,      no,        8,     0, OneCard,  104, no,           0, LimitedRuns,   &CellAbovePile8Goals8},
}};
// clang-format on

constexpr auto games = Table::Complete(shared, rows);

static_assert(mFamily::Sound<mFamily::FirstFault(games)>::All);
static_assert(mFamily::Originals(games) == 51);

}  // namespace

std::span<const Definition> Games() { return games; }

void ListGames() { mFamily::List("Freecell", games); }

void SetGame(const std::string& name) { mFamily::Set(name, games); }

}  // namespace gFreecell
