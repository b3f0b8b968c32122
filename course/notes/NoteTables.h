// The teaching notes and the pages of the two viewers, as tables. Paragraphs are divided by one
// carriage return (U+000D, no line feed); two of them leave an empty line.
#pragma once

#include <array>
#include <string_view>

namespace keyfluent::course
{

// [lesson - 1][exercise - 1]
using ExerciseNoteTable = std::array<std::array<std::u16string_view, 5>, 15>;

extern const ExerciseNoteTable englishExerciseNotes;
extern const ExerciseNoteTable arabicExerciseNotes;

// Lesson notes, [lesson - 1], and the texts of the help and the recommendation pages, [page - 1].
// They are Arabic whatever the interface speaks.
extern const std::array<std::u16string_view, 15> lessonNotes;
extern const std::array<std::u16string_view, 11> helpPages;
extern const std::array<std::u16string_view, 6> recommendationPages;

} // namespace keyfluent::course
