// The teaching notes before a lesson and before an exercise, the pages of the help and of the
// recommendations, and the notes after a stop. Paragraphs are divided by one carriage return.
#pragma once

#include <string>
#include <string_view>

namespace keyfluent::course
{

inline constexpr int helpPageCount = 11;
inline constexpr int recommendationPageCount = 6;
inline constexpr int stopNoteCount = 10;

// In Arabic, whatever the interface speaks; "" outside 1 to 15.
std::u16string_view LessonNote(int lesson);

// The heading over a lesson's note: Arabic words, and the lesson's name in the interface language.
std::u16string LessonNoteTitle(int lesson, bool arabicInterface);

// "" outside lessons 1 to 15 and exercises 1 to 5. arabic is the language of the exercise.
std::u16string_view ExerciseNote(int lesson, int exercise, bool arabic);

// In Arabic, whatever the interface speaks; "" outside 1 to 11 and 1 to 6.
std::u16string_view HelpText(int page);
std::u16string_view RecommendationText(int page);

// The heading of a page with its number; "" where there is no such page.
std::u16string HelpTitle(int page);
std::u16string RecommendationTitle(int page);

// In Arabic, whatever the interface speaks; "" outside 1 to 10.
std::u16string_view StopNoteText(int number);

} // namespace keyfluent::course
