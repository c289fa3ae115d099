// What a family table row comes to: one game with all its numbers, and the way into cGames.
#pragma once

#include <string_view>

#include "engine/state/codes.h"

class cGames;

/// Where a pile group lies, in twips relative to the game's origin.
struct GroupLayout {
    int StartX = 0;
    int StartY = 0;
    int PileWidth = 0;
    int PosWidth = 0;
    int Div = 20;
    int DivWidth = 0;
    ::PileOrder PileOrder = ::PileOrder::AcrossFanDown;
};

/// Where the single pile of the stock or the waste lies, in twips.
struct PileLayout {
    int StartX = 0;
    int StartY = 0;
};

/// The places of all pile groups of a game. Rows with the same piles share one layout.
struct Layout {
    GroupLayout Home = {};
    GroupLayout Goal = {};
    PileLayout Stock = {};
    PileLayout Waste = {};
    GroupLayout Res = {};
    int BaseX = 10000;  ///< width of the layout, for centring
    int BaseY = 200;    ///< top margin
};

/// A whole game: the row of its family with the family's shared values filled in.
struct Definition {
    std::string_view Name = {};
    bool Original = false;

    int HomePiles = 0;
    int HomeCards = 0;
    int HomeOpen = 0;
    RuleCode HomeOrder = RuleCode::Never;
    RuleCode HomeMulti = RuleCode::Never;
    int HomeAK = 0;
    EmptyFillType HomeFill = EmptyFillType::AnyCard;
    bool HomeMove = false;
    HomeType HomePattern = HomeType::Rows;
    SuitType Suits = SuitType::FourSuits;

    int GoalPiles = 0;
    int GoalCards = 0;
    RuleCode GoalOrder = RuleCode::Never;
    GoalType GoalBase = GoalType::Aces;
    int GoalAK = 0;
    bool GoalUpDown = false;

    StockMove StockPress = StockMove::None;
    StockNum StockMark = StockNum::None;
    StockType StockKind = StockType::Closed;
    bool Waste = false;

    int ResPiles = 0;  ///< 0: the game has no reserve
    int ResCards = 0;
    int ResNum = ResNoDrop;

    int Deck = 52;
    int Redeals = 0;
    bool NoAuto = false;
    int GoalDiv = 0;
    GameType Kind = GameType::Plain;
    AutoFill Refill = AutoFill::None;
    RedealType Redeal = RedealType::WasteToStock;
    bool MoveKings = false;
    std::string_view Tag = {};
    int MaxCards = 0;
    bool NoH2H = false;

    const Layout* Places = nullptr;
};

namespace mDefine {

/// Stores a game through the setters of `games`.
void Apply(const Definition& game, cGames& games);

/// Whether every code of a row stands in its list and every count within the limits of the table;
/// asked when the program is compiled.
constexpr bool IsSound(const Definition& game);

}  // namespace mDefine

constexpr bool mDefine::IsSound(const Definition& game) {
    const auto between = [](int value, int low, int high) { return value >= low && value <= high; };
    const auto codeKnown = [&](RuleCode code) {
        const int n = Number(code);
        return between(n, 0, 10) || n == 12 || between(n, 15, 19);
    };
    const int base = Number(game.GoalBase);
    const int press = Number(game.StockPress);
    return !game.Name.empty() && between(game.HomePiles, 3, 18) && between(game.HomeCards, 0, 104) &&
           between(game.HomeOpen, 0, 104) && codeKnown(game.HomeOrder) && codeKnown(game.HomeMulti) &&
           between(Number(game.HomeFill), 0, 4) && between(Number(game.HomePattern), 0, 18) &&
           between(Number(game.Suits), 0, 2) &&
           (game.GoalPiles == 1 || game.GoalPiles == 2 || game.GoalPiles == 4 || game.GoalPiles == 8) &&
           between(game.GoalCards, 0, 8) && codeKnown(game.GoalOrder) &&
           (base == 0 || base == 1 || base == 12 || base == 13 || base == 14 || base == 16 || base == 17) &&
           (between(press, 0, 4) || press == 10) && between(Number(game.StockMark), 0, 2) &&
           between(Number(game.StockKind), 0, 2) && between(game.ResPiles, 0, 10) &&
           between(game.ResCards, 0, 104) && between(game.ResNum, 0, 1) &&
           (game.Deck == 26 || game.Deck == 52 || game.Deck == 104) &&
           (between(game.Redeals, -1, 3) || game.Redeals == 6) && between(game.GoalDiv, 0, 8) &&
           between(Number(game.Kind), 0, 5) && between(Number(game.Refill), 0, 3) &&
           between(Number(game.Redeal), 0, 1) && between(game.MaxCards, 0, 104) && game.Places != nullptr;
}
