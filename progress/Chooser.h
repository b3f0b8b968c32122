// What the exercise chooser shows of a lesson, and what choosing an exercise sets.
#pragma once

#include "context/SessionContext.h"
#include "course/Lessons.h"

#include <array>
#include <string>

namespace keyfluent::progress
{

// One text for each exercise, from the first on.
using ExerciseTexts = std::array<std::u16string, course::exerciseCount>;

// In the language of the interface.
struct ChooserTexts {
    std::u16string lessonTitle;
    // The standard mark, with " *" behind it where speed counts.
    ExerciseTexts arabicStandard;
    ExerciseTexts englishStandard;
    // The student's best mark.
    ExerciseTexts arabicMark;
    ExerciseTexts englishMark;
    ExerciseTexts arabicButton;
    ExerciseTexts englishButton;
    std::u16string passing;
    std::u16string sum;
};

// What the chooser does as it loads, for lessonNo: makes its texts and clears the three special
// flags. Throws context::FatalError when the sum of the marks leaves 16 bits.
ChooserTexts LoadChooser(context::SessionContext& context);

// What pressing a button does. exercise 1 to 5. A place of the English list that holds no text
// raises its flag; an Arabic button leaves the flags as the load left them.
void ChooseExercise(context::SessionContext& context, std::uint8_t exercise, bool arabicList);

} // namespace keyfluent::progress
