// What a game plays like, in one number: to see which games a changed rule touches.
#pragma once

#include <cstdint>
#include <string>

namespace mSignature {

/// Starts the game of that name under a number of its own, lets a fixed player play it, with autoplay as the
/// setting says (the pinned numbers: on), and folds every position into one number. It depends on the game's
/// name, its numbers and the rules alone: not on other games, nor on what was played before. The game is
/// left as it ended; a running one is closed as lost. A name of no game throws std::invalid_argument.
[[nodiscard]] std::uint64_t Of(const std::string& name);

/// "Klondike 0123456789abcdef": a game's line in the list of signatures.
[[nodiscard]] std::string Line(const std::string& name, std::uint64_t signature);

}  // namespace mSignature
