#include "ConsoleFixture.h"

#include <gtest/gtest.h>

#include <string>

namespace keyfluent::headless
{
namespace
{

using LessonPrintingTest = fixtures::ConsoleFixture;

TEST_F(LessonPrintingTest, TheStateOfALoadedLesson)
{
    Run("open");
    EXPECT_EQ(Run("state"),
              R"({"rowCount": 46, "currentRow": 1, "caretPos": 0, "correctCount": 0, )"
              R"("errorCount": 0, "totalCount": 0, "accuracyPercent": 0, "speedRate": 0, )"
              R"("startTime": 0.000, "awaitingFirstKey": true, "errorPending": false, )"
              R"("shiftDown": false, "capsOn": false, "pressedKey": -2, "litChar": "a", )"
              R"("savedTestText": "", "clockMinutes": 0, "clockSeconds": 0, "paused": false, )"
              R"("resumeArmed": false, "reviewMode": false, "buttonLit": false})"
              "\n");
}

TEST_F(LessonPrintingTest, TheStateAfterSomeKeys)
{
    Run("set optClock true\ncapslock on\nopen\nkey 65\nwait 2100\nkey 16\nkey 9\nmove imgStop\nkey 88");
    EXPECT_EQ(Run("state"),
              R"({"rowCount": 46, "currentRow": 1, "caretPos": 1, "correctCount": 1, )"
              R"("errorCount": 1, "totalCount": 2, "accuracyPercent": 50, "speedRate": 0, )"
              R"("startTime": 36000.000, "awaitingFirstKey": false, "errorPending": true, )"
              R"("shiftDown": true, "capsOn": true, "pressedKey": 62, "litChar": "s", )"
              R"("savedTestText": "a", "clockMinutes": 0, "clockSeconds": 2, "paused": false, )"
              R"("resumeArmed": false, "reviewMode": false, "buttonLit": true})"
              "\n");
    Run("wait 420\nkey 8");
    EXPECT_NE(Run("state").find("\"pressedKey\": -1,"), std::string::npos);
    Run("click imgRest\nclick imgResume");
    EXPECT_NE(Run("state").find("\"paused\": true, \"resumeArmed\": true,"), std::string::npos);
}

TEST_F(LessonPrintingTest, BothFields)
{
    Run("set arabicExercise true\nset fontSize 13\nopen\nkey 65");
    EXPECT_EQ(Run("field txtOrigin"),
              R"({"text": "ش س ي ب ", "selStart": 1, "selLength": 1, "rightToLeft": true, )"
              R"("readOnly": true, "visible": true, "left": 150, "top": 450, "width": 11700, )"
              R"("height": 485, "fontSize": 13, "cursor": 101})"
              "\n");
    EXPECT_EQ(Run("field txtTest"),
              R"({"text": "ش", "selStart": 0, "selLength": 0, "rightToLeft": true, )"
              R"("readOnly": true, "visible": true, "left": 150, "top": 936, "width": 11700, )"
              R"("height": 540, "fontSize": 13, "cursor": 101})"
              "\n");
    ExpectMistakes({"field Text1", "field x", "field \"txtTest\""});
}

TEST_F(LessonPrintingTest, ASizeBelowOneIsPrintedAsItIsShown)
{
    Run("set fontSize 0\nopen");
    EXPECT_NE(Run("field txtTest").find("\"fontSize\": 12,"), std::string::npos);
    EXPECT_EQ(Run("get fontSize"), "0\n");
}

TEST_F(LessonPrintingTest, EveryLabel)
{
    Run("set optCounter true\nset lessonNo 13\nset exerciseNo 2\nopen");
    const std::pair<std::string, std::string> captions[] = {
        {"Label1", "250"},
        {"Label2", "500"},
        {"Label3", "0"},
        {"Label4", "0"},
        {"Label5", "300"},
        {"Label6", "50"},
        {"Label7", ""},
        {"lblTitle", "Lesson No: (13 ) Shift Key - Exercise No : (2 )"},
        {"lblMark", ""},
        {"lblSpeed", ""},
        {"lblTimer", "00:00"},
        {"lblChar", " Chars pm. :"},
        {"lblResulotion", " Resulotion:"},
        {"Shape1", ""}};
    for (const auto& [label, caption] : captions) {
        const std::string beginning = "{\"caption\": \"" + caption + "\", \"visible\": ";
        EXPECT_EQ(Run("label " + label).substr(0, beginning.size()), beginning) << label;
    }
    ExpectMistakes({"label Label8", "label Label0", "label txtOrigin", "label lblResolution"});
}

TEST_F(LessonPrintingTest, LabelsPrintTheirAlignmentAndPlace)
{
    Run("set optCounter true\nset arabicInterface true\nopen");
    EXPECT_EQ(Run("label lblTimer"),
              R"({"caption": "00:00", "visible": false, "rightToLeft": false, )"
              R"("rightAligned": false, "left": 5490})"
              "\n");
    EXPECT_EQ(Run("label Label7"),
              R"({"caption": "", "visible": false, "rightToLeft": false, "rightAligned": false, )"
              R"("left": 3915})"
              "\n");
    EXPECT_EQ(Run("label Shape1"),
              R"({"caption": "", "visible": true, "rightToLeft": false, "rightAligned": false, )"
              R"("left": 1350})"
              "\n");
    const std::string speed =
        R"({"caption": "  حرف بالدقيقة:", "visible": true, "rightToLeft": true, "rightAligned": true,)";
    EXPECT_EQ(Run("label lblChar").substr(0, speed.size()), speed);
    EXPECT_NE(Run("label lblSpeed").find("\"left\": 8715}"), std::string::npos);
    EXPECT_NE(Run("label lblMark").find("\"left\": 1725}"), std::string::npos);
    EXPECT_NE(Run("label lblTitle").find("\"left\": 3098}"), std::string::npos);
}

TEST_F(LessonPrintingTest, BothGauges)
{
    Run("set optCounter true\nset exerciseNo 2\nopen\nkey 68\nwait 3000\nkey 88");
    EXPECT_EQ(Run("gauge pbMark"), "{\"maximum\": 50, \"value\": 25, \"visible\": true}\n");
    EXPECT_EQ(Run("gauge pbSpeed"), "{\"maximum\": 300, \"value\": 0, \"visible\": true}\n");
    ExpectMistakes({"gauge lblMark", "gauge x"});
}

TEST_F(LessonPrintingTest, HiddenGaugesStillHaveTheirValue)
{
    Run("open\nkey 65");
    EXPECT_EQ(Run("gauge pbMark\ngauge pbSpeed"),
              "{\"maximum\": 100, \"value\": 100, \"visible\": false}\n"
              "{\"maximum\": 300, \"value\": 300, \"visible\": false}\n");
}

TEST_F(LessonPrintingTest, OneCap)
{
    Run("set optKeyCaps true\nset trueKeyColour 65280\nopen");
    EXPECT_EQ(Run("cap 48"),
              R"({"text": "a", "foreColour": 16777215, "backColour": 65280, "left": 2055, )"
              R"("top": 3045, "width": 390, "height": 360, "rightToLeft": false})"
              "\n");
    EXPECT_EQ(Run("cap 102"),
              R"({"text": "\r\n8\r\n", "foreColour": 0, "backColour": 16777215, "left": 10320, )"
              R"("top": 3420, "width": 390, "height": 735, "rightToLeft": false})"
              "\n");
    ExpectMistakes({"cap 105", "cap -1", "cap x"});
    Run("cap 0\ncap 104");
}

TEST_F(LessonPrintingTest, TheCapsThatAreNotPlain)
{
    Run("set trueKeyColour 65280\nopen");
    EXPECT_EQ(Run("caps"), "48 16777215 65280\nend\n");
    Run("key 16\nkey 17");
    EXPECT_EQ(Run("caps"), "48 16777215 65280\n60 16777215 0\n71 16777215 0\n72 16777215 0\n"
                           "78 16777215 0\nend\n");
}

TEST_F(LessonPrintingTest, EveryImage)
{
    Run("set optHands true\nset colouredHands true\nopen");
    EXPECT_EQ(Run("image imgLeftHand").substr(0, 50),
              R"({"bitmap": 1118, "visible": true, "enabled": true,)");
    EXPECT_EQ(Run("image imgRightHand").substr(0, 50),
              R"({"bitmap": 1119, "visible": true, "enabled": true,)");
    EXPECT_EQ(Run("image imgRest").substr(0, 49),
              R"({"bitmap": 201, "visible": true, "enabled": true,)");
    EXPECT_EQ(Run("image imgResume").substr(0, 50),
              R"({"bitmap": 203, "visible": false, "enabled": true,)");
    EXPECT_EQ(Run("image imgStop").substr(0, 49),
              R"({"bitmap": 107, "visible": true, "enabled": true,)");
    ExpectMistakes({"image imgNext", "image x"});
}

TEST_F(LessonPrintingTest, EveryTimer)
{
    Run("open");
    EXPECT_EQ(Run("timer tmrClock\ntimer tmrAuto\ntimer EraseChar\ntimer tmrErrKey\n"
                  "timer tmrHilite\ntimer tmrSelection"),
              "{\"interval\": 1000, \"enabled\": false}\n{\"interval\": 20, \"enabled\": false}\n"
              "{\"interval\": 20, \"enabled\": false}\n{\"interval\": 60, \"enabled\": false}\n"
              "{\"interval\": 90, \"enabled\": false}\n{\"interval\": 500, \"enabled\": true}\n");
    Run("key 65");
    EXPECT_EQ(Run("timer tmrClock\ntimer tmrHilite"),
              "{\"interval\": 1000, \"enabled\": true}\n{\"interval\": 90, \"enabled\": true}\n");
    ExpectMistakes({"timer tmrEraseChar", "timer x"});
}

TEST_F(LessonPrintingTest, TheRowsOfTheExercise)
{
    Run("open");
    EXPECT_EQ(Run("row 1\nrow 4\nrow 46\nrow 47\nrow 200"),
              "\"asdf \"\n\"jkl; \"\n\"ass; \"\n\"\"\n\"\"\n");
    ExpectMistakes({"row 0", "row 201", "row x"});
}

TEST_F(LessonPrintingTest, WhetherALessonIsOpen)
{
    EXPECT_EQ(Run("is open\nopen\nis open\nmouse imgStop\nis open"), "false\ntrue\nfalse\n");
    ExpectMistakes({"is closed", "is"});
}

TEST_F(LessonPrintingTest, TheStepButtonsAsTheLastLoadingLeftThem)
{
    Run("set exerciseNo 5\nopen");
    EXPECT_EQ(Run("button imgNext\nbutton imgBack\nbutton imgDuplicate"), "false\ntrue\ntrue\n");
    Run("mouse imgStop");
    EXPECT_EQ(Run("button imgBack"), "true\n");
    ExpectMistakes({"button imgExercise", "button x"});
}

} // namespace
} // namespace keyfluent::headless
