// An exercise turned into marks, and a lesson judged by its best marks. Nothing here touches a
// file. Every sum is held in 16 bits and added from the first field on; one that leaves them, also
// on the way, throws context::FatalError.
#pragma once

#include "context/Platform.h"
#include "context/SessionContext.h"

#include <cstdint>

namespace keyfluent::progress
{

// All best marks of lessonNo, whose record is lessonNo + base; in lesson 15 without the English
// exercises 3 to 5, whose fields may hold a date. 0 where there is no such record.
std::int16_t LessonSum(const context::SessionContext& context, int base);

// Whether lessonNo is passed on the keyboard in use. Worked out from the best marks each time.
bool LessonPassed(const context::SessionContext& context);

// Of the record with that number, 1 to 31; 0 outside. Meant: the English total is of the first two
// exercises only, as lesson 15 has no more.
std::int16_t ArabicTotal(const context::SessionContext& context, int record);
std::int16_t EnglishTotal(const context::SessionContext& context, int record);

// Marks the exercise that has just ended: sets accuracyMark, speedBonus and exerciseMark, and keeps
// exerciseMark in the student's table if it is better than the best so far. gaugeValue is the mark
// gauge's value; startTime is the second of the day at which the exercise began, moved forward by
// its pauses. Throws context::FatalError where speed counts and the exercise took less than half a
// second.
void EvaluateExercise(context::SessionContext& context, const context::Platform& platform,
                      float gaugeValue, float startTime);

} // namespace keyfluent::progress
