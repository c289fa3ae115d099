// The cards in the player's hand.
#pragma once

/// The drag in progress. None of it is kept across two drags, nor by Undo.
struct DragState {
    bool gPicked = false;  ///< a card hangs on the mouse
    int gPickCount = 0;    ///< cards above the lifted card that go with it
    int gDownX = 0;        ///< where in the card the press fell, twips
    int gDownY = 0;
    int gDownLeft = 0;  ///< the lifted card's place at the press, twips
    int gDownTop = 0;
};
extern DragState& gDrag;
