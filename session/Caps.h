// What the caps and the hands show: layouts, the lit cap, the key pressed last, held modifiers.
#pragma once

#include "session/Lesson.h"

#include <cstdint>
#include <string_view>

namespace keyfluent::session
{

// Writes the caps' texts for a keyboard, the exercise's language and the state of Shift. With
// shifted while Shift is down already it does nothing: the repeat of a held Shift changes no cap.
// clearTexts empties both text fields.
void ShowKeyCaps(Lesson& lesson, std::int32_t kind, bool shifted, bool clearTexts);

// Lights the cap of an expected character, one UTF-16 unit; anything else lights none.
void HighlightKey(Lesson& lesson, std::u16string_view character);

// All caps to black on white but Caps Lock and the two Shift keys, which show the keyboard's state.
void ClearCaps(Lesson& lesson);

// Points pressedKey at the cap of a key and writes the text that the exercise wants to see there.
void SelectPressedKey(Lesson& lesson, int keyCode);

// "" for a key without a cap.
std::u16string_view PressedText(const Lesson& lesson);

void SetModifierCap(Lesson& lesson, int cap, bool down);

// keyState is the platform's state of the Caps Lock key; only its toggle counts.
void SyncCapsCap(Lesson& lesson, std::int16_t keyState);

// The hands take the fingers of an expected character; a Shift that it needs is shown as held.
void ShowHands(Lesson& lesson, std::u16string_view character);

} // namespace keyfluent::session
