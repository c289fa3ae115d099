// The pseudo-random source: a 64-bit state stirred by a fixed mixing function.
#include "engine/state/mRandom.h"

#include <bit>

namespace {

// An odd constant near 2^64 divided by the golden ratio: consecutive states differ in about half
// their bits after stirring.
constexpr std::uint64_t Step = 0x9E3779B97F4A7C15u;

// A bijection on 64 bits in which every input bit reaches every output bit; the shifts and factors
// are the widely published ones of the "splitmix" generator.
std::uint64_t Stir(std::uint64_t value) {
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9u;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBu;
    return value ^ (value >> 31);
}

// All 64 bits of the number; both zeros are one number.
std::uint64_t Bits(double value) { return std::bit_cast<std::uint64_t>(value == 0.0 ? 0.0 : value); }

}  // namespace

void RandomSource::SeedNegative(double x) { state_ = Stir(Bits(x) + Step); }

void RandomSource::Mix(double v) { state_ = Stir(state_ ^ Stir(Bits(v) + Step)); }

float RandomSource::Next() {
    state_ += Step;
    constexpr int SingleBits = 24;
    const auto top = static_cast<std::uint32_t>(Stir(state_) >> (64 - SingleBits));
    return static_cast<float>(top) / static_cast<float>(1 << SingleBits);
}
