// The family "Yukon": nearly all cards dealt, and any group moves whose lowest card fits.
#include "engine/catalogue/columns.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/family.h"
#include "engine/catalogue/layouts.h"

namespace gYukon {

namespace {

using namespace Columns;
using namespace Layouts;

// clang-format off

// Two decks without a stock: the foundations stand in the middle.
constexpr Layout Piles9Goals8Middle = {
    .Home  = {.StartX = 0, .StartY = BelowTop, .PileWidth = Across, .PosWidth = Fan},
    .Goal  = {.StartX = 582, .PileWidth = Across},
    .Stock = {.StartX = 582},
    .BaseX = 10385};

// clang-format on

// What all games of the family have in common.
constexpr Definition shared = {.HomeMulti = Always, .HomeMove = yes};

// The columns of the table.
using Table = mFamily::Table<
    &Definition::Name, &Definition::Original, &Definition::HomePiles, &Definition::HomeCards,
    &Definition::HomeOrder, &Definition::HomeAK, &Definition::HomeFill, &Definition::HomePattern,
    &Definition::Suits, &Definition::GoalPiles, &Definition::GoalOrder, &Definition::GoalBase,
    &Definition::GoalAK, &Definition::StockPress, &Definition::StockMark, &Definition::StockKind,
    &Definition::Waste, &Definition::ResPiles, &Definition::ResCards, &Definition::ResNum, &Definition::Deck,
    &Definition::NoAuto, &Definition::Kind, &Definition::Tag, &Definition::Places>;

// clang-format off
constexpr Table::Rows<20> rows = {{
//                                      H      H  H            H  H         H                           G  G         G           G  S              S         S                  R      R  R
//   Game                      O    Piles  Cards  Order       AK  Fill      Type         Suits      Piles  Order     Type       AK  Move           Num       Type    Waste  Piles  Cards  Num      Deck  NoAuto  GameType      Tag  layout
    {"Aunt Mary",              no,      6,    36, DownAlt,     0, KingOnly, YukonRows,   FourSuits,     4, UpSuit,   Aces,       0, OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,      52, no,     Plain,        "",  &Piles6Goals4},
    {"Climax",                 yes,     7,    52, DownColor,   0, KingOnly, Yukon,       FourSuits,     4, UpSuit,   Aces,       0, none,          none,     Closed, no,     none,  none, none,      52, no,     Plain,        "",  &Piles7Goals4NoStock},
    {"Double Climax",          yes,     9,   104, DownColor,   0, KingOnly, DoubleYukon, FourSuits,     8, UpSuit,   Aces,       0, none,          none,     Closed, no,     none,  none, none,     104, no,     Plain,        "",  &Piles9Goals8Middle},
    {"Double Ticket",          yes,     9,   104, DownAlt,     1, KingOnly, DoubleYukon, FourSuits,     8, UpSuit,   FirstCard,  1, none,          none,     Closed, no,     none,  none, none,     104, no,     Plain,        "",  &Piles9Goals8Middle},
    {"Double Yukon",           yes,     9,   104, DownAlt,     0, KingOnly, DoubleYukon, FourSuits,     8, UpSuit,   Aces,       0, none,          none,     Closed, no,     none,  none, none,     104, no,     Plain,        "",  &Piles9Goals8Middle},
    {"Double Yukon One Suit",  yes,     9,   104, DownSuit,    0, KingOnly, DoubleYukon, OneSuit,       8, UpSuit,   Aces,       0, none,          none,     Closed, no,     none,  none, none,     104, no,     Plain,        "",  &Piles9Goals8Middle},
    {"Indigo",                 yes,     7,    52, DownAlt,     0, KingOnly, Yukon,       FourSuits,     4, UpSuit,   Aces,       0, none,          none,     Closed, no,        2,     0, OneCard,   52, no,     Plain,        "",  &Piles7Goals4NoStock},
    {"Magic Yukon",            yes,     7,    52, SameRank,    0, AnyCard,  Yukon,       FourSuits,     4, UpSuit,   Aces,       0, none,          none,     Closed, no,     none,  none, none,      52, no,     Plain,        "",  &Piles7Goals4NoStock},
    {"Omega",                  yes,     9,    30, DownAlt,     0, KingOnly, DoubleYukon, FourSuits,     8, UpSuit,   Aces,       0, OneToEachPile, NoRedeal, Closed, no,     none,  none, none,     104, no,     Plain,        "",  &Piles9Goals8Stock},
    {"Open Yukon",             yes,     7,    52, DownAlt,     0, KingOnly, Yukon,       FourSuits,     4, UpSuit,   Aces,       0, ByHand,        NoRedeal, Open,   no,     none,  none, none,      52, no,     Plain,        "3", &Piles7Goals4},
    {"Reversed Yukon",         yes,     7,    52, UpAlt,       0, AceOnly,  Yukon,       FourSuits,     4, DownSuit, Kings,      0, none,          none,     Closed, no,     none,  none, none,      52, no,     Plain,        "",  &Piles7Goals4NoStock},
    {"Russian Solitaire",      no,      7,    52, DownSuit,    0, KingOnly, Yukon,       FourSuits,     4, UpSuit,   Aces,       0, none,          none,     Closed, no,     none,  none, none,      52, no,     Plain,        "",  &Piles7Goals4NoStock},
    {"Russian Solitaire Plus", yes,     7,    52, EitherSuit,  0, KingOnly, Yukon,       FourSuits,     4, UpSuit,   Aces,       0, none,          none,     Closed, no,     none,  none, none,      52, no,     Plain,        "",  &Piles7Goals4NoStock},
    {"Spider Yukon",           yes,     7,    52, DownSuit,    0, KingOnly, Yukon,       FourSuits,     4, UpSuit,   PlainAces,  0, none,          none,     Closed, no,     none,  none, none,      52, yes,    CompleteRuns, "",  &Piles7Goals4NoStock},
    {"Spider Yukon One Suit",  yes,     7,    52, DownSuit,    0, KingOnly, Yukon,       OneSuit,       4, UpSuit,   PlainAces,  0, none,          none,     Closed, no,     none,  none, none,      52, yes,    CompleteRuns, "",  &Piles7Goals4NoStock},
    {"Symbol",                 yes,     7,    52, DownAlt,     0, KingOnly, Yukon,       FourSuits,     4, UpSuit,   Aces,       0, OneToWaste,    NoRedeal, Closed, yes,    none,  none, none,      52, no,     Plain,        "3", &Piles7Goals4},
    {"Ticket",                 yes,     7,    52, DownAlt,     1, AnyCard,  Yukon,       FourSuits,     4, UpSuit,   FirstCard,  1, none,          none,     Closed, no,     none,  none, none,      52, no,     Plain,        "",  &Piles7Goals4NoStock},
    {"Time Zone",              yes,     7,    52, EitherAlt,   0, KingOnly, Yukon,       FourSuits,     4, UpSuit,   Aces,       0, none,          none,     Closed, no,     none,  none, none,      52, no,     Plain,        "",  &Piles7Goals4NoStock},
    {"Yukon",                  no,      7,    52, DownAlt,     0, KingOnly, Yukon,       FourSuits,     4, UpSuit,   Aces,       0, none,          none,     Closed, no,     none,  none, none,      52, no,     Plain,        "",  &Piles7Goals4NoStock},
    {"Yukon One Suit",         yes,     7,    52, DownSuit,    0, KingOnly, Yukon,       OneSuit,       4, UpSuit,   Aces,       0, none,          none,     Closed, no,     none,  none, none,      52, no,     Plain,        "",  &Piles7Goals4NoStock},
}};
// clang-format on

constexpr auto games = Table::Complete(shared, rows);

static_assert(mFamily::Sound<mFamily::FirstFault(games)>::All);
static_assert(mFamily::Originals(games) == 17);

}  // namespace

std::span<const Definition> Games() { return games; }

void ListGames() { mFamily::List("Yukon", games); }

void SetGame(const std::string& name) { mFamily::Set(name, games); }

}  // namespace gYukon
