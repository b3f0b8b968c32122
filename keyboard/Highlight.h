// Which cap is lit for an expected character.
#pragma once

#include <cstdint>
#include <string_view>

namespace keyfluent::keyboard
{

// The number of the cap to light, or noCap (-1) where nothing is lit. The string is compared as a
// whole: the empty one and one of several characters light nothing. A lit cap is a help and no
// rule: whether a key is right for a character is told by IsValidKey, and the two differ in places.
int CapOfCharacter(std::u16string_view character, std::int32_t keyboardKind, bool arabicExercise);

} // namespace keyfluent::keyboard
