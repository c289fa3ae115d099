// What can be the name of a player. Each has a score file of that name, so it must be a name of a file too.
#pragma once

#include <string>
#include <string_view>

namespace mPlayerName {

/// What is wrong with a name, as a sentence for the player; empty for a good one. Wrong are: an empty one,
/// only blanks, a path separator or a control character in it, "." and "..", bytes that are no text, more
/// than 200 bytes (a file name may have 255, and some systems add to it).
[[nodiscard]] std::string Fault(std::string_view name);

[[nodiscard]] inline bool IsGood(std::string_view name) { return Fault(name).empty(); }

}  // namespace mPlayerName
