// The two keyboards that the course is taught on.
#pragma once

#include <cstdint>

namespace keyfluent::context
{

// A keyboard kind comes from the preferences file, which keeps 32 bits and checks no range. Where
// nothing else is said, every kind but the Macintosh's counts as Windows.
inline constexpr std::int32_t macintoshKeyboard = 0;
inline constexpr std::int32_t windowsKeyboard = 192;

constexpr bool CountsAsWindows(std::int32_t keyboardKind)
{
    return keyboardKind != macintoshKeyboard;
}

} // namespace keyfluent::context
