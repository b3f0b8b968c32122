// The ends: of a row, of a text, of the lesson.
#pragma once

#include "session/Lesson.h"

namespace keyfluent::session
{

// After a judged key: goes on to the next row, wipes a failed one, starts the review of lesson 15,
// or ends the exercise, in which case the lesson has unloaded itself. late: the exercise checks
// late.
void CheckRowEnd(Lesson& lesson, bool late);

// Marks the lesson as gone and tells the window.
void Unload(Lesson& lesson);

} // namespace keyfluent::session
