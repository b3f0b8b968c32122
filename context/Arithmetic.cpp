#include "context/Arithmetic.h"

#include "context/FatalError.h"

#include <cmath>
#include <limits>

namespace keyfluent::context
{
namespace
{

template <typename Integer> Integer Narrow(double whole)
{
    // Written so that a value that is no number fails too.
    if (!(whole >= std::numeric_limits<Integer>::min() &&
          whole <= std::numeric_limits<Integer>::max())) {
        throw FatalError("A number grew too large for its field.");
    }
    return static_cast<Integer>(whole);
}

} // namespace

double RoundHalfEven(double value)
{
    const double below = std::floor(value);
    const double part = value - below;
    if (part < 0.5) {
        return below;
    }
    if (part > 0.5) {
        return below + 1;
    }
    return std::fmod(below, 2.0) == 0.0 ? below : below + 1;
}

std::int16_t RoundTo16(double value)
{
    return Narrow<std::int16_t>(RoundHalfEven(value));
}

std::int32_t RoundTo32(double value)
{
    return Narrow<std::int32_t>(RoundHalfEven(value));
}

std::int16_t AddChecked(std::int16_t left, std::int16_t right)
{
    const int sum = left + right;
    if (sum < std::numeric_limits<std::int16_t>::min() ||
        sum > std::numeric_limits<std::int16_t>::max()) {
        throw FatalError("The sum of the marks grew too large for its field.");
    }
    return static_cast<std::int16_t>(sum);
}

} // namespace keyfluent::context
