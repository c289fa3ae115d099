// The family "Forty Thieves": mostly two decks, small piles, a stock dealt one by one.
#include "engine/catalogue/columns.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/family.h"
#include "engine/catalogue/layouts.h"

namespace gFortyThieves {

namespace {

using namespace Columns;
using namespace Layouts;

// clang-format off

// As Piles10Goals8, with a wider gap before the waste.
constexpr Layout TenPiles = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2680, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1340},
    .BaseX = 11550};

// Few piles below a wider top row.
constexpr Layout Piles4Goals4 = {
    .Home  = {.StartX = 1165, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2330, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1165},
    .BaseX = 6890};

constexpr Layout Piles5Goals4 = {
    .Home  = {.StartX = 582, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2330, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1165},
    .BaseX = 6890};

constexpr Layout Piles5Goals8 = {
    .Home  = {.StartX = 2912, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2680, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1315},
    .BaseX = 11550};

// Two rows of piles, the stock and the waste at their left, the foundations at their right.
constexpr Layout Piles12Goals8Beside = {
    .Home  = {.StartX = 1265, .StartY = 0, .PileWidth = Across, .PosWidth = CloseFan, .Div = 6, .DivWidth = 4000},
    .Goal  = {.StartX = 8355, .PileWidth = DownTight, .Div = 4, .DivWidth = Across, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 0, .StartY = 1640},
    .BaseX = 10485};

constexpr Layout Piles12Goals4Beside = {
    .Home  = {.StartX = 1265, .StartY = 0, .PileWidth = Across, .PosWidth = CloseFan, .Div = 6, .DivWidth = 4000},
    .Goal  = {.StartX = 8355, .PileWidth = DownTight, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 0, .StartY = 1640},
    .BaseX = 9420};

constexpr Layout Piles13Goals8Beside = {
    .Home  = {.StartX = 1265, .StartY = 0, .PileWidth = Across, .PosWidth = CloseFan, .Div = 7, .DivWidth = 4000},
    .Goal  = {.StartX = 9420, .PileWidth = DownTight, .Div = 4, .DivWidth = Across, .PileOrder = DownFanRight},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 0, .StartY = 1640},
    .BaseX = 11550};

// Two rows of squared piles below the foundations.
constexpr Layout SquaredPiles12 = {
    .Home  = {.StartX = 1865, .StartY = 1940, .PileWidth = 1265, .PosWidth = 0, .Div = 6, .DivWidth = 1640},
    .Goal  = {.StartX = 100, .PileWidth = Across},
    .Stock = {.StartX = 100, .StartY = 1940},
    .Waste = {.StartX = 100, .StartY = 3580},
    .BaseX = 9320,
    .BaseY = 1000};

// clang-format on

// The columns of the table.
using Table =
    mFamily::Table<&Definition::Name, &Definition::Original, &Definition::HomePiles, &Definition::HomeCards,
                   &Definition::HomeOpen, &Definition::HomeOrder, &Definition::HomeAK, &Definition::HomeMove,
                   &Definition::HomePattern, &Definition::Suits, &Definition::GoalPiles,
                   &Definition::GoalCards, &Definition::GoalOrder, &Definition::GoalBase, &Definition::GoalAK,
                   &Definition::GoalUpDown, &Definition::StockPress, &Definition::StockMark,
                   &Definition::Waste, &Definition::Deck, &Definition::Redeals, &Definition::Refill,
                   &Definition::Places>;

// clang-format off
constexpr Table::Rows<45> rows = {{
//                                   H      H     H  H            H  H     H                           G      G  G       G              G  G       S                  S
//   Game                   O    Piles  Cards  Open  Order       AK  Move  Type         Suits      Piles  Cards  Order   Type          AK  UpDown  Move               Num       Waste  Deck  Redeals  AutoFill    layout
    {"Ali Baba",            no,     10,    40,    0, DownSuit,    0, yes,  Rows,        FourSuits,     4,     4, UpSuit, Aces,          0, no,     OneToWaste,        Redeal,   yes,     52,      -1, none,       &Piles10Goals4},
    {"Big Forty",           no,     10,    40,    0, DownSuit,    0, yes,  Rows,        FourSuits,     4,     0, UpSuit, Aces,          0, no,     OneToWaste,        Redeal,   yes,     52,      -1, none,       &Piles10Goals4},
    {"Blockade",            no,     10,    10,    0, DownSuit,    0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToEachPile,     NoRedeal, no,     104,       0, NoneEither, &Piles10Goals8Stock},
    {"Busy Aces",           no,     12,    12,    0, DownSuit,    0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &SquaredPiles12},
    {"Carre Napoleon",      no,     12,    12,    0, DownAlt,     0, yes,  Rows,        FourSuits,     8,     8, UpSuit, Aces,          0, no,     FirstThreeToPiles, Redeal,   yes,    104,       1, none,       &Piles12Goals8Beside},
    {"Cone Thieves",        yes,     9,    34,    0, DownSuit,    0, no,   Cone,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &Piles9Goals8},
    {"Corona",              no,     12,    36,    0, DownSuit,    0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, FromWaste,  &Piles12Goals8Beside},
    {"Courtyard",           no,     12,    12,    0, DownSuit,    0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, FromWaste,  &Piles12Goals8Beside},
    {"Deuces",              no,     10,    10,    0, DownSuit,    1, yes,  Rows,        FourSuits,     8,     8, UpSuit, Twos,          1, no,     OneToWaste,        NoRedeal, yes,    104,       0, FromWaste,  &TenPiles},
    {"Dieppe",              no,      8,    24,    0, DownAny,     0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &Piles8Goals8},
    {"Double Rail",         no,      5,     5,    0, DownAny,     0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        none,     yes,    104,       1, none,       &Piles5Goals8},
    {"Emperor",             no,     10,    40,   10, DownAlt,     0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &TenPiles},
    {"Fairy Tale",          yes,    10,    40,    0, DownSuit,    0, no,   StairsLeft,  FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &TenPiles},
    {"Famous Fifty",        no,     10,    50,    0, DownSuit,    0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &TenPiles},
    {"Fortune's Favor",     no,     12,    12,    0, DownSuit,    0, no,   Rows,        FourSuits,     4,     4, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,     52,       0, FromWaste,  &Piles12Goals4Beside},
    {"Forty and Eight",     no,      8,    40,    0, DownSuit,    0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &Piles8Goals8},
    {"Forty Thieves",       no,     10,    40,    0, DownSuit,    0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &TenPiles},
    {"Hill Palace",         yes,    10,    40,    0, DownSuit,    0, no,   StairsRight, FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &TenPiles},
    {"Indian",              no,     10,    30,   20, DownOther,   0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &TenPiles},
    {"Josephine",           no,     10,    40,    0, DownSuit,    0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &TenPiles},
//                                   H      H     H  H            H  H     H                           G      G  G       G              G  G       S                  S
//   Game                   O    Piles  Cards  Open  Order       AK  Move  Type         Suits      Piles  Cards  Order   Type          AK  UpDown  Move               Num       Waste  Deck  Redeals  AutoFill    layout
    {"Lanes",               no,      6,    18,    0, DownAlt,     0, no,   Rows,        FourSuits,     4,     4, UpSuit, Aces,          0, no,     OneToWaste,        Redeal,   yes,     52,       1, none,       &Piles6Goals4},
    {"Limited",             no,     12,    36,    0, DownSuit,    0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &Piles12Goals8Beside},
    {"Little Forty",        no,     10,    40,    0, DownAny,     0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     ThreeToWaste,      Redeal,   yes,    104,       3, none,       &TenPiles},
    {"Little Napoleon",     no,      8,    32,    8, DownAny,     0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &Piles8Goals8},
    {"Little Thieves",      no,      5,    20,    0, DownSuit,    0, no,   Rows,        FourSuits,     4,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,     52,       0, none,       &Piles5Goals4},
    {"Lucas",               no,     13,    39,    0, DownSuit,    0, yes,  Rows,        FourSuits,     8,     8, UpSuit, Aces,          0, no,     OneToWaste,        Redeal,   yes,    104,       1, none,       &Piles13Goals8Beside},
    {"Maria",               no,      9,    36,    0, DownAlt,     0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &Piles9Goals8},
    {"Midshipman",          no,      9,    36,   18, DownAlt,     0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &Piles9Goals8},
    {"Minerva",             yes,    10,    40,    0, DownColor,   0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &TenPiles},
    {"Number Ten",          no,     10,    40,   20, DownAlt,     0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &TenPiles},
    {"Occasion",            yes,    13,    39,    0, DownColor,   0, yes,  Rows,        FourSuits,     8,     8, UpSuit, Aces,          0, no,     OneToWaste,        Redeal,   yes,    104,       1, none,       &Piles13Goals8Beside},
    {"Quadrangle",          no,     12,    36,    0, DownSuit,    1, no,   Rows,        FourSuits,     8,     1, UpSuit, FirstCard,     1, no,     OneToWaste,        NoRedeal, yes,    104,       0, FromWaste,  &Piles12Goals8Beside},
    {"Rank and File",       no,     10,    40,   10, DownAlt,     0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &TenPiles},
    {"Red and Black",       no,      8,     8,    0, DownAlt,     0, yes,  Rows,        FourSuits,     8,     8, UpAlt,  Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &Piles8Goals8},
    {"Red Fort",            yes,    12,    12,    0, DownAlt,     0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, FromWaste,  &Piles12Goals8Beside},
    {"Single Rail",         no,      4,     4,    0, DownAny,     0, yes,  Rows,        FourSuits,     4,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,     52,       0, none,       &Piles4Goals4},
    {"Square",              no,     12,    12,    0, DownSuit,    1, yes,  Rows,        FourSuits,     8,     0, UpSuit, Twos,          1, no,     OneToWaste,        NoRedeal, yes,    104,       0, FromWaste,  &Piles12Goals8Beside},
    {"Streets",             no,     10,    40,    0, DownAlt,     0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &TenPiles},
    {"Taj Mahal",           yes,    12,    36,    0, DownSuit,    0, no,   Rows,        OneSuit,       8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, FromWaste,  &Piles12Goals8Beside},
    {"Thirty-Six",          no,      6,    36,    0, DownAny,     0, yes,  Rows,        FourSuits,     4,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,     52,       0, none,       &Piles6Goals4},
//                                   H      H     H  H            H  H     H                           G      G  G       G              G  G       S                  S
//   Game                   O    Piles  Cards  Open  Order       AK  Move  Type         Suits      Piles  Cards  Order   Type          AK  UpDown  Move               Num       Waste  Deck  Redeals  AutoFill    layout
    {"Triple Line",         no,     12,    36,    0, DownAlt,     0, yes,  Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        Redeal,   yes,    104,       1, FromWaste,  &Piles12Goals8Beside},
    {"Waning Moon",         no,     13,    39,    0, DownSuit,    0, no,   Rows,        FourSuits,     8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, none,       &Piles13Goals8Beside},
    {"Wheatsheaf",          no,      8,     8,    0, EitherSuit,  1, no,   Rows,        FourSuits,     8,     8, UpSuit, AcesAndKings,  0, yes,    OneToWaste,        NoRedeal, yes,    104,       0, FromWaste,  &Piles8Goals8},
    {"Wheatsheaf Two Suit", yes,     8,     8,    0, EitherSuit,  1, no,   Rows,        TwoSuits,      8,     8, UpSuit, AcesAndKings,  0, yes,    OneToWaste,        NoRedeal, yes,    104,       0, FromWaste,  &Piles8Goals8},
    {"Wonderland",          yes,    12,    12,    0, DownSuit,    0, no,   Rows,        OneSuit,       8,     0, UpSuit, Aces,          0, no,     OneToWaste,        NoRedeal, yes,    104,       0, FromWaste,  &SquaredPiles12},
}};
// clang-format on

constexpr auto games = Table::Complete({}, rows);

static_assert(mFamily::Sound<mFamily::FirstFault(games)>::All);
static_assert(mFamily::Originals(games) == 9);

}  // namespace

std::span<const Definition> Games() { return games; }

void ListGames() { mFamily::List("Forty Thieves", games); }

void SetGame(const std::string& name) { mFamily::Set(name, games); }

}  // namespace gFortyThieves
