// Which edges of the instrumented code have been passed since the map was last emptied. The
// compiler calls the hook at each edge of what is built with -fsanitize-coverage=trace-pc.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace keyfluent::fuzz
{

inline constexpr std::size_t coverageSize = 1 << 16;

// How often each edge was passed, at the place that its address falls on; counts stop at 255.
extern std::array<std::uint8_t, coverageSize> coverage;

} // namespace keyfluent::fuzz
