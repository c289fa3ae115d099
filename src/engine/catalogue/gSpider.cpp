// The family "Spider": complete runs of thirteen leave the tableau by themselves.
#include "engine/catalogue/columns.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/family.h"
#include "engine/catalogue/layouts.h"

namespace gSpider {

namespace {

using namespace Columns;
using namespace Layouts;

// clang-format off

constexpr Layout Piles9Goals4NoStock = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 5825, .PileWidth = Across},
    .Stock = {.StartX = 5825},
    .BaseX = 10385};

// The usual seven piles leave no room in the top row: the reserve stands at the left of the tableau.
constexpr Layout Piles7Goals4ResBeside = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 3495, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1265},
    .Res   = {.StartX = -Across, .StartY = BelowTop, .PileWidth = DownTight, .PileOrder = DownFanRight},
    .BaseX = 8055};

// The top row is wider than the tableau, which stands in its middle.
constexpr Layout Piles7Goals8Stock = {
    .Home  = {.StartX = 1165, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 1515, .PileWidth = Squeezed},
    .Stock = {.StartX = 150},
    .BaseX = 10385};

// All runs go to one place.
constexpr Layout Piles7Goals1 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 6990, .PileWidth = 0},
    .Stock = {.StartX = 0},
    .BaseX = 8055};

constexpr Layout Piles10Goals4Res4Stock = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 6990, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 1748, .PileWidth = Across},
    .BaseX = 11550};

// The stock and the foundations stand below the tableau.
constexpr Layout Piles10GoalsBelow = {
    .Home  = {.StartX = 0, .StartY = 0, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2030, .StartY = 5760, .PileWidth = Across},
    .Stock = {.StartX = 400, .StartY = 5760},
    .BaseX = 11550};

// Two rows of nine piles, the foundations at the right.
constexpr Layout Piles18GoalsBeside = {
    .Home  = {.StartX = 0, .StartY = 0, .PileWidth = Across, .PosWidth = Fan, .Div = 9, .DivWidth = 4000},
    .Goal  = {.StartX = 10585, .PileWidth = DownTight, .PileOrder = DownFanRight},
    .Stock = {.StartX = 10585},
    .BaseX = 11650};

// Four rows of three fans.
constexpr Layout Fans12Middle = {
    .Home  = {.StartX = 0, .StartY = 1540, .PileWidth = 3765, .PosWidth = CloseFan, .Div = 3, .DivWidth = DownTight,
              .PileOrder = AcrossFanRight},
    .Goal  = {.StartX = 3368, .PileWidth = Across},
    .Stock = {.StartX = 3368},
    .BaseX = 11295,
    .BaseY = 50};

// Five rows of three fans, and at their right one foundation for all runs.
constexpr Layout Fans15 = {
    .Home  = {.StartX = 0, .StartY = 0, .PileWidth = 3500, .PosWidth = CloseFan, .Div = 3, .DivWidth = DownTight,
              .PileOrder = AcrossFanRight},
    .Goal  = {.StartX = 10635, .StartY = 2980, .PileWidth = 0},
    .Stock = {.StartX = 10635, .StartY = 2980},
    .BaseX = 11700,
    .BaseY = 50};

// Four piles that fan to the right, the foundations behind them.
constexpr Layout SidewaysPiles4 = {
    .Home  = {.StartX = 0, .StartY = 500, .PileWidth = Down, .PosWidth = Fan, .PileOrder = DownFanRight},
    .Goal  = {.StartX = 7955, .StartY = 500, .PileWidth = Down, .PileOrder = DownFanRight},
    .Stock = {.StartX = 7955, .StartY = 500},
    .BaseX = 9020};

// clang-format on

// What all games of the family have in common.
constexpr Definition shared = {.HomeMove = yes, .NoAuto = yes, .Kind = CompleteRuns};

// The columns of the table.
using Table =
    mFamily::Table<&Definition::Name, &Definition::Original, &Definition::HomePiles, &Definition::HomeCards,
                   &Definition::HomeOpen, &Definition::HomeOrder, &Definition::HomeMulti, &Definition::HomeAK,
                   &Definition::HomeFill, &Definition::HomePattern, &Definition::Suits,
                   &Definition::GoalPiles, &Definition::GoalOrder, &Definition::GoalBase,
                   &Definition::StockPress, &Definition::StockMark, &Definition::StockKind,
                   &Definition::Waste, &Definition::ResPiles, &Definition::ResCards, &Definition::ResNum,
                   &Definition::Deck, &Definition::GoalDiv, &Definition::Places>;

// clang-format off
constexpr Table::Rows<60> rows = {{
//                                      H      H     H  H          H           H  H         H                                 G  G         G          S              S         S                  R      R  R
//   Game                      O    Piles  Cards  Open  Order      Multi      AK  Fill      Type               Suits      Piles  Order     Type       Move           Num       Type    Waste  Piles  Cards  Num      Deck  GoalDiv  layout
    {"Arena",                  yes,     8,    52,    0, DownSuit,  AsOrder,    0, AnyCard,  Rows,              OneSuit,       4, UpSuit,   PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &Piles8Goals4NoStock},
    {"Baker's Spider",         yes,     8,    52,    0, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     4, UpSuit,   PlainAces, none,          none,     Closed, no,        4,     0, OneCard,   52,       0, &Piles8Goals4Res4},
    {"Beacon",                 yes,     8,   104,    0, DownAny,   DownAlt,    0, AnyCard,  Rows,              FourSuits,     8, UpAlt,    PlainAces, none,          none,     Closed, no,     none,  none, none,     104,       0, &Piles8GoalsBeside},
    {"Beetle",                 no,     10,    44,    0, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Beige",                  yes,     9,    60,    0, DownAny,   DownSuit,   0, AnyCard,  Pile4Open,         FourSuits,     8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles9Goals8Stock},
    {"Cone Spider",            yes,     9,    32,    0, DownAny,   DownSuit,   0, AnyCard,  Cone,              FourSuits,     4, UpSuit,   PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &Piles9Goals4NoStock},
    {"Coral",                  yes,    10,    44,   10, DownAny,   DownColor,  0, AnyCard,  Rows,              FourSuits,     8, UpColor,  PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Double Baker's Spider",  yes,    10,   104,    0, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     4, UpSuit,   PlainAces, none,          none,     Closed, no,        6,     0, OneCard,  104,       4, &Piles10Goals4Res6},
    {"Double Fan Spider",      yes,    15,   104,   15, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     1, UpSuit,   PlainAces, none,          none,     Closed, no,     none,  none, none,     104,       0, &Fans15},
    {"Double Fortune",         yes,    16,   104,   16, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     8, UpSuit,   PlainAces, none,          none,     Closed, no,     none,  none, none,     104,       0, &Piles16GoalsBeside},
    {"Double Galaxy",          yes,    10,   104,    0, DownSuit,  AsOrder,    0, AnyCard,  Rows,              OneSuit,       4, UpSuit,   PlainAces, none,          none,     Closed, no,        6,     0, OneCard,  104,       4, &Piles10Goals4Res6},
    {"Double Ivory",           yes,    10,    40,   10, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     8, UpSuit,   PlainAces, none,          NoRedeal, Closed, yes,      10,     0, NoDrop,   104,       0, &Piles10Goals8Res10},
    {"Double Klondike Spider", yes,    10,    45,    0, DownAny,   DownSuit,   0, AnyCard,  StairsRight,       FourSuits,     8, UpSuit,   PlainAces, OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,     104,       0, &Piles10Goals8},
    {"Double Orchid",          yes,    10,    44,   10, DownAny,   DownSuit,   1, AnyCard,  Rows,              FourSuits,     8, UpSuit,   FirstCard, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Double Scorpion",        no,      9,   104,    0, DownSuit,  Always,     0, KingOnly, ClosedBlock,       FourSuits,     4, UpSuit,   PlainAces, none,          NoRedeal, Closed, no,     none,  none, none,     104,       4, &Piles9Goals4},
    {"Double Sienna",          yes,    10,    60,    0, DownAny,   DownAlt,    0, AnyCard,  AlternateRows,     FourSuits,     8, UpAlt,    PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Double Simon",           yes,    10,    36,    0, DownAny,   DownSuit,   0, AnyCard,  StairsLeft,        FourSuits,     8, UpSuit,   PlainAces, OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,     104,       0, &Piles10Goals8},
    {"Double Spiderette",      yes,    10,    36,    7, DownAny,   DownSuit,   0, AnyCard,  StairsRight,       FourSuits,     8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Enigma",                 yes,    10,    63,   10, DownAny,   DownAlt,    0, AnyCard,  Rows,              FourSuits,     8, UpAlt,    PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10GoalsBelow},
    {"Epic",                   yes,     9,   104,    0, DownAny,   DownAlt,    0, AnyCard,  Rows,              FourSuits,     4, UpAlt,    PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       4, &Piles9Goals4},
//                                      H      H     H  H          H           H  H         H                                 G  G         G          S              S         S                  R      R  R
//   Game                      O    Piles  Cards  Open  Order      Multi      AK  Fill      Type               Suits      Piles  Order     Type       Move           Num       Type    Waste  Piles  Cards  Num      Deck  GoalDiv  layout
    {"Fan Spider",             yes,    12,    52,   12, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     4, UpSuit,   PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &Fans12Middle},
    {"Floral White",           yes,     6,   104,   36, DownAny,   DownAny,    0, AnyCard,  Rows,              FourSuits,     8, UpAny,    PlainAces, none,          none,     Closed, no,        8,     0, NoDrop,   104,       0, &Piles6CellsGoalsBeside},
    {"Fortune",                yes,    18,    52,   18, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     4, UpSuit,   PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &Piles18GoalsBeside},
    {"Full Moon",              yes,     9,    52,    0, DownAny,   DownSuit,   0, AnyCard,  InverseCone,       FourSuits,     4, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,      52,       0, &Piles9Goals4},
    {"Galaxy",                 yes,     8,    52,    0, DownSuit,  AsOrder,    0, AnyCard,  Rows,              OneSuit,       4, UpSuit,   PlainAces, none,          none,     Closed, no,        4,     0, OneCard,   52,       0, &Piles8Goals4Res4},
    {"Golden Beach",           yes,     8,   104,   24, DownAny,   DownAlt,    0, AnyCard,  Rows,              FourSuits,     8, UpAlt,    PlainAces, none,          none,     Closed, no,     none,  none, none,     104,       0, &Piles8GoalsBeside},
    {"Ivory",                  yes,     7,    35,    0, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     4, UpSuit,   PlainAces, OneToWaste,    NoRedeal, Closed, yes,       2,     0, NoDrop,    52,       0, &Piles7Goals4ResBeside},
    {"Klondike Spider",        yes,     8,    36,    0, DownAny,   DownSuit,   0, AnyCard,  StairsRight,       FourSuits,     4, UpSuit,   PlainAces, OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,      52,       0, &Piles8Goals4},
    {"Lake View",              yes,     7,    49,    0, DownAlt,   Always,     0, KingOnly, ClosedBlock,       FourSuits,     1, UpAlt,    PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,      52,       8, &Piles7Goals1},
    {"Little Coral",           yes,     7,    52,    0, DownAny,   DownColor,  0, AnyCard,  Rows,              FourSuits,     4, UpColor,  PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &Piles7Goals4NoStock},
    {"Meadow",                 yes,    10,    44,   10, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     4, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,        4,     0, OneCard,  104,       4, &Piles10Goals4Res4Stock},
    {"Misty Rose",             yes,     9,    32,    0, DownAny,   DownSuit,   0, AnyCard,  ClosedCone,        FourSuits,     4, UpSuit,   PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &Piles9Goals4NoStock},
    {"Moon Light",             yes,     9,    52,    0, DownAny,   DownSuit,   0, AnyCard,  ClosedInverseCone, FourSuits,     4, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,      52,       0, &Piles9Goals4},
    {"Open Spider",            yes,    10,    44,   10, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     8, UpSuit,   PlainAces, ByHand,        NoRedeal, Open,   no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Orchid",                 yes,     7,    52,    0, DownAny,   DownAlt,    1, AnyCard,  Rows,              FourSuits,     4, UpAlt,    FirstCard, none,          none,     Closed, no,     none,  none, none,      52,       0, &Piles7Goals4NoStock},
    {"Pendulum",               yes,    10,    44,   10, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     8, UpSuit,   PlainAces, OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,     104,       0, &Piles10Goals8},
    {"Plaza",                  yes,    10,    44,   10, DownAny,   DownAlt,    0, AnyCard,  Rows,              FourSuits,     8, UpAlt,    PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Reversed Spider",        yes,    10,    44,   10, UpAny,     UpSuit,     0, AnyCard,  Rows,              FourSuits,     8, DownSuit, Kings,     OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Salmon",                 yes,    10,    60,   40, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Scarab",                 no,     10,    44,   10, DownAny,   DownAny,    0, AnyCard,  Rows,              FourSuits,     8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
//                                      H      H     H  H          H           H  H         H                                 G  G         G          S              S         S                  R      R  R
//   Game                      O    Piles  Cards  Open  Order      Multi      AK  Fill      Type               Suits      Piles  Order     Type       Move           Num       Type    Waste  Piles  Cards  Num      Deck  GoalDiv  layout
    {"Scorpion",               no,      7,    49,    0, DownSuit,  Always,     0, KingOnly, ClosedBlock,       FourSuits,     1, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,      52,       8, &Piles7Goals1},
    {"Seashell",               yes,    10,    44,   10, DownOther, DownOther,  0, AnyCard,  Rows,              FourSuits,     8, UpOther,  PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"See-Saw Spider",         yes,     8,    52,    0, DownAny,   DownAlt,    0, AnyCard,  RandomSpread,      FourSuits,     4, UpAlt,    PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &Piles8Goals4NoStock},
    {"Sienna",                 yes,     7,    42,    0, DownAny,   DownAlt,    0, AnyCard,  AlternateRows,     FourSuits,     4, UpAlt,    PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,      52,       0, &Piles7Goals4},
    {"Simple Simon",           no,     10,    36,    0, DownAny,   DownSuit,   0, AnyCard,  StairsLeft,        FourSuits,     4, UpSuit,   PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &Piles10Goals4Middle},
    {"Single Enigma",          yes,    10,    63,   10, DownAny,   DownSuit,   1, AnyCard,  Rows,              OneSuit,       8, UpSuit,   FirstCard, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10GoalsBelow},
    {"Single Spider",          yes,     7,    52,    0, DownAny,   DownAlt,    0, AnyCard,  Rows,              FourSuits,     4, UpAlt,    PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &Piles7Goals4NoStock},
    {"Snow",                   yes,     9,    52,    9, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     4, UpSuit,   PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &Piles9Goals4NoStock},
    {"Spider",                 no,     10,    44,   10, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Spider Beige",           yes,     9,    60,    0, DownAny,   DownSuit,   0, AnyCard,  EvenPilesOpen,     FourSuits,     8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles9Goals8Stock},
    {"Spiderette",             no,      7,    36,    7, DownAny,   DownSuit,   0, AnyCard,  StairsRight,       FourSuits,     4, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,      52,       0, &Piles7Goals4},
    {"Spider One Suit",        no,     10,    44,   10, DownSuit,  AsOrder,    0, AnyCard,  Rows,              OneSuit,       8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Spider Two Suit",        no,     10,    44,   10, DownAny,   DownSuit,   0, AnyCard,  Rows,              TwoSuits,      8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles10Goals8Stock},
    {"Streamline",             yes,     7,    64,   10, DownAny,   DownSuit,   0, AnyCard,  YukonRows,         FourSuits,     8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles7Goals8Stock},
    {"Stripped Spider",        yes,     6,    26,    0, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     2, UpSuit,   PlainAces, none,          none,     Closed, no,     none,  none, none,      26,       0, &Piles6Goals2NoStock},
    {"Triple Beige",           yes,     9,    60,    0, DownAny,   DownSuit,   0, AnyCard,  Piles048Open,      FourSuits,     8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles9Goals8Stock},
    {"Vertical Scorpion",      yes,     4,    52,    0, DownSuit,  Always,     0, AnyCard,  Rows,              FourSuits,     4, UpSuit,   PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &SidewaysPiles4},
    {"Vertical Spider",        yes,     8,    52,    0, DownAny,   DownAny,    0, AnyCard,  Rows,              FourSuits,     4, UpAlt,    PlainAces, none,          none,     Closed, no,     none,  none, none,      52,       0, &SidewaysPiles8},
    {"Will o' the Wisp",       no,      7,    21,    7, DownAny,   DownSuit,   0, AnyCard,  Rows,              FourSuits,     4, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,      52,       0, &Piles7Goals4},
    {"Yukon Spider",           yes,     7,    64,   10, DownAny,   DownSuit,   0, AnyCard,  Yukon,             FourSuits,     8, UpSuit,   PlainAces, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104,       0, &Piles7Goals8Stock},
}};
// clang-format on

constexpr auto games = Table::Complete(shared, rows);

static_assert(mFamily::Sound<mFamily::FirstFault(games)>::All);
static_assert(mFamily::Originals(games) == 50);

}  // namespace

std::span<const Definition> Games() { return games; }

void ListGames() { mFamily::List("Spider", games); }

void SetGame(const std::string& name) { mFamily::Set(name, games); }

}  // namespace gSpider
