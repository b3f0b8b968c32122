#include "ConsoleFixture.h"
#include "context/FatalError.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace keyfluent::headless
{
namespace
{

using ProgressCommandsTest = fixtures::ConsoleFixture;

TEST_F(ProgressCommandsTest, RegimesStarsAndMarksAreToldByThePlace)
{
    EXPECT_EQ(Run("checkslate 14 1 en\ncheckslate 14 3 en\ncheckslate 14 3 ar"),
              "true\nfalse\ntrue\n");
    EXPECT_EQ(Run("speedbonus 2 5 en\nspeedbonus 2 5 ar\nspeedbonus 99 1 ar"),
              "true\nfalse\nfalse\n");
    EXPECT_EQ(Run("standardmark 13 2 en\nstandardmark 8 5 en\nstandardmark 1 2 ar"),
              "500\n0\n50\n");
    EXPECT_EQ(Run("passingmark 9\npassingmark 13\npassingmark 1\npassingmark 0"),
              "300\n800\n500\n500\n");
    ExpectMistakes({"checkslate 1 1 fr", "checkslate x 1 ar", "speedbonus 1 x ar",
                    "standardmark 1 1 1", "passingmark x"});
}

TEST_F(ProgressCommandsTest, SumsAreTakenFromTheRecords)
{
    Run("setrecord 17 100 50 30 20 10 5 4 3 2 1\nsetrecord 31 1 2 3 4 5 6 7 8 9 10");
    EXPECT_EQ(Run("recordbase\nlessonsum 16\nlessonsum 1"), "16\n225\n0\n");
    EXPECT_EQ(Run("arabictotal 17\nenglishtotal 17\narabictotal 31\nenglishtotal 31"),
              "210\n9\n15\n13\n");
    EXPECT_EQ(Run("passed"), "false\n");
    EXPECT_EQ(Run("setrecord 17 500 0 0 0 0 0 0 0 0 0\npassed"), "true\n");
    EXPECT_EQ(Run("set keyboardKind 0\nrecordbase\npassed"), "1\nfalse\n");
    ExpectMistakes(
        {"arabictotal 0", "arabictotal 32", "englishtotal 0", "englishtotal 32", "lessonsum x"});
}

TEST_F(ProgressCommandsTest, ResultShowsTheLastMarksAndOpensTheNextLesson)
{
    Run("set reachedLessonWin 1\nset accuracyMark 98\nset speedBonus -3\nset exerciseMark 95");
    EXPECT_EQ(
        Run("result"),
        R"({"lblTitle": "Result", "lblRes": "Resolution Typing Mark: 98", )"
        R"("lblBonus": "Speed Bonus:            -3", "lblResult": "Your Mark:             95", )"
        R"("lblNote": "", "lblNoteVisible": false})"
        "\n");
    Run("setrecord 17 500 0 0 0 0 0 0 0 0 0");
    EXPECT_NE(Run("result").find("\"lblNoteVisible\": true"), std::string::npos);
    EXPECT_EQ(Run("get reachedLessonWin"), "2\n");
}

TEST_F(ProgressCommandsTest, AStudentIsNewUntilSaved)
{
    EXPECT_EQ(Run("isnewstudent \"Amal\"\nget studentName"), "true\n\"Amal\"\n");
    Run("setrecord 17 77 0 0 0 0 0 0 0 0 0\nset reachedLessonWin 4\nsavestudent");
    EXPECT_EQ(Run("isnewstudent \"Amal\""), "false\n");
    EXPECT_EQ(
        Run("setrecord 17 1 1 1 1 1 1 1 1 1 1\nset reachedLessonWin 1\nloadstudent\nrecord 17\n"
            "get reachedLessonWin"),
        "77 0 0 0 0 0 0 0 0 0\n4\n");
    ExpectMistakes({"isnewstudent Amal"});
}

TEST_F(ProgressCommandsTest, AFileThatCanNotBeReadEndsTheProgram)
{
    Run("set studentName \"a/b\"");
    EXPECT_THROW(console.Execute("loadstudent"), context::FatalError);
}

TEST_F(ProgressCommandsTest, PreferencesAreLoadedShownAndSaved)
{
    EXPECT_EQ(Run("loadprefs\nget keyboardKind\nget fontSize"), "0\n0\n");
    EXPECT_EQ(Run("openprefs"), R"({"arabicInterface": true, "keyboardKind": 192, "fontSize": 14, )"
                                R"("trueKeyColour": 0, "errKeyColour": 255, "colouredHands": true})"
                                "\n");
    EXPECT_EQ(Run("get keyboardKind"), "0\n"); // takes effect at the next loading
    Run("saveprefs false 192 \"16\" 65280 255 false");
    EXPECT_EQ(Run("get keyboardKind\nget fontSize\nget trueKeyColour"), "192\n16\n65280\n");
    EXPECT_EQ(Run("openprefs"),
              R"({"arabicInterface": false, "keyboardKind": 192, "fontSize": 16, )"
              R"("trueKeyColour": 65280, "errKeyColour": 255, "colouredHands": false})"
              "\n");
    EXPECT_EQ(std::filesystem::file_size(folder / "KeyFluent Preference.prf"), 532U);
    ExpectMistakes({"saveprefs 1 192 \"12\" 0 255 true", "saveprefs true x \"12\" 0 255 true",
                    "saveprefs true 192 12 0 255 true", "saveprefs true 192 \"12\" x 255 true",
                    "saveprefs true 192 \"12\" 0 x true", "saveprefs true 192 \"12\" 0 255 on"});
}

TEST_F(ProgressCommandsTest, SuggestNamesTheWeakestExerciseDone)
{
    EXPECT_EQ(Run("suggest"), "0 0 false\n");
    Run("set reachedLessonWin 1\nsetrecord 17 90 40 70 90 180 0 0 0 0 0");
    EXPECT_EQ(Run("suggest"), "3 70 true\n");
    Run("setrecord 17 0 0 0 0 0 90 40 60 90 180");
    EXPECT_EQ(Run("suggest"), "3 60 false\n");
}

TEST_F(ProgressCommandsTest, WelcomeAndByeDrawTheirTexts)
{
    EXPECT_EQ(Run("random 0.125\nwelcome"),
              R"("KeyFluent Recommends for today:\r\rI don't like to give any recommendations...")"
              "\n");
    EXPECT_EQ(Run("set studentName \"Amal\"\nset leaveNoSave true\nbye"),
              R"("Good Bye" "See you Amal\ras soon as possible, Insha Allah.")"
              "\n");
    EXPECT_EQ(Run("set leaveNoSave false\nrandom 0.6\nbye"),
              R"("See you" "I am so sorry I will miss you!\r\rBut I was harmonized with you")"
              "\n");
}

TEST_F(ProgressCommandsTest, TheDiplomaShowsNameDateAndCourses)
{
    Run("set studentName \"Amal\"\nset courseDoneEnglishWin true\nset gradeEnglishWin 1\n"
        "setrecord 31 0 0 0 0 0 0 0 7 3 2026");
    EXPECT_EQ(Run("diploma"), R"({"lblName": "Amal", "lblDate": "Date: 07/03/2026", )"
                              R"("lblCourse": "- English Win Typing: A -"})"
                              "\n");
}

} // namespace
} // namespace keyfluent::headless
