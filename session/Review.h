// Lesson 15's correction phase, and what the student edits there and in free text.
#pragma once

#include "session/Lesson.h"

#include <string_view>

namespace keyfluent::session
{

// How many characters of the model text differ from the copy, one beyond the copy's end counting
// as different; what the copy holds beyond the model's end is not looked at.
int CountDifferences(const Lesson& lesson);

// Writes the number of differences on the message line, in the language of the interface.
void ShowReviewMessage(Lesson& lesson);

// What any key does in the review before it goes on to the field. The lesson unloads itself, and
// shows no result, when the two texts are equal.
void CheckReview(Lesson& lesson);

// The field that the student may edit now; nullptr where there is none.
TextField* EditableField(Lesson& lesson);

// The student's own editing replaces removed units from position on; the caret goes behind what was
// inserted. Positions beyond the text are limited to it.
void EditField(TextField& field, int position, int removed, std::u16string_view inserted);

// The Enter that reaches txtTest itself in the review: puts back what a line end is in the model.
void PressEnterInReview(Lesson& lesson);

} // namespace keyfluent::session
