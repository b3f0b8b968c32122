// The word of welcome at a known student's sign-in: one of eight draws, among them the suggestion
// of the weakest exercise and the praise of a lesson done well. Both look at the highest lesson
// open on the keyboard in use, never at lessonNo.
#pragma once

#include "context/Platform.h"
#include "context/SessionContext.h"

#include <string>

namespace keyfluent::progress
{

// In the language of the interface, its lines divided by one carriage return. Draws again while a
// draw finds nothing to suggest or to praise. Nothing of it is kept.
std::u16string WelcomeText(const context::SessionContext& context,
                           const context::Platform& platform);

// exercise 0 stands for none, with percent 0 and isArabic false.
struct Suggestion {
    int exercise = 0;
    int percent = 0; // of the standard mark; may exceed 100
    bool isArabic = false;
};

// The exercise with the lowest percentage, the first of equal ones. A language with an exercise
// that has not been done is left out; none when both are, and when the lowest of both languages are
// equal.
Suggestion SuggestExercise(const context::SessionContext& context);

} // namespace keyfluent::progress
