// What the dialogs offer for selection, and what the two that start a game decide.
#pragma once

#include <optional>
#include <string>

#include "engine/records/PlayerList.h"
#include "engine/records/tScore.h"

namespace mSelect {

/// "Play": makes `player` the current player and starts the game under a fresh number. False where the player
/// is no longer called so, which the user is told.
bool Play(const ShownPlayer& player, const std::string& game);
/// The largest number that is drawn, 10^RangeIndex - 1; a typed one must lie below it.
[[nodiscard]] double LargestNumber();
/// "0 and 999,999".
[[nodiscard]] std::string RangeText();
/// The message for a typed number that is none or lies outside the range; nothing for a good one.
[[nodiscard]] std::optional<std::string> NumberFault(const std::string& typed);
/// "Select" with a number: makes `player` current and starts the deal of that number, kept as typed.
/// False as above.
bool PlayNumber(const ShownPlayer& player, const std::string& game, const std::string& typed);
/// Starts a favourite deal; the number goes on as the text that it is. Nothing while cards are being dealt.
void PlayFavourite(const std::string& game, const std::string& number);
/// Whether a deal out of a list may be played now: it must be one, and where a game runs the player is asked
/// whether to give it up.
[[nodiscard]] bool MayPlay(const tFav& deal);

}  // namespace mSelect
