// Chance, as every draw of the program takes it: seeded from the time of day just before the draw.
#pragma once

#include "context/Platform.h"

#include <cstdint>

namespace keyfluent::context
{

// The generator behind Platform::random. Seeding mixes the seconds into the present state instead
// of replacing it, so that two draws within one tick of the clock differ.
class RandomGenerator
{
public:
    void Seed(double seconds);
    double Next(); // in [0, 1)

private:
    std::uint64_t state_ = 0x9E3779B97F4A7C15U;
};

// A whole number from low to high, both included; seeds before it draws. low is at most high.
std::int16_t RandomBetween(const Platform& platform, std::int16_t low, std::int16_t high);

} // namespace keyfluent::context
