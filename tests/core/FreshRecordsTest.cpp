// What each record holds before anything is put into it.
#include "LessonFixture.h"
#include "progress/Preferences.h"
#include "progress/Result.h"
#include "progress/Welcome.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace keyfluent
{
namespace
{

using session::fixtures::FakeMachine;

TEST(FreshRecords, ADayIsTheFirstOfTheCentury)
{
    const context::CalendarDate date;
    EXPECT_EQ(date.year, 2000);
    EXPECT_EQ(date.month, 1);
    EXPECT_EQ(date.day, 1);
}

TEST(FreshRecords, TheContextHasNoStudentAndNoPlace)
{
    const context::SessionContext fresh;
    EXPECT_EQ(fresh.keyboardKind, 0);
    for (const int number :
         {int(fresh.exerciseNo), int(fresh.lessonNo), int(fresh.lastLessonWin),
          int(fresh.lastLessonMac), int(fresh.reachedLessonMac), int(fresh.reachedLessonWin),
          int(fresh.recommendPage), int(fresh.helpPage), int(fresh.gradeArabicMac),
          int(fresh.gradeEnglishMac), int(fresh.gradeArabicWin), int(fresh.gradeEnglishWin),
          int(fresh.speedBonus)}) {
        EXPECT_EQ(number, 0);
    }
    for (const std::int32_t number : {fresh.trueKeyColour, fresh.errKeyColour, fresh.fontSize,
                                      fresh.stopCount, fresh.exerciseMark, fresh.accuracyMark}) {
        EXPECT_EQ(number, 0);
    }
    EXPECT_EQ(fresh.studentTable, context::StudentTable{});
    EXPECT_FALSE(fresh.arabicInterface);
}

TEST(FreshRecords, PreferencesAreAllNought)
{
    EXPECT_EQ(progress::EncodePreferences({}), progress::PreferencesRecord{});
    const progress::PreferencesForm form;
    EXPECT_FALSE(form.arabicInterface || form.colouredHands);
    EXPECT_EQ(form.keyboardKind, 0);
    EXPECT_EQ(form.trueKeyColour, 0);
    EXPECT_EQ(form.errKeyColour, 0);
}

TEST(FreshRecords, AResultHasNoNoteAndASuggestionNoExercise)
{
    EXPECT_FALSE(progress::ResultTexts{}.noteVisible);
    const progress::Suggestion none;
    EXPECT_EQ(none.exercise, 0);
    EXPECT_EQ(none.percent, 0);
    EXPECT_FALSE(none.isArabic);
}

TEST(FreshRecords, ControlsAreShownAndEmpty)
{
    EXPECT_EQ(session::Box{}, (session::Box{0, 0, 0, 0}));
    const session::TextField field;
    EXPECT_EQ(field.fontSize, 12);
    EXPECT_EQ(field.cursor, 0);
    EXPECT_TRUE(field.readOnly && field.visible);
    EXPECT_FALSE(field.rightToLeft);
    EXPECT_EQ(field.SelectionStart(), 0);
    EXPECT_EQ(field.SelectionLength(), 0);
    const session::Label label;
    EXPECT_EQ(label.fontSize, 9);
    EXPECT_TRUE(label.visible);
    EXPECT_FALSE(label.rightToLeft || label.rightAligned);
    const session::Gauge gauge;
    EXPECT_EQ(gauge.maximum, 100);
    EXPECT_EQ(gauge.value, 0);
    EXPECT_TRUE(gauge.visible);
    const session::Image image;
    EXPECT_EQ(image.bitmap, 0);
    EXPECT_TRUE(image.Reachable());
    const session::Timer timer(20);
    EXPECT_EQ(timer.Interval(), 20);
    EXPECT_EQ(timer.Starts(), 0U);
    EXPECT_FALSE(timer.Enabled());
}

TEST(FreshRecords, ALessonHasNotBegun)
{
    context::SessionContext state;
    const FakeMachine machine;
    const session::Lesson lesson(state, machine.platform, machine.window);
    EXPECT_FALSE(lesson.imgNextShown || lesson.imgBackShown || lesson.imgDuplicateShown);
    EXPECT_EQ(lesson.rowCount, 0);
    EXPECT_EQ(lesson.currentRow, 1);
    EXPECT_EQ(lesson.caretPos, 0);
    for (const std::int32_t count : {lesson.correctCount, lesson.errorCount, lesson.totalCount,
                                     lesson.accuracyPercent, lesson.speedRate}) {
        EXPECT_EQ(count, 0);
    }
    for (const float time : {lesson.startTime, lesson.pauseStart, lesson.pauseLength}) {
        EXPECT_EQ(time, 0);
    }
    EXPECT_EQ(lesson.clockMinutes, 0);
    EXPECT_EQ(lesson.clockSeconds, 0);
    EXPECT_TRUE(lesson.awaitingFirstKey);
    EXPECT_FALSE(lesson.paused || lesson.resumeArmed);
    EXPECT_EQ(lesson.pressedKey, session::Lesson::noKeyYet);
    EXPECT_EQ(lesson.blinkCount, 0);
    EXPECT_EQ(lesson.handPictureOffset, 0);
    EXPECT_FALSE(lesson.shiftDown || lesson.capsOn || lesson.errorPending);
    EXPECT_FALSE(lesson.reviewMode || lesson.buttonLit || lesson.notAllowedVisible ||
                 lesson.unloaded);
}

} // namespace
} // namespace keyfluent
