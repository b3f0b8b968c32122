// The fixed marks of the course: what each exercise is worth, where speed counts, and what passes a
// lesson.
#pragma once

#include <cstdint>

namespace keyfluent::progress
{

// The standard mark of an exercise, 0 to 500; 0 outside lessons 1 to 15 and exercises 1 to 5.
// arabic is the language of the exercise.
std::int16_t StandardMark(int lesson, int exercise, bool arabic);

// Whether speed enters the mark: the star beside the standard mark. False outside the course.
bool HasSpeedBonus(int lesson, int exercise, bool arabic);

// The sum of best marks, of both languages together, that passes a lesson; 500 for every lesson
// that has no passing mark of its own, also outside 1 to 15.
std::int16_t PassingMark(int lesson);

// Whether an English exercise is one that never scores: the places of the anagrams and of free
// text. Meant: in lessons 11 and 14 such a place still has a standard mark, which is only shown.
bool NeverScores(int lesson, int exercise);

} // namespace keyfluent::progress
