// What a family table row comes to: one game with all its numbers, and the way into cGames.
#pragma once

#include <string_view>

#include "engine/state/Card.h"
#include "engine/state/codes.h"
#include "engine/state/mCodes.h"
#include "engine/state/mOrder.h"

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

    int Deck = DeckCards;
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

/// The name of the first field whose value it cannot have: a number that is no code, or a count beyond the
/// limits of the table; nullptr for a sound row.
constexpr const char* FaultOf(const Definition& game) {
    const auto within = [](int value, int low, int high) { return value >= low && value <= high; };
    const auto order = [](RuleCode code) { return mOrder::DemandOf(code).has_value(); };
    using mCodes::Known;
    struct Check {
        const char* Field;
        bool Sound;
    };
    constexpr int FewestHomePiles = 3;
    constexpr int MostRedeals = 6;
    // clang-format off
    const Check checks[] = {
        {"Name", !game.Name.empty()},
        {"HomePiles", within(game.HomePiles, FewestHomePiles, MostHomePiles)},
        {"HomeCards", within(game.HomeCards, 0, MaxCards)},
        {"HomeOpen", within(game.HomeOpen, 0, MaxCards)},
        {"HomeOrder", order(game.HomeOrder)},
        {"HomeMulti", order(game.HomeMulti)},
        {"HomeFill", Known(game.HomeFill)},
        {"HomePattern", Known(game.HomePattern)},
        {"Suits", Known(game.Suits)},
        {"GoalPiles", game.GoalPiles > 0 && FoundationPiles % game.GoalPiles == 0},
        {"GoalCards", within(game.GoalCards, 0, FoundationPiles)},
        {"GoalOrder", order(game.GoalOrder)},
        {"GoalBase", Known(game.GoalBase)},
        {"StockPress", Known(game.StockPress)},
        {"StockMark", Known(game.StockMark)},
        {"StockKind", Known(game.StockKind)},
        {"ResPiles", within(game.ResPiles, 0, MostResPiles)},
        {"ResCards", within(game.ResCards, 0, MaxCards)},
        {"ResNum", game.ResNum == ResFreeCells || game.ResNum == ResNoDrop},
        {"Deck", game.Deck == HalfDeck || game.Deck == DeckCards || game.Deck == TwoDecks},
        {"Redeals", within(game.Redeals, -1, MostRedeals)},
        {"GoalDiv", within(game.GoalDiv, 0, FoundationPiles)},
        {"Kind", Known(game.Kind)},
        // A foundation pass would take cards from a run that is leaving.
        {"NoAuto", game.NoAuto || game.Kind != GameType::CompleteRuns},
        {"Refill", Known(game.Refill)},
        {"Redeal", Known(game.Redeal)},
        {"MaxCards", within(game.MaxCards, 0, MaxCards)},
        {"Places", game.Places != nullptr},
    };
    // clang-format on
    for (const Check& check : checks) {
        if (!check.Sound) return check.Field;
    }
    return nullptr;
}

}  // namespace mDefine
