// The family "Baker's Dozen": mostly thirteen open piles of one deck and nothing else.
#include "engine/catalogue/columns.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/family.h"
#include "engine/catalogue/layouts.h"

namespace gBDozen {

namespace {

using namespace Columns;
using namespace Layouts;

// clang-format off

// Two rows of piles, the foundations at their right.
constexpr Layout Piles12GoalsBeside = {
    .Home  = {.StartX = 0, .StartY = 0, .PileWidth = Across, .PosWidth = 200, .Div = 6, .DivWidth = 4000},
    .Goal  = {.StartX = 7390, .StartY = 500, .PileWidth = Down, .PileOrder = DownFanRight},
    .Stock = {.StartX = 7390, .StartY = 500},
    .BaseX = 8455};

constexpr Layout Piles13GoalsBeside = {
    .Home  = {.StartX = 0, .StartY = 0, .PileWidth = Across, .PosWidth = 200, .Div = 7, .DivWidth = 4000},
    .Goal  = {.StartX = 8555, .StartY = 500, .PileWidth = Down, .PileOrder = DownFanRight},
    .Stock = {.StartX = 8555, .StartY = 500},
    .BaseX = 9620};

// clang-format on

// What all games of the family have in common.
constexpr Definition shared = {.GoalPiles = 4};

// The columns of the table.
using Table =
    mFamily::Table<&Definition::Name, &Definition::Original, &Definition::HomePiles, &Definition::HomeCards,
                   &Definition::HomeOpen, &Definition::HomeOrder, &Definition::HomeAK, &Definition::HomeFill,
                   &Definition::HomeMove, &Definition::HomePattern, &Definition::Suits,
                   &Definition::GoalCards, &Definition::GoalOrder, &Definition::GoalBase, &Definition::GoalAK,
                   &Definition::MoveKings, &Definition::Places>;

// clang-format off
constexpr Table::Rows<20> rows = {{
//                                      H      H     H  H           H  H         H     H                             G  G         G               G
//   Game                      O    Piles  Cards  Open  Order      AK  Fill      Move  Type           Suits      Cards  Order     Type           AK  MoveKings  layout
    {"Baker's Dozen",          no,     13,    52,    0, DownAny,    0, Nothing,  no,   Rows,          FourSuits,     0, UpSuit,   Aces,           0, yes,       &Piles13GoalsBeside},
    {"Baker's Dozen Plus",     yes,    13,    51,    0, DownAny,    1, AnyCard,  no,   Rows,          FourSuits,     1, UpSuit,   FirstCard,      1, no,        &Piles13GoalsBeside},
    {"Baker's Dozen Two Suit", yes,    13,    52,    0, DownAny,    0, Nothing,  no,   Rows,          TwoSuits,      0, UpSuit,   Aces,           0, yes,       &Piles13GoalsBeside},
    {"Baker's Tower",          yes,    13,    52,    0, DownAny,    0, KingOnly, no,   EvenPilesOpen, FourSuits,     0, UpSuit,   Aces,           0, no,        &Piles13GoalsBeside},
    {"Castles in Spain",       no,     13,    52,   13, DownAlt,    0, AnyCard,  no,   Rows,          FourSuits,     0, UpSuit,   Aces,           0, no,        &Piles13GoalsBeside},
    {"Color Patience",         yes,    13,    52,    0, DownColor,  0, Nothing,  no,   Rows,          FourSuits,     0, UpAny,    Aces,           0, yes,       &Piles13GoalsBeside},
    {"Fair Deal",              yes,    13,    52,   13, DownAny,    0, KingOnly, no,   Rows,          FourSuits,     0, UpSuit,   Aces,           0, no,        &Piles13GoalsBeside},
    {"Good Measure",           no,     10,    50,    0, DownAny,    0, Nothing,  no,   Rows,          FourSuits,     2, UpSuit,   Aces,           0, yes,       &Piles10Goals4Middle},
    {"Good Measure Plus",      yes,    10,    50,    0, DownAny,    1, AnyCard,  no,   Rows,          FourSuits,     2, UpSuit,   FirstCard,      1, no,        &Piles10Goals4Middle},
    {"Hill Station",           yes,    13,    48,    0, DownAny,    1, AnyCard,  no,   Rows,          FourSuits,     4, UpSuit,   OneOfEachSuit,  1, no,        &Piles13GoalsBeside},
    {"His Highness",           yes,    13,    52,    0, DownAny,    0, KingOnly, no,   AlternateRows, FourSuits,     0, UpSuit,   Aces,           0, no,        &Piles13GoalsBeside},
    {"Martha",                 no,     12,    48,    0, DownAlt,    0, AnyCard,  yes,  AlternateRows, FourSuits,     4, UpSuit,   Aces,           0, no,        &Piles12GoalsBeside},
    {"Mobile Gallery",         yes,    13,    52,    0, DownAny,    0, Nothing,  no,   RandomSpread,  FourSuits,     0, UpSuit,   Aces,           0, yes,       &Piles13GoalsBeside},
    {"Nebula",                 yes,    13,    52,    0, DownOther,  0, Nothing,  no,   Rows,          FourSuits,     0, UpSuit,   Aces,           0, yes,       &Piles13GoalsBeside},
    {"Olive",                  yes,    13,    52,    0, DownAlt,    0, AnyCard,  yes,  Rows,          FourSuits,     0, UpSuit,   Aces,           0, no,        &Piles13GoalsBeside},
    {"Reversed Baker's Dozen", yes,    13,    52,    0, UpAny,      0, AnyCard,  no,   Rows,          FourSuits,     0, DownSuit, Kings,          0, no,        &Piles13GoalsBeside},
    {"Royal Measure",          yes,    10,    50,   30, DownAny,    0, AnyCard,  no,   Rows,          FourSuits,     2, UpSuit,   Aces,           0, no,        &Piles10Goals4Middle},
    {"Silver Screen",          yes,    13,    52,    0, DownSuit,   0, Nothing,  no,   Rows,          OneSuit,       0, UpSuit,   Aces,           0, yes,       &Piles13GoalsBeside},
    {"Spanish Patience",       no,     13,    52,    0, DownAny,    0, Nothing,  no,   Rows,          FourSuits,     0, UpAny,    Aces,           0, yes,       &Piles13GoalsBeside},
    {"Venus",                  yes,    13,    52,    0, DownColor,  0, Nothing,  no,   Rows,          FourSuits,     0, UpColor,  Aces,           0, yes,       &Piles13GoalsBeside},
}};
// clang-format on

constexpr auto games = Table::Complete(shared, rows);

static_assert(mFamily::Sound<mFamily::FirstFault(games)>::All);
static_assert(mFamily::Originals(games) == 15);

}  // namespace

std::span<const Definition> Games() { return games; }

void ListGames() { mFamily::List("Baker's Dozen", games); }

void SetGame(const std::string& name) { mFamily::Set(name, games); }

}  // namespace gBDozen
