#include "progress/Evaluation.h"

#include "context/Arithmetic.h"
#include "context/FatalError.h"
#include "course/Lessons.h"
#include "progress/Records.h"
#include "progress/StandardMarks.h"
#include "progress/StudentFile.h"

#include <cstddef>
#include <span>

namespace keyfluent::progress
{
namespace
{

using context::SessionContext;
using context::StudentRecord;

std::int16_t Sum(std::span<const std::int16_t> marks)
{
    std::int16_t sum = 0;
    for (const std::int16_t mark : marks) {
        sum = context::AddChecked(sum, mark);
    }
    return sum;
}

std::span<const std::int16_t> Marks(const SessionContext& context, std::int64_t record)
{
    return RecordOrZeros(context.studentTable, record);
}

// What the speed adds before it is limited: an exercise of 100 seconds earns nothing, whatever its
// length; a faster one earns, a slower one loses.
double UnlimitedBonus(std::int16_t mark, float elapsed)
{
    // Meant: negative in an exercise over midnight, which then loses its whole mark.
    const double seconds = context::RoundHalfEven(elapsed);
    if (seconds == 0) {
        throw context::FatalError("The speed of an exercise that took no time cannot be reckoned: "
                                  "division by zero.");
    }
    return context::RoundHalfEven(mark / seconds * 100) - mark;
}

std::int16_t LimitBonus(double bonus, double gaugeValue)
{
    if (bonus > gaugeValue) {
        return context::RoundTo16(gaugeValue);
    }
    if (bonus < -gaugeValue) {
        return context::RoundTo16(-gaugeValue);
    }
    return context::RoundTo16(bonus);
}

void KeepBestMark(SessionContext& context, std::int16_t mark)
{
    const int exercise = context.exerciseNo;
    const std::int64_t number = std::int64_t{context.lessonNo} + RecordBase(context);
    StudentRecord* const record = FindRecord(context.studentTable, number);
    if (record == nullptr || exercise < 1 || exercise > course::exerciseCount) {
        return;
    }
    const bool arabic = context.arabicExercise;
    if (!arabic && NeverScores(context.lessonNo, exercise)) {
        mark = 0;
    }
    const std::size_t first = arabic ? firstArabicField : firstEnglishField;
    std::int16_t& best = (*record)[first + static_cast<std::size_t>(exercise - 1)];
    if (mark > best) {
        best = mark;
    }
}

} // namespace

std::int16_t LessonSum(const SessionContext& context, int base)
{
    const auto marks = Marks(context, std::int64_t{context.lessonNo} + base);
    return Sum(context.lessonNo == course::lessonCount ? marks.first(7) : marks);
}

bool LessonPassed(const SessionContext& context)
{
    return LessonSum(context, RecordBase(context)) >= PassingMark(context.lessonNo);
}

std::int16_t ArabicTotal(const SessionContext& context, int record)
{
    return Sum(Marks(context, record).subspan(firstArabicField, 5));
}

std::int16_t EnglishTotal(const SessionContext& context, int record)
{
    return Sum(Marks(context, record).subspan(firstEnglishField, 2));
}

void EvaluateExercise(SessionContext& context, const context::Platform& platform, float gaugeValue,
                      float startTime)
{
    const std::int16_t mark = context::RoundTo16(gaugeValue);
    double bonus = 0;
    if (HasSpeedBonus(context.lessonNo, context.exerciseNo, context.arabicExercise)) {
        bonus = UnlimitedBonus(mark, context::TimeOfDay(platform) - startTime);
    }
    context.speedBonus = LimitBonus(bonus, gaugeValue);
    context.accuracyMark = mark;
    const std::int16_t exerciseMark = context::AddChecked(mark, context.speedBonus);
    context.exerciseMark = exerciseMark;
    KeepBestMark(context, exerciseMark);
}

} // namespace keyfluent::progress
