// The family "Four Seasons": five tableau piles in a cross, the foundations at its corners.
#include "engine/catalogue/columns.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/family.h"
#include "engine/catalogue/layouts.h"

namespace gFourSeasons {

namespace {

using namespace Columns;
using namespace Layouts;

// clang-format off

// The tableau is a cross, the foundations stand at its corners.
constexpr Layout CrossAndCorners = {
    .Home  = {.StartX = 1565, .StartY = 0, .PileWidth = Across, .PosWidth = Fan, .PileOrder = PileOrder::Cross},
    .Goal  = {.StartX = 1665, .StartY = 100, .PileWidth = 2930, .Div = 2, .DivWidth = 3680},
    .Stock = {.StartX = 0, .StartY = 1000},
    .Waste = {.StartX = 0, .StartY = 2740},
    .BaseX = 5760,
    .BaseY = 1000};

// clang-format on

// What all games of the family have in common.
constexpr Definition shared = {
    .HomePiles = 5, .HomeCards = 5, .GoalPiles = 4, .StockPress = OneToWaste, .Waste = yes};

// The columns of the table.
using Table =
    mFamily::Table<&Definition::Name, &Definition::Original, &Definition::HomeOrder, &Definition::HomeAK,
                   &Definition::HomeFill, &Definition::Suits, &Definition::GoalCards, &Definition::GoalOrder,
                   &Definition::GoalBase, &Definition::GoalAK, &Definition::StockMark, &Definition::Redeals,
                   &Definition::NoAuto, &Definition::Refill, &Definition::Places>;

// clang-format off
constexpr Table::Rows<10> rows = {{
//                               H          H  H                         G  G         G               G  S
//   Game                   O    Order     AK  Fill       Suits      Cards  Order     Type           AK  Num       Redeals  NoAuto  AutoFill   layout
    {"Corners",             no,  Never,     0, FromStock, FourSuits,     4, UpSuit,   OneOfEachSuit,  1, Redeal,         2, yes,    FromWaste, &CrossAndCorners},
    {"Czarina",             no,  DownAny,   1, AnyCard,   FourSuits,     1, UpSuit,   FirstCard,      1, NoRedeal,       0, no,     FromWaste, &CrossAndCorners},
    {"Florentine Patience", no,  DownAny,   1, AnyCard,   FourSuits,     1, UpSuit,   FirstCard,      1, Redeal,         1, no,     FromWaste, &CrossAndCorners},
    {"Four Seasons",        no,  DownAny,   1, AnyCard,   FourSuits,     1, UpSuit,   FirstCard,      1, NoRedeal,       0, no,     none,      &CrossAndCorners},
    {"Little Windmill",     no,  DownAny,   1, AnyCard,   FourSuits,     1, UpSuit,   Aces,           0, NoRedeal,       0, no,     none,      &CrossAndCorners},
    {"National Anthem",     yes, DownSuit,  1, AnyCard,   OneSuit,       1, UpSuit,   FirstCard,      1, NoRedeal,       0, no,     FromWaste, &CrossAndCorners},
    {"Octave",              yes, DownAny,   1, AnyCard,   FourSuits,     1, UpAlt,    FirstCard,      1, NoRedeal,       0, no,     none,      &CrossAndCorners},
    {"Odyssey",             yes, UpAny,     1, AnyCard,   FourSuits,     4, DownSuit, Kings,          0, NoRedeal,       0, no,     none,      &CrossAndCorners},
    {"Single Corners",      yes, Never,     0, FromStock, OneSuit,       4, UpSuit,   FirstCard,      1, Redeal,         2, yes,    FromWaste, &CrossAndCorners},
    {"Zenith",              yes, DownAny,   1, AnyCard,   FourSuits,     4, UpSuit,   OneOfEachSuit,  1, NoRedeal,       0, no,     FromWaste, &CrossAndCorners},
}};
// clang-format on

constexpr auto games = Table::Complete(shared, rows);

static_assert(mFamily::Sound<mFamily::FirstFault(games)>::All);
static_assert(mFamily::Originals(games) == 5);

}  // namespace

std::span<const Definition> Games() { return games; }

void ListGames() { mFamily::List("Four Seasons", games); }

void SetGame(const std::string& name) { mFamily::Set(name, games); }

}  // namespace gFourSeasons
