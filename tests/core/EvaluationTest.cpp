#include "progress/Evaluation.h"

#include "progress/StandardMarks.h"
#include "tests/core/ProgressSupport.h"

#include <cmath>
#include <limits>

namespace keyfluent::progress
{
namespace
{

using namespace support;
using context::FatalError;
using context::SessionContext;
using context::StudentRecord;

SessionContext At(int lesson, int exercise, bool arabic, std::int32_t keyboard = 192)
{
    SessionContext context;
    context.lessonNo = static_cast<std::uint8_t>(lesson);
    context.exerciseNo = static_cast<std::uint8_t>(exercise);
    context.arabicExercise = arabic;
    context.keyboardKind = keyboard;
    return context;
}

// Evaluates an exercise that ran for so many seconds up to ten o'clock.
void Evaluate(SessionContext& context, float gauge, double seconds)
{
    FakePlatform platform;
    EvaluateExercise(context, platform.Services(), gauge,
                     static_cast<float>(platform.seconds - seconds));
}

// The best marks of lesson 15 on Windows, Arabic exercise 1: a star and a standard mark of 100.
int BonusOf(float gauge, double seconds)
{
    SessionContext context = At(15, 1, true);
    Evaluate(context, gauge, seconds);
    EXPECT_EQ(context.exerciseMark, context.accuracyMark + context.speedBonus);
    return context.speedBonus;
}

TEST(Evaluation, TheSumOfALessonAddsBothLanguages)
{
    SessionContext context = At(3, 1, true);
    context.studentTable.Record(19) = {1, 2, 4, 8, 16, 32, 64, 128, 256, 512};
    context.studentTable.Record(4).fill(1000);
    EXPECT_EQ(LessonSum(context, 16), 1023);
    EXPECT_EQ(LessonSum(context, 1), 10000);
}

TEST(Evaluation, TheSumOfLesson15LeavesOutTheFieldsOfTheDate)
{
    SessionContext context = At(15, 1, true);
    context.studentTable.Record(31) = {1, 2, 4, 8, 16, 32, 64, 31, 12, 2026};
    context.studentTable.Record(16) = {2, 4, 8, 16, 32, 64, 128, 31, 12, 2026};
    EXPECT_EQ(LessonSum(context, 16), 127);
    EXPECT_EQ(LessonSum(context, 1), 254);
}

TEST(Evaluation, ALessonOutsideTheTableSumsToZero)
{
    for (int lesson = 0; lesson <= 255; ++lesson) {
        for (const int base : {1, 16}) {
            SessionContext context = At(lesson, 1, true);
            for (StudentRecord& record : context.studentTable.records) {
                record.fill(1);
            }
            const bool inside = lesson + base <= 31;
            const int expected = !inside ? 0 : lesson == 15 ? 7 : 10;
            EXPECT_EQ(LessonSum(context, base), expected) << lesson << " + " << base;
        }
    }
    for (const int base :
         {std::numeric_limits<int>::min(), -300, 300, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(LessonSum(At(200, 1, true), base), 0) << base;
    }
}

TEST(Evaluation, ASumThatLeaves16BitsOnTheWayEndsTheProgram)
{
    SessionContext context = At(2, 1, true);
    StudentRecord& record = context.studentTable.Record(18);
    record = {32000, 767, 0, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(LessonSum(context, 16), 32767);
    record = {32000, 768, -1000, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_THROW(LessonSum(context, 16), FatalError);
    EXPECT_THROW(ArabicTotal(context, 18), FatalError);
    EXPECT_THROW(LessonPassed(context), FatalError);
    record = {-1000, 32000, 768, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(LessonSum(context, 16), 31768);
    record = {0, 0, 0, 0, 0, -32768, -1, 0, 0, 0};
    EXPECT_THROW(EnglishTotal(context, 18), FatalError);
    EXPECT_EQ(ArabicTotal(context, 18), 0);
}

TEST(Evaluation, TotalsAreOfFiveArabicAndTwoEnglishExercises)
{
    SessionContext context;
    for (int number = 1; number <= 31; ++number) {
        const auto n = static_cast<std::int16_t>(number);
        context.studentTable.Record(number) = {n, 2, 4, 8, 16, n, 64, 128, 256, 512};
        EXPECT_EQ(ArabicTotal(context, number), number + 30);
        EXPECT_EQ(EnglishTotal(context, number), number + 64);
    }
    for (const int number : {-1, 0, 32, 1000}) {
        EXPECT_EQ(ArabicTotal(context, number), 0) << number;
        EXPECT_EQ(EnglishTotal(context, number), 0) << number;
    }
}

TEST(Evaluation, ALessonIsPassedFromItsPassingMarkOnOnItsKeyboard)
{
    for (int lesson = 1; lesson <= 15; ++lesson) {
        for (const std::int32_t keyboard : {0, 192, 7}) {
            SessionContext context = At(lesson, 1, true, keyboard);
            StudentRecord& record = context.studentTable.Record(lesson + (keyboard == 0 ? 1 : 16));
            record[0] = static_cast<std::int16_t>(PassingMark(lesson) - 1);
            EXPECT_FALSE(LessonPassed(context)) << lesson;
            ++record[0];
            EXPECT_TRUE(LessonPassed(context)) << lesson;
            --record[0];
            ++record[6];
            EXPECT_TRUE(LessonPassed(context)) << lesson;
        }
    }
}

TEST(Evaluation, ArabicAlonePassesLesson1)
{
    SessionContext context = At(1, 5, true);
    context.studentTable.Record(17) = {100, 50, 100, 100, 0, 0, 0, 0, 0, 0};
    EXPECT_FALSE(LessonPassed(context));
    Evaluate(context, 150, 1000);
    EXPECT_TRUE(LessonPassed(context));
}

TEST(Evaluation, WithoutAStarThereIsNoBonusAndNoDivision)
{
    for (const double seconds : {0.0, 1.0, 50.0, 1000.0, -40000.0}) {
        SessionContext context = At(1, 1, true);
        context.speedBonus = 77;
        Evaluate(context, 98, seconds);
        EXPECT_EQ(context.speedBonus, 0);
        EXPECT_EQ(context.accuracyMark, 98);
        EXPECT_EQ(context.exerciseMark, 98);
        EXPECT_EQ(context.studentTable.Record(17)[0], 98);
    }
}

TEST(Evaluation, AnExerciseOf100SecondsEarnsNothingAFasterOneEarnsAndASlowerOneLoses)
{
    EXPECT_EQ(BonusOf(100, 100), 0);
    EXPECT_EQ(BonusOf(73, 100), 0);
    EXPECT_EQ(BonusOf(500, 100), 0);
    EXPECT_EQ(BonusOf(100, 80), 25);
    EXPECT_EQ(BonusOf(100, 50), 100);
    EXPECT_EQ(BonusOf(80, 50), 80);
    EXPECT_EQ(BonusOf(100, 200), -50);
    EXPECT_EQ(BonusOf(100, 125), -20);
}

TEST(Evaluation, TheBonusIsLimitedToTheMarkBothWays)
{
    EXPECT_EQ(BonusOf(100, 49), 100);
    EXPECT_EQ(BonusOf(100, 1), 100);
    EXPECT_EQ(BonusOf(500, 1), 500); // 49500 before the limit
    EXPECT_EQ(BonusOf(100, 10000), -99);
    EXPECT_EQ(BonusOf(100, 36000), -100);
    EXPECT_EQ(BonusOf(100, -100), -100); // -200 before the limit, over midnight
    EXPECT_EQ(BonusOf(37.5F, -1), -38);
    EXPECT_EQ(BonusOf(0, 1), 0);
    EXPECT_EQ(BonusOf(0, 36000), 0);
}

TEST(Evaluation, HalvesOfTheBonusGoToTheEvenNeighbour)
{
    EXPECT_EQ(BonusOf(1, 200), -1);    // 0.5 to 0
    EXPECT_EQ(BonusOf(3, 200), -1);    // 1.5 to 2
    EXPECT_EQ(BonusOf(5, 200), -3);    // 2.5 to 2
    EXPECT_EQ(BonusOf(50, 80), 12);    // 62.5 to 62
    EXPECT_EQ(BonusOf(70, 80), 18);    // 87.5 to 88
    EXPECT_EQ(BonusOf(100, 96), 4);    // 104.17 to 104
    EXPECT_EQ(BonusOf(100, 300), -67); // 33.33 to 33
}

TEST(Evaluation, SecondsAreRoundedWithHalvesToTheEvenNeighbour)
{
    EXPECT_EQ(BonusOf(100, 80.5), 25);        // 80
    EXPECT_EQ(BonusOf(100, 79.5), 25);        // 80
    EXPECT_EQ(BonusOf(100, 80.50390625), 23); // 81
    EXPECT_EQ(BonusOf(100, 81.5), 22);        // 82
}

TEST(Evaluation, SecondsAreTheDifferenceOf32BitFloats)
{
    SessionContext context = At(15, 1, true);
    FakePlatform platform;
    platform.seconds = 80000.503; // 80000.5 as a float: its grain is 1/128 s
    EvaluateExercise(context, platform.Services(), 100, 79920);
    EXPECT_EQ(context.speedBonus, 25); // 80 seconds, not 81
}

TEST(Evaluation, MarksAreTheGaugeRoundedWithHalvesToTheEvenNeighbour)
{
    struct Row {
        float gauge;
        int mark;
    };
    for (const Row row :
         {Row{48.5F, 48}, {49.5F, 50}, {49.51F, 50}, {0.5F, 0}, {0, 0}, {500, 500}}) {
        SessionContext context = At(1, 1, false);
        Evaluate(context, row.gauge, 60);
        EXPECT_EQ(context.accuracyMark, row.mark) << row.gauge;
        EXPECT_EQ(context.exerciseMark, row.mark) << row.gauge;
    }
}

TEST(Evaluation, AnExerciseOfUnderHalfASecondEndsTheProgramWhereSpeedCounts)
{
    SessionContext context = At(15, 1, true);
    EXPECT_THROW(Evaluate(context, 100, 0), FatalError);
    EXPECT_THROW(Evaluate(context, 100, 0.5), FatalError);
    EXPECT_THROW(Evaluate(context, 100, -0.5), FatalError);
    EXPECT_THROW(Evaluate(context, 0, 0.25), FatalError);
    EXPECT_EQ(context.exerciseMark, 0);
    EXPECT_EQ(context.studentTable, context::StudentTable{});
    EXPECT_EQ(BonusOf(100, 0.50390625), 100);
}

TEST(Evaluation, AnExerciseOverMidnightLosesItsWholeMark)
{
    SessionContext context = At(15, 1, true);
    FakePlatform platform;
    platform.seconds = 30;
    EvaluateExercise(context, platform.Services(), 100, 86370);
    EXPECT_EQ(context.speedBonus, -100);
    EXPECT_EQ(context.exerciseMark, 0);
    EXPECT_EQ(context.studentTable.Record(31)[0], 0);
}

TEST(Evaluation, TheExerciseMarkLiesBetweenNothingAndTwiceTheMark)
{
    for (const float gauge : {0.0F, 1.0F, 37.0F, 50.0F, 99.0F, 200.0F, 500.0F}) {
        for (int seconds = 1; seconds < 36000; seconds += 1 + seconds / 7) {
            SessionContext context = At(15, 1, true);
            Evaluate(context, gauge, seconds);
            ASSERT_GE(context.exerciseMark, 0) << gauge << " in " << seconds;
            ASSERT_LE(context.exerciseMark, 2 * context.accuracyMark) << gauge << " in " << seconds;
        }
    }
}

TEST(Evaluation, AGaugeBeyond16BitsEndsTheProgram)
{
    for (const float gauge : {32768.0F, -40000.0F, 1e30F, std::nanf("")}) {
        SessionContext context = At(1, 1, true);
        EXPECT_THROW(Evaluate(context, gauge, 100), FatalError) << gauge;
    }
    SessionContext context = At(15, 1, true);
    EXPECT_THROW(Evaluate(context, 20000, 1), FatalError); // mark and bonus together
}

TEST(Evaluation, EachPlaceKeepsItsMarkInItsOwnField)
{
    for (const std::int32_t keyboard : {0, 192, 5}) {
        for (int lesson = 1; lesson <= 15; ++lesson) {
            for (int exercise = 1; exercise <= 5; ++exercise) {
                for (const bool arabic : {true, false}) {
                    SessionContext context = At(lesson, exercise, arabic, keyboard);
                    Evaluate(context, 60, 100);
                    context::StudentTable expected;
                    const bool scores = arabic || !NeverScores(lesson, exercise);
                    expected.Record(lesson + (keyboard == 0 ? 1 : 16))[static_cast<std::size_t>(
                        (arabic ? 0 : 5) + exercise - 1)] = scores ? 60 : 0;
                    ASSERT_EQ(context.studentTable, expected)
                        << lesson << "." << exercise << (arabic ? " Arabic" : " English");
                    ASSERT_EQ(context.exerciseMark, 60);
                }
            }
        }
    }
}

TEST(Evaluation, OnlyABetterMarkReplacesTheBest)
{
    SessionContext context = At(1, 2, true);
    std::int16_t& best = context.studentTable.Record(17)[1];
    Evaluate(context, 0, 60);
    EXPECT_EQ(best, 0);
    Evaluate(context, 40, 60);
    EXPECT_EQ(best, 40);
    Evaluate(context, 39, 60);
    EXPECT_EQ(best, 40);
    EXPECT_EQ(context.exerciseMark, 39);
    Evaluate(context, 41, 60);
    EXPECT_EQ(best, 41);
    best = -5;
    Evaluate(context, 0, 60);
    EXPECT_EQ(best, 0);
}

TEST(Evaluation, APlaceThatNeverScoresComparesZeroAndKeepsWhatWasReckoned)
{
    SessionContext context = At(15, 3, false);
    StudentRecord& record = context.studentTable.Record(31);
    record[7] = 0;
    Evaluate(context, 90, 60);
    EXPECT_EQ(record[7], 0);
    EXPECT_EQ(context.exerciseMark, 90);
    EXPECT_EQ(context.accuracyMark, 90);
    record[7] = 31; // a date
    Evaluate(context, 90, 60);
    EXPECT_EQ(record[7], 31);
    record[7] = -3; // from a broken file
    Evaluate(context, 90, 60);
    EXPECT_EQ(record[7], 0);
}

TEST(Evaluation, AnArabicDrillInAnEnglishPlaceCountsForTheArabicField)
{
    SessionContext context = At(14, 5, true);
    context.arabicAnagram = true;
    Evaluate(context, 200, 100);
    EXPECT_EQ(context.studentTable.Record(30)[4], 200);
    EXPECT_EQ(context.studentTable.Record(30)[9], 0);
}

TEST(Evaluation, APlaceOutsideTheCourseNeverWritesOutsideTheTable)
{
    for (int lesson = 0; lesson <= 255; ++lesson) {
        for (const int exercise : {0, 6, 10, 11, 255}) {
            for (const std::int32_t keyboard : {0, 192}) {
                SessionContext context = At(lesson, exercise, true, keyboard);
                Evaluate(context, 100, 60);
                ASSERT_EQ(context.studentTable, context::StudentTable{}) << lesson << exercise;
                ASSERT_EQ(context.exerciseMark, 100);
            }
        }
    }
    for (int lesson = 31; lesson <= 255; ++lesson) {
        SessionContext context = At(lesson, 1, true, 0);
        Evaluate(context, 100, 60);
        ASSERT_EQ(context.studentTable, context::StudentTable{}) << lesson;
    }
}

} // namespace
} // namespace keyfluent::progress
