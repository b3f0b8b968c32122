#include "progress/Chooser.h"

#include "progress/StandardMarks.h"
#include "tests/core/ProgressSupport.h"

namespace keyfluent::progress
{
namespace
{

using namespace support;
using context::SessionContext;
using context::StudentRecord;

SessionContext At(int lesson, bool arabicInterface = false, std::int32_t keyboard = 192)
{
    SessionContext context;
    context.lessonNo = static_cast<std::uint8_t>(lesson);
    context.arabicInterface = arabicInterface;
    context.keyboardKind = keyboard;
    return context;
}

// The five texts with a comma between.
std::string Line(const ExerciseTexts& texts)
{
    std::string line;
    for (const std::u16string& text : texts) {
        line += (line.empty() ? "" : ", ") + Shown(text);
    }
    return line;
}

TEST(Chooser, TheLessonIsNamedInBothLanguages)
{
    SessionContext context = At(15);
    EXPECT_EQ(Shown(LoadChooser(context).lessonTitle), "Lesson No: (15 ) End & Mouse");
    context.arabicInterface = true;
    EXPECT_EQ(Shown(LoadChooser(context).lessonTitle), "الدرس رقم : (15 ) نهاية وماوس");
}

TEST(Chooser, PassingMarkAndSumAreToldInBothLanguages)
{
    SessionContext context = At(13);
    context.studentTable.Record(29) = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    EXPECT_EQ(Shown(LoadChooser(context).passing), "Passing Mark: 800");
    EXPECT_EQ(Shown(LoadChooser(context).sum), "Your Score:55");
    context.arabicInterface = true;
    EXPECT_EQ(Shown(LoadChooser(context).passing), "علامة النجاح : 800");
    EXPECT_EQ(Shown(LoadChooser(context).sum), "مجموعك :      55");
}

TEST(Chooser, EveryStandardMarkStandsWithAStarWhereSpeedCounts)
{
    for (int lesson = 1; lesson <= 15; ++lesson) {
        SessionContext context = At(lesson);
        const ChooserTexts texts = LoadChooser(context);
        for (int exercise = 1; exercise <= 5; ++exercise) {
            const auto i = static_cast<std::size_t>(exercise - 1);
            for (const bool arabic : {true, false}) {
                const std::string expected =
                    std::to_string(StandardMark(lesson, exercise, arabic)) +
                    (HasSpeedBonus(lesson, exercise, arabic) ? " *" : "");
                EXPECT_EQ(Shown(arabic ? texts.arabicStandard[i] : texts.englishStandard[i]),
                          expected)
                    << lesson << "." << exercise;
            }
        }
    }
    SessionContext context = At(10);
    const ChooserTexts texts = LoadChooser(context);
    EXPECT_EQ(Line(texts.arabicStandard), "100 *, 50, 100, 100, 200 *");
    EXPECT_EQ(Line(texts.englishStandard), "200 *, 100, 100 *, 0, 0");
}

TEST(Chooser, BestMarksAreThoseOfTheKeyboardInUse)
{
    for (const std::int32_t keyboard : {0, 192, 7}) {
        SessionContext context = At(3, false, keyboard);
        context.studentTable.Record(4) = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
        context.studentTable.Record(19) = {130, -2, 0, 4, 30000, 60, 70, 80, 90, -30000};
        const ChooserTexts texts = LoadChooser(context);
        EXPECT_EQ(Line(texts.arabicMark), keyboard == 0 ? "1, 2, 3, 4, 5" : "130, -2, 0, 4, 30000");
        EXPECT_EQ(Line(texts.englishMark),
                  keyboard == 0 ? "6, 7, 8, 9, 10" : "60, 70, 80, 90, -30000");
    }
}

TEST(Chooser, ALessonNeverDoneShowsZeros)
{
    SessionContext context = At(1);
    const ChooserTexts texts = LoadChooser(context);
    EXPECT_EQ(Line(texts.arabicMark), "0, 0, 0, 0, 0");
    EXPECT_EQ(Line(texts.englishMark), "0, 0, 0, 0, 0");
    EXPECT_EQ(Shown(texts.sum), "Your Score:0");
}

TEST(Chooser, TheDateOfTheDiplomaNeverShowsAsMarks)
{
    SessionContext context = At(15);
    context.studentTable.Record(31) = {100, 100, 100, 100, 100, 200, 500, 31, 12, 2026};
    const ChooserTexts texts = LoadChooser(context);
    EXPECT_EQ(Line(texts.englishStandard), "200 *, 500 *, 0, 0, 0");
    EXPECT_EQ(Line(texts.englishMark), "200, 500, 0, 0, 0");
    EXPECT_EQ(Shown(texts.sum), "Your Score:1200");
}

TEST(Chooser, OnlyAPlaceWithoutAStandardMarkHidesItsField)
{
    SessionContext context = At(8);
    context.studentTable.Record(24).fill(77);
    EXPECT_EQ(Line(LoadChooser(context).englishMark), "77, 77, 77, 77, 0");
    for (const int lesson : {11, 14}) {
        context = At(lesson);
        context.studentTable.Record(lesson + 16).fill(77);
        EXPECT_EQ(Line(LoadChooser(context).englishMark), "77, 77, 77, 77, 77") << lesson;
    }
    EXPECT_EQ(Shown(LoadChooser(context).englishStandard[4]), "100");
}

TEST(Chooser, ButtonsAreNumberedAndSpecialPlacesAreNamedInBothLanguages)
{
    const char* const english[] = {
        "1 -1, 1 -2, 1 -3, 1 -4, 1 -5",
        "2 -1, 2 -2, 2 -3, 2 -4, 2 -5",
        "3 -1, 3 -2, 3 -3, 3 -4, 3 -5",
        "4 -1, 4 -2, 4 -3, 4 -4, 4 -5",
        "5 -1, 5 -2, 5 -3, 5 -4, 5 -5",
        "6 -1, 6 -2, 6 -3, 6 -4, 6 -5",
        "7 -1, 7 -2, 7 -3, 7 -4, 7 -5",
        "8 -1, 8 -2, 8 -3, 8 -4, Anagram",
        "9 -1, 9 -2, 9 -3, 9 -4, -الجناس-",
        "10 -1, 10 -2, 10 -3, Anagram, -الجناس-",
        "11 -1, 11 -2, 11 -3, 11 -4, -الجناس-",
        "12 -1, 12 -2, Anagram, Free Text, -الجناس-",
        "13 -1, 13 -2, Anagram, Free Text, -الجناس-",
        "14 -1, 14 -2, Anagram, Free Text, -الجناس-",
        "15 -1, 15 -2, Anagram, Free Text, -الجناس-",
    };
    for (int lesson = 1; lesson <= 15; ++lesson) {
        SessionContext context = At(lesson);
        const std::string n = std::to_string(lesson);
        ChooserTexts texts = LoadChooser(context);
        EXPECT_EQ(Line(texts.englishButton), english[lesson - 1]);
        EXPECT_EQ(Line(texts.arabicButton),
                  n + " -1, " + n + " -2, " + n + " -3, " + n + " -4, " + n + " -5");
        context.arabicInterface = true;
        texts = LoadChooser(context);
        EXPECT_EQ(Line(texts.arabicButton),
                  n + " - 1, " + n + " - 2, " + n + " - 3, " + n + " - 4, " + n + " - 5");
    }
    SessionContext context = At(12, true);
    EXPECT_EQ(Line(LoadChooser(context).englishButton),
              "12 - 1, 12 - 2, Anagram, Free Text, -الجناس-");
}

std::string Flags(const SessionContext& context)
{
    return std::string(context.englishAnagram ? "e" : "") + (context.arabicAnagram ? "a" : "") +
           (context.freeText ? "f" : "");
}

void RaiseAll(SessionContext& context)
{
    context.englishAnagram = true;
    context.arabicAnagram = true;
    context.freeText = true;
}

TEST(Chooser, LoadingClearsTheThreeFlags)
{
    SessionContext context = At(12);
    RaiseAll(context);
    LoadChooser(context);
    EXPECT_EQ(Flags(context), "");
}

TEST(Chooser, AnEnglishButtonRaisesTheFlagOfItsPlaceAlone)
{
    // The flags of exercises 1 to 5 of each lesson.
    const char* const table[] = {".....", ".....", ".....", ".....", ".....",
                                 ".....", ".....", "....e", "....a", "...ea",
                                 "....a", "..efa", "..efa", "..efa", "..efa"};
    for (int lesson = 1; lesson <= 15; ++lesson) {
        for (int exercise = 1; exercise <= 5; ++exercise) {
            SessionContext context = At(lesson);
            context.arabicExercise = true;
            RaiseAll(context);
            ChooseExercise(context, static_cast<std::uint8_t>(exercise), false);
            const char flag = table[lesson - 1][exercise - 1];
            EXPECT_EQ(Flags(context), flag == '.' ? "" : std::string(1, flag))
                << lesson << "." << exercise;
            EXPECT_FALSE(context.arabicExercise);
            EXPECT_EQ(context.exerciseNo, exercise);
        }
    }
}

TEST(Chooser, AnArabicButtonLeavesTheFlagsAsTheLoadLeftThem)
{
    for (int lesson = 1; lesson <= 15; ++lesson) {
        for (int exercise = 1; exercise <= 5; ++exercise) {
            SessionContext context = At(lesson);
            ChooseExercise(context, static_cast<std::uint8_t>(exercise), true);
            EXPECT_EQ(Flags(context), "");
            EXPECT_TRUE(context.arabicExercise);
            EXPECT_EQ(context.exerciseNo, exercise);
            RaiseAll(context);
            ChooseExercise(context, static_cast<std::uint8_t>(exercise), true);
            EXPECT_EQ(Flags(context), "eaf");
        }
    }
}

TEST(Chooser, ALessonOutsideTheCourseIsShownWithoutAFault)
{
    for (int lesson = 0; lesson <= 255; ++lesson) {
        for (const std::int32_t keyboard : {0, 192}) {
            if (lesson >= 1 && lesson <= 15) {
                continue;
            }
            SessionContext context = At(lesson, false, keyboard);
            for (StudentRecord& record : context.studentTable.records) {
                record.fill(3);
            }
            const ChooserTexts texts = LoadChooser(context);
            const bool inside = lesson + (keyboard == 0 ? 1 : 16) <= 31;
            ASSERT_EQ(Line(texts.arabicMark), inside ? "3, 3, 3, 3, 3" : "0, 0, 0, 0, 0");
            ASSERT_EQ(Line(texts.englishMark), "0, 0, 0, 0, 0");
            ASSERT_EQ(Line(texts.arabicStandard), "0, 0, 0, 0, 0");
            ASSERT_EQ(Shown(texts.lessonTitle), "Lesson No: (" + std::to_string(lesson) + " ) ");
            ASSERT_EQ(Shown(texts.sum), inside ? "Your Score:30" : "Your Score:0");
            ASSERT_EQ(Shown(texts.passing), "Passing Mark: 500");
        }
    }
}

TEST(Chooser, ASumThatLeaves16BitsEndsTheProgram)
{
    SessionContext context = At(2);
    context.studentTable.Record(18) = {32767, 1, -5, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_THROW(LoadChooser(context), context::FatalError);
}

} // namespace
} // namespace keyfluent::progress
