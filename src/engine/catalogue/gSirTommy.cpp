// The family "Sir Tommy": few piles, played from the stock; in most games a card that lies on the
// tableau can only go to a foundation.
#include "engine/catalogue/columns.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/family.h"
#include "engine/catalogue/layouts.h"

namespace gSirTommy {

namespace {

using namespace Columns;
using namespace Layouts;

// clang-format off

// The stock stands at the left, the foundations stand above the tableau.
constexpr Layout Piles4 = {
    .Home  = {.StartX = 1365, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 1365, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .BaseX = 5925};

constexpr Layout Piles6 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2330, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .BaseX = 6890};

constexpr Layout Piles9 = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 1165, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .BaseX = 10385};

// The stock and the reserve stand before the tableau, the foundations above all.
constexpr Layout Piles5Reserve = {
    .Home  = {.StartX = 2930, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 0, .PileWidth = Across},
    .Stock = {.StartX = 100, .StartY = 1840},
    .Res   = {.StartX = 1465, .StartY = BelowTop, .PosWidth = Fan},
    .BaseX = 9220};

// clang-format on

// What all games of the family have in common.
constexpr Definition shared = {.StockMark = NoRedeal};

// The columns of the table.
using Table =
    mFamily::Table<&Definition::Name, &Definition::Original, &Definition::HomePiles, &Definition::HomeCards,
                   &Definition::HomeOrder, &Definition::HomeAK, &Definition::HomeFill, &Definition::HomeMove,
                   &Definition::Suits, &Definition::GoalPiles, &Definition::GoalCards, &Definition::GoalOrder,
                   &Definition::GoalBase, &Definition::GoalAK, &Definition::StockPress,
                   &Definition::StockKind, &Definition::ResPiles, &Definition::ResCards, &Definition::ResNum,
                   &Definition::Deck, &Definition::NoAuto, &Definition::Refill, &Definition::NoH2H,
                   &Definition::Places>;

// clang-format off
constexpr Table::Rows<10> rows = {{
//                                  H      H  H         H  H          H                    G      G  G        G           G  S              S           R      R  R
//   Game                  O    Piles  Cards  Order    AK  Fill       Move  Suits      Piles  Cards  Order    Type       AK  Move           Type    Piles  Cards  Num     Deck  NoAuto  AutoFill     NoH2H  layout
    {"Auld Lang Syne",     no,      4,     4, Never,    0, Nothing,   no,   FourSuits,     4,     4, UpAny,   Aces,       0, OneToEachPile, Closed,  none,  none, none,     52, yes,    none,        no,    &Piles4},
    {"Double Sir Tommy",   yes,     9,     9, Always,   0, FromStock, no,   FourSuits,     8,     0, UpAny,   Aces,       0, ByHand,        Open,    none,  none, none,    104, no,     none,        yes,   &Piles9},
    {"Durbar Hall",        no,      5,     5, Always,   0, AnyCard,   yes,  FourSuits,     8,     8, UpAny,   Aces,       0, ByHand,        Open,       1,    13, NoDrop,  104, no,     FromReserve, yes,   &Piles5Reserve},
    {"Extreme",            yes,     4,     4, DownAny,  0, AnyCard,   no,   FourSuits,     4,     0, UpAny,   Aces,       0, OneToEachPile, Closed,  none,  none, none,     52, no,     none,        no,    &Piles4},
    {"Highway",            yes,     4,     4, Always,   1, FromStock, no,   FourSuits,     4,     1, UpAny,   FirstCard,  1, ByHand,        Open,    none,  none, none,     52, no,     none,        yes,   &Piles4},
    {"Lady Betty",         no,      6,     6, Always,   0, FromStock, no,   FourSuits,     4,     0, UpSuit,  Aces,       0, ByHand,        Open,    none,  none, none,     52, no,     none,        yes,   &Piles6},
    {"Reversed Sir Tommy", yes,     4,     4, Always,   0, FromStock, no,   FourSuits,     4,     4, DownAny, Kings,      0, ByHand,        Open,    none,  none, none,     52, no,     none,        yes,   &Piles4},
    {"Sir Tommy",          no,      4,     4, Always,   0, FromStock, no,   FourSuits,     4,     0, UpAny,   Aces,       0, ByHand,        Open,    none,  none, none,     52, no,     none,        yes,   &Piles4},
    {"Tam o 'Shanter",     no,      4,     4, Never,    0, Nothing,   no,   FourSuits,     4,     0, UpAny,   Aces,       0, OneToEachPile, Closed,  none,  none, none,     52, yes,    none,        no,    &Piles4},
    {"Viper",              yes,     4,     4, Always,   0, FromStock, no,   OneSuit,       4,     0, UpSuit,  Aces,       0, ByHand,        Open,    none,  none, none,     52, no,     none,        yes,   &Piles4},
}};
// clang-format on

constexpr auto games = Table::Complete(shared, rows);

static_assert(mFamily::Sound<mFamily::FirstFault(games)>::All);
static_assert(mFamily::Originals(games) == 5);

}  // namespace

std::span<const Definition> Games() { return games; }

void ListGames() { mFamily::List("Sir Tommy", games); }

void SetGame(const std::string& name) { mFamily::Set(name, games); }

}  // namespace gSirTommy
