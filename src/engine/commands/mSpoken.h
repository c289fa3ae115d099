// What a player who does not see the table is told of it, in sentences: why a card stays where it is, and
// what a move brought about.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "engine/commands/mReader.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cPlate.h"

namespace mSpoken {

/// Says it to who listens. An empty text says nothing.
void Say(const std::string& text);

/// Why the card cannot be lifted: "Covered by a card that does not follow".
[[nodiscard]] std::string Refusal(mFunc::LiftRefusal why);
/// "Tableau pile 3 does not take the Seven of Hearts".
[[nodiscard]] std::string Refusal(int PicID, const mReader::PilePlace& pile);
/// Why a click on the stock's mark does nothing.
[[nodiscard]] std::string NoRedeal();
/// "Seven of Hearts and two more cards lifted, tableau pile 3 and foundation pile 1 take it".
[[nodiscard]] std::string Lifted(int PicID, int above);

/// Compares the table with what it was when the object was made.
class Change {
public:
    Change();
    /// "Seven of Hearts to tableau pile 3, Jack of Clubs turned up, and three cards went to the foundations".
    /// Empty where nothing moved or no game runs any more. `byHand` is the card that the player moved, -1
    /// for none.
    [[nodiscard]] std::string Text(int byHand = -1) const;

private:
    struct Place {
        int Cell = 0, Pile = 0, Pos = 0;
        bool Closed = false;
    };
    std::array<Place, MaxCards> before_{};
    int records_;  ///< in the log of moves: while it has as many, nothing has moved
};

/// The table as it is now, for a sentence on what becomes of it; nothing where nobody listens, as a look at
/// all cards for each move would take as long as the move.
[[nodiscard]] std::optional<Change> Watch();

}  // namespace mSpoken
