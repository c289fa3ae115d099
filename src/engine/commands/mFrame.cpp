// The places of the frame, and the neighbors of each.
#include "engine/commands/mFrame.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <tuple>

#include "engine/commands/mMain.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cPlate.h"

namespace mFrame {

namespace {

using mReader::PilePlace;

// Of a card below another one at least that much must be seen: closed cards of a pile lie so far apart. A
// pack's cards are nearer.
constexpr int LeastSeen = 60;  // twips

// Piles whose corners differ by less than half a card across the way stand in one row or column.
constexpr int HalfRow = CardHeight / 2;
constexpr int HalfColumn = CardWidth / 2;

Point CornerOf(const mReader::Extent& area) { return {area.Left, area.Top}; }

// The cards of a pile that are not in the hand.
int Lying(const PilePlace& pile) {
    const int held = mMain::CardInHand();
    const int count = mReader::Count(pile);
    if (held < 0 || mFunc::CardCell(held) != pile.Cell || mFunc::CardPile(held) != pile.Pile) return count;
    return mFunc::CardPos(held);
}

bool CanBeTold(const PilePlace& pile, int Pos) {
    const Point card = CornerOf(AreaOf({pile, Pos}));
    const Point above = CornerOf(AreaOf({pile, Pos + 1}));
    return std::max(std::abs(card.X - above.X), std::abs(card.Y - above.Y)) >= LeastSeen;
}

// A point as seen by someone who goes that way: how far ahead it lies, and how far to the side.
struct Ahead {
    int Along, Across;
};

Ahead Turned(const Point& point, Step way) {
    switch (way) {
        case Step::Left:
            return {-point.X, point.Y};
        case Step::Up:
            return {-point.Y, point.X};
        case Step::Down:
            return {point.Y, point.X};
        default:
            return {point.X, point.Y};
    }
}

// How well a place suits the way from another one; the least suits best. Nothing where it lies elsewhere.
using Rank = std::tuple<int, int, int, int>;

std::optional<Rank> RankOf(const Stop& from, const Stop& to, Step way) {
    const Ahead at = Turned(CornerOf(AreaOf(from)), way);
    const Ahead there = Turned(CornerOf(AreaOf(to)), way);
    const int across = std::abs(there.Across - at.Across);
    // The cards of a pile come before all other piles.
    if (to.Pile == from.Pile) {
        if (there.Along <= at.Along) return std::nullopt;
        return Rank{0, there.Along - at.Along, across, 0};
    }
    const Ahead pile = Turned(CornerOf(mReader::BaseArea(from.Pile)), way);
    const Ahead other = Turned(CornerOf(mReader::BaseArea(to.Pile)), way);
    const int distance = other.Along - pile.Along;
    if (distance <= 0) return std::nullopt;
    const int nearest = std::abs(there.Along - at.Along);
    // Then the next pile of the same row or column, however long it is.
    const bool sideways = way == Step::Left || way == Step::Right;
    const bool inLine = std::abs(other.Across - pile.Across) < (sideways ? HalfRow : HalfColumn);
    if (inLine) return Rank{1, distance, across, nearest};
    // Then whatever lies ahead, rather straight ahead than near.
    return Rank{2, distance + 2 * across, across, nearest};
}

Stop Neighbor(const Stop& from, Step way) {
    Stop best = from;
    std::optional<Rank> least;
    for (const Stop& stop : Stops()) {
        const std::optional<Rank> rank = RankOf(from, stop, way);
        if (!rank || (least && *least <= *rank)) continue;
        least = rank;
        best = stop;
    }
    return best;
}

// The outermost pile among those that `Belongs` keeps, by `Before`.
template <typename Belongs, typename Before>
Stop Outermost(const Stop& from, Belongs belongs, Before before) {
    PilePlace best = from.Pile;
    for (const PilePlace& pile : mReader::Piles()) {
        if (belongs(pile) && before(pile, best)) best = pile;
    }
    return TopOf(best).value_or(from);
}

Stop EndOfRow(const Stop& from, bool first) {
    const auto left = [](const PilePlace& pile) { return mReader::BaseArea(pile).Left; };
    const int top = mReader::BaseArea(from.Pile).Top;
    return Outermost(
        from, [&](const PilePlace& pile) { return std::abs(mReader::BaseArea(pile).Top - top) < HalfRow; },
        [&](const PilePlace& a, const PilePlace& b) {
            return first ? left(a) < left(b) : left(a) > left(b);
        });
}

Stop EndOfGroup(const Stop& from, bool first) {
    return Outermost(
        from, [&](const PilePlace& pile) { return pile.Cell == from.Pile.Cell; },
        [&](const PilePlace& a, const PilePlace& b) { return first ? a < b : b < a; });
}

Stop OtherGroup(const Stop& from, int direction) {
    constexpr std::array<int, CellCount> order{Home, Res, Waste, Stock, Goal};
    const auto here = std::find(order.begin(), order.end(), from.Pile.Cell) - order.begin();
    const std::vector<PilePlace> piles = mReader::Piles();
    for (int i = 1; i < CellCount; ++i) {
        const auto at = (here + CellCount + direction * i) % CellCount;
        const int Cell = order[static_cast<std::size_t>(at)];
        const auto found = std::find_if(piles.begin(), piles.end(),
                                        [&](const PilePlace& pile) { return pile.Cell == Cell; });
        if (found != piles.end()) return TopOf(*found).value_or(from);
    }
    return from;
}

}  // namespace

std::vector<Stop> Stops() {
    std::vector<Stop> stops;
    const bool topsOnly = mMain::CardInHand() >= 0;
    for (const PilePlace& pile : mReader::Piles()) {
        const int top = Lying(pile) - 1;
        for (int Pos = 0; Pos < top && !topsOnly; ++Pos) {
            if (CanBeTold(pile, Pos)) stops.push_back({pile, Pos});
        }
        stops.push_back({pile, top});
    }
    return stops;
}

mReader::Extent AreaOf(const Stop& stop) {
    const int PicID = mReader::Card(stop.Pile, stop.Pos);
    return PicID < 0 ? mReader::BaseArea(stop.Pile) : mReader::CardArea(PicID);
}

mReader::Extent SeenOf(const Stop& stop) {
    mReader::Extent seen = AreaOf(stop);
    if (stop.Pos + 1 >= Lying(stop.Pile)) return seen;
    const mReader::Extent next = AreaOf({stop.Pile, stop.Pos + 1});
    if (next.Left == seen.Left && next.Top > seen.Top)
        seen.Height = std::min(seen.Height, next.Top - seen.Top);
    if (next.Top == seen.Top && next.Left > seen.Left)
        seen.Width = std::min(seen.Width, next.Left - seen.Left);
    return seen;
}

std::optional<Stop> TopOf(const PilePlace& pile) {
    const std::vector<PilePlace> piles = mReader::Piles();
    if (std::find(piles.begin(), piles.end(), pile) == piles.end()) return std::nullopt;
    return Stop{pile, Lying(pile) - 1};
}

Stop Next(const Stop& from, Step step) {
    switch (step) {
        case Step::Left:
        case Step::Right:
        case Step::Up:
        case Step::Down:
            break;
        case Step::RowStart:
        case Step::RowEnd:
            return EndOfRow(from, step == Step::RowStart);
        case Step::GroupStart:
        case Step::GroupEnd:
            return EndOfGroup(from, step == Step::GroupStart);
        case Step::NextGroup:
            return OtherGroup(from, 1);
        case Step::PreviousGroup:
            return OtherGroup(from, -1);
    }
    return Neighbor(from, step);
}

}  // namespace mFrame
