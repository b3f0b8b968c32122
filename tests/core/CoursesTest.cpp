#include "progress/Courses.h"

#include "context/FatalError.h"

#include <gtest/gtest.h>

namespace keyfluent::progress
{
namespace
{

using context::SessionContext;

TEST(Courses, EachCourseHasItsOwnRecordFlagAndGrade)
{
    struct Row {
        bool arabic;
        bool onWindows;
        int record;
        std::size_t field;
        context::Boolean16 SessionContext::*done;
        std::uint8_t SessionContext::*grade;
    };
    const Row rows[] = {
        {true, false, 16, 2, &SessionContext::courseDoneArabicMac, &SessionContext::gradeArabicMac},
        {false, false, 16, 3, &SessionContext::courseDoneEnglishMac,
         &SessionContext::gradeEnglishMac},
        {true, true, 31, 7, &SessionContext::courseDoneArabicWin, &SessionContext::gradeArabicWin},
        {false, true, 31, 8, &SessionContext::courseDoneEnglishWin,
         &SessionContext::gradeEnglishWin},
    };
    ASSERT_EQ(courses.size(), std::size(rows));
    for (std::size_t i = 0; i < courses.size(); ++i) {
        EXPECT_EQ(courses[i].arabic, rows[i].arabic) << i;
        EXPECT_EQ(courses[i].onWindows, rows[i].onWindows) << i;
        EXPECT_EQ(courses[i].lastRecord, rows[i].record) << i;
        EXPECT_EQ(courses[i].headerField, rows[i].field) << i;
        EXPECT_TRUE(courses[i].done == rows[i].done) << i;
        EXPECT_TRUE(courses[i].grade == rows[i].grade) << i;
    }
}

TEST(Courses, TheTotalIsOfTheLastLessonOnTheCoursesKeyboard)
{
    SessionContext context;
    context.studentTable.Record(16) = {1, 2, 3, 4, 5, 100, 200, 1000, 1000, 1000};
    context.studentTable.Record(31) = {10, 20, 30, 40, 50, 300, 400, 31, 1, 2026};
    EXPECT_EQ(CourseTotal(context, courses[0]), 15);
    EXPECT_EQ(CourseTotal(context, courses[1]), 300);
    EXPECT_EQ(CourseTotal(context, courses[2]), 150);
    EXPECT_EQ(CourseTotal(context, courses[3]), 700);
}

TEST(Courses, TheGradeFollowsTheTotalOfItsLanguage)
{
    SessionContext context;
    context.studentTable.Record(16) = {1000, 0, 0, 0, 0, 1000, 0, 0, 0, 0};
    context.studentTable.Record(31) = {400, 0, 0, 0, 0, 501, 0, 0, 0, 0};
    for (const Course& course : courses) {
        TakeGrade(context, course);
    }
    EXPECT_EQ(context.gradeArabicMac, 1);
    EXPECT_EQ(context.gradeEnglishMac, 4);
    EXPECT_EQ(context.gradeArabicWin, 2);
    EXPECT_EQ(context.gradeEnglishWin, 3);
}

TEST(Courses, ATotalOutsideEveryRangeLeavesTheGrade)
{
    SessionContext context;
    context.studentTable.Record(16)[0] = 1001;
    context.gradeArabicMac = 77;
    TakeGrade(context, courses[0]);
    EXPECT_EQ(context.gradeArabicMac, 77);
}

TEST(Courses, ATotalThatLeaves16BitsEndsTheProgram)
{
    SessionContext context;
    context.studentTable.Record(31) = {0, 0, 0, 0, 0, 32767, 1, 0, 0, 0};
    EXPECT_THROW(TakeGrade(context, courses[3]), context::FatalError);
}

} // namespace
} // namespace keyfluent::progress
