// What the text driver answers: the game on the table, its definition, its log, as JSON.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "engine/outside/memorylayer.h"

namespace mLabState {

using Json = nlohmann::ordered_json;

/// The whole state. With no game running every pile is empty.
[[nodiscard]] Json State(const MemoryLayer& layer);
/// The catalogue, in its order.
[[nodiscard]] Json Games();
/// The numbers of the game that is defined.
[[nodiscard]] Json Definition();
/// Records 1 to MaxTrans.
[[nodiscard]] Json Log();
[[nodiscard]] Json History();
/// What the deal that has just been made drew after its shuffle, as the text of a JSON array: a number
/// of Json would be written with all the digits of a double, these have 9 significant ones.
[[nodiscard]] std::string Draws();

}  // namespace mLabState
