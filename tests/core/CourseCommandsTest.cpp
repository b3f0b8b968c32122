#include "ConsoleFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace keyfluent::headless
{
namespace
{

using CourseCommandsTest = fixtures::ConsoleFixture;

TEST_F(CourseCommandsTest, RowsPrintsTheirNumberAndThenEach)
{
    const std::string answer = Run("rows 192 1 1");
    EXPECT_EQ(answer.substr(0, 29), "46\n\"asdf \"\n\"asdf \"\n\"asdf \"\n\"j");
    EXPECT_EQ(answer.substr(answer.size() - 4), "end\n");
    EXPECT_EQ(std::count(answer.begin(), answer.end(), '\n'), 48);
    Run("set arabicExercise true");
    EXPECT_EQ(Run("rows 192 1 1").substr(0, 3), "40\n");
    Run("set arabicExercise false");
    EXPECT_EQ(Run("rows 192 8 5"), "1\n\"\"\nend\n");
}

TEST_F(CourseCommandsTest, RowsKeepsTheNumberWhereThereIsNothingToGive)
{
    EXPECT_EQ(Run("rows 0 1 1"), "0\nend\n");
    Run("rows 192 2 3");
    const std::string kept =
        "12\n\"\"\n\"\"\n\"\"\n\"\"\n\"\"\n\"\"\n\"\"\n\"\"\n\"\"\n\"\"\n\"\"\n\"\"\nend\n";
    EXPECT_EQ(Run("rows 0 2 3"), kept);
    EXPECT_EQ(Run("rows 192 16 1"), kept);
    EXPECT_EQ(Run("rows 192 1 6"), kept);
    EXPECT_EQ(Run("rows -1 0 0"), kept);
    ExpectMistakes({"rows x 1 1", "rows 192 256 1", "rows 192 1 -1", "rows 192 1 x"});
}

TEST_F(CourseCommandsTest, LessonNamesFollowTheInterface)
{
    EXPECT_EQ(Run("lessonname 15\nlessonname 0\nlessonname 16"), "\"End & Mouse\"\n\"\"\n\"\"\n");
    EXPECT_EQ(Run("set arabicInterface true\nlessonname 1"), "\"صف الارتكاز\"\n");
    ExpectMistakes({"lessonname x", "lessonname \"1\"", "lessonname 99999999999"});
}

TEST_F(CourseCommandsTest, NotesArePrintedAsStrings)
{
    EXPECT_EQ(Run("lessonnote 16\nexercisenote 1 6 ar\nhelptext 12\nrecommendation 7\nstopnote 11"),
              "\"\"\n\"\"\n\"\"\n\"\"\n\"\"\n");
    EXPECT_EQ(Run("stopnote 2"), R"("أتيت ... رأيت ...\rولكني لم أنتصر ...")"
                                 "\n");
    EXPECT_EQ(Run("stopnote 7\nstopnote 0\nstopnote -1"),
              "\"قد بدأت تشنجات الأصابع ...\"\n\"\"\n\"\"\n");
    EXPECT_EQ(Run("exercisenote 15 1 en").substr(0, 43),
              "\"Now the pedagogical aids have disappeared.");
    for (const char* line : {"lessonnote 1", "helptext 11", "recommendation 6"}) {
        EXPECT_GT(Run(line).size(), 20U) << line;
    }
    ExpectMistakes({"stopnote x", "lessonnote x", "helptext x", "recommendation x",
                    "exercisenote 1 1 fr", "exercisenote x 1 ar", "exercisenote 1 x ar"});
}

TEST_F(CourseCommandsTest, SpecialPlacesAreTold)
{
    EXPECT_EQ(Run("special 8 5 en\nspecial 8 5 ar\nspecial 8 4 en\nspecial 99 5 en"),
              "true\nfalse\nfalse\nfalse\n");
    ExpectMistakes({"special 8 5 win", "special x 5 en", "special 8 x en"});
}

TEST_F(CourseCommandsTest, FreeOpensAndConfirmsTheLetters)
{
    EXPECT_EQ(Run("free \"abcdefghijk\"\nget freeTextChars\nget anagramLanguage"),
              "taken\n\"abcdefghij\"\ntrue\n");
    EXPECT_EQ(Run("set arabicInterface true\nfree \"abcdefghijk\"\nget freeTextChars"),
              "taken\n\"bcdefghijk\"\n");
    EXPECT_EQ(
        Run("set anagramLanguage false\nfree \"   \"\nget freeTextChars\nget anagramLanguage"),
        "beep\n\"\"\ntrue\n");
    EXPECT_EQ(Run("free \"\""), "beep\n");
    EXPECT_EQ(Events(), "end\n");
    ExpectMistakes({"free abc", "free 5"});
}

TEST_F(CourseCommandsTest, OptionsDecidesTheAids)
{
    EXPECT_EQ(Run("options"),
              "optKeyCaps=on optHands=on optCounter=free optClock=free optSound=free\n");
    EXPECT_EQ(Run("get optKeyCaps\nget optHands\nget optCounter"), "true\ntrue\nfalse\n");
    EXPECT_EQ(Run("set lessonNo 15\noptions"),
              "optKeyCaps=off optHands=off optCounter=on optClock=on optSound=free\n");
    EXPECT_EQ(Run("set exerciseNo 4\noptions\nget freeText"),
              "optKeyCaps=off optHands=off optCounter=free optClock=free optSound=free\ntrue\n");
}

TEST_F(CourseCommandsTest, TurnFlipsWhatTheLastOptionsLeftFree)
{
    Run("turn optSound"); // nothing has been left free yet
    EXPECT_EQ(Run("get optSound"), "false\n");
    Run("options\nturn optSound\nturn optCounter\nturn optKeyCaps\nturn optHands");
    EXPECT_EQ(Run("get optSound\nget optCounter\nget optKeyCaps\nget optHands\nget optClock"),
              "true\ntrue\ntrue\ntrue\nfalse\n");
    Run("turn optCounter\nturn optClock");
    EXPECT_EQ(Run("get optCounter\nget optClock"), "false\ntrue\n");
    ExpectMistakes({"turn sound", "turn \"optSound\"", "turn 1"});
}

TEST_F(CourseCommandsTest, ValidKeyTakesItsOwnShiftAndCapsLock)
{
    EXPECT_EQ(Run("validkey 65 97 noshift nocaps\nvalidkey 65 97 shift nocaps\n"
                  "validkey 65 97 shift caps\nvalidkey 65 65 noshift caps\n"
                  "validkey 66 97 noshift nocaps"),
              "true\nfalse\ntrue\ntrue\nfalse\n");
    EXPECT_EQ(Run("validkey 65 0 noshift nocaps\nvalidkey 65535 255 shift caps"), "false\nfalse\n");
    Run("set arabicExercise true\nset keyboardKind 0\nopen\nkey 16");
    EXPECT_EQ(Run("validkey 67 208 noshift nocaps"), "true\n"); // ذ
    ExpectMistakes({"validkey 65536 97 noshift nocaps", "validkey -1 97 noshift nocaps",
                    "validkey 65 256 noshift nocaps", "validkey 65 -1 noshift nocaps",
                    "validkey 65 a noshift nocaps", "validkey 65 97 true nocaps",
                    "validkey 65 97 noshift false"});
}

TEST_F(CourseCommandsTest, CapOfTellsTheCapOrNone)
{
    EXPECT_EQ(Run("capof 65\ncapof 27\ncapof 123\ncapof 8\ncapof 65535\ncapof 0"),
              "48\n0\n12\nnone\nnone\nnone\n");
    ExpectMistakes({"capof 65536", "capof -1", "capof x"});
    Run("open\ncapof 27");
    EXPECT_EQ(Run("cap 0").substr(0, 14), R"({"text": "esc")");
}

} // namespace
} // namespace keyfluent::headless
