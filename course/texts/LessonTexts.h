// The store of what the student types: 133 exercise texts, fifteen lessons of five exercises in
// two languages. One source file holds one lesson of one language, a row a literal, as typed.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace keyfluent::course
{

// One row of an exercise: what the student sees and types at one time. Characters in typing order;
// U+0691 stands for the Return key. In the passages of lesson 15 each U+0691 is followed by "\r\n".
using Row = std::u16string_view;

// The rows of the five exercises of one lesson. A place that holds no text (the anagrams and the
// free texts of the English course) is an empty span.
using LessonTexts = std::array<std::span<const Row>, 5>;

extern const LessonTexts english01, english02, english03, english04, english05, english06,
    english07, english08, english09, english10, english11, english12, english13, english14,
    english15;

extern const LessonTexts arabic01, arabic02, arabic03, arabic04, arabic05, arabic06, arabic07,
    arabic08, arabic09, arabic10, arabic11, arabic12, arabic13, arabic14, arabic15;

} // namespace keyfluent::course
