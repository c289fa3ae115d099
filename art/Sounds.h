// The program's six sounds, synthesised.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace Sounds {

inline constexpr int Rate = 44100;  ///< samples a second, one channel

/// START, CARDUP, CARDDOWN, AUTOPLAY, UNDO, WIN.
[[nodiscard]] std::span<const std::string_view> Names();
/// A sound of that list: samples from -1 to 1, silent at both ends, the loudest well below -3 dB.
[[nodiscard]] std::vector<double> Sound(std::string_view name);

}  // namespace Sounds
