// The family "Beleaguered Castle": open piles, mostly fanned sideways and built regardless of suit, one
// card at a time.
#include "engine/catalogue/columns.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/family.h"
#include "engine/catalogue/layouts.h"

namespace gBeCastle {

namespace {

using namespace Columns;
using namespace Layouts;

// clang-format off

// Eight squared piles in two columns around the foundations, the stock and the waste at their left.
constexpr Layout SquaredPiles8 = {
    .Home  = {.StartX = 1465, .StartY = 0, .PileWidth = Down, .PosWidth = 0, .Div = 4, .DivWidth = 3995,
              .PileOrder = DownFanRight},
    .Goal  = {.StartX = 2830, .PileWidth = Down, .Div = 4, .DivWidth = 1265, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0, .StartY = 1490},
    .Waste = {.StartX = 0, .StartY = 3130},
    .BaseX = 7590,
    .BaseY = 700};

// clang-format on

// The columns of the table.
using Table =
    mFamily::Table<&Definition::Name, &Definition::Original, &Definition::HomePiles, &Definition::HomeCards,
                   &Definition::HomeOpen, &Definition::HomeOrder, &Definition::HomeAK, &Definition::HomeMove,
                   &Definition::HomePattern, &Definition::Suits, &Definition::GoalPiles,
                   &Definition::GoalCards, &Definition::GoalOrder, &Definition::GoalBase, &Definition::GoalAK,
                   &Definition::StockPress, &Definition::StockMark, &Definition::Waste, &Definition::Deck,
                   &Definition::Redeals, &Definition::Refill, &Definition::Places>;

// clang-format off
constexpr Table::Rows<25> rows = {{
//                                  H      H     H  H             H  H     H                                 G      G  G         G           G  S              S
//   Game                  O    Piles  Cards  Open  Order        AK  Move  Type               Suits      Piles  Cards  Order     Type       AK  Move           Num       Waste  Deck  Redeals  AutoFill   layout
    {"Assembly",           yes,     8,     8,    0, DownAny,      1, no,   Rows,              FourSuits,     8,     1, UpSuit,   FirstCard,  1, OneToWaste,    NoRedeal, yes,    104,       0, FromWaste, &SquaredPiles8},
    {"Beleaguered Castle", no,      8,    48,    0, DownAny,      0, no,   Rows,              FourSuits,     4,     4, UpSuit,   Aces,       0, none,          none,     no,      52,       0, none,      &SidewaysPiles8},
    {"Cabinet",            yes,    10,    52,    0, EitherColor,  0, no,   Rows,              FourSuits,     4,     0, UpSuit,   Aces,       0, none,          none,     no,      52,       0, none,      &Piles10Goals4Middle},
    {"Castle Rock",        yes,     8,    48,    0, DownAny,      0, no,   AlternateRows,     FourSuits,     4,     4, UpSuit,   Aces,       0, none,          none,     no,      52,       0, none,      &SidewaysPiles8},
    {"Castle Tower",       yes,     8,    48,    0, DownAny,      0, no,   EvenPilesOpen,     FourSuits,     4,     4, UpSuit,   Aces,       0, none,          none,     no,      52,       0, none,      &SidewaysPiles8},
    {"Citadel",            no,      8,    48,    0, DownAny,      0, no,   RandomSpread,      FourSuits,     4,     4, UpSuit,   Aces,       0, none,          none,     no,      52,       0, none,      &SidewaysPiles8},
    {"Congress",           no,      8,     8,    0, DownAny,      0, no,   Rows,              FourSuits,     8,     0, UpSuit,   Aces,       0, OneToWaste,    NoRedeal, yes,    104,       0, FromWaste, &SquaredPiles8},
    {"Diplomacy",          yes,     8,    36,    0, DownAny,      0, no,   StairsRight,       FourSuits,     8,     0, UpSuit,   Aces,       0, OneToWaste,    NoRedeal, yes,    104,       0, none,      &Piles8Goals8},
    {"Diplomat",           no,      8,    32,    0, DownAny,      0, no,   Rows,              FourSuits,     8,     0, UpSuit,   Aces,       0, OneToWaste,    NoRedeal, yes,    104,       0, none,      &Piles8Goals8},
    {"Fantasy",            yes,    10,    52,    0, EitherAlt,    0, no,   Rows,              FourSuits,     4,     0, UpSuit,   Aces,       0, none,          none,     no,      52,       0, none,      &Piles10Goals4Middle},
    {"Fortress",           no,     10,    52,    0, EitherSuit,   0, no,   Rows,              FourSuits,     4,     0, UpSuit,   Aces,       0, none,          none,     no,      52,       0, none,      &Piles10Goals4Middle},
    {"Good Heart",         yes,     9,    34,    0, DownAny,      0, no,   Cone,              FourSuits,     8,     0, UpSuit,   Aces,       0, OneToWaste,    NoRedeal, yes,    104,       0, none,      &Piles9Goals8},
    {"Green House",        yes,     8,    48,    8, DownAny,      0, no,   Rows,              FourSuits,     4,     4, UpSuit,   Aces,       0, none,          none,     no,      52,       0, none,      &SidewaysPiles8},
    {"Lady Palk",          no,      8,    32,    0, DownAny,      0, yes,  Rows,              FourSuits,     8,     0, UpSuit,   Aces,       0, OneToWaste,    NoRedeal, yes,    104,       0, none,      &Piles8Goals8},
    {"Monarch",            yes,    10,    52,    0, EitherSuit,   0, no,   EvenPilesOpen,     FourSuits,     4,     0, UpSuit,   Aces,       0, none,          none,     no,      52,       0, none,      &Piles10Goals4Middle},
    {"Monument",           yes,     8,    32,    8, DownAny,      0, no,   Rows,              FourSuits,     8,     0, UpAlt,    Aces,       0, OneToWaste,    NoRedeal, yes,    104,       0, none,      &Piles8Goals8},
    {"Niagra",             yes,     9,    32,    0, DownAny,      0, no,   ClosedInverseCone, FourSuits,     8,     0, UpSuit,   Aces,       0, OneToEachPile, NoRedeal, no,     104,       0, none,      &Piles9Goals8Stock},
    {"Opaque",             yes,     8,    48,    0, DownAny,      1, no,   Rows,              FourSuits,     4,     4, UpSuit,   FirstCard,  1, none,          none,     no,      52,       0, none,      &SidewaysPiles8},
    {"Parliament",         no,      8,     8,    0, DownAny,      0, no,   Rows,              FourSuits,     8,     8, UpSuit,   Aces,       0, OneToWaste,    NoRedeal, yes,    104,       0, FromWaste, &SquaredPiles8},
    {"Reversed Castle",    yes,     8,    48,    0, UpAny,        0, no,   Rows,              FourSuits,     4,     4, DownSuit, Kings,      0, none,          none,     no,      52,       0, none,      &SidewaysPiles8},
//                                  H      H     H  H             H  H     H                                 G      G  G         G           G  S              S
//   Game                  O    Piles  Cards  Open  Order        AK  Move  Type               Suits      Piles  Cards  Order     Type       AK  Move           Num       Waste  Deck  Redeals  AutoFill   layout
    {"Royal Diplomat",     yes,     8,    32,    0, DownAny,      1, no,   Rows,              FourSuits,     8,     1, UpSuit,   FirstCard,  1, OneToWaste,    NoRedeal, yes,    104,       0, none,      &Piles8Goals8},
    {"Senate",             yes,     8,     8,    0, DownSuit,     0, no,   Rows,              OneSuit,       8,     0, UpSuit,   Aces,       0, OneToWaste,    NoRedeal, yes,    104,       0, FromWaste, &SquaredPiles8},
    {"Single Queen",       yes,     8,     8,    0, DownSuit,     0, no,   Rows,              OneSuit,       8,     8, UpSuit,   Kings,      1, OneToWaste,    Redeal,   yes,    104,       1, FromWaste, &SquaredPiles8},
    {"Streets and Alleys", no,      8,    52,    0, DownAny,      0, no,   Rows,              FourSuits,     4,     0, UpSuit,   Aces,       0, none,          none,     no,      52,       0, none,      &SidewaysPiles8},
    {"Twin Queens",        no,      8,     8,    0, DownSuit,     0, no,   Rows,              FourSuits,     8,     0, UpSuit,   Kings,      1, OneToWaste,    Redeal,   yes,    104,       1, FromWaste, &SquaredPiles8},
}};
// clang-format on

constexpr auto games = Table::Complete({}, rows);

static_assert(mFamily::Sound<mFamily::FirstFault(games)>::All);
static_assert(mFamily::Originals(games) == 16);

}  // namespace

std::span<const Definition> Games() { return games; }

void ListGames() { mFamily::List("Beleaguered Castle", games); }

void SetGame(const std::string& name) { mFamily::Set(name, games); }

}  // namespace gBeCastle
