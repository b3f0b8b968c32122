// The rows of an exercise, as a session asks for them.
#pragma once

#include "course/texts/LessonTexts.h"

#include <array>
#include <cstdint>

namespace keyfluent::course
{

inline constexpr int maxRows = 200;

// 200 rows, numbered from 1; those that are not in use are "".
class ExerciseRows
{
public:
    // number 1 to 200.
    Row& operator[](int number) { return rows_[static_cast<std::size_t>(number - 1)]; }
    Row operator[](int number) const { return rows_[static_cast<std::size_t>(number - 1)]; }

    void Clear() { rows_.fill({}); }

private:
    std::array<Row, maxRows> rows_{};
};

// The keyboard for which the texts are asked, whatever keyboard the student has.
inline constexpr std::int32_t textKeyboard = 192;

// Empties rows and fills them with the text of a place. rowCount keeps its value where there is
// nothing to give: for a keyboard other than textKeyboard, a lesson outside 1 to 15 or an exercise
// outside 1 to 5. The places of the English course without a text give one empty row.
void GetExerciseRows(std::int32_t keyboardKind, int lesson, int exercise, bool arabicExercise,
                     std::uint8_t& rowCount, ExerciseRows& rows);

} // namespace keyfluent::course
