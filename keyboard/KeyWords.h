// Keys and fingers in the words of the interface, for a person who hears of them instead of seeing
// the keyboard.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace keyfluent::keyboard
{

// A letter of the Latin alphabet and a digit are their own names, and so is every other character
// that the table of the names does not hold. The Return mark has the name of the Return key.
// "" for control characters, which no key is asked for.
std::u16string CharacterName(char16_t character, bool arabicWords);

// Whether a key is right for the character with Shift alone, Caps Lock being off.
bool WantsShift(char16_t character, std::int32_t keyboardKind, bool arabicExercise);

// The key of an expected character, with the Shift key that it wants: of one side, where the table
// of the fingers tells which. "" for the empty string and for one of several characters.
std::u16string KeyWords(std::u16string_view character, std::int32_t keyboardKind,
                        bool arabicExercise, bool arabicWords);

// A finger as keyboard::Fingers numbers it; handAtRest reads "at rest".
std::u16string_view FingerName(int finger, bool arabicWords);

} // namespace keyfluent::keyboard
