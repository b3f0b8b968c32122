// Which finger strikes which character, as a typing teacher would say it from the keyboard: a
// second statement beside the program's own table, to hold the notes against both.
#pragma once

#include "keyboard/Fingers.h"

namespace keyfluent::course::fixtures
{

// The hands rest for a character that no key of the layout gives.
keyboard::Fingers TaughtFingers(char16_t character, bool windows, bool arabic);

// 0 for the row of digits down to 3 for the lowest row of letters; -1 if there is no such key.
int KeyRow(char16_t character, bool windows, bool arabic);

// Whether the two characters stand on one key, with Shift or without it.
bool ShareAKey(char16_t one, char16_t other, bool windows, bool arabic);

} // namespace keyfluent::course::fixtures
