#include "context/Random.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace keyfluent::context
{

void RandomGenerator::Seed(double seconds)
{
    state_ ^= std::bit_cast<std::uint64_t>(seconds);
}

// SplitMix64: every state gives a good number at once, so that fresh seeds need no warming up.
double RandomGenerator::Next()
{
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    mixed ^= mixed >> 31;
    return static_cast<double>(mixed >> 11) * 0x1.0p-53;
}

std::int16_t RandomBetween(const Platform& platform, std::int16_t low, std::int16_t high)
{
    platform.seedRandom(platform.secondsSinceMidnight());
    const int span = high - low + 1;
    const int drawn = low + static_cast<int>(std::floor(platform.random() * span));
    return static_cast<std::int16_t>(std::clamp<int>(drawn, low, high));
}

} // namespace keyfluent::context
