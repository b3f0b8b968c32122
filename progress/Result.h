// What the student is told after an exercise, and what the marks open: the next lesson, and at the
// end of the course the diploma.
#pragma once

#include "context/Platform.h"
#include "context/SessionContext.h"

#include <string>

namespace keyfluent::progress
{

// The captions of the result window, in the language of the interface.
struct ResultTexts {
    std::u16string title;
    std::u16string res;    // the accuracy mark
    std::u16string bonus;  // the speed bonus, also where it is 0 or negative
    std::u16string result; // the mark of the exercise
    // Meant: visible and empty after a passed lesson 15 that completes no course.
    std::u16string note;
    bool noteVisible = false;
};

// What the result window does as it loads: makes the texts of the last evaluated exercise, opens
// the next lesson if the highest one open is lessonNo and passed, and in lesson 15 completes the
// courses whose marks are there. The first diploma of a student takes the date of the platform.
// Throws context::FatalError when a sum of marks leaves 16 bits.
ResultTexts LoadResult(context::SessionContext& context, const context::Platform& platform);

} // namespace keyfluent::progress
