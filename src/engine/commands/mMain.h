// The commands of the main window, without the window: each forwards to the operation that does the
// work, inside one action of the player. Windows, tests and the text driver all come in here.
#pragma once

#include <array>
#include <string>

namespace mMain {

/// The load of the main window: builds everything a game needs and shows the program's name.
void Load();

// The mouse on the cards; X and Y in twips inside the card.
void MouseDown(int PicID, double X, double Y);
void MouseMove(int PicID, double X, double Y);
void MouseUp(int PicID);
/// The mouse was taken away without a release: what it holds goes back.
void MouseLost();

/// Whose hand holds a card. The mouse and the keys do not meddle with what the other one holds.
enum class Hand { Empty, Mouse, Keys };
[[nodiscard]] Hand InHand();
/// The lifted card; -1 with an empty hand.
[[nodiscard]] int CardInHand();
// By keys, the same that the mouse does: a press, a drag step, and a release on a pile.
void Lift(int PicID);
/// Left and top of the lifted card, in twips of the plate.
void Carry(int Left, int Top);
/// False where the pile does not accept the card, which stays in the hand then.
bool DropOn(int Cell, int Pile);
void PutBack();

/// The card in the hand, if any, goes back to where it was lifted.
void CancelDrag();
/// A click on the mark under the stock.
void StockClick();

// Menu commands.
void NewGame();
void RestartGame();
/// Does nothing without a running game or while cards are being dealt.
void CloseGame();
/// i from 1 to 5; an empty slot does nothing.
void RecentGame(int i);
void Undo(int Speed);
void Redo(int Speed);
void UndoAll(int Speed);
void RedoAll(int Speed);
void FlipAutoplay();
void FlipToolbar();
/// Adds the running deal to the favourites and tells so; nothing without a running game. One that cannot be
/// written yet is told of as such.
void AddFavourite();

// Replay: Undo and Redo driven by two timers of which at most one runs.
enum class Replay { Stopped, Forward, Backward };
[[nodiscard]] Replay ReplayState();
void ReplayForward();
void ReplayBackward();
void ReplayAll();
void StopReplay();
/// One tick of the running replay timer, every 500 ms.
void TickReplay();

/// What the menu entries and toolbar buttons show.
struct CommandStates {
    bool Toolbar = false;      ///< "View Toolbar" checked
    bool GameRunning = false;  ///< restart, close, add to favourites, history
    bool AutoplayChecked = false, AutoplayEnabled = false;
    bool Undo = false, Redo = false;  ///< single and all
    bool Forward = false, Back = false, ReplayAll = false, Stop = false;
    bool operator==(const CommandStates&) const = default;
};
/// Every 100 ms: the states of all commands, the recent list into the menu, and the player into the caption.
[[nodiscard]] CommandStates UpdateMenus();

/// The three status texts: score, time, moves; empty where not shown.
using StatusTexts = std::array<std::string, 3>;
/// Every 500 ms: works out the figures of the running game and the mark under the stock.
StatusTexts TickTime();
/// The texts of the last tick.
[[nodiscard]] const StatusTexts& Status();

}  // namespace mMain
