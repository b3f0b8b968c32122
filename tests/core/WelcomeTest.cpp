#include "progress/Welcome.h"

#include "progress/StandardMarks.h"
#include "tests/core/ProgressSupport.h"

#include <array>
#include <cmath>
#include <numeric>
#include <random>

namespace keyfluent::progress
{
namespace
{

using namespace support;
using context::SessionContext;
using context::StudentRecord;

// A student at a lesson of the Windows keyboard, with the marks of that lesson.
SessionContext Student(int lesson, const StudentRecord& marks = {}, bool arabicInterface = false)
{
    SessionContext context;
    context.studentName = u"Ali";
    context.keyboardKind = 192;
    context.reachedLessonWin = static_cast<std::uint8_t>(lesson);
    context.reachedLessonMac = 1;
    context.lessonNo = 2;
    context.arabicInterface = arabicInterface;
    if (lesson >= 1 && lesson <= 15) {
        context.studentTable.Record(lesson + 16) = marks;
    }
    return context;
}

// The random number that draws r.
double Drawing(int r)
{
    return (r - 0.5) / 8;
}

std::string Welcome(const SessionContext& context, std::deque<double> draws)
{
    FakePlatform platform;
    platform.draws = std::move(draws);
    const std::string text = Shown(WelcomeText(context, platform.Services()));
    EXPECT_TRUE(platform.draws.empty()) << platform.draws.size() << " draws left";
    return text;
}

std::string Drawn(const SessionContext& context, int r)
{
    return Welcome(context, {Drawing(r)});
}

// Whether a draw fails: the next one is then made.
bool Fails(const SessionContext& context, int r)
{
    FakePlatform platform;
    platform.draws = {Drawing(r), Drawing(2)};
    WelcomeText(context, platform.Services());
    return platform.draws.empty();
}

std::string Told(const Suggestion& suggestion)
{
    return std::to_string(suggestion.exercise) + " " + std::to_string(suggestion.percent) +
           (suggestion.isArabic ? " Arabic" : " English");
}

constexpr StudentRecord allDone = {90, 45, 90, 81, 180, 90, 45, 90, 90, 162};

TEST(Welcome, TheSuggestionNamesLessonAndExercise)
{
    const StudentRecord arabic = {90, 45, 30, 80, 180, 0, 0, 0, 0, 0};
    EXPECT_EQ(Drawn(Student(1, arabic), 1),
              "Welcome Ali\r\rYou are now in the Lesson No: 1 Guide Row\r"
              "I Suggest to repeat exercise no: 3.\rBecause it's score is the lowest.");
    EXPECT_EQ(Drawn(Student(1, arabic, true), 1),
              "أهلا بك يا Ali.\r\rأنت الآن في الدرس: 1 صف الارتكاز\r"
              "أقترح عليك تكرار التمرين العربي ورقمه: 1-3.\r"
              "إن علامته أقل من علامات باقي التمارين.");
}

TEST(Welcome, TheSuggestionTellsTheLanguageInArabicAlone)
{
    const StudentRecord english = {0, 0, 0, 0, 0, 90, 45, 30, 80, 180};
    EXPECT_EQ(Drawn(Student(1, english), 1),
              "Welcome Ali\r\rYou are now in the Lesson No: 1 Guide Row\r"
              "I Suggest to repeat exercise no: 3.\rBecause it's score is the lowest.");
    EXPECT_EQ(Drawn(Student(1, english, true), 1),
              "أهلا بك يا Ali.\r\rأنت الآن في الدرس: 1 صف الارتكاز\r"
              "أقترح عليك تكرار التمرين الإنجليزي ورقمه: 1-3.\r"
              "إن علامته أقل من علامات باقي التمارين.");
}

TEST(Welcome, NoRecommendation)
{
    EXPECT_EQ(Drawn(Student(1), 2),
              "KeyFluent Recommends for today:\r\rI don't like to give any recommendations...");
    EXPECT_EQ(Drawn(Student(1, {}, true), 2),
              "توصية كي فلونت لهذا اليوم:\r\rلا أرغب بإعطاء أية وصية لهذا اليوم.");
}

TEST(Welcome, GoodWishesComeOnThreeDraws)
{
    for (const int r : {3, 6, 7}) {
        EXPECT_EQ(Drawn(Student(1), r),
                  "I hope you will be fine, Ali, in this day, as you know the life is beautiful, "
                  "KeyFluent came here to help you finishing your wrok friendly.");
        EXPECT_EQ(Drawn(Student(1, {}, true), r),
                  "آمل أن تكون بكامل الصحة يا Ali في هذا اليوم، فالحياة جميلة،\r"
                  "إضافة إلى أن كي فلونت موجود هنا ليساعدك على العمل بكل بهجة وسرور!");
    }
}

TEST(Welcome, TwoDrawsPointToAMenu)
{
    EXPECT_EQ(Drawn(Student(7), 4), "Befor going on the Special Characters, Lesson No: 7\r\r"
                                    "I suggest to read the Recommendation Menu.");
    EXPECT_EQ(Drawn(Student(7), 8), "Befor going on the Special Characters, Lesson No: 7\r\r"
                                    "I suggest to read the Help Menu.");
    EXPECT_EQ(Drawn(Student(7, {}, true), 4), "قبل بدء هذا الدرس رقم: 7 حروف خاصة\r\r"
                                              "أقترح عليك قراء قائمة الأوامر توصية.");
    EXPECT_EQ(Drawn(Student(7, {}, true), 8), "قبل بدء هذا الدرس رقم: 7 حروف خاصة\r\r"
                                              "أقترح عليك قراء قائمة الأوامر تعليمات.");
}

TEST(Welcome, ThePraiseTellsWhichLanguageIsDoneWell)
{
    StudentRecord arabic = allDone;
    arabic[7] = 80;
    StudentRecord english = allDone;
    english[0] = 80;
    EXPECT_EQ(Drawn(Student(1, allDone), 5),
              "Welldone!! You have achieved 80% or more in all exercises!");
    EXPECT_EQ(Drawn(Student(1, arabic), 5),
              "Welldone! You have achieved 80% or more in all Arabic exercise.");
    EXPECT_EQ(Drawn(Student(1, english), 5),
              "Welldone! You have achieved 80% or more in all English exercise.");
    EXPECT_EQ(Drawn(Student(1, allDone, true), 5),
              "مرحى لك! لقد حصلت على نتيجة 80% أو أكثر في جميع تمارين هذا الدرس!");
    EXPECT_EQ(Drawn(Student(1, arabic, true), 5),
              "مرحى لك! لقد حصلت على نتيجة 80% أو أكثر في جميع التمارين العربية في هذا الدرس.");
    EXPECT_EQ(Drawn(Student(1, english, true), 5),
              "مرحى لك! لقد حصلت على نتيجة 80% أو أكثر في جميع التمارين الإنجليزية هذا الدرس.");
}

TEST(Welcome, ThePraiseNeedsEveryExerciseOfALanguageAbove80)
{
    EXPECT_FALSE(Fails(Student(1, allDone), 5));
    for (std::size_t first = 0; first < 5; ++first) {
        for (std::size_t second = 5; second < 10; ++second) {
            StudentRecord marks = allDone;
            const auto lower = [&](std::size_t field) {
                const bool arabic = field < 5;
                const int exercise = static_cast<int>(field % 5) + 1;
                marks[field] =
                    static_cast<std::int16_t>(StandardMark(1, exercise, arabic) * 80 / 100);
            };
            lower(first);
            EXPECT_FALSE(Fails(Student(1, marks), 5)) << first;
            lower(second);
            EXPECT_TRUE(Fails(Student(1, marks), 5)) << first << " " << second;
        }
    }
    // 161 of 200 is 80.5, which rounds to 80; 163 of 200 is 81.5, which rounds to 82.
    StudentRecord marks = {100, 50, 100, 100, 161, 0, 0, 0, 0, 0};
    EXPECT_TRUE(Fails(Student(1, marks), 5));
    marks[4] = 163;
    EXPECT_FALSE(Fails(Student(1, marks), 5));
}

TEST(Welcome, AStudentWithoutMarksIsGivenSixOfTheEightDraws)
{
    for (int r = 1; r <= 8; ++r) {
        EXPECT_EQ(Fails(Student(1), r), r == 1 || r == 5) << r;
    }
}

TEST(Welcome, FailingDrawsAreRepeatedAndEachSeedsFromTheClock)
{
    FakePlatform platform;
    platform.seconds = 41234.5;
    platform.draws = {Drawing(1), Drawing(5), Drawing(5), Drawing(1), Drawing(2)};
    const std::string text = Shown(WelcomeText(Student(1), platform.Services()));
    EXPECT_EQ(text.substr(0, 20), "KeyFluent Recommends");
    EXPECT_EQ(platform.seeds, std::vector<double>(5, 41234.5));
}

TEST(Welcome, TheDrawIsTheWholePartOfTheRandomNumberTimes8)
{
    const SessionContext context = Student(1);
    EXPECT_EQ(Welcome(context, {0.0, 0.124999, 0.125}), Drawn(context, 2));
    EXPECT_EQ(Welcome(context, {0.249999}), Drawn(context, 2));
    EXPECT_EQ(Welcome(context, {0.25}), Drawn(context, 3));
    EXPECT_EQ(Welcome(context, {0.375}), Drawn(context, 4));
    EXPECT_EQ(Welcome(context, {0.5, 0.624999, 0.625}), Drawn(context, 6));
    EXPECT_EQ(Welcome(context, {0.874999}), Drawn(context, 7));
    EXPECT_EQ(Welcome(context, {0.875}), Drawn(context, 8));
    EXPECT_EQ(Welcome(context, {0.999999999}), Drawn(context, 8));
}

TEST(Welcome, TheLessonIsTheReachedOneOfTheKeyboardAndWindowsForEveryKindBut0)
{
    SessionContext context = Student(9);
    context.reachedLessonMac = 4;
    for (const std::int32_t kind : {192, 1, -1}) {
        context.keyboardKind = kind;
        EXPECT_EQ(Drawn(context, 4).substr(0, 38), "Befor going on the Signs, Lesson No: 9")
            << kind;
    }
    context.keyboardKind = 0;
    EXPECT_EQ(Drawn(context, 4).substr(0, 46), "Befor going on the Pinkie & Ring, Lesson No: 4");
}

TEST(Welcome, ALessonOutsideTheCourseHasNoNameAndNothingToSuggestOrPraise)
{
    for (const int lesson : {0, 16, 255}) {
        SessionContext context = Student(lesson);
        for (StudentRecord& record : context.studentTable.records) {
            record.fill(100);
        }
        EXPECT_EQ(Drawn(context, 4), "Befor going on the , Lesson No: " + std::to_string(lesson) +
                                         "\r\rI suggest to read the Recommendation Menu.");
        EXPECT_TRUE(Fails(context, 1));
        EXPECT_TRUE(Fails(context, 5));
    }
}

TEST(Welcome, TheLowestOfTheLanguageThatIsDoneIsSuggested)
{
    struct Row {
        StudentRecord marks;
        const char* suggested;
    };
    const Row rows[] = {
        {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, "0 0 English"},
        {{90, 45, 80, 90, 180, 0, 0, 0, 0, 0}, "3 80 Arabic"},
        {{0, 0, 0, 0, 0, 90, 45, 90, 70, 180}, "4 70 English"},
        {{90, 45, 80, 90, 180, 90, 45, 90, 70, 180}, "4 70 English"},
        {{90, 45, 60, 90, 180, 90, 45, 90, 70, 180}, "3 60 Arabic"},
        {{90, 45, 70, 90, 180, 90, 45, 90, 70, 180}, "0 0 English"}, // equal
        {{90, 45, 0, 90, 180, 90, 45, 90, 70, 180}, "4 70 English"}, // one is not done
        {{90, 45, 60, 90, 180, 0, 45, 90, 70, 180}, "3 60 Arabic"},
        {{90, 45, 60, 90, 0, 0, 45, 90, 70, 180}, "0 0 English"},
        {{60, 30, 60, 60, 120, 0, 0, 0, 0, 0}, "1 60 Arabic"}, // the first of equal ones
        {{61, 31, 61, 60, 120, 0, 0, 0, 0, 0}, "4 60 Arabic"},
        {{200, 100, 200, 190, 400, 0, 0, 0, 0, 0}, "4 190 Arabic"}, // above the standard mark
        {{-5, 45, 60, 90, 180, 90, 45, 90, 70, 180}, "4 70 English"},
        {{32767, 32767, 32767, 32767, 32767, 0, 0, 0, 0, 0}, "5 16384 Arabic"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Told(SuggestExercise(Student(1, row.marks))), row.suggested);
        EXPECT_EQ(Fails(Student(1, row.marks), 1), std::string(row.suggested).starts_with('0'));
    }
}

TEST(Welcome, PercentagesAreRoundedWithHalvesToTheEvenNeighbour)
{
    // The last exercise has a standard mark of 200.
    EXPECT_EQ(Told(SuggestExercise(Student(1, {90, 90, 90, 90, 1}))), "0 0 English");   // 0.5
    EXPECT_EQ(Told(SuggestExercise(Student(1, {90, 90, 90, 90, 3}))), "5 2 Arabic");    // 1.5
    EXPECT_EQ(Told(SuggestExercise(Student(1, {90, 90, 90, 90, 5}))), "5 2 Arabic");    // 2.5
    EXPECT_EQ(Told(SuggestExercise(Student(1, {90, 90, 90, 90, 161}))), "5 80 Arabic"); // 80.5
}

// The suggestion once more, by a plain exchange sort that carries the exercise numbers along.
Suggestion BySorting(int lesson, const StudentRecord& marks)
{
    std::array<int, 2> lowest{};
    std::array<int, 2> exercise{};
    for (const std::size_t language : {0, 1}) {
        std::array<int, 5> percent{};
        std::array<int, 5> number{};
        std::iota(number.begin(), number.end(), 1);
        for (std::size_t i = 0; i < 5; ++i) {
            const int standard = StandardMark(lesson, number[i], language == 0);
            percent[i] =
                standard == 0
                    ? 0
                    : static_cast<int>(std::nearbyint(100.0 * marks[5 * language + i] / standard));
        }
        for (int pass = 0; pass < 5; ++pass) {
            for (std::size_t i = 0; i < 4; ++i) {
                if (percent[i] > percent[i + 1]) {
                    std::swap(percent[i], percent[i + 1]);
                    std::swap(number[i], number[i + 1]);
                }
            }
        }
        lowest[language] = percent[0];
        exercise[language] = number[0];
    }
    const auto [a, e] = lowest;
    if (a > 0 && (e <= 0 || a < e)) {
        return {exercise[0], a, true};
    }
    if (e > 0 && (a <= 0 || a > e)) {
        return {exercise[1], e, false};
    }
    return {};
}

TEST(Welcome, TheSuggestionAgreesWithAnExchangeSort)
{
    std::mt19937 generator(4);
    for (int round = 0; round < 20000; ++round) {
        const int lesson = 1 + round % 15;
        StudentRecord marks{};
        const unsigned range = round % 3 == 0 ? 4 : 120;
        for (std::int16_t& mark : marks) {
            mark = static_cast<std::int16_t>(generator() % range + (round % 2));
        }
        const SessionContext context = Student(lesson, marks);
        ASSERT_EQ(Told(SuggestExercise(context)), Told(BySorting(lesson, marks)))
            << "lesson " << lesson;
    }
}

TEST(Welcome, LessonsWithPlacesThatNeverScoreSuggestAndPraiseArabicAlone)
{
    for (const int lesson : {8, 9, 10, 11, 12, 13, 14, 15}) {
        StudentRecord marks{};
        for (int exercise = 1; exercise <= 5; ++exercise) {
            const auto field = static_cast<std::size_t>(exercise - 1);
            marks[field] = StandardMark(lesson, exercise, true);
            marks[5 + field] = NeverScores(lesson, exercise)
                                   ? std::int16_t{0}
                                   : StandardMark(lesson, exercise, false);
        }
        EXPECT_EQ(Told(SuggestExercise(Student(lesson, marks))), "1 100 Arabic") << lesson;
        EXPECT_EQ(Drawn(Student(lesson, marks), 5),
                  "Welldone! You have achieved 80% or more in all Arabic exercise.");
        marks[0] = 0;
        EXPECT_EQ(Told(SuggestExercise(Student(lesson, marks))), "0 0 English") << lesson;
        EXPECT_TRUE(Fails(Student(lesson, marks), 5)) << lesson;
    }
}

TEST(Welcome, TheMarksAreThoseOfTheKeyboardInUse)
{
    SessionContext context = Student(3);
    context.reachedLessonMac = 3;
    context.studentTable.Record(4) = {50, 50, 50, 50, 50, 0, 0, 0, 0, 0};
    EXPECT_EQ(SuggestExercise(context).exercise, 0);
    context.keyboardKind = 0;
    EXPECT_EQ(Told(SuggestExercise(context)), "5 25 Arabic");
}

} // namespace
} // namespace keyfluent::progress
