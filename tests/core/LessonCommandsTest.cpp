#include "ConsoleFixture.h"

#include <gtest/gtest.h>

#include <string>

namespace keyfluent::headless
{
namespace
{

class LessonCommandsTest : public fixtures::ConsoleFixture
{
protected:
    // The value of one member of an object that a command prints.
    std::string Member(std::string_view command, const std::string& key)
    {
        const std::string object = Run(command);
        const std::string start = "\"" + key + "\": ";
        const std::size_t from = object.find(start);
        if (from == std::string::npos) {
            return "no " + key + " in " + object;
        }
        const std::size_t value = from + start.size();
        const bool text = object[value] == '"';
        const std::size_t end =
            text ? object.find('"', value + 1) + 1 : object.find_first_of(",}", value);
        return object.substr(value, end - value);
    }

    // Lesson 15 up to its review: the passage typed with a wrong first key, in a few seconds.
    void ReachReview()
    {
        Run("set lessonNo 15\nset exerciseNo 1\nset optSound true\nopen\nkey 112");
        Run("wait 3000");
        session::Lesson& lesson = console.Machine().Lesson();
        lesson.txtTest.SetText(
            lesson.txtOrigin.Text().substr(0, lesson.txtOrigin.Text().size() - 1));
        Run("key 88");
        ASSERT_EQ(Member("state", "reviewMode"), "true");
        Events();
    }
};

TEST_F(LessonCommandsTest, OpenLoadsAndActivates)
{
    EXPECT_EQ(Run("open\nis open"), "true\n");
    EXPECT_EQ(Member("state", "rowCount"), "46");
    EXPECT_EQ(Mistake("open"), "a lesson is open already");
    EXPECT_EQ(Run("button imgNext\nbutton imgBack\nbutton imgDuplicate"), "true\nfalse\ntrue\n");
}

TEST_F(LessonCommandsTest, ALessonThatHasGoneMayBeOpenedAgain)
{
    Run("open\nkey 65\nmouse imgStop");
    EXPECT_EQ(Run("is open"), "false\n");
    ExpectMistakes({"key 65", "state"});
    Run("open");
    EXPECT_EQ(Member("state", "correctCount"), "0");
}

TEST_F(LessonCommandsTest, KeyPrintsWhatIsLeftOfItsCode)
{
    Run("open");
    EXPECT_EQ(Run("key 65\nkey 88\nkey 83\nkey 0\nkey 65535"), "65\n88\n0\n0\n0\n");
    Run("wait 420");
    EXPECT_EQ(Run("key 65535\nkey 0"), "65535\n0\n");
    EXPECT_EQ(Member("state", "errorCount"), "1");
    ExpectMistakes({"key 65536", "key -1", "key A", "up 65536", "up -1", "up x"});
}

TEST_F(LessonCommandsTest, KeyPrintsItsCodeAlsoWhenItClosedTheLesson)
{
    Run("set lessonNo 8\nset exerciseNo 5\nopen");
    EXPECT_EQ(Run("key 65\nis open"), "65\nfalse\n");
}

TEST_F(LessonCommandsTest, AKeyGoesDownUntilItComesUp)
{
    Run("open\nkey 16");
    EXPECT_EQ(Member("state", "shiftDown"), "true");
    EXPECT_EQ(Run("up 16"), "");
    EXPECT_EQ(Member("state", "shiftDown"), "false");
}

TEST_F(LessonCommandsTest, ActivateRedrawsAndSelects)
{
    Run("open\nevents\nactivate");
    EXPECT_EQ(Events(), "paint frmLesson\nfocus txtOrigin\nHideCaret txtOrigin\nend\n");
}

TEST_F(LessonCommandsTest, AMouseButtonOnAFieldBringsTheCaution)
{
    Run("open");
    Events();
    Run("mouse txtOrigin");
    EXPECT_EQ(Events(), "beep\nshow frmNotAllowed\nfocus txtOrigin\nend\n");
    Run("mouse txtTest");
    EXPECT_EQ(Events(), "beep\nshow frmNotAllowed\nfocus txtOrigin\nend\n");
    EXPECT_EQ(Run("is open"), "true\n");
    ExpectMistakes({"mouse imgRest", "mouse form", "mouse 1"});
}

TEST_F(LessonCommandsTest, AMouseButtonOnTheStopEndsTheLesson)
{
    Run("open");
    Events();
    Run("random 0.3\nmouse imgStop");
    EXPECT_EQ(Events(), "unload frmLesson\nshow frmStopNote 3\nend\n");
    EXPECT_EQ(Run("is open\nget stopCount\nget arabicInterface"), "false\n1\ntrue\n");
}

TEST_F(LessonCommandsTest, ClicksRestAndResume)
{
    Run("open\nkey 65\nclick imgRest");
    EXPECT_EQ(Member("state", "paused"), "true");
    EXPECT_EQ(Member("state", "resumeArmed"), "false");
    EXPECT_EQ(Run("key 83"), "0\n");
    Run("click imgRest\nclick imgResume\nclick imgResume");
    EXPECT_EQ(Member("state", "resumeArmed"), "true");
    EXPECT_EQ(Run("key 83"), "83\n");
    EXPECT_EQ(Member("state", "paused"), "false");
    Events();
    Run("click txtOrigin");
    EXPECT_EQ(Events(), "focus txtOrigin\nend\n");
    ExpectMistakes({"click txtTest", "click imgStop", "click x"});
}

TEST_F(LessonCommandsTest, ThePointerLightsAndLeavesThePictures)
{
    Run("open\nmove imgStop");
    EXPECT_EQ(Member("image imgStop", "bitmap"), "106");
    EXPECT_EQ(Member("state", "buttonLit"), "true");
    Run("move imgRest\nmove form");
    EXPECT_EQ(Member("image imgStop", "bitmap"), "107");
    EXPECT_EQ(Member("state", "buttonLit"), "false");
    Run("move imgRest");
    EXPECT_EQ(Member("image imgRest", "bitmap"), "200");
    Run("move form\nmove imgResume"); // hidden
    EXPECT_EQ(Member("state", "buttonLit"), "false");
    Run("click imgRest\nmove imgResume");
    EXPECT_EQ(Member("image imgResume", "bitmap"), "202");
    ExpectMistakes({"move txtOrigin", "move x"});
}

TEST_F(LessonCommandsTest, LosingTheFocusTakesItBack)
{
    Run("open\nevents");
    Run("lostfocus");
    EXPECT_EQ(Events(), "focus txtOrigin\nHideCaret txtOrigin\nend\n");
}

TEST_F(LessonCommandsTest, FreeTextIsEdited)
{
    Run("set lessonNo 12\nset exerciseNo 4\nset freeText true\nopen\nkey 65\nedit \"one\\r\\n\" 3");
    EXPECT_EQ(Run("field txtOrigin").substr(0, 52),
              R"({"text": "one\r\n", "selStart": 3, "selLength": 0, ")");
    Run("edit \"two\" 99");
    EXPECT_EQ(Member("field txtOrigin", "text"), "\"two\"");
    EXPECT_EQ(Member("field txtOrigin", "selStart"), "3");
    Run("edit \"\" -4");
    EXPECT_EQ(Member("field txtOrigin", "selStart"), "0");
    ExpectMistakes({"edit one 1", "edit \"one\" x", "edit \"one\" \"1\"", "enter"});
}

TEST_F(LessonCommandsTest, OutsideReviewAndFreeTextEditingIsAMistake)
{
    Run("open");
    EXPECT_EQ(Mistake("edit \"x\" 0"), "the student may edit no field now");
    EXPECT_EQ(Mistake("enter"), "there is no review");
    Run("mouse imgStop\nset lessonNo 15\nopen");
    ExpectMistakes({"edit \"x\" 0", "enter"});
}

TEST_F(LessonCommandsTest, TheReviewIsEditedAndEnded)
{
    ReachReview();
    Run("edit \"ab\" 1\nenter");
    EXPECT_EQ(Member("field txtTest", "text"), R"("aڑ\r\nb")");
    EXPECT_EQ(Member("field txtTest", "selStart"), "4");
    EXPECT_EQ(Run("key 37"), "37\n");
    EXPECT_EQ(Member("timer tmrAuto", "enabled"), "true");
    const std::string passage = Run("row 1");
    Run("edit " + passage.substr(0, passage.size() - 1) + " 0");
    EXPECT_EQ(Run("is open"), "true\n");
    Run("wait 20");
    EXPECT_EQ(Events(), "unload frmLesson\nshow frmResult\nend\n");
    EXPECT_EQ(Run("is open"), "false\n");
}

} // namespace
} // namespace keyfluent::headless
