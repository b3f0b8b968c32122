// Opening an exercise.
#pragma once

#include "session/Lesson.h"

namespace keyfluent::session
{

// Size of the exercise window in twips.
inline constexpr int lessonWidth = 12000;
inline constexpr int lessonHeight = 9000;

// Sets the lesson up for the place, the flags and the aids of its context. Call it once, on a new
// Lesson; Activate follows. Throws context::FatalError for an Arabic anagram without letters.
void Load(Lesson& lesson);

// What the window does each time it becomes active, also right after loading.
void Activate(Lesson& lesson);

// The window system has uncovered or resized the window: its background is drawn anew.
void BackgroundDrawn(Lesson& lesson);

// Whether the exercise is one of the course's texts and none of the three special kinds.
bool IsOrdinary(const context::SessionContext& context);

} // namespace keyfluent::session
