// The favourite deals: adding the running one, listing those of a game, playing one.
#pragma once

#include <string>
#include <vector>

namespace mFavourites {

/// Adds the running deal and tells so; nothing without a running game. One that cannot be written yet is
/// told of as such.
void AddRunning();

/// Reads the favourites of all games anew, and reports what could not be read.
void Open();
/// The numbers of that game's favourites as texts, in the order of adding; equal ones stand as often as
/// they were added.
[[nodiscard]] std::vector<std::string> Numbers(const std::string& gName);
/// Whether there is something to clear.
[[nodiscard]] bool CanClear();
/// Deletes the favourites of all games, without a question.
void Clear();
/// Starts the deal; the number goes on as the text that it is. Nothing while cards are being dealt.
void Play(const std::string& gName, const std::string& number);

}  // namespace mFavourites
