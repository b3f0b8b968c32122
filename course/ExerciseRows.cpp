#include "course/ExerciseRows.h"

#include "course/Lessons.h"

namespace keyfluent::course
{
namespace
{

const std::array<const LessonTexts*, lessonCount> englishLessons = {
    &english01, &english02, &english03, &english04, &english05, &english06, &english07, &english08,
    &english09, &english10, &english11, &english12, &english13, &english14, &english15,
};

const std::array<const LessonTexts*, lessonCount> arabicLessons = {
    &arabic01, &arabic02, &arabic03, &arabic04, &arabic05, &arabic06, &arabic07, &arabic08,
    &arabic09, &arabic10, &arabic11, &arabic12, &arabic13, &arabic14, &arabic15,
};

} // namespace

void GetExerciseRows(std::int32_t keyboardKind, int lesson, int exercise, bool arabicExercise,
                     std::uint8_t& rowCount, ExerciseRows& rows)
{
    rows.Clear();
    if (keyboardKind != textKeyboard || lesson < 1 || lesson > lessonCount || exercise < 1 ||
        exercise > exerciseCount) {
        return;
    }
    const auto& lessons = arabicExercise ? arabicLessons : englishLessons;
    const LessonTexts& texts = *lessons[static_cast<std::size_t>(lesson - 1)];
    const std::span<const Row> text = texts[static_cast<std::size_t>(exercise - 1)];
    if (text.empty()) {
        rowCount = 1;
        return;
    }
    rowCount = static_cast<std::uint8_t>(text.size());
    for (int number = 1; number <= rowCount; ++number) {
        rows[number] = text[static_cast<std::size_t>(number - 1)];
    }
}

} // namespace keyfluent::course
