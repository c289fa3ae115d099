// Measuring a game's room.
#include "engine/commands/mRoom.h"

#include <algorithm>
#include <array>
#include <vector>

#include "engine/rules/mFunc.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"

namespace mRoom {

namespace {

constexpr int Growth = 6;  // cards that a tableau pile usually gains, at most

// A pile that has outgrown its room gets more at once than one card needs, so that the size of the table
// changes seldom.
constexpr int SpareRoom = 1000;  // twips

Area CardAt(const Point& place) { return {place.X, place.Y, place.X + CardWidth, place.Y + CardHeight}; }

// The cards that the deal laid on each pile of the tableau.
struct Pile {
    int Cards = 0;
    int Closed = 0;
};
std::vector<Pile> Tableau(const cPlate& dealt) {
    std::vector<Pile> piles(static_cast<std::size_t>(gGames->Piles(Home)));
    for (int PicID = 0; PicID < MaxCards; ++PicID) {
        const CardRecord& card = dealt.PicCards(PicID);
        if (!card.Visible || card.Cell != Home) continue;
        Pile& pile = piles.at(static_cast<std::size_t>(card.Pile));
        ++pile.Cards;
        if (card.FaceMode == 1) ++pile.Closed;
    }
    return piles;
}

// Whether a pile fans towards another one of its group, which leaves it only the step to it.
bool FansTowardsNext(const CellRec& home) {
    const bool severalRows = home.Piles > home.Div;
    switch (home.PileOrder) {
        case PileOrder::AcrossFanDown:
        case PileOrder::DownFanRight:
            return severalRows;
        case PileOrder::AcrossFanRight:
            return std::min(home.Piles, home.Div) > 1;
        case PileOrder::AcrossFanDownWide:
        case PileOrder::Cross:
            break;
    }
    return false;
}

// How many cards a pile of `dealt` cards should have room for.
int RoomFor(int dealt) {
    const CellRec& home = gGames->Record(Home);
    if (home.Order == RuleCode::Never || home.PosWidth == 0) return std::max(dealt, 1);
    int cards = std::max(dealt + Growth, RankCount);  // or one whole run on an empty pile
    if (FansTowardsNext(home)) {
        const bool byPile = home.PileOrder == PileOrder::AcrossFanRight;
        const int step = byPile ? home.PileWidth : home.DivWidth;
        const bool down = home.PileOrder == PileOrder::AcrossFanDown;
        const int between = (step - (down ? CardHeight : CardWidth)) / home.PosWidth + 1;
        cards = std::max(dealt, std::min(cards, between));
    }
    if (gGames->HomeMaxCards > 0) cards = std::min(cards, std::max(dealt, gGames->HomeMaxCards));
    return cards;
}

}  // namespace

Area Area::With(const Area& other) const {
    if (Empty()) return other;
    if (other.Empty()) return *this;
    return {std::min(Left, other.Left), std::min(Top, other.Top), std::max(Right, other.Right),
            std::max(Bottom, other.Bottom)};
}

Area Area::Around(const Area& other, int spare) const {
    if (Empty() || other.Empty()) return With(other);
    return {other.Left < Left ? other.Left - spare : Left, other.Top < Top ? other.Top - spare : Top,
            other.Right > Right ? other.Right + spare : Right,
            other.Bottom > Bottom ? other.Bottom + spare : Bottom};
}

Area Taken(const cPlate& plate) {
    Area area;
    for (int PicID = 0; PicID < MaxCards; ++PicID) {
        const CardRecord& card = plate.PicCards(PicID);
        if (card.Visible) area = area.With(CardAt({card.Left, card.Top}));
    }
    cPlate::ForEachMark([&](MarkKind kind, int index) {
        const MarkRecord& mark = plate.Mark(kind, index);
        if (mark.Visible) area = area.With(CardAt({mark.Left, mark.Top}));
    });
    return area;
}

Area OfGame(const cPlate& dealt) {
    Area area = Taken(dealt);
    const std::vector<Pile> tableau = Tableau(dealt);
    for (int p = 0; p < gGames->Piles(Home); ++p) {
        const Pile& pile = tableau[static_cast<std::size_t>(p)];
        area = area.With(CardAt(gGames->Position(Home, p, RoomFor(pile.Cards) - 1, pile.Closed)));
    }
    for (int p = 0; p < gGames->Piles(Goal); ++p) {
        for (const int Pos : {0, 1, RankCount - 1}) {
            area = area.With(CardAt(gGames->Position(Goal, p, Pos, 0)));
        }
    }
    return area;
}

bool Follow(Area& room, int PicID) {
    const CardRecord& card = PicBack.PicCards(PicID);
    if (!card.Visible || !gData->Figures.GameRunning || gDrag.gPicked) return false;
    const Area grown = room.Around(CardAt({card.Left, card.Top}), SpareRoom);
    if (grown == room) return false;
    room = grown;
    return true;
}

}  // namespace mRoom
