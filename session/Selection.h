// The expected character and the row on show.
#pragma once

#include "session/Lesson.h"

namespace keyfluent::session
{

// Lesson 15's correction phase: the student edits txtTest and no key is judged.
bool Reviewing(const Lesson& lesson);

// Selects the expected character in the model text and lights its key. In the review it does
// nothing; in free text it only gives the model field the focus.
void SelectCurrentChar(Lesson& lesson);

// Puts row currentRow on show, 1 to rowCount.
void ShowNextRow(Lesson& lesson);

} // namespace keyfluent::session
