// Everything that happens in an exercise without a key: the clock, the two blinks, the wiping of a
// failed row and the watcher of the review.
#pragma once

#include "session/Lesson.h"

namespace keyfluent::session
{

// A timer has fallen due. The lesson may have unloaded itself.
void Tick(Lesson& lesson, TimerName timer);

} // namespace keyfluent::session
