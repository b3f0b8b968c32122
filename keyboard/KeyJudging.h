// Whether a key is right for an expected character.
#pragma once

#include <cstdint>

namespace keyfluent::keyboard
{

// expectedCode is the expected character in the Arabic code page 1256; no key is right for 0, which
// stands for no character and for one outside that page. Caps Lock counts for Latin letters alone.
// A keyboard kind that is not the Macintosh's counts as Windows. The key code may be any number.
bool IsValidKey(int keyCode, std::uint8_t expectedCode, bool shiftDown, bool capsOn,
                std::int32_t keyboardKind, bool arabicExercise);

} // namespace keyfluent::keyboard
