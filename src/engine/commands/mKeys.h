// Play without a mouse: a frame that keys lead over the table, and a hand that they carry from pile to pile.
// Each action ends in the operation that the mouse ends in. The window draws what View tells and passes keys
// on; the actions of a screen reader come in here as well.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/commands/mFrame.h"

namespace mKeys {

/// What came of an action. A refused one has told why, to who listens.
enum class Answer { Nothing, Done, Refused };

/// A step of the frame or, with a card in the hand, of the hand. Where no frame is shown, it only comes up.
Answer Go(mFrame::Step step);
/// Lifts the card in the frame with what lies on it, drops what is in the hand, deals, or redeals.
Answer Act();
/// The card in the hand, or else the one in the frame, goes to the first foundation that takes it.
Answer ToFoundation();
/// What the keys hold goes back; Nothing with an empty hand.
Answer PutBack();
/// The mouse takes over: what the keys hold goes back, and the frame goes.
void Hide();

// The same with a place that is named, as a screen reader does it. The frame goes along.
Answer GoTo(const mFrame::Stop& stop);
Answer LiftAt(const mFrame::Stop& stop);
Answer DropAt(const mReader::PilePlace& pile);
Answer Deal();
Answer Redeal();

/// What can be done with a card or a pile, the latter with Pos -1.
enum class Offer { Lift, Drop, Deal, Redeal };
[[nodiscard]] std::vector<Offer> Offers(const mFrame::Stop& stop);

/// Keeps the frame on the table after other commands: it stays with its pile, at the top where it was there.
/// To be called now and then.
void Follow();

/// Where the frame stands; nothing while it is hidden or no game runs.
[[nodiscard]] std::optional<mFrame::Stop> Place();

/// What is said of a place beside its name: "tableau pile 3, card 4 of 6", and whether its pile takes what
/// the keys hold.
[[nodiscard]] std::string PlaceText(const mFrame::Stop& stop);

/// What the screen shows of it, in twips of the plate.
struct View {
    std::optional<mReader::Extent> Frame;  ///< around the card, the mark, or what is in the hand
    std::vector<mReader::Extent> Targets;  ///< piles that take what the keys hold
    bool operator==(const View&) const = default;
};
[[nodiscard]] View Seen();

}  // namespace mKeys
