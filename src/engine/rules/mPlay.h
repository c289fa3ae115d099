// Moves by hand and by themselves: dragging, the stock's commands, redeals, autoplay, and the deal.
#pragma once

/// Redeals made in the running game; Undo does not lower it.
extern int& gRedealCount;

namespace mPlay {

/// Gives all cards their backs.
void LoadControls();
/// Gives every card of the game its value and its face.
void AssignFaces();
/// Lays out the game: foundations, markers, stock, waste, reserve, tableau.
void StartDeal();

/// Moves the lifted card so that the point X, Y (twips inside the card) comes under the grip, and
/// the cards that go with it.
void DragMove(int PicID, int Pile, int Pos, double X, double Y);
/// Finds a place for the dragged card; returns the cards where there is none.
void DropCard(int PicID, int Pile, int Pos);
/// Puts the lifted card and what goes with it on a pile that accepts them; false for any other pile.
bool DropOn(int PicID, int DCell, int DPile);
void ReturnCards(int PicID, int Pile, int Pos);

/// A press on a card of a closed stock.
void PressStock();
/// One card from the stock onto every tableau pile, as far as the stock reaches.
void DealStockToHome();
/// Whether the game allows one more redeal.
[[nodiscard]] bool MayRedeal();
/// The click on the stock's marker: redeals within the limit.
void StockClick();
void RedealClick();
void RedealToStock();
void RedealGather();

/// Complete runs leave, top cards that fit go to the foundations, emptied piles refill.
void AutoPlayAll();
/// Offers a card to the foundations: it goes to the first pile that it fits on. False where there is none. A
/// full pile of a game whose ranks go round counts as one that it fits on, and keeps refusing it.
bool AutoPlayCard(int PicID);

}  // namespace mPlay
