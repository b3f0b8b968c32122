#include "progress/Place.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace keyfluent::progress
{
namespace
{

using context::SessionContext;

// lessonNo, then the last lessons and the reached ones, Macintosh before Windows.
SessionContext At(std::int32_t kind, int lesson, int lastMac, int lastWin, int reachedMac,
                  int reachedWin)
{
    SessionContext context;
    context.keyboardKind = kind;
    context.lessonNo = static_cast<std::uint8_t>(lesson);
    context.lastLessonMac = static_cast<std::uint8_t>(lastMac);
    context.lastLessonWin = static_cast<std::uint8_t>(lastWin);
    context.reachedLessonMac = static_cast<std::uint8_t>(reachedMac);
    context.reachedLessonWin = static_cast<std::uint8_t>(reachedWin);
    return context;
}

std::string Place(const SessionContext& context)
{
    return std::to_string(context.keyboardKind) + ": " + std::to_string(context.lessonNo) +
           ", last " + std::to_string(context.lastLessonMac) + " " +
           std::to_string(context.lastLessonWin) + ", reached " +
           std::to_string(context.reachedLessonMac) + " " +
           std::to_string(context.reachedLessonWin);
}

std::string Synchronised(SessionContext context, std::int32_t kind)
{
    SynchroniseKeyboard(context, kind);
    return Place(context);
}

TEST(Place, TheMainWindowOpensAtTheReachedLessonOfItsKeyboard)
{
    for (const std::int32_t kind : {0, 192, 7}) {
        SessionContext context = At(kind, 1, 2, 3, 4, 9);
        EnterMainWindow(context);
        EXPECT_EQ(context.lessonNo, kind == 0 ? 4 : 9) << kind;
        EXPECT_EQ(context.keyboardKind, kind);
    }
}

TEST(Place, ALessonIsChosenForTheKeyboardThatIsWindowsByNumberOrTheMacintosh)
{
    for (const std::int32_t kind : {0, 192, 7}) {
        for (int lesson = 1; lesson <= 15; ++lesson) {
            SessionContext context = At(kind, 3, 4, 5, 15, 15);
            const bool hide = ChooseLesson(context, static_cast<std::uint8_t>(lesson));
            EXPECT_EQ(hide, lesson != 3);
            EXPECT_EQ(context.lessonNo, lesson);
            EXPECT_EQ(context.lastLessonMac, kind == 192 ? 4 : lesson);
            EXPECT_EQ(context.lastLessonWin, kind == 192 ? lesson : 5);
        }
    }
}

TEST(Place, SwitchingGoesToTheLessonLastOpenOnTheOtherKeyboard)
{
    EXPECT_EQ(Synchronised(At(192, 9, 4, 8, 6, 10), 0), "0: 4, last 4 9, reached 6 10");
    EXPECT_EQ(Synchronised(At(0, 3, 4, 8, 6, 10), 192), "192: 8, last 3 8, reached 6 10");
}

TEST(Place, SwitchingNeverGoesAboveTheReachedLesson)
{
    EXPECT_EQ(Synchronised(At(192, 6, 6, 6, 4, 15), 0), "0: 4, last 6 6, reached 4 15");
    EXPECT_EQ(Synchronised(At(0, 6, 6, 9, 15, 2), 192), "192: 2, last 6 9, reached 15 2");
    EXPECT_EQ(Synchronised(At(0, 6, 6, 9, 15, 0), 192), "192: 0, last 6 9, reached 15 0");
}

TEST(Place, EachActivationWritesThePresentLessonIntoTheOtherKeyboardsPlace)
{
    EXPECT_EQ(Synchronised(At(192, 5, 2, 5, 3, 7), 192), "192: 5, last 5 5, reached 3 7");
    EXPECT_EQ(Synchronised(At(0, 2, 2, 6, 3, 7), 0), "0: 2, last 2 2, reached 3 7");
    // A lesson chosen on one keyboard and an activation: the other keyboard follows.
    SessionContext context = At(192, 5, 2, 5, 15, 15);
    ChooseLesson(context, 11);
    SynchroniseKeyboard(context, context.keyboardKind);
    EXPECT_EQ(Place(context), "192: 11, last 11 11, reached 15 15");
}

TEST(Place, AKeyboardOfNoKnownKindBecomesWindows)
{
    for (const std::int32_t kind : {1, 7, -1, 193}) {
        EXPECT_EQ(Synchronised(At(kind, 5, 2, 6, 3, 7), kind), "192: 6, last 5 6, reached 3 7");
    }
}

TEST(Place, TheLessonsUpToTheReachedOneAreEnabled)
{
    for (int reached = 0; reached <= 255; ++reached) {
        EXPECT_EQ(EnabledLessons(At(0, 1, 1, 1, reached, 3)), std::min(reached, 15));
        EXPECT_EQ(EnabledLessons(At(192, 1, 1, 1, 3, reached)), std::min(reached, 15));
        EXPECT_EQ(EnabledLessons(At(7, 1, 1, 1, reached, 3)), std::min(reached, 15));
    }
}

TEST(Place, TheDiplomaCanBeViewedOnlyWithTheNumber100)
{
    SessionContext context;
    for (int number = -32768; number <= 32767; ++number) {
        context.studentTable.Record(1)[1] = static_cast<std::int16_t>(number);
        ASSERT_EQ(CanViewDiploma(context), number == 100) << number;
    }
}

TEST(Place, SteppingStopsAtTheFirstAndTheLastExercise)
{
    for (int exercise = 0; exercise <= 255; ++exercise) {
        SessionContext context;
        context.exerciseNo = static_cast<std::uint8_t>(exercise);
        EXPECT_EQ(StepNext(context), exercise < 5) << exercise;
        EXPECT_EQ(context.exerciseNo, exercise < 5 ? exercise + 1 : exercise);
        context.exerciseNo = static_cast<std::uint8_t>(exercise);
        EXPECT_EQ(StepBack(context), exercise > 1) << exercise;
        EXPECT_EQ(context.exerciseNo, exercise > 1 ? exercise - 1 : exercise);
    }
}

TEST(Place, SteppingLeavesTheLanguageAndTheSpecialFlags)
{
    SessionContext context = At(192, 8, 1, 1, 15, 15);
    context.exerciseNo = 5;
    context.englishAnagram = true;
    context.arabicExercise = true;
    EXPECT_TRUE(StepBack(context));
    EXPECT_TRUE(StepNext(context));
    EXPECT_TRUE(context.englishAnagram);
    EXPECT_FALSE(context.arabicAnagram);
    EXPECT_FALSE(context.freeText);
    EXPECT_TRUE(context.arabicExercise);
    EXPECT_EQ(context.lessonNo, 8);
}

TEST(Place, TheStepButtonsAppearAfterTheFirstExerciseOfASignIn)
{
    for (int exercise = 1; exercise <= 5; ++exercise) {
        SessionContext context;
        context.exerciseNo = static_cast<std::uint8_t>(exercise);
        StepButtons buttons = ButtonsAfterLoading(context);
        EXPECT_FALSE(buttons.next || buttons.back || buttons.duplicate) << exercise;
        context.sessionRun = true;
        buttons = ButtonsAfterLoading(context);
        EXPECT_EQ(buttons.next, exercise < 5) << exercise;
        EXPECT_EQ(buttons.back, exercise >= 2) << exercise;
        EXPECT_TRUE(buttons.duplicate) << exercise;
    }
}

} // namespace
} // namespace keyfluent::progress
