// The mouse in an exercise: the break, the stop, and the fields that are not to be clicked. A
// control that is hidden or disabled is out of reach: what is asked of it does nothing.
#pragma once

#include "session/Lesson.h"

namespace keyfluent::session
{

enum class PushPicture { Rest, Resume, Stop };

void ClickRest(Lesson& lesson);
void ClickResume(Lesson& lesson);

// The button goes down on the stop picture: the lesson unloads itself, nothing is stored, and a
// note is drawn.
void PressStop(Lesson& lesson);

// The pointer moves over a picture, or over the bare window.
void MoveOver(Lesson& lesson, PushPicture picture);
void MoveOverForm(Lesson& lesson);

// A mouse button goes down on one of the text fields. True where the caution has answered it; false
// where the press is the field's own, as in the review.
bool PressField(Lesson& lesson, FieldName field);
void ClickOrigin(Lesson& lesson);
void OriginLostFocus(Lesson& lesson);

// The number of the note after a stop, 1 to 10. Meant: from here on the interface is Arabic.
int LoadStopNote(context::SessionContext& context, const context::Platform& platform);

} // namespace keyfluent::session
