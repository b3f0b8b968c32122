// The short sounds of the keys.
#pragma once

#include "session/Lesson.h"

namespace keyfluent::session
{

// Enter, Space or any other key with a cap; silent unless the sound aid is on.
void PlayKeySound(const Lesson& lesson, int keyCode);

// These two sound whether the aid is on or off.
void PlayBackspaceSound(const Lesson& lesson);
void PlayCapsSound(const Lesson& lesson);

} // namespace keyfluent::session
