// How the course is numbered and named: fifteen lessons of five exercises in each of two languages.
#pragma once

#include <string_view>

namespace keyfluent::course
{

inline constexpr int lessonCount = 15;
inline constexpr int exerciseCount = 5;

// The name of a lesson in the language of the interface; "" outside 1 to 15.
std::u16string_view LessonName(int lesson, bool arabicInterface);

// What stands in the places of the English list that hold no text.
enum class SpecialKind { None, EnglishAnagram, ArabicAnagram, FreeText };

// None for every place of the Arabic list and outside the course.
SpecialKind SpecialKindOf(int lesson, int exercise, bool arabicList);
bool IsSpecialExercise(int lesson, int exercise, bool arabicList);

// How the chooser names such a place, in both interface languages; "" for None.
std::u16string_view SpecialCaption(SpecialKind kind);

} // namespace keyfluent::course
