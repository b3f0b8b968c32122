#include "headless/Console.h"

#include "ConsoleFixture.h"
#include "context/FatalError.h"

#include <gtest/gtest.h>

#include <string>

namespace keyfluent::headless
{
namespace
{

using ConsoleTest = fixtures::ConsoleFixture;

TEST_F(ConsoleTest, BlankLinesAndRemarksAnswerNothing)
{
    EXPECT_EQ(Run("\n   \n\t\n\r\n# a remark\n  # another\n#"), "");
}

TEST_F(ConsoleTest, StartsAsAProcessDoesButForTheFirstExercise)
{
    EXPECT_EQ(Run("get lessonNo\nget exerciseNo\nget keyboardKind\nget fontSize\nget errKeyColour\n"
                  "get arabicInterface\nget trueKeyColour\nget studentName\nget sessionRun\n"
                  "get stopCount"),
              "1\n1\n192\n12\n255\nfalse\n0\n\"\"\nfalse\n0\n");
    EXPECT_EQ(Run("get appFolder"), "\"" + folder.Path().string() + "\"\n");
    EXPECT_EQ(Run("is open"), "false\n");
}

TEST_F(ConsoleTest, AnswersAFirstKey)
{
    EXPECT_EQ(
        Run("set arabicExercise false\nset optSound true\nopen\nfield txtOrigin"),
        R"({"text": "asdf ", "selStart": 0, "selLength": 1, "rightToLeft": false, "readOnly": true,)"
        R"( "visible": true, "left": 1305, "top": 795, "width": 9405, "height": 465, "fontSize": 12,)"
        R"( "cursor": 101})"
        "\n");
    EXPECT_EQ(Run("key 65"), "65\n");
    const std::string beginning = R"({"rowCount": 46, "currentRow": 1, "caretPos": 1, )"
                                  R"("correctCount": 1, "errorCount": 0, )";
    EXPECT_EQ(Run("state").substr(0, beginning.size()), beginning);
    EXPECT_EQ(Events(), R"(mmcEnter open "/enter.wav"
mmcChar open "/char.wav"
mmcSpace open "/space.wav"
mmcCaps open "/caps.wav"
mmcBack open "/Back.wav"
paint frmLesson
focus txtOrigin
HideCaret txtOrigin
focus txtOrigin
mmcChar Prev
mmcChar Play
focus txtOrigin
focus txtOrigin
end
)");
}

TEST_F(ConsoleTest, AnUnknownWordIsAMistake)
{
    EXPECT_EQ(Mistake("fly"), "there is no command fly");
    ExpectMistakes({"Open", "OPEN", "opens", "\"open\"", "key65"});
}

TEST_F(ConsoleTest, AMistakeChangesNothingAndTheNextLineIsTaken)
{
    ExpectMistakes({"set lessonNo 256", "set lessonNo", "now 86400"});
    EXPECT_EQ(Run("get lessonNo"), "1\n");
}

// Every command, once with too few arguments where it takes any, once with too many.
TEST_F(ConsoleTest, AWrongNumberOfArgumentsIsAMistake)
{
    Run("open");
    ExpectMistakes({"now",
                    "now 1 2",
                    "wait",
                    "wait 1 2",
                    "date",
                    "date 01-31-2026 x",
                    "random",
                    "capslock",
                    "capslock on on",
                    "events x",
                    "set",
                    "set lessonNo",
                    "set lessonNo 1 2",
                    "get",
                    "get lessonNo x",
                    "record",
                    "record 1 2",
                    "setrecord",
                    "setrecord 1 0 0 0 0 0 0 0 0 0",
                    "setrecord 1 0 0 0 0 0 0 0 0 0 0 0"});
    ExpectMistakes({"rows 192 1",
                    "rows 192 1 1 1",
                    "lessonname",
                    "lessonname 1 1",
                    "lessonnote",
                    "lessonnote 1 1",
                    "exercisenote 1 1",
                    "exercisenote 1 1 ar x",
                    "helptext",
                    "helptext 1 1",
                    "recommendation",
                    "recommendation 1 1",
                    "stopnote",
                    "stopnote 1 1",
                    "special 8 5",
                    "special 8 5 en x",
                    "free",
                    "free \"a\" \"b\"",
                    "options x",
                    "turn",
                    "turn optSound x",
                    "validkey 65 97 noshift",
                    "validkey 65 97 noshift nocaps x",
                    "capof",
                    "capof 65 66"});
    ExpectMistakes({"checkslate 1 1",
                    "checkslate 1 1 en x",
                    "speedbonus 1 1",
                    "speedbonus 1 1 en x",
                    "standardmark 1 1",
                    "standardmark 1 1 en x",
                    "passingmark",
                    "passingmark 1 1",
                    "recordbase x",
                    "lessonsum",
                    "lessonsum 1 1",
                    "arabictotal",
                    "arabictotal 1 1",
                    "englishtotal",
                    "englishtotal 1 1",
                    "passed x",
                    "result x",
                    "isnewstudent",
                    "isnewstudent \"a\" \"b\"",
                    "loadstudent x",
                    "savestudent x",
                    "loadprefs x",
                    "openprefs x",
                    "saveprefs true 192 \"12\" 0 255",
                    "saveprefs true 192 \"12\" 0 255 true x",
                    "suggest x",
                    "welcome x",
                    "bye x",
                    "diploma x"});
    ExpectMistakes({"name", "name \"a\" \"b\"", "lesson", "lesson 1 1", "keyboard",
                    "keyboard win mac", "synchronise x", "next x", "back x", "menu x", "choose 1 1",
                    "choose 1 1 en x", "chooser x", "leave", "leave yes no"});
    ExpectMistakes({"open x",
                    "activate x",
                    "key",
                    "key 65 66",
                    "up",
                    "up 16 16",
                    "mouse",
                    "mouse txtOrigin x",
                    "click",
                    "click txtOrigin x",
                    "move",
                    "move form x",
                    "lostfocus x",
                    "edit \"a\"",
                    "edit \"a\" 1 1",
                    "enter x",
                    "is",
                    "is open x",
                    "row",
                    "row 1 1",
                    "state x",
                    "field",
                    "field txtOrigin x",
                    "label",
                    "label lblMark x",
                    "gauge",
                    "gauge pbMark x",
                    "cap",
                    "cap 1 1",
                    "caps x",
                    "image",
                    "image imgStop x",
                    "button",
                    "button imgNext x",
                    "timer",
                    "timer tmrClock x"});
}

TEST_F(ConsoleTest, WithoutALessonItsCommandsAreMistakes)
{
    for (const char* line :
         {"activate",      "key 65",          "up 16",     "mouse txtOrigin", "mouse imgStop",
          "click imgRest", "click txtOrigin", "move form", "lostfocus",       "edit \"a\" 0",
          "enter",         "row 1",           "state",     "field txtTest",   "label lblMark",
          "gauge pbMark",  "cap 1",           "caps",      "image imgStop",   "timer tmrClock"}) {
        EXPECT_EQ(Mistake(line), "no lesson is open") << line;
    }
    EXPECT_EQ(Run("is open\nbutton imgNext\nbutton imgBack\nbutton imgDuplicate"),
              "false\nfalse\nfalse\nfalse\n");
}

TEST_F(ConsoleTest, AFailureThatEndsTheProgramIsThrown)
{
    Run("set arabicAnagram true");
    EXPECT_THROW(console.Execute("open"), context::FatalError);
}

TEST_F(ConsoleTest, TheContextAndTheMachineCanBeLookedAt)
{
    Run("set lessonNo 7\ncapslock on");
    EXPECT_EQ(console.Context().lessonNo, 7);
    EXPECT_TRUE(console.Machine().capsLock);
}

} // namespace
} // namespace keyfluent::headless
