// The game definition: storing a game's numbers and computing the place of a card.
#include "engine/state/cGames.h"

#include <cmath>
#include <stdexcept>

#include "engine/state/cArray.h"
#include "engine/state/mRandom.h"

namespace {

constexpr int AreaWidth = 11900;  // the playing area that a game is centred in
constexpr int AreaLeft = 1790;    // what centres the area on the plate of 15480: (15480 - 11900) / 2
constexpr int ClosedStep = 60;    // closed cards of a pile lie this far apart
constexpr int BaseCardShows = 250;

// The cross: five places, one card and a gap of 500 twips apart.
constexpr std::array<Point, 5> CrossPlaces{{{1565, 0}, {0, 1940}, {1565, 1940}, {3130, 1940}, {1565, 3880}}};

// What an empty tableau pile takes, as a rank; -1 stands for any and -10 for none.
int EmptyNumOf(EmptyFillType fill) {
    switch (fill) {
        case EmptyFillType::AnyCard:
        case EmptyFillType::FromStock:
            return -1;
        case EmptyFillType::KingOnly:
            return King;
        case EmptyFillType::AceOnly:
            return Ace;
        case EmptyFillType::Nothing:
            break;
    }
    return -10;
}

}  // namespace

void cGames::NewGameStart() {
    Res({.Piles = 0, .Cards = 0, .StartX = 0, .StartY = 0, .PileWidth = 0, .PosWidth = 0});
    Waste({.Piles = 0, .StartX = 0, .StartY = 0});
    gGoalBase = 0;
    CarreNapCount = 0;
    HomeMaxCards = 0;
    NoH2HMove = false;
}

void cGames::Home(const HomeArgs& args) {
    cells_[::Home] = {args.Piles,     args.Cards,    args.Order, args.AK,       args.StartX,   args.StartY,
                      args.PileWidth, args.PosWidth, args.Div,   args.DivWidth, args.PileOrder};
    emptyFillType_ = args.EmptyFillType;
    EmptyNum = EmptyNumOf(args.EmptyFillType);
    multiMove_ = args.MultiMove;
    homeType_ = args.cHomeType;
    multiOrder_ = args.cMultiOrder;
    suitType_ = args.SuitType;
    cardsOpen_ = args.cCardsOpen;
}

void cGames::Stock(const StockArgs& args) {
    CellRec& cell = cells_[::Stock];
    cell.Piles = args.Piles;
    cell.StartX = args.StartX;
    cell.StartY = args.StartY;
    cell.PosWidth = args.PosWidth;
    stockMove_ = args.StockMove;
    StockNum = args.StockNum;
    stockType_ = args.StockType;
}

void cGames::Waste(const WasteArgs& args) {
    CellRec& cell = cells_[::Waste];
    cell.Piles = args.Piles;
    cell.Cards = args.Cards;
    cell.StartX = args.StartX;
    cell.StartY = args.StartY;
    cell.PileWidth = args.PileWidth;
    cell.PosWidth = args.PosWidth;
}

void cGames::Goal(const GoalArgs& args) {
    cells_[::Goal] = {args.Piles,     args.Cards,    args.Order, args.AK,       args.StartX,   args.StartY,
                      args.PileWidth, args.PosWidth, args.Div,   args.DivWidth, args.PileOrder};
    goalType_ = args.GoalType;
    goalUpDown_ = args.GoalUpDown;
}

void cGames::Res(const ResArgs& args) {
    cells_[::Res] = {args.Piles,  args.Cards,    RuleCode::Never, 0,
                     args.StartX, args.StartY,   args.PileWidth,  args.PosWidth,
                     args.Div,    args.DivWidth, args.PileOrder};
    resNum_ = args.cResNum;
}

void cGames::Ext(const ExtArgs& args) {
    baseX_ = args.BaseX;
    baseY_ = args.BaseY;
    totalCards_ = args.Cards;
    redeals_ = args.cRedeals;
    tag_ = args.Tag;
    disAutoPlay_ = args.cDisAutoPlay;
    goalDiv_ = args.GoalDiv;
    gameType_ = args.GameType;
    autoFill_ = args.cAutoFill;
    redealType_ = args.cRedealType;
    moveKings_ = args.cMoveKings;
}

const CellRec& cGames::Record(int Cell) const {
    if (Cell < 0 || Cell >= static_cast<int>(cells_.size())) {
        throw std::out_of_range("cGames: no such pile group");
    }
    return cells_[static_cast<std::size_t>(Cell)];
}

RuleCode cGames::Order(int Cell, int Pile) const {
    // Twice the pile against the count: half of an odd count is not a whole number.
    if (Cell == ::Goal && goalUpDown_ && 2 * Pile >= Piles(::Goal)) return RuleCode::DownSuit;
    return Record(Cell).Order;
}

RuleCode cGames::MultiOrder() const {
    return multiOrder_ != RuleCode::Never ? multiOrder_ : Record(::Home).Order;
}

Point cGames::CalcPos(int Cell, int Pile, int Pos, int closed) const {
    const CellRec& cell = Record(Cell);
    if (Cell == ::Stock || Cell == ::Waste) {
        // A pack: one step to the upper left for each band of cards, each band wider than the last.
        const int step = Pos > 0 ? RoundToEven(std::sqrt(Pos)) / 2 * cell.PosWidth : 0;
        return {cell.StartX - step, cell.StartY - step};
    }
    const int row = Pile / cell.Div;
    const int column = Pile % cell.Div;
    const int fan = closed >= 1 ? closed * ClosedStep + (Pos - closed) * cell.PosWidth : Pos * cell.PosWidth;
    switch (cell.PileOrder) {
        case ::PileOrder::AcrossFanDown:
            return {cell.StartX + column * cell.PileWidth,
                    cell.StartY + row * cell.DivWidth + (Cell == ::Home ? fan : Pos * cell.PosWidth)};
        case ::PileOrder::AcrossFanDownWide:
            return {cell.StartX + column * cell.PileWidth + row * cell.DivWidth,
                    cell.StartY + Pos * cell.PosWidth};
        case ::PileOrder::AcrossFanRight:
            return {cell.StartX + column * cell.PileWidth + fan, cell.StartY + row * cell.DivWidth};
        case ::PileOrder::DownFanRight:
            return {cell.StartX + Pos * cell.PosWidth + row * cell.DivWidth,
                    cell.StartY + column * cell.PileWidth};
        case ::PileOrder::Cross:
            break;
    }
    const Point& place = CrossPlaces.at(static_cast<std::size_t>(Pile));
    return {cell.StartX + place.X, cell.StartY + place.Y};
}

Point cGames::Position(int Cell, int Pile, int Pos) const {
    const bool closedCount = Cell == ::Home || Record(Cell).PileOrder == ::PileOrder::AcrossFanRight;
    return Position(Cell, Pile, Pos, closedCount ? gArray->ClosedCards(Pile) : 0);
}

Point cGames::Position(int Cell, int Pile, int Pos, int closed) const {
    Point point = CalcPos(Cell, Pile, Pos, closed);
    if (Cell == ::Goal && Pos >= 1 && gameType_ == ::GameType::LowFoundation) point.Y += BaseCardShows;
    return {RoundToEven((AreaWidth - baseX_) / 2.0 + AreaLeft + point.X), baseY_ + point.Y};
}
