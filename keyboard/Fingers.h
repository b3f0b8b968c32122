// Which fingers type an expected character, and which Shift key it wants.
#pragma once

#include "keyboard/KeyCaps.h"

#include <cstdint>
#include <string_view>

namespace keyfluent::keyboard
{

// How a hand is shown; the numbers count on from the number of the picture of its rest.
inline constexpr int handAtRest = 0;
inline constexpr int thumb = 1;
inline constexpr int indexFinger = 2;
inline constexpr int middleFinger = 3;
inline constexpr int ringFinger = 4;
inline constexpr int littleFinger = 5;

struct Fingers {
    int left = handAtRest;
    int right = handAtRest;
    int shiftCap = noCap; // the Shift cap to show as held: capLeftShift, capRightShift or noCap

    bool operator==(const Fingers&) const = default;
};

// The string is compared as a whole: the empty one, one of several characters and any character
// that the table does not hold leave both hands at rest and no Shift held.
Fingers FingersOf(std::u16string_view character, std::int32_t keyboardKind, bool arabicExercise);

} // namespace keyfluent::keyboard
