// The family "Klondike": a stock, and mostly a tableau dealt as a staircase and built down in
// alternate colours.
#include "engine/catalogue/columns.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/family.h"
#include "engine/catalogue/layouts.h"

namespace gKlondike {

namespace {

using namespace Columns;
using namespace Layouts;

// clang-format off

constexpr Layout Piles5Goals2 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 3495, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1265},
    .BaseX = 5725};

// The top row is wider than the tableau, which stands in its middle.
constexpr Layout Piles7Goals8 = {
    .Home  = {.StartX = 1748, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2680, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1315},
    .BaseX = 11550};

// Eight foundations and a stock without waste make the top row; the tableau stands in its middle.
constexpr Layout Piles8Goals8Stock = {
    .Home  = {.StartX = 632, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 1265, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .BaseX = 10585};

// The reserve lies under the tableau.
constexpr Layout Piles9Goals4Res6 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 5825, .PileWidth = Across},
    .Stock = {.StartX = 5825},
    .Res   = {.StartX = 1748, .StartY = 5760, .PileWidth = Across},
    .BaseX = 10385};

constexpr Layout Piles9Goals4Res7 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 5825, .PileWidth = Across},
    .Stock = {.StartX = 5825},
    .Res   = {.StartX = 1165, .StartY = 5760, .PileWidth = Across},
    .BaseX = 10385};

// Ten fans in two columns, the foundations in a third.
constexpr Layout Fans10 = {
    .Home  = {.StartX = 0, .StartY = 0, .PileWidth = 4000, .PosWidth = CloseFan, .Div = 2, .DivWidth = DownTight,
              .PileOrder = AcrossFanRight},
    .Goal  = {.StartX = 8000, .StartY = 745, .PileWidth = DownTight, .PileOrder = DownFanRight},
    .Stock = {.StartX = 8000, .StartY = 745},
    .BaseX = 9065,
    .BaseY = 50};

// Five piles that run to the right, the stock and the waste before them, the foundations behind.
constexpr Layout SidewaysPiles5 = {
    .Home  = {.StartX = 1265, .StartY = 0, .PileWidth = DownTight, .PosWidth = Fan, .Div = 5, .DivWidth = 4500,
              .PileOrder = DownFanRight},
    .Goal  = {.StartX = 7755, .StartY = 745, .PileWidth = DownTight, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0, .StartY = 745},
    .Waste = {.StartX = 0, .StartY = 2385},
    .BaseX = 8820,
    .BaseY = 50};

// clang-format on

// The columns of the table.
using Table =
    mFamily::Table<&Definition::Name, &Definition::Original, &Definition::HomePiles, &Definition::HomeCards,
                   &Definition::HomeOpen, &Definition::HomeOrder, &Definition::HomeMulti, &Definition::HomeAK,
                   &Definition::HomeFill, &Definition::HomeMove, &Definition::HomePattern, &Definition::Suits,
                   &Definition::GoalPiles, &Definition::GoalCards, &Definition::GoalOrder,
                   &Definition::GoalBase, &Definition::GoalAK, &Definition::GoalUpDown,
                   &Definition::StockPress, &Definition::StockMark, &Definition::StockKind,
                   &Definition::Waste, &Definition::ResPiles, &Definition::ResCards, &Definition::ResNum,
                   &Definition::Deck, &Definition::Redeals, &Definition::NoAuto, &Definition::GoalDiv,
                   &Definition::Kind, &Definition::Refill, &Definition::Places>;

// clang-format off
constexpr Table::Rows<60> rows = {{
//                                 H      H     H  H            H           H  H         H     H                             G      G  G         G               G  G       S              S         S                  R      R  R
//   Game                 O    Piles  Cards  Open  Order        Multi      AK  Fill      Move  Type           Suits      Piles  Cards  Order     Type           AK  UpDown  Move           Num       Type    Waste  Piles  Cards  Num     Deck  Redeals  NoAuto  GoalDiv  GameType      AutoFill   layout
    {"American Canister", no,      8,    52,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles8Goals4NoStock},
    {"Athena",            yes,     7,    36,    7, DownAny,     DownColor,  0, AnyCard,  yes,  StairsRight,   FourSuits,     4,     0, UpColor,  PlainAces,      0, no,     OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     52,       0, yes,          0, CompleteRuns, none,      &Piles7Goals4},
    {"Blind Alleys",      no,      6,    18,    6, DownAlt,     AsOrder,    0, AnyCard,  yes,  Rows,          FourSuits,     4,     4, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,       1, no,           0, Plain,        none,      &Piles6Goals4},
    {"British Canister",  no,      8,    52,    0, DownAlt,     AsOrder,    0, KingOnly, no,   Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles8Goals4NoStock},
    {"Canister",          no,      8,    52,    0, EitherAlt,   AsOrder,    0, KingOnly, yes,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles8Goals4NoStock},
    {"Canister Plus",     yes,     8,    52,    0, EitherColor, AsOrder,    0, KingOnly, yes,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles8Goals4NoStock},
    {"Carlton",           no,      8,    36,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  StairsRight,   FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToEachPile, NoRedeal, Closed, no,     none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles8Goals8Stock},
    {"Cone Klondike",     yes,     9,    32,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  Cone,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles9Goals4},
    {"Double Easthaven",  yes,     8,    24,    8, DownAlt,     AsOrder,    0, AnyCard,  yes,  Rows,          FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToEachPile, NoRedeal, Closed, no,     none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles8Goals8Stock},
    {"Double Eclipse",    yes,    10,    45,    0, DownSuit,    AsOrder,    0, KingOnly, yes,  StairsRight,   OneSuit,       8,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles10Goals8},
    {"Double Excel",      yes,    10,    55,   10, DownColor,   AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,    104,      -1, no,           0, Plain,        none,      &Piles10Goals8},
    {"Double Impact",     yes,    10,    55,   10, DownOther,   AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,    104,      -1, no,           0, Plain,        none,      &Piles10Goals8},
    {"Double Klondike",   no,     10,    55,   10, DownAlt,     AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,    104,      -1, no,           0, Plain,        none,      &Piles10Goals8},
    {"Double Ladder",     yes,     8,   104,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  EndPilesOpen,  FourSuits,     8,     0, UpAlt,    Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles8GoalsBeside},
    {"Double Planet",     yes,    10,    55,   10, DownAlt,     AsOrder,    1, AnyCard,  yes,  StairsRight,   FourSuits,     8,     1, UpSuit,   FirstCard,      1, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,    104,      -1, no,           0, Plain,        none,      &Piles10Goals8},
    {"Double Session",    yes,    10,    55,   10, DownAny,     AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     8,     0, UpAny,    Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,    104,      -1, no,           0, Plain,        none,      &Piles10Goals8},
    {"Double Statue",     yes,    10,    55,   10, DownSuit,    AsOrder,    0, KingOnly, yes,  StairsRight,   TwoSuits,      8,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,    104,      -1, no,           0, Plain,        none,      &Piles10Goals8},
    {"Double Tornado",    yes,    10,    60,    0, DownAlt,     AsOrder,    0, KingOnly, yes,  AlternateRows, FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,    104,      -1, no,           0, Plain,        none,      &Piles10Goals8},
    {"Double Traffic",    yes,     8,   104,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  EvenPilesOpen, FourSuits,     8,     0, UpAlt,    Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles8GoalsBeside},
    {"Easthaven",         no,      7,    21,    7, DownAlt,     AsOrder,    0, AnyCard,  yes,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles7Goals4},
//                                 H      H     H  H            H           H  H         H     H                             G      G  G         G               G  G       S              S         S                  R      R  R
//   Game                 O    Piles  Cards  Open  Order        Multi      AK  Fill      Move  Type           Suits      Piles  Cards  Order     Type           AK  UpDown  Move           Num       Type    Waste  Piles  Cards  Num     Deck  Redeals  NoAuto  GoalDiv  GameType      AutoFill   layout
    {"Eclipse",           yes,     8,    36,    0, DownSuit,    AsOrder,    0, KingOnly, yes,  StairsRight,   OneSuit,       4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles8Goals4},
    {"Excel",             yes,     7,    28,    7, DownColor,   AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        none,      &Piles7Goals4},
    {"Expert Klondike",   yes,     7,    28,    7, DownAlt,     AsOrder,    1, KingOnly, yes,  StairsRight,   FourSuits,     4,     4, UpSuit,   OneOfEachSuit,  1, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        none,      &Piles7Goals4},
    {"Fan Klondike",      yes,    10,    28,    7, DownAlt,     AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,     52,       0, no,           0, Plain,        none,      &Fans10},
    {"Gargantua",         no,      9,    55,   10, DownAlt,     AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,    104,       1, no,           0, Plain,        none,      &Piles9Goals8},
    {"Giant",             no,      8,     8,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  Rows,          FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToEachPile, NoRedeal, Closed, no,     none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles8Goals8Stock},
    {"Gipsy",             yes,     9,    32,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  Piles048Open,  FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles9Goals4},
    {"Impact",            yes,     7,    28,    7, DownOther,   AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        none,      &Piles7Goals4},
    {"King Albert",       no,      9,    52,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed, no,        7,     7, NoDrop,   52,       0, no,           0, Plain,        none,      &Piles9Goals4Res7},
    {"Klondike",          no,      7,    28,    7, DownAlt,     AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        none,      &Piles7Goals4},
    {"Klondike AK",       yes,     7,    28,    7, DownAlt,     AsOrder,    0, AnyCard,  yes,  StairsRight,   FourSuits,     4,     4, UpSuit,   AcesAndKings,   0, yes,    OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        none,      &Piles7Goals4},
    {"Klondike Reversed", yes,     7,    28,    7, UpAlt,       AsOrder,    0, AceOnly,  yes,  StairsRight,   FourSuits,     4,     4, DownSuit, Kings,          0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        none,      &Piles7Goals4},
    {"Ladder",            yes,     8,   104,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  Rows,          FourSuits,     8,     0, UpAlt,    Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles8GoalsBeside},
    {"Lawn",              yes,     7,    28,    7, DownSuit,    AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        none,      &Piles7Goals4},
    {"Mandate",           yes,    16,   104,   16, DownAlt,     AsOrder,    0, AnyCard,  yes,  Rows,          FourSuits,     8,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles16GoalsBeside},
    {"Marathon",          yes,     9,   104,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  Rows,          FourSuits,     4,     0, UpAlt,    Aces,           0, no,     OneToEachPile, NoRedeal, Closed, no,     none,  none, none,    104,       0, no,           4, Plain,        none,      &Piles9Goals4},
    {"Milligan Harp",     no,      8,    55,    8, DownAlt,     AsOrder,    0, AnyCard,  yes,  StairsRight,   FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToEachPile, NoRedeal, Closed, no,     none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles8Goals8Stock},
    {"Morehead",          no,     10,    28,    0, DownOther,   AsOrder,    0, AnyCard,  no,   StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles10Goals4Middle},
    {"Old Carlton",       no,      8,    36,    0, DownAlt,     Always,     0, AnyCard,  yes,  StairsRight,   FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToEachPile, NoRedeal, Closed, no,     none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles8Goals8Stock},
    {"Open Klondike",     yes,     7,    28,    7, DownAlt,     AsOrder,    0, AnyCard,  yes,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     ByHand,        NoRedeal, Open,   no,     none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles7Goals4},
//                                 H      H     H  H            H           H  H         H     H                             G      G  G         G               G  G       S              S         S                  R      R  R
//   Game                 O    Piles  Cards  Open  Order        Multi      AK  Fill      Move  Type           Suits      Piles  Cards  Order     Type           AK  UpDown  Move           Num       Type    Waste  Piles  Cards  Num     Deck  Redeals  NoAuto  GoalDiv  GameType      AutoFill   layout
    {"Panorama",          yes,     8,   104,   24, DownAlt,     AsOrder,    0, AnyCard,  yes,  Rows,          FourSuits,     8,     0, UpAlt,    Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles8GoalsBeside},
    {"Planet",            yes,     7,    28,    7, DownAlt,     AsOrder,    1, AnyCard,  yes,  StairsRight,   FourSuits,     4,     1, UpSuit,   FirstCard,      1, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        none,      &Piles7Goals4},
    {"Raglan",            no,      9,    45,    0, DownAlt,     AsOrder,    0, AnyCard,  no,   StairsRight,   FourSuits,     4,     4, UpSuit,   Aces,           0, no,     none,          none,     Closed, no,        6,     6, NoDrop,   52,       0, no,           0, Plain,        none,      &Piles9Goals4Res6},
    {"Sensation",         yes,     7,    28,    0, DownAlt,     AsOrder,    0, KingOnly, yes,  StairsLeft,    FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        none,      &Piles7Goals4},
    {"Simple Klondike",   yes,     7,    28,    0, DownAlt,     Always,     0, KingOnly, yes,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles7Goals4},
    {"Simple Session",    yes,     7,    28,    7, DownAny,     AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     4,     0, UpAny,    Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        none,      &Piles7Goals4},
    {"Somerset",          no,     10,    52,    0, DownAlt,     AsOrder,    0, AnyCard,  no,   StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles10Goals4Middle},
    {"Splash",            yes,     7,    28,    0, DownAlt,     AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles7Goals4},
    {"Statue",            yes,     7,    28,    7, DownSuit,    AsOrder,    0, KingOnly, yes,  StairsRight,   TwoSuits,      4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        none,      &Piles7Goals4},
    {"Steps",             no,      7,    28,    7, DownAlt,     AsOrder,    0, AnyCard,  yes,  StairsRight,   FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,    104,       1, no,           0, Plain,        none,      &Piles7Goals8},
    {"Steve",             no,      8,    36,    0, DownAny,     AsOrder,    0, AnyCard,  yes,  StairsRight,   FourSuits,     8,     0, UpSuit,   Aces,           0, no,     OneToEachPile, NoRedeal, Closed, no,     none,  none, none,    104,       0, no,           0, Plain,        none,      &Piles8Goals8Stock},
    {"Stream",            yes,     9,    32,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  InverseCone,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles9Goals4},
    {"Stripped Klondike", yes,     5,    20,    7, DownAlt,     AsOrder,    0, KingOnly, yes,  StairsRight,   FourSuits,     2,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     26,      -1, no,           0, Plain,        none,      &Piles5Goals2},
    {"Tornado",           yes,     7,    28,    0, DownAlt,     AsOrder,    0, KingOnly, yes,  AlternateRows, FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles7Goals4},
    {"Traffic",           yes,     9,    32,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  EvenPilesOpen, FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles9Goals4},
    {"Vertical Klondike", yes,     5,    28,    7, DownAlt,     AsOrder,    0, AnyCard,  yes,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    Redeal,   Closed, yes,    none,  none, none,     52,       0, no,           0, Plain,        none,      &SidewaysPiles5},
    {"Westcliff",         no,     10,    30,   10, DownAlt,     AsOrder,    0, AnyCard,  yes,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles10Goals4},
    {"Whitehead",         no,      7,    28,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  StairsRight,   FourSuits,     4,     0, UpSuit,   Aces,           0, no,     OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles7Goals4},
    {"Whitehorse",        no,      7,     7,    0, DownAlt,     AsOrder,    0, AnyCard,  yes,  Rows,          FourSuits,     4,     0, UpSuit,   Aces,           0, no,     ThreeToWaste,  Redeal,   Closed, yes,    none,  none, none,     52,      -1, no,           0, Plain,        FromWaste, &Piles7Goals4},
    {"Yukon Klondike",    yes,     7,    52,    0, DownAlt,     AsOrder,    0, KingOnly, yes,  Yukon,         FourSuits,     4,     0, UpSuit,   Aces,           0, no,     none,          none,     Closed, no,     none,  none, none,     52,       0, no,           0, Plain,        none,      &Piles7Goals4NoStock},
}};
// clang-format on

constexpr auto games = Table::Complete({}, rows);

static_assert(mFamily::Sound<mFamily::FirstFault(games)>::All);
static_assert(mFamily::Originals(games) == 39);

}  // namespace

std::span<const Definition> Games() { return games; }

void ListGames() { mFamily::List("Klondike", games); }

void SetGame(const std::string& name) { mFamily::Set(name, games); }

}  // namespace gKlondike
