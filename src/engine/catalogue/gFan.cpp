// The family "Fan": fans of three cards, moved one at a time; six games gather and deal them again.
#include "engine/catalogue/columns.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/family.h"
#include "engine/catalogue/layouts.h"

namespace gFan {

namespace {

using namespace Columns;
using namespace Layouts;

// clang-format off

// Rows of five fans; the foundations stand above the four right columns.
constexpr Layout Fans18 = {
    .Home  = {.StartX = 0, .StartY = 1540, .PileWidth = 2360, .PosWidth = CloseFan, .Div = 5, .DivWidth = DownTight,
              .PileOrder = AcrossFanRight},
    .Goal  = {.StartX = 2360, .PileWidth = 2360},
    .Stock = {.StartX = 2360},
    .BaseX = 11800,
    .BaseY = 50};

// The same with the redeal marker above the left column.
constexpr Layout Fans18Redeal = {
    .Home  = {.StartX = 0, .StartY = 1540, .PileWidth = 2360, .PosWidth = CloseFan, .Div = 5, .DivWidth = DownTight,
              .PileOrder = AcrossFanRight},
    .Goal  = {.StartX = 2360, .PileWidth = 2360},
    .Stock = {.StartX = 0},
    .BaseX = 11800,
    .BaseY = 50};

// clang-format on

// What all games of the family have in common.
constexpr Definition shared = {.GoalPiles = 4};

// The columns of the table.
using Table =
    mFamily::Table<&Definition::Name, &Definition::Original, &Definition::HomePiles, &Definition::HomeCards,
                   &Definition::HomeOpen, &Definition::HomeOrder, &Definition::HomeAK, &Definition::HomeFill,
                   &Definition::HomePattern, &Definition::Suits, &Definition::GoalCards,
                   &Definition::GoalOrder, &Definition::GoalBase, &Definition::GoalAK,
                   &Definition::StockPress, &Definition::StockMark, &Definition::Redeals, &Definition::Kind,
                   &Definition::Redeal, &Definition::MoveKings, &Definition::MaxCards, &Definition::Places>;

// clang-format off
constexpr Table::Rows<15> rows = {{
//                                   H      H     H  H           H  H         H                             G  G         G           G  S           S
//   Game                   O    Piles  Cards  Open  Order      AK  Fill      Type           Suits      Cards  Order     Type       AK  Move        Num     Redeals  GameType    RedealType     MoveKings  MaxCards  layout
    {"Fan",                 no,     18,    52,    0, DownSuit,   0, KingOnly, Rows,          FourSuits,     0, UpSuit,   Aces,       0, none,       none,         0, Plain,      WasteToStock,  no,            none, &Fans18},
    {"Fascination Fan",     no,     18,    52,   18, DownAlt,    0, Nothing,  Rows,          FourSuits,     0, UpSuit,   Aces,       0, OneToWaste, Redeal,       6, OpenRedeal, GatherTableau, no,            none, &Fans18Redeal},
    {"History",             yes,    18,    51,    0, DownSuit,   0, Nothing,  Rows,          FourSuits,     1, UpSuit,   FirstCard,  0, none,       Redeal,       2, OpenRedeal, GatherTableau, no,            none, &Fans18Redeal},
    {"La Belle Lucie",      no,     18,    52,    0, DownSuit,   0, Nothing,  Rows,          FourSuits,     0, UpSuit,   Aces,       0, none,       Redeal,       2, OpenRedeal, GatherTableau, no,            none, &Fans18Redeal},
    {"Over Bridge",         yes,    18,    52,    0, DownSuit,   0, KingOnly, EvenPilesOpen, FourSuits,     0, UpSuit,   Aces,       0, none,       none,         0, Plain,      WasteToStock,  no,            none, &Fans18},
    {"Province",            yes,    18,    51,    0, DownSuit,   1, AnyCard,  Rows,          FourSuits,     1, UpSuit,   FirstCard,  1, none,       none,         0, Plain,      WasteToStock,  no,            none, &Fans18},
    {"Queen of Arabia",     yes,    18,    52,    0, DownOther,  0, KingOnly, Rows,          FourSuits,     0, UpSuit,   Aces,       0, none,       none,         0, Plain,      WasteToStock,  no,            none, &Fans18},
    {"Scotch Patience",     no,     18,    52,    0, DownAny,    0, Nothing,  Rows,          FourSuits,     0, UpAlt,    Aces,       0, none,       none,         0, Plain,      WasteToStock,  no,            none, &Fans18},
    {"Shamrocks",           no,     18,    52,    0, EitherAny,  0, Nothing,  Rows,          FourSuits,     0, UpSuit,   Aces,       0, none,       none,         0, Plain,      WasteToStock,  yes,              3, &Fans18},
    {"Super Flower Garden", no,     18,    52,    0, DownAny,    0, Nothing,  Rows,          FourSuits,     0, UpSuit,   Aces,       0, none,       Redeal,       2, OpenRedeal, GatherTableau, no,            none, &Fans18Redeal},
    {"Talent",              yes,    18,    52,    0, DownColor,  0, KingOnly, Rows,          FourSuits,     0, UpSuit,   Aces,       0, none,       none,         0, Plain,      WasteToStock,  no,            none, &Fans18},
    {"Theme Park",          yes,    18,    48,    0, UpSuit,     0, AceOnly,  Rows,          FourSuits,     4, DownSuit, Kings,      0, none,       none,         0, Plain,      WasteToStock,  no,            none, &Fans18},
    {"Treasure Island",     yes,    18,    52,    0, DownSuit,   0, KingOnly, Rows,          OneSuit,       0, UpSuit,   Aces,       0, none,       none,         0, Plain,      WasteToStock,  no,            none, &Fans18},
    {"Trefoil",             no,     16,    48,    0, DownSuit,   0, Nothing,  Rows,          FourSuits,     4, UpSuit,   Aces,       0, none,       Redeal,       2, OpenRedeal, GatherTableau, no,            none, &Fans18Redeal},
    {"Zero Hour",           yes,    18,    52,    0, UpSuit,     0, Nothing,  Rows,          FourSuits,     0, DownSuit, Kings,      0, none,       Redeal,       2, OpenRedeal, GatherTableau, no,            none, &Fans18Redeal},
}};
// clang-format on

constexpr auto games = Table::Complete(shared, rows);

static_assert(mFamily::Sound<mFamily::FirstFault(games)>::All);
static_assert(mFamily::Originals(games) == 8);

}  // namespace

std::span<const Definition> Games() { return games; }

void ListGames() { mFamily::List("Fan", games); }

void SetGame(const std::string& name) { mFamily::Set(name, games); }

}  // namespace gFan
