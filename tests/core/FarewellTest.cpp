#include "progress/Farewell.h"

#include "progress/Leaving.h"
#include "tests/core/ProgressSupport.h"

namespace keyfluent::progress
{
namespace
{

using namespace support;
using context::SessionContext;

SessionContext Leaver(bool arabicInterface)
{
    SessionContext context;
    context.studentName = u"Ali";
    context.keyboardKind = 192;
    context.reachedLessonWin = 7;
    context.reachedLessonMac = 4;
    context.arabicInterface = arabicInterface;
    return context;
}

// The button's caption and the message, with a bar between.
std::string Bye(SessionContext context, std::deque<double> draws)
{
    FakePlatform platform;
    platform.seconds = 50000.25;
    platform.draws = std::move(draws);
    const std::size_t count = platform.draws.size();
    const ByeTexts texts = ByeMessage(context, platform.Services());
    EXPECT_TRUE(platform.draws.empty());
    EXPECT_EQ(platform.seeds, std::vector<double>(count, 50000.25));
    return Shown(texts.caption) + "|" + Shown(texts.message);
}

double Drawing(int r)
{
    return (r - 0.5) / 5;
}

constexpr const char* plainEnglish = "Good Bye|See you Ali\ras soon as possible, Insha Allah.";
constexpr const char* plainArabic = "مع السلامة|إلى اللقاء يا Ali\rوبأقرب وقت ممكن، إن شاء الله...";

TEST(Farewell, TheFiveEnglishFarewells)
{
    const char* const expected[] = {
        "Good Bye|It's pleased Keyfluent to greet you, Ali.\r"
        "And wish you a good health for ever.",
        "Good Bye|See you, Ali.\rNext time we will start with the lesson: 7Special Characters ",
        "See you|I hope you did not get bored!\rSee you as soon as possible and you are fine",
        "See you|I am so sorry I will miss you!\r\rBut I was harmonized with you",
        "See you|You don't like KeyFluent!, don't you?\rI hope you come back next time, Ali.",
    };
    for (int r = 1; r <= 5; ++r) {
        EXPECT_EQ(Bye(Leaver(false), {Drawing(r)}), expected[r - 1]) << r;
    }
}

TEST(Farewell, TheFiveArabicFarewells)
{
    const char* const expected[] = {
        "مع السلامة|يسر كي فلونت أن يحييك يا Ali\r ويتمنى لك كامل الصحة والعافية.",
        "مع السلامة|إلى اللقاء يا Ali.\rالمرة القادمة: سنبدأ بالدرس 7حروف خاصة ",
        "إلى اللقاء|آمل ألا تكون قد ضجرت يا Ali.\r\rإلى اللقاء قريبا وأنت بأحسن حال.",
        "إلى اللقاء|يؤسفني جدا أن نفترق بهذه السرعة.\r\rفلقد كنا بكامل الانسجام سوية.",
        "إلى اللقاء|ألم يعجبك كي فلونت؟ \rآمل عودتك ثانية يا Ali على الرغم من ذلك.",
    };
    for (int r = 1; r <= 5; ++r) {
        EXPECT_EQ(Bye(Leaver(true), {Drawing(r)}), expected[r - 1]) << r;
    }
}

TEST(Farewell, TheDrawIsTheWholePartOfTheRandomNumberTimes5)
{
    const auto drawn = [](int r) { return Bye(Leaver(false), {Drawing(r)}); };
    EXPECT_EQ(Bye(Leaver(false), {0.0}), drawn(1));
    EXPECT_EQ(Bye(Leaver(false), {0.199}), drawn(1));
    EXPECT_EQ(Bye(Leaver(false), {0.2}), drawn(2));
    EXPECT_EQ(Bye(Leaver(false), {0.4}), drawn(3));
    EXPECT_EQ(Bye(Leaver(false), {0.7999}), drawn(4));
    EXPECT_EQ(Bye(Leaver(false), {0.8}), drawn(5));
    EXPECT_EQ(Bye(Leaver(false), {0.999999999}), drawn(5));
}

TEST(Farewell, AStudentWhoDidNotSaveIsGivenThePlainOneWithoutADraw)
{
    for (const bool arabic : {false, true}) {
        SessionContext context = Leaver(arabic);
        context.leaveNoSave = true;
        EXPECT_EQ(Bye(context, {}), arabic ? plainArabic : plainEnglish);
    }
}

TEST(Farewell, AnAnswerOfNoLastsUntilTheNextCancel)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "Students");
    SessionContext context = Leaver(false);
    context.appFolder = context::FromUtf8(folder.Path().string());
    LeaveNo(context);
    context.studentName = u"Ali";
    BeginQuit(context);
    LeaveYes(context);
    EXPECT_EQ(Bye(context, {}), plainEnglish);
    LeaveCancel(context);
    EXPECT_NE(Bye(context, {Drawing(1)}), plainEnglish);
}

TEST(Farewell, AnEmptyNameBecomesTheWordForAFriend)
{
    FakePlatform platform;
    SessionContext context = Leaver(false);
    context.leaveNoSave = true;
    context.studentName.clear();
    EXPECT_EQ(Shown(ByeMessage(context, platform.Services()).message),
              "See you Friend\ras soon as possible, Insha Allah.");
    EXPECT_EQ(Shown(context.studentName), "Friend");
    context.studentName.clear();
    context.arabicInterface = true;
    EXPECT_EQ(Shown(ByeMessage(context, platform.Services()).message),
              "إلى اللقاء يا صديقي\rوبأقرب وقت ممكن، إن شاء الله...");
    EXPECT_EQ(Shown(context.studentName), "صديقي");
}

TEST(Farewell, TheEnglishOneNamesTheLessonOfTheKeyboardThatIsWindowsByNumberAlone)
{
    SessionContext context = Leaver(false);
    for (const std::int32_t kind : {0, 1, -1}) {
        context.keyboardKind = kind;
        EXPECT_EQ(
            Bye(context, {Drawing(2)}),
            "Good Bye|See you, Ali.\rNext time we will start with the lesson: 4Pinkie & Ring ");
    }
}

TEST(Farewell, TheArabicOneNamesTheWindowsLessonOnEitherKeyboard)
{
    SessionContext context = Leaver(true);
    const std::string onWindows = Bye(context, {Drawing(2)});
    context.keyboardKind = 0;
    EXPECT_EQ(Bye(context, {Drawing(2)}), onWindows);
}

TEST(Farewell, ALessonOutsideTheCourseHasANumberAndNoName)
{
    SessionContext context = Leaver(false);
    context.reachedLessonWin = 0;
    EXPECT_EQ(Bye(context, {Drawing(2)}),
              "Good Bye|See you, Ali.\rNext time we will start with the lesson: 0 ");
}

} // namespace
} // namespace keyfluent::progress
