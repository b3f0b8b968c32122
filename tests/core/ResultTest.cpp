#include "progress/Result.h"

#include "progress/StudentFile.h"
#include "tests/core/ProgressSupport.h"

namespace keyfluent::progress
{
namespace
{

using namespace support;
using context::SessionContext;
using context::StudentRecord;

constexpr const char* nextLesson =
    "Your result was good, and allowed you to move to the next lesson.";
constexpr const char* nextLessonArabic = "إن نتيجتك جيدة وتتيح لك الانتقال إلى الدرس التالي.";
constexpr const char* diploma = "Your result was good, and allowed you to get your diploma, select "
                                "View Diploma from File Menu.";
constexpr const char* diplomaArabic = "إن نتيجتك جيدة وتتيح لك الحصول على شهادة دبلوم. اختر عرض "
                                      "شهادة التخرج من قائمة ملف.";

struct WithStudent {
    SessionContext context;
    FakePlatform platform;

    explicit WithStudent(int lesson, std::int32_t keyboard = 192)
    {
        context.keyboardKind = keyboard;
        context.lessonNo = static_cast<std::uint8_t>(lesson);
        context.reachedLessonMac = keyboard == 0 ? context.lessonNo : 1;
        context.reachedLessonWin = keyboard == 0 ? 1 : context.lessonNo;
    }

    StudentRecord& Lesson()
    {
        return context.studentTable.Record(context.lessonNo + RecordBase(context));
    }
    StudentRecord& Header() { return context.studentTable.Record(1); }
    StudentRecord& Date() { return context.studentTable.Record(31); }
    ResultTexts Load() { return LoadResult(context, platform.Services()); }
};

// "hidden", or "shown: " and the note.
std::string Note(const ResultTexts& texts)
{
    return texts.noteVisible ? "shown: " + Shown(texts.note) : "hidden" + Shown(texts.note);
}

TEST(Result, TheMarksStandInTheTextsInBothLanguages)
{
    WithStudent student(1);
    student.context.accuracyMark = 98;
    student.context.speedBonus = -12;
    student.context.exerciseMark = 86;
    ResultTexts texts = student.Load();
    EXPECT_EQ(Shown(texts.title), "Result");
    EXPECT_EQ(Shown(texts.res), "Resolution Typing Mark: 98");
    EXPECT_EQ(Shown(texts.bonus), "Speed Bonus:            -12");
    EXPECT_EQ(Shown(texts.result), "Your Mark:             86");
    EXPECT_EQ(Note(texts), "hidden");
    student.context.arabicInterface = true;
    texts = student.Load();
    EXPECT_EQ(Shown(texts.title), "النتيجة");
    EXPECT_EQ(Shown(texts.res), "علامة دقة الطباعة:   98");
    EXPECT_EQ(Shown(texts.bonus), "مكافأة للسرعة:      -12");
    EXPECT_EQ(Shown(texts.result), "علامتك لهذا التمرين:  86");
    EXPECT_EQ(Note(texts), "hidden");
}

TEST(Result, ABonusOfZeroIsShownToo)
{
    WithStudent student(1);
    EXPECT_EQ(Shown(student.Load().bonus), "Speed Bonus:            0");
}

TEST(Result, ALessonThatIsNotPassedOpensNothing)
{
    WithStudent student(1);
    student.Lesson()[0] = 499;
    EXPECT_EQ(Note(student.Load()), "hidden");
    EXPECT_EQ(student.context.reachedLessonWin, 1);
}

TEST(Result, EachLessonPassedAtTheReachedPlaceOpensTheNextOnItsKeyboardAlone)
{
    for (const std::int32_t keyboard : {0, 192}) {
        for (int lesson = 1; lesson <= 14; ++lesson) {
            WithStudent student(lesson, keyboard);
            student.Lesson()[0] = 800;
            EXPECT_EQ(Note(student.Load()), std::string("shown: ") + nextLesson);
            EXPECT_EQ(student.context.reachedLessonMac, keyboard == 0 ? lesson + 1 : 1);
            EXPECT_EQ(student.context.reachedLessonWin, keyboard == 0 ? 1 : lesson + 1);
            EXPECT_EQ(student.context.lessonNo, lesson);
        }
    }
    WithStudent student(1);
    student.Lesson()[0] = 500;
    student.context.arabicInterface = true;
    EXPECT_EQ(Note(student.Load()), std::string("shown: ") + nextLessonArabic);
}

TEST(Result, PassingAgainAfterTheNextLessonHasOpenedChangesNothing)
{
    WithStudent student(1);
    student.Lesson()[0] = 500;
    student.Load();
    EXPECT_EQ(Note(student.Load()), "hidden");
    EXPECT_EQ(student.context.reachedLessonWin, 2);
    student.context.reachedLessonWin = 9;
    EXPECT_EQ(Note(student.Load()), "hidden");
    EXPECT_EQ(student.context.reachedLessonWin, 9);
}

TEST(Result, AKeyboardOfNoKnownKindOpensWindowsLessonsButIsToldByTheMacintoshs)
{
    WithStudent student(3, 7);
    student.Lesson()[0] = 500;
    student.context.reachedLessonMac = 1;
    EXPECT_EQ(Note(student.Load()), "hidden");
    EXPECT_EQ(student.context.reachedLessonWin, 4);
    EXPECT_EQ(student.context.reachedLessonMac, 1);
    student.context.reachedLessonMac = 3;
    EXPECT_EQ(Note(student.Load()), std::string("shown: ") + nextLesson);
    EXPECT_EQ(student.context.reachedLessonMac, 3);
}

TEST(Result, Lesson15PassedShowsAnEmptyNoteAndOpensNothing)
{
    for (const std::int32_t keyboard : {0, 192}) {
        WithStudent student(15, keyboard);
        student.Lesson() = {500, 0, 0, 0, 0, 0, 0, 0, 0, 0};
        EXPECT_EQ(Note(student.Load()), "shown: ");
        EXPECT_EQ(student.context.reachedLessonMac, keyboard == 0 ? 15 : 1);
        EXPECT_EQ(student.context.reachedLessonWin, keyboard == 0 ? 1 : 15);
        EXPECT_EQ(student.Header()[1], 0);
    }
}

struct CourseRow {
    std::int32_t keyboard;
    bool arabic;
    std::size_t flag;
    context::Boolean16 SessionContext::*done;
    std::uint8_t SessionContext::*grade;
};

constexpr CourseRow courseRows[] = {
    {0, true, 2, &SessionContext::courseDoneArabicMac, &SessionContext::gradeArabicMac},
    {0, false, 3, &SessionContext::courseDoneEnglishMac, &SessionContext::gradeEnglishMac},
    {192, true, 7, &SessionContext::courseDoneArabicWin, &SessionContext::gradeArabicWin},
    {192, false, 8, &SessionContext::courseDoneEnglishWin, &SessionContext::gradeEnglishWin},
    {5, true, 7, &SessionContext::courseDoneArabicWin, &SessionContext::gradeArabicWin},
    {5, false, 8, &SessionContext::courseDoneEnglishWin, &SessionContext::gradeEnglishWin},
};

// The marks of a completed course with that total, at the least for its other exercises.
void GiveMarks(StudentRecord& record, bool arabic, int total)
{
    if (arabic) {
        record = {static_cast<std::int16_t>(total - 4), 1, 1, 1, 1};
    } else {
        record = {0, 0, 0, 0, 0, static_cast<std::int16_t>(total - 1), 1};
    }
}

TEST(Result, EachCourseIsCompletedOnceWithItsFlagGradeNoteAndTheDate)
{
    for (const CourseRow& row : courseRows) {
        WithStudent student(15, row.keyboard);
        student.platform.date = {2031, 7, 9};
        GiveMarks(student.Lesson(), row.arabic, 400);
        EXPECT_EQ(Note(student.Load()), std::string("shown: ") + diploma);
        StudentRecord header{};
        header[1] = 100;
        header[row.flag] = 100;
        EXPECT_EQ(student.Header(), header) << row.flag;
        EXPECT_TRUE(student.context.*row.done);
        EXPECT_EQ(student.context.*row.grade, 2);
        EXPECT_EQ(student.Date()[7], 9);
        EXPECT_EQ(student.Date()[8], 7);
        EXPECT_EQ(student.Date()[9], 2031);

        // Again: no note but for the passed lesson's own, no other grade, no other date.
        student.platform.date = {2032, 1, 1};
        GiveMarks(student.Lesson(), row.arabic, 450);
        student.Date()[9] = 2031;
        EXPECT_EQ(Note(student.Load()), "hidden");
        EXPECT_EQ(student.context.*row.grade, 2);
        EXPECT_EQ(student.Date()[9], 2031);
    }
}

TEST(Result, TheArabicTestIncludes250AndTheEnglishTestExcludes350)
{
    struct Row {
        bool arabic;
        int total;
        int grade; // 0: not completed
    };
    const Row rows[] = {{true, 249, 0},  {true, 250, 2},  {true, 401, 3},   {true, 1000, 1},
                        {true, 1001, 5}, {false, 349, 0}, {false, 350, 0},  {false, 351, 2},
                        {false, 501, 3}, {false, 801, 4}, {false, 1400, 1}, {false, 1401, 5}};
    for (const Row& row : rows) {
        WithStudent student(15, 0);
        student.context.gradeArabicMac = 5; // stays where no range fits
        student.context.gradeEnglishMac = 5;
        GiveMarks(student.Lesson(), row.arabic, row.total);
        student.Load();
        const bool done = row.grade != 0;
        EXPECT_EQ(student.Header()[row.arabic ? 2 : 3], done ? 100 : 0) << row.total;
        EXPECT_EQ(row.arabic ? student.context.gradeArabicMac : student.context.gradeEnglishMac,
                  done ? row.grade : 5)
            << row.total;
    }
}

TEST(Result, EveryExerciseOfTheCourseMustHaveAMark)
{
    for (std::size_t missing = 0; missing < 7; ++missing) {
        WithStudent student(15);
        student.Lesson() = {200, 200, 200, 200, 200, 500, 500, 0, 0, 0};
        student.Lesson()[missing] = 0;
        student.Load();
        EXPECT_EQ(student.Header()[7], missing < 5 ? 0 : 100) << missing;
        EXPECT_EQ(student.Header()[8], missing < 5 ? 100 : 0) << missing;
    }
}

TEST(Result, BothCoursesMayBeCompletedAtOnceAndOneDateStands)
{
    WithStudent student(15);
    student.Lesson() = {200, 200, 200, 200, 200, 700, 700, 0, 0, 0};
    student.context.arabicInterface = true;
    EXPECT_EQ(Note(student.Load()), std::string("shown: ") + diplomaArabic);
    EXPECT_EQ(student.Header(), (StudentRecord{0, 100, 0, 0, 0, 0, 0, 100, 100, 0}));
    EXPECT_EQ(student.context.gradeArabicWin, 1);
    EXPECT_EQ(student.context.gradeEnglishWin, 1);
    EXPECT_EQ(student.Date()[7], 31);
    EXPECT_EQ(student.Date()[8], 1);
    EXPECT_EQ(student.Date()[9], 2026);
}

TEST(Result, ADiplomaOfTheMacintoshKeyboardStoresItsDateInTheLastWindowsRecord)
{
    WithStudent student(15, 0);
    GiveMarks(student.Lesson(), true, 300);
    student.Load();
    EXPECT_EQ(student.Date(), (StudentRecord{0, 0, 0, 0, 0, 0, 0, 31, 1, 2026}));
    EXPECT_EQ(student.context.studentTable.Record(16)[7], 0);
}

TEST(Result, ASecondCourseLaterLeavesTheDateOfTheFirstDiploma)
{
    WithStudent student(15, 0);
    GiveMarks(student.Lesson(), true, 300);
    student.Load();
    student.platform.date = {2040, 12, 25};
    student.context.keyboardKind = 192;
    student.context.reachedLessonWin = 15;
    student.Date()[5] = 300;
    student.Date()[6] = 300;
    EXPECT_EQ(Note(student.Load()), std::string("shown: ") + diploma);
    EXPECT_EQ(student.Date(), (StudentRecord{0, 0, 0, 0, 0, 300, 300, 31, 1, 2026}));
    EXPECT_EQ(student.Header(), (StudentRecord{0, 100, 100, 0, 0, 0, 0, 0, 100, 0}));
}

TEST(Result, AFlagThatIsNotExactly100CountsAsUnset)
{
    for (const int flag : {0, 1, 99, 101, -1, -100}) {
        WithStudent student(15);
        GiveMarks(student.Lesson(), true, 300);
        student.Header()[1] = static_cast<std::int16_t>(flag);
        student.Header()[7] = static_cast<std::int16_t>(flag);
        EXPECT_EQ(Note(student.Load()), std::string("shown: ") + diploma) << flag;
        EXPECT_EQ(student.Header()[1], 100);
        EXPECT_EQ(student.Header()[7], 100);
        EXPECT_EQ(student.Date()[9], 2026);
    }
}

TEST(Result, CoursesAreCompletedInLesson15Alone)
{
    for (int lesson = 0; lesson <= 255; ++lesson) {
        if (lesson == 15) {
            continue;
        }
        WithStudent student(lesson);
        student.context.reachedLessonWin = 15;
        student.Date() = {200, 200, 200, 200, 200, 700, 700, 0, 0, 0};
        student.context.studentTable.Record(16) = student.Date();
        student.Load();
        ASSERT_EQ(student.Header()[1], 0) << lesson;
        ASSERT_EQ(student.context.reachedLessonWin, 15) << lesson;
    }
}

TEST(Result, TheMacintoshCoursesAreNotCompletedOnWindows)
{
    WithStudent student(15);
    student.context.studentTable.Record(16) = {200, 200, 200, 200, 200, 700, 700, 0, 0, 0};
    student.Load();
    EXPECT_EQ(student.Header(), StudentRecord{});
}

TEST(Result, ASumThatLeaves16BitsEndsTheProgram)
{
    WithStudent student(15);
    student.Lesson() = {0, 0, 0, 0, -1, 32767, 1, 0, 0, 0};
    EXPECT_THROW(student.Load(), context::FatalError); // the lesson's sum fits, the total does not
    WithStudent other(2);
    other.Lesson() = {32767, 1, 0, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_THROW(other.Load(), context::FatalError);
}

} // namespace
} // namespace keyfluent::progress
