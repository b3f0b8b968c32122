#include "ConsoleFixture.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace keyfluent::headless
{
namespace
{

class PlaceCommandsTest : public fixtures::ConsoleFixture
{
protected:
    std::string Place() { return Run("get lessonNo") + Run("get exerciseNo"); }
};

TEST_F(PlaceCommandsTest, NameIsTrimmedAndBeepsFromItsFiftySeventhCharacter)
{
    EXPECT_EQ(Run("name \"  Amal \"\nget studentName\nget studentNameCopy"),
              "false\n\"Amal\"\n\"Amal\"\n");
    EXPECT_EQ(Run("name \"" + std::string(56, 'a') + "\""), "false\n");
    EXPECT_EQ(Run("name \"" + std::string(57, 'a') + "\""), "true\n");
    const std::string long_ = std::string(80, 'a');
    EXPECT_EQ(Run("name \"" + long_ + "\"\nget studentName"), "true\n\"" + long_ + "\"\n");
    EXPECT_EQ(Events(), "end\n");
    ExpectMistakes({"name Amal"});
}

TEST_F(PlaceCommandsTest, ChoosingALessonSetsItsNoteAndPrintsItsHeading)
{
    EXPECT_EQ(Run("lesson 4"), "\"الدرس رقم: (4 ) Pinkie & Ring\"\n");
    EXPECT_EQ(Run("get lessonNo\nget lastLessonWin\nget lastLessonMac"), "4\n4\n0\n");
    EXPECT_EQ(Run("get lessonNoteText"), Run("lessonnote 4"));
    EXPECT_EQ(Run("set arabicInterface true\nset keyboardKind 0\nlesson 15\nget lastLessonMac"),
              "\"الدرس رقم: (15 ) نهاية وماوس\"\n15\n");
    ExpectMistakes({"lesson 0", "lesson 16", "lesson x"});
}

TEST_F(PlaceCommandsTest, AnotherLessonHidesTheStepButtonsAndTheSameKeepsThem)
{
    Run("set exerciseNo 2\nopen");
    const std::string shown = R"("imgNext": true, "imgBack": true, "imgDuplicate": true})"
                              "\n";
    const std::string hidden = R"("imgNext": false, "imgBack": false, "imgDuplicate": false})"
                               "\n";
    EXPECT_NE(Run("lesson 1\nmenu").find(shown), std::string::npos);
    EXPECT_NE(Run("lesson 2\nmenu").find(hidden), std::string::npos);
    // What the last loading showed stands all the same.
    EXPECT_EQ(Run("button imgNext\nbutton imgBack\nbutton imgDuplicate"), "true\ntrue\ntrue\n");
    Run("mouse imgStop\nopen");
    EXPECT_NE(Run("menu").find(shown), std::string::npos);
    EXPECT_NE(Run("keyboard win\nmenu").find(hidden), std::string::npos);
}

TEST_F(PlaceCommandsTest, EachKeyboardKeepsItsOwnPlace)
{
    Run("set reachedLessonMac 4\nset reachedLessonWin 9\nset lastLessonMac 6\nset lessonNo 8");
    Run("keyboard mac");
    EXPECT_EQ(Run("get keyboardKind\nget lessonNo\nget lastLessonWin"), "0\n4\n8\n");
    Run("keyboard win");
    EXPECT_EQ(Run("get keyboardKind\nget lessonNo\nget lastLessonMac"), "192\n8\n4\n");
    ExpectMistakes({"keyboard 192", "keyboard Mac"});
}

TEST_F(PlaceCommandsTest, ActivationWritesThePlaceIntoTheOtherKeyboards)
{
    Run("set reachedLessonWin 9\nset lastLessonWin 5\nset lessonNo 8\nset keyboardKind 7\n"
        "synchronise");
    EXPECT_EQ(Run("get keyboardKind\nget lessonNo\nget lastLessonMac"), "192\n5\n8\n");
}

TEST_F(PlaceCommandsTest, NextAndBackStepWithinTheLesson)
{
    EXPECT_EQ(Run("back"), "false\n");
    EXPECT_EQ(Run("next\nnext\nnext\nnext\nnext"), "true\ntrue\ntrue\ntrue\nfalse\n");
    EXPECT_EQ(Place(), "1\n5\n");
    EXPECT_EQ(Run("back"), "true\n");
    EXPECT_EQ(Place(), "1\n4\n");
}

TEST_F(PlaceCommandsTest, SteppingKeepsLanguageAndFlags)
{
    Run("choose 12 3 en\nnext");
    EXPECT_EQ(Run("get exerciseNo\nget englishAnagram\nget freeText\nget arabicExercise"),
              "4\ntrue\nfalse\nfalse\n");
}

TEST_F(PlaceCommandsTest, MenuShowsWhatTheMainWindowShows)
{
    EXPECT_EQ(Run("menu"),
              R"({"enabledLessons": 0, "checkedLesson": 1, "checkedKeyboard": "win", )"
              R"("viewDiploma": false, "imgNext": false, "imgBack": false, "imgDuplicate": false})"
              "\n");
    Run("set reachedLessonWin 7\nset reachedLessonMac 3\nset lessonNo 5\n"
        "setrecord 1 0 100 0 0 0 0 0 0 0 0\nopen");
    EXPECT_EQ(Run("menu"),
              R"({"enabledLessons": 7, "checkedLesson": 5, "checkedKeyboard": "win", )"
              R"("viewDiploma": true, "imgNext": true, "imgBack": false, "imgDuplicate": true})"
              "\n");
    Run("set keyboardKind 0");
    const std::string mac = R"({"enabledLessons": 3, "checkedLesson": 5, "checkedKeyboard": "mac")";
    EXPECT_EQ(Run("menu").substr(0, mac.size()), mac);
    Run("set keyboardKind 5");
    const std::string other =
        R"({"enabledLessons": 3, "checkedLesson": 5, "checkedKeyboard": "win")";
    EXPECT_EQ(Run("menu").substr(0, other.size()), other);
}

TEST_F(PlaceCommandsTest, ChooseSetsThePlaceAndItsFlag)
{
    Run("set freeText true\nchoose 9 5 en");
    EXPECT_EQ(Run("get lessonNo\nget exerciseNo\nget arabicExercise"), "9\n5\nfalse\n");
    EXPECT_EQ(Run("get arabicAnagram\nget englishAnagram\nget freeText"), "true\nfalse\nfalse\n");
    Run("choose 12 4 ar");
    EXPECT_EQ(Run("get arabicExercise\nget arabicAnagram\nget englishAnagram\nget freeText"),
              "true\nfalse\nfalse\nfalse\n");
    Run("choose 8 5 en");
    EXPECT_EQ(Run("get arabicAnagram\nget englishAnagram\nget freeText"), "false\ntrue\nfalse\n");
    ExpectMistakes({"choose 0 1 en", "choose 16 1 en", "choose 1 0 en", "choose 1 6 en",
                    "choose 1 1 win", "choose x 1 en"});
}

TEST_F(PlaceCommandsTest, ChooserShowsTheLesson)
{
    Run("set lessonNo 8\nset freeText true\nsetrecord 24 90 40 0 0 200 45 0 0 300 0");
    EXPECT_EQ(Run("chooser"),
              R"({"lblLessonTitle": "Lesson No: (8 ) Punctuation Marks", )"
              R"("lblAMM": ["100", "50", "100", "100", "200 *"], )"
              R"("lblEMM": ["50", "100", "50", "300", "0"], )"
              R"("lblACM": ["90", "40", "0", "0", "200"], "lblECM": ["45", "0", "0", "300", "0"], )"
              R"("lblAExercise": ["8 -1", "8 -2", "8 -3", "8 -4", "8 -5"], )"
              R"("lblEExercise": ["8 -1", "8 -2", "8 -3", "8 -4", "Anagram"], )"
              R"("lblPMark": "Passing Mark: 500", "lblYourSum": "Your Score:675"})"
              "\n");
    EXPECT_EQ(Run("get freeText"), "false\n");
}

TEST_F(PlaceCommandsTest, LeaveTakesTheThreeAnswers)
{
    Run("set studentName \"Amal\"\nleave cancel");
    EXPECT_EQ(Run("get studentName\nget leaveConfirmed\nget leaveNoSave"),
              "\"Amal\"\nfalse\nfalse\n");
    Run("leave no");
    EXPECT_EQ(Run("get studentName\nget leaveConfirmed\nget leaveNoSave"), "\"\"\ntrue\ntrue\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "Students"));
    Run("isnewstudent \"Amal\"\nset quitting true\nleave yes");
    EXPECT_EQ(Run("get studentName\nget leaveConfirmed\nget leaveNoSave"),
              "\"Amal\"\ntrue\ntrue\n");
    EXPECT_EQ(Run("isnewstudent \"Amal\""), "false\n");
    ExpectMistakes({"leave maybe", "leave true"});
}

} // namespace
} // namespace keyfluent::headless
