// The engine over an outside in memory, and positions made up for a test: a game of any numbers, cards
// by their names on any piles.
#pragma once

#include <string>

#include "engine/outside/memorylayer.h"
#include "engine/state/cGames.h"
#include "engine/state/codes.h"

/// The engine from the program's start to its end. Only one can live at a time.
class Engine {
public:
    /// With what the settings hold at its start, by "section/key".
    explicit Engine(decltype(MemorySettings::Values) settings = {});
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    MemoryLayer Layer;
};

/// The numbers of a made-up game: a small common game, of which a test changes what it is about. Piles
/// stand 1200 twips apart: foundations in the top row from 6000, the tableau below it.
struct TestGame {
    HomeArgs Home{.Piles = 4,
                  .Order = RuleCode::DownAlt,
                  .Cards = 0,
                  .AK = 0,
                  .EmptyFillType = EmptyFillType::AnyCard,
                  .MultiMove = true,
                  .StartX = 0,
                  .StartY = 2000,
                  .PileWidth = 1200,
                  .PosWidth = 250};
    StockArgs Stock{.Piles = 1, .StockMove = StockMove::OneToWaste, .StartX = 0, .StartY = 0};
    WasteArgs Waste{.Piles = 1, .StartX = 1200, .StartY = 0};
    GoalArgs Goal{.Piles = 4,
                  .Order = RuleCode::UpSuit,
                  .Cards = 0,
                  .GoalType = GoalType::Aces,
                  .AK = 0,
                  .StartX = 6000,
                  .StartY = 0,
                  .PileWidth = 1200};
    ResArgs Res{.Piles = 0, .Cards = 0, .StartX = 2400, .StartY = 0, .PileWidth = 1200, .PosWidth = 0};
    ExtArgs Ext{.BaseX = 11900, .BaseY = 200};
    int HomeMaxCards = 0;
    bool NoH2HMove = false;
};

namespace mPosition {

/// An empty table of that game, which runs from now on under the name and number that were set last;
/// autoplay as the setting says.
void Begin(const TestGame& game);

/// The deal of that game under a number, which runs from now on; no autoplay pass is made.
void Deal(const TestGame& game, double number);

/// The PicID of a card by its name: rank (A 2 ... 9 T J Q K) and suit (H S D C), with ' for the
/// second deck, as in "TH" or "AS'".
[[nodiscard]] int Card(const std::string& name);
/// "TH" for a PicID; the second deck has a ' behind.
[[nodiscard]] std::string Name(int PicID);

/// Puts cards on a pile, bottom first: "KS (4C) QH" with closed cards in brackets, "AH-KH" for a row of
/// ranks up or down.
void Lay(int Cell, int Pile, const std::string& cards);
/// All cards that lie nowhere yet go to the stock, closed.
void LayRestOnStock();

/// A text that Lay reads, without rows.
[[nodiscard]] std::string InFull(const std::string& cards);

/// The cards of a pile in the way that Lay reads them, without rows.
[[nodiscard]] std::string Pile(int Cell, int Pile);

/// Presses a card in its middle, moves it until its left and top lie at X, Y, and releases it. False
/// where the press lifted nothing.
bool Drag(int PicID, int X, int Y);
/// Drags a card exactly onto the place that a drop on the pile looks at.
bool DragTo(int PicID, int Cell, int Pile);
/// A press and a release in the middle of the card.
void Press(int PicID);

}  // namespace mPosition
