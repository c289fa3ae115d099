// The family "Canfield": one reserve pile that refills the tableau by itself.
#include "engine/catalogue/columns.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/family.h"
#include "engine/catalogue/layouts.h"

namespace gCanfield {

namespace {

using namespace Columns;
using namespace Layouts;

// clang-format off

// The reserve stands between the stock and the tableau, its cards close together.
constexpr Layout Piles4 = {
    .Home  = {.StartX = 2730, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2730, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1365},
    .Res   = {.StartX = 1365, .StartY = BelowTop, .PosWidth = 50},
    .BaseX = 7290};

// No waste: the reserve stands below the stock.
constexpr Layout Piles4Stock = {
    .Home  = {.StartX = 1365, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 1365, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .StartY = BelowTop, .PosWidth = 50},
    .BaseX = 5925};

// As Piles4, with a reserve that can be read.
constexpr Layout Piles4OpenReserve = {
    .Home  = {.StartX = 2730, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2730, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1365},
    .Res   = {.StartX = 1365, .StartY = BelowTop, .PosWidth = Fan},
    .BaseX = 7290};

// The tableau stands in the middle below the foundations.
constexpr Layout Piles3 = {
    .Home  = {.StartX = 3312, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2730, .PileWidth = Across},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1365},
    .Res   = {.StartX = 1365, .StartY = BelowTop, .PosWidth = 50},
    .BaseX = 7290};

constexpr Layout Piles5OpenReserve = {
    .Home  = {.StartX = 4102, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2530, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1265},
    .Res   = {.StartX = 1265, .StartY = BelowTop, .PosWidth = Fan},
    .BaseX = 11400};

constexpr Layout Piles6 = {
    .Home  = {.StartX = 3520, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2530, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1265},
    .Res   = {.StartX = 1265, .StartY = BelowTop, .PosWidth = 50},
    .BaseX = 11400};

constexpr Layout Piles6Stock = {
    .Home  = {.StartX = 2355, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 1365, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Res   = {.StartX = 0, .StartY = BelowTop, .PosWidth = 50},
    .BaseX = 10235};

constexpr Layout Piles8 = {
    .Home  = {.StartX = 1665, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 2530, .PileWidth = Squeezed},
    .Stock = {.StartX = 0},
    .Waste = {.StartX = 1265},
    .Res   = {.StartX = 300, .StartY = BelowTop, .PosWidth = 50},
    .BaseX = 11400};

// clang-format on

// What all games of the family have in common.
constexpr Definition shared = {.HomeFill = FromStock, .ResPiles = 1, .Refill = FromReserve};

// The columns of the table.
using Table =
    mFamily::Table<&Definition::Name, &Definition::Original, &Definition::HomePiles, &Definition::HomeCards,
                   &Definition::HomeOrder, &Definition::HomeAK, &Definition::HomeMove,
                   &Definition::HomePattern, &Definition::Suits, &Definition::GoalPiles,
                   &Definition::GoalCards, &Definition::GoalOrder, &Definition::GoalBase, &Definition::GoalAK,
                   &Definition::StockPress, &Definition::StockMark, &Definition::Waste, &Definition::ResCards,
                   &Definition::Deck, &Definition::Redeals, &Definition::Places>;

// clang-format off
constexpr Table::Rows<20> rows = {{
//                                      H      H  H           H  H     H                           G      G  G         G               G  S              S                    R
//   Game                      O    Piles  Cards  Order      AK  Move  Type         Suits      Piles  Cards  Order     Type           AK  Move           Num       Waste  Cards  Deck  Redeals  layout
    {"Acme",                   no,      4,     4, DownSuit,   0, no,   Rows,        FourSuits,     4,     4, UpSuit,   Aces,           0, OneToWaste,    Redeal,   yes,      13,   52,       1, &Piles4},
    {"American Toad",          no,      8,     8, DownSuit,   1, yes,  Rows,        FourSuits,     8,     1, UpSuit,   FirstCard,      1, OneToWaste,    Redeal,   yes,      20,  104,       1, &Piles8},
    {"American Toad One Suit", yes,     8,     8, DownSuit,   1, yes,  Rows,        OneSuit,       8,     1, UpSuit,   FirstCard,      1, OneToWaste,    Redeal,   yes,      20,  104,       1, &Piles8},
    {"Apollo",                 yes,     4,     4, DownSuit,   0, no,   StairsRight, FourSuits,     4,     4, UpSuit,   Aces,           0, OneToWaste,    Redeal,   yes,      13,   52,       1, &Piles4},
    {"Art Gallery",            yes,     4,     4, DownAny,    0, no,   Rows,        FourSuits,     4,     4, UpSuit,   Aces,           0, ThreeToWaste,  Redeal,   yes,      13,   52,       1, &Piles4},
    {"Black Forest",           yes,     4,     4, DownColor,  1, yes,  Rows,        FourSuits,     4,     1, UpSuit,   FirstCard,      1, ThreeToWaste,  Redeal,   yes,      13,   52,      -1, &Piles4},
    {"Canfield",               no,      4,     4, DownAlt,    1, yes,  Rows,        FourSuits,     4,     1, UpSuit,   FirstCard,      1, ThreeToWaste,  Redeal,   yes,      13,   52,      -1, &Piles4},
    {"Canfield One Suit",      yes,     4,     4, DownSuit,   1, yes,  Rows,        OneSuit,       4,     1, UpSuit,   FirstCard,      1, ThreeToWaste,  Redeal,   yes,      13,   52,      -1, &Piles4},
    {"Chameleon",              no,      3,     3, DownAny,    1, yes,  Rows,        FourSuits,     4,     1, UpSuit,   FirstCard,      1, OneToWaste,    NoRedeal, yes,      12,   52,       0, &Piles3},
    {"Demon",                  no,      8,     8, DownAlt,    1, yes,  Rows,        FourSuits,     8,     1, UpSuit,   FirstCard,      1, ThreeToWaste,  Redeal,   yes,      40,  104,       2, &Piles8},
    {"Double Canfield",        no,      6,     6, DownAlt,    1, yes,  Rows,        FourSuits,     8,     1, UpSuit,   FirstCard,      1, ThreeToWaste,  Redeal,   yes,      40,  104,      -1, &Piles6},
    {"Double Escort",          yes,     6,     6, DownAlt,    1, yes,  Rows,        FourSuits,     8,     1, UpSuit,   FirstCard,      1, OneToEachPile, NoRedeal, no,       40,  104,       0, &Piles6Stock},
    {"Double Simon Canfield",  yes,     8,    36, DownAlt,    1, yes,  StairsLeft,  FourSuits,     8,     1, UpSuit,   FirstCard,      1, ThreeToWaste,  Redeal,   yes,      40,  104,      -1, &Piles8},
    {"Escort",                 yes,     4,     4, DownAlt,    1, yes,  Rows,        FourSuits,     4,     1, UpSuit,   FirstCard,      1, OneToEachPile, NoRedeal, no,       13,   52,       0, &Piles4Stock},
    {"Goodwill",               yes,     4,     4, DownAlt,    1, yes,  Rows,        FourSuits,     4,     4, UpSuit,   OneOfEachSuit,  1, ThreeToWaste,  Redeal,   yes,      13,   52,      -1, &Piles4},
    {"Rainbow",                no,      4,     4, DownAlt,    1, yes,  Rows,        FourSuits,     4,     1, UpSuit,   FirstCard,      1, OneToWaste,    Redeal,   yes,      13,   52,       2, &Piles4},
    {"Reversed Acme",          yes,     4,     4, UpSuit,     0, no,   Rows,        FourSuits,     4,     4, DownSuit, Kings,          0, OneToWaste,    Redeal,   yes,      13,   52,       1, &Piles4},
    {"Storehouse",             no,      4,     4, DownAlt,    1, yes,  Rows,        FourSuits,     4,     4, UpSuit,   Twos,           1, OneToWaste,    Redeal,   yes,      13,   52,       2, &Piles4},
    {"Superior Canfield",      no,      4,     4, DownAlt,    1, yes,  Rows,        FourSuits,     4,     1, UpSuit,   FirstCard,      1, ThreeToWaste,  Redeal,   yes,      13,   52,      -1, &Piles4OpenReserve},
    {"Variegated Canfield",    no,      5,     5, DownAlt,    0, yes,  Rows,        FourSuits,     8,     8, UpSuit,   Aces,           0, OneToWaste,    Redeal,   yes,      13,  104,       2, &Piles5OpenReserve},
}};
// clang-format on

constexpr auto games = Table::Complete(shared, rows);

static_assert(mFamily::Sound<mFamily::FirstFault(games)>::All);
static_assert(mFamily::Originals(games) == 10);

}  // namespace

std::span<const Definition> Games() { return games; }

void ListGames() { mFamily::List("Canfield", games); }

void SetGame(const std::string& name) { mFamily::Set(name, games); }

}  // namespace gCanfield
