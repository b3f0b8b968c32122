// The student's place in the course, as the main window keeps it: the lesson, the exercise and the
// keyboard.
#pragma once

#include "context/SessionContext.h"

#include <cstdint>

namespace keyfluent::progress
{

// The main window's first load: lessonNo becomes the highest lesson open on the keyboard.
void EnterMainWindow(context::SessionContext& context);

// lesson 1 to 15. Sets lessonNo and the keyboard's last lesson; the note of the lesson is the
// caller's. True if the step buttons hide: the lesson is another than the present one.
bool ChooseLesson(context::SessionContext& context, std::uint8_t lesson);

// Brings the place in line with a keyboard: 0 the Macintosh's, any other kind Windows. lessonNo
// goes into the other keyboard's last lesson and becomes this keyboard's own, but never above the
// highest open there. Runs at each activation of the main window and when the keyboard is switched
// (where the step buttons hide too). Meant: it does so also when the keyboard has not changed, so
// that each activation writes the present lesson into the other keyboard's place.
void SynchroniseKeyboard(context::SessionContext& context, std::int32_t kind);

// How many lessons, from the first on, the student may choose: 0 to 15.
int EnabledLessons(const context::SessionContext& context);

// Whether the diploma may be shown: one has been earned.
bool CanViewDiploma(const context::SessionContext& context);

// To the next or the previous exercise of the lesson; the language and the special flags stay as
// they were. False, with nothing changed, at the last or the first one.
bool StepNext(context::SessionContext& context);
bool StepBack(context::SessionContext& context);

// Which of the three buttons beside the chooser's are shown.
struct StepButtons {
    bool next = false;
    bool back = false;
    bool duplicate = false;
};

// As the loading of an exercise leaves them: none before the first exercise since the sign-in.
StepButtons ButtonsAfterLoading(const context::SessionContext& context);

} // namespace keyfluent::progress
