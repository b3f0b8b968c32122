// The two running figures, accuracy and speed, and the gauges that show them.
#pragma once

#include "session/Lesson.h"

namespace keyfluent::session
{

// Reckons totalCount, accuracyPercent (0 to 100) and speedRate (0 to 300: characters a minute less
// the percentage of errors) from the counts and the time since startTime.
void ComputeMarks(Lesson& lesson);

// Puts the figures on gauges and labels. They run on while hidden: the value of pbMark is where
// the mark of the exercise is kept.
void ShowMarks(Lesson& lesson);

} // namespace keyfluent::session
