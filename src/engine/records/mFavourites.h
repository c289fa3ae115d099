// The favourite deals as the dialogs list them.
#pragma once

#include <string>
#include <vector>

#include "engine/state/GameNumber.h"

namespace mFavourites {

/// Reads the favourites of all games anew, and reports what could not be read.
void Open();
/// The numbers of that game's favourites as texts, in the order of adding; equal ones stand as often as
/// they were added.
[[nodiscard]] std::vector<std::string> Numbers(const std::string& gName);
/// How many each game has, by the games of that list: "3 favorites", "1 favorite"; empty for none.
[[nodiscard]] std::vector<std::string> Notes(const std::vector<std::string>& games);
/// Adds a deal and tells so. One that cannot be written yet is told of as such.
void Add(const std::string& gName, const GameNumber& number);
/// Whether there is something to clear.
[[nodiscard]] bool CanClear();
/// Deletes the favourites of all games, without a question.
void Clear();

}  // namespace mFavourites
