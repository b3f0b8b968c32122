// Rounding and sums as the marks and the files reckon them.
#pragma once

#include <cstdint>

namespace keyfluent::context
{

// To the nearest whole number, halves to the even neighbour: 0.5 to 0, 1.5 to 2, 2.5 to 2.
double RoundHalfEven(double value);

// The same, held in 16 or 32 bits. Throws FatalError when the result does not fit.
std::int16_t RoundTo16(double value);
std::int32_t RoundTo32(double value);

// Throws FatalError when the sum leaves 16 bits.
std::int16_t AddChecked(std::int16_t left, std::int16_t right);

} // namespace keyfluent::context
