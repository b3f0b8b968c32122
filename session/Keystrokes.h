// What a key does to the two text fields, to the counts and to the course of the exercise.
#pragma once

#include "session/Lesson.h"

#include <cstdint>

namespace keyfluent::session
{

// A key goes down; returns the code that is left for the control with the focus: 0 when the key was
// swallowed. Codes without a meaning here are passed over. The lesson may have unloaded itself.
std::uint16_t KeyDown(Lesson& lesson, std::uint16_t keyCode);

void KeyUp(Lesson& lesson, std::uint16_t keyCode);

// Free text beyond this number of characters ends the exercise; a line end counts as two.
inline constexpr int freeTextLimit = 30000;

} // namespace keyfluent::session
