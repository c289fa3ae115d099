// Stirring of 64-bit numbers.
#pragma once

#include <cstdint>

namespace Solver {

/// A bijection in which every bit of the input reaches every bit of the output; shifts and factors are the
/// widely published ones of the "splitmix" generator.
[[nodiscard]] constexpr std::uint64_t Mixed(std::uint64_t value) {
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31U);
}

}  // namespace Solver
