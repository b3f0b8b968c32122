#include "progress/Diploma.h"

#include "tests/core/ProgressSupport.h"

namespace keyfluent::progress
{
namespace
{

using namespace support;
using context::SessionContext;

SessionContext WithDate(int day, int month, int year)
{
    SessionContext context;
    context::StudentRecord& record = context.studentTable.Record(31);
    record[7] = static_cast<std::int16_t>(day);
    record[8] = static_cast<std::int16_t>(month);
    record[9] = static_cast<std::int16_t>(year);
    return context;
}

// The courses done, one digit each: the grade, or a point for a course that is not done.
std::string Courses(std::string_view grades)
{
    SessionContext context;
    const auto set = [&](std::size_t i, context::Boolean16& done, std::uint8_t& grade) {
        done = grades[i] != '.';
        grade = static_cast<std::uint8_t>(grades[i] == '.' ? 1 : grades[i] - '0');
    };
    set(0, context.courseDoneArabicMac, context.gradeArabicMac);
    set(1, context.courseDoneEnglishMac, context.gradeEnglishMac);
    set(2, context.courseDoneArabicWin, context.gradeArabicWin);
    set(3, context.courseDoneEnglishWin, context.gradeEnglishWin);
    return Shown(LoadDiploma(context).course);
}

TEST(Diploma, GradesAreShownAsLettersFromTheBestToTheLowest)
{
    EXPECT_EQ(Shown(GradeLetter(1)), "A -");
    EXPECT_EQ(Shown(GradeLetter(4)), "B -");
    EXPECT_EQ(Shown(GradeLetter(3)), "C -");
    EXPECT_EQ(Shown(GradeLetter(2)), "D -");
    for (int grade = 0; grade <= 255; ++grade) {
        EXPECT_EQ(GradeLetter(static_cast<std::uint8_t>(grade)).empty(), grade < 1 || grade > 4);
    }
}

TEST(Diploma, TheDateStandsWithTheDayFirst)
{
    EXPECT_EQ(Shown(LoadDiploma(WithDate(31, 1, 2026)).date), "Date: 31/01/2026");
    EXPECT_EQ(Shown(LoadDiploma(WithDate(2, 12, 1999)).date), "Date: 02/12/1999");
    EXPECT_EQ(Shown(LoadDiploma(WithDate(0, 0, 0)).date), "Date: 00/00/0000");
}

TEST(Diploma, ADateFromABrokenFileIsShownAsItStands)
{
    EXPECT_EQ(Shown(LoadDiploma(WithDate(-5, 123, 32767)).date), "Date: -05/123/32767");
    EXPECT_EQ(Shown(LoadDiploma(WithDate(-32768, 7, -3)).date), "Date: -32768/07/-0003");
}

TEST(Diploma, TheNameIsTheStudents)
{
    SessionContext context;
    context.studentName = u"علي <b>";
    EXPECT_EQ(Shown(LoadDiploma(context).name), "علي <b>");
}

TEST(Diploma, EachCourseAloneStandsWithoutABlankInFront)
{
    EXPECT_EQ(Courses("...."), "");
    EXPECT_EQ(Courses("1..."), "- Arabic Mac Typing: A -");
    EXPECT_EQ(Courses(".4.."), "- English Mac Typing: B -");
    EXPECT_EQ(Courses("..3."), "- Arabic Win Typing: C -");
    EXPECT_EQ(Courses("...2"), "- English Win Typing: D -");
}

TEST(Diploma, SeveralCoursesRunOnWithOneBlankBeforeTheLast)
{
    EXPECT_EQ(Courses("14.."), "- Arabic Mac Typing: A -- English Mac Typing: B -");
    EXPECT_EQ(Courses("1..4"), "- Arabic Mac Typing: A - - English Win Typing: B -");
    EXPECT_EQ(Courses("..34"), "- Arabic Win Typing: C - - English Win Typing: B -");
    EXPECT_EQ(Courses("1432"), "- Arabic Mac Typing: A -- English Mac Typing: B -"
                               "- Arabic Win Typing: C - - English Win Typing: D -");
}

TEST(Diploma, ACourseWithoutAGradeStandsWithoutALetter)
{
    EXPECT_EQ(Courses("0..5"), "- Arabic Mac Typing:  - English Win Typing: ");
}

TEST(Diploma, TheTextsAreEnglishInBothInterfaces)
{
    SessionContext context = WithDate(31, 1, 2026);
    context.courseDoneArabicMac = true;
    context.arabicInterface = true;
    EXPECT_EQ(Shown(LoadDiploma(context).date), "Date: 31/01/2026");
    EXPECT_EQ(Shown(LoadDiploma(context).course), "- Arabic Mac Typing: ");
}

} // namespace
} // namespace keyfluent::progress
