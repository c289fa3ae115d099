// The definition of the current game: which piles exist, where they lie, by which rules cards build.
// It has no play logic of its own beyond the place of a card on the plate.
#pragma once

#include <array>
#include <string>

#include "engine/state/Card.h"
#include "engine/state/codes.h"

/// A point on the table plate, in twips.
struct Point {
    int X = 0;
    int Y = 0;
    bool operator==(const Point&) const = default;
};

/// One pile group. Distances are twips; StartX and StartY are relative to the game's origin.
struct CellRec {
    int Piles = 0;
    int Cards = 0;  ///< cards that the deal puts into this group
    RuleCode Order = RuleCode::Never;
    int AK = 0;  ///< nonzero: Ace and King follow each other
    int StartX = 0;
    int StartY = 0;
    int PileWidth = 0;  ///< step from pile to pile
    int PosWidth = 0;   ///< step from card to card in a pile
    int Div = 20;       ///< piles per row, at least 1
    int DivWidth = 0;   ///< step from row to row
    ::PileOrder PileOrder = ::PileOrder::AcrossFanDown;
    bool operator==(const CellRec&) const = default;
};

// The arguments of the setters, in their fixed order; what has a default may be left out.

struct HomeArgs {
    int Piles;
    RuleCode Order;
    int Cards;
    int AK;
    ::EmptyFillType EmptyFillType;
    bool MultiMove;
    int StartX, StartY, PileWidth, PosWidth;
    int Div = 20;
    int DivWidth = 0;
    ::PileOrder PileOrder = ::PileOrder::AcrossFanDown;
    HomeType cHomeType = HomeType::Rows;
    RuleCode cMultiOrder = RuleCode::Never;
    ::SuitType SuitType = ::SuitType::FourSuits;
    int cCardsOpen = 0;
};

struct StockArgs {
    int Piles;
    ::StockMove StockMove;
    int StartX, StartY;
    int PosWidth = 30;
    ::StockNum StockNum = ::StockNum::None;
    ::StockType StockType = ::StockType::Closed;
};

struct WasteArgs {
    int Piles;
    int StartX, StartY;
    int PileWidth = 0;
    int Cards = 0;  ///< no game of the catalogue deals any here
    int PosWidth = 30;
};

struct GoalArgs {
    int Piles;
    RuleCode Order;
    int Cards;
    ::GoalType GoalType;
    int AK;
    int StartX, StartY, PileWidth;
    int PosWidth = 0;
    int Div = 20;
    int DivWidth = 0;
    ::PileOrder PileOrder = ::PileOrder::AcrossFanDown;
    bool GoalUpDown = false;
};

struct ResArgs {
    int Piles, Cards;
    int StartX, StartY, PileWidth, PosWidth;
    int Div = 20;
    int DivWidth = 0;
    ::PileOrder PileOrder = ::PileOrder::AcrossFanDown;
    int cResNum = ResNoDrop;
};

struct ExtArgs {
    int BaseX = 10000;
    int BaseY = 200;
    int Cards = DeckCards;
    int cRedeals = 0;
    std::string Tag = {};
    bool cDisAutoPlay = false;
    int GoalDiv = 0;
    ::GameType GameType = ::GameType::Plain;
    AutoFill cAutoFill = AutoFill::None;
    RedealType cRedealType = RedealType::WasteToStock;
    bool cMoveKings = false;
};

class cGames {
public:
    /// Clears what a game need not set: reserve, waste and the counters of play. Runs before a
    /// family fills in the game; all else is set by every game.
    void NewGameStart();

    void Home(const HomeArgs& args);
    void Stock(const StockArgs& args);
    void Waste(const WasteArgs& args);
    void Goal(const GoalArgs& args);
    void Res(const ResArgs& args);
    void Ext(const ExtArgs& args);

    /// Left and top of a card on the plate, in twips. `Pos` -1 gives the place one step before the
    /// first card. Depends on the closed cards that a tableau pile holds at this moment.
    [[nodiscard]] int GetCordX(int Cell, int Pile, int Pos) const { return Position(Cell, Pile, Pos).X; }
    [[nodiscard]] int GetCordY(int Cell, int Pile, int Pos) const { return Position(Cell, Pile, Pos).Y; }
    [[nodiscard]] Point Position(int Cell, int Pile, int Pos) const;
    /// The same where `closed` closed cards lie in the tableau pile of that number.
    [[nodiscard]] Point Position(int Cell, int Pile, int Pos, int closed) const;

    [[nodiscard]] int Piles(int Cell) const { return Record(Cell).Piles; }
    [[nodiscard]] int Cards(int Cell) const { return Record(Cell).Cards; }
    [[nodiscard]] int AK(int Cell) const { return Record(Cell).AK; }
    /// The rule code of a pile: with GoalUpDown the upper half of the foundations builds down.
    [[nodiscard]] RuleCode Order(int Cell, int Pile) const;
    [[nodiscard]] ::PileOrder HomePileOrder() const { return Record(::Home).PileOrder; }
    /// The whole record of a pile group. A Cell outside 0 to 5 throws std::out_of_range.
    [[nodiscard]] const CellRec& Record(int Cell) const;

    [[nodiscard]] ::GameType GameType() const { return gameType_; }
    [[nodiscard]] ::AutoFill AutoFill() const { return autoFill_; }
    [[nodiscard]] ::GoalType GoalType() const { return goalType_; }
    [[nodiscard]] int ResNum() const { return resNum_; }
    [[nodiscard]] bool MultiMove() const { return multiMove_; }
    [[nodiscard]] int Redeals() const { return redeals_; }
    [[nodiscard]] ::StockType StockType() const { return stockType_; }
    [[nodiscard]] ::StockMove StockMove() const { return stockMove_; }
    [[nodiscard]] ::HomeType HomeType() const { return homeType_; }
    /// The code that a lifted run must obey: the stored one, or the tableau's own where that is 0.
    [[nodiscard]] RuleCode MultiOrder() const;
    [[nodiscard]] RuleCode StoredMultiOrder() const { return multiOrder_; }
    [[nodiscard]] ::SuitType SuitType() const { return suitType_; }
    [[nodiscard]] const std::string& Tag() const { return tag_; }
    [[nodiscard]] int CardsOpen() const { return cardsOpen_; }
    [[nodiscard]] int TotalCards() const { return totalCards_; }
    [[nodiscard]] int BaseX() const { return baseX_; }
    [[nodiscard]] int BaseY() const { return baseY_; }
    [[nodiscard]] bool DisAutoPlay() const { return disAutoPlay_; }
    [[nodiscard]] int GoalDiv() const { return goalDiv_; }
    [[nodiscard]] bool GoalUpDown() const { return goalUpDown_; }
    [[nodiscard]] ::EmptyFillType EmptyFillType() const { return emptyFillType_; }
    [[nodiscard]] ::RedealType RedealType() const { return redealType_; }
    [[nodiscard]] bool MoveKings() const { return moveKings_; }

    // What changes in play, or is set by a few games after Ext.
    ::StockNum StockNum = ::StockNum::None;
    int EmptyNum = -1;       ///< the rank that an empty tableau pile takes; -1 any, -10 none
    int CarreNapCount = 0;   ///< presses made on a stock of StockMove 10
    int HomeMaxCards = 0;    ///< most cards of a tableau pile; 0 no limit
    bool NoH2HMove = false;  ///< no move from tableau to tableau

    bool operator==(const cGames&) const = default;

private:
    [[nodiscard]] Point CalcPos(int Cell, int Pile, int Pos, int closed) const;

    std::array<CellRec, 6> cells_{};
    ::GameType gameType_ = ::GameType::Plain;
    ::AutoFill autoFill_ = ::AutoFill::None;
    ::GoalType goalType_ = ::GoalType::Aces;
    int resNum_ = ResNoDrop;
    bool multiMove_ = false;
    int redeals_ = 0;
    ::StockType stockType_ = ::StockType::Closed;
    ::StockMove stockMove_ = ::StockMove::None;
    ::HomeType homeType_ = ::HomeType::Rows;
    RuleCode multiOrder_ = RuleCode::Never;
    ::SuitType suitType_ = ::SuitType::FourSuits;
    std::string tag_;
    int cardsOpen_ = 0;
    int totalCards_ = 0;
    int baseX_ = 0;
    int baseY_ = 0;
    bool disAutoPlay_ = false;
    int goalDiv_ = 0;
    bool goalUpDown_ = false;
    ::EmptyFillType emptyFillType_ = ::EmptyFillType::AnyCard;
    ::RedealType redealType_ = ::RedealType::WasteToStock;
    bool moveKings_ = false;
};

/// The definition of the game on the table; there from InitApp to Shutdown.
extern cGames* gGames;

/// The rank that an empty foundation pile accepts: set by the deal, 0 before it.
extern int& gGoalBase;
