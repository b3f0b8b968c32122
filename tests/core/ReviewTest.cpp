#include "session/Review.h"

#include "LessonFixture.h"
#include "session/Pointer.h"
#include "session/Selection.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;
using namespace keyboard;

class ReviewTest : public LessonFixture
{
protected:
    // A passage typed to its end in a hundred seconds, with "x" for its second character.
    void ReachReview(course::Row passage = u"abc\u0691\r\nd")
    {
        OpenRows(15, 1, Language::English, {passage});
        Type(u"a");
        Key('X');
        Wait(100000);
        machine.events.clear();
        for (std::size_t i = 2; i < passage.size(); ++i) {
            if (passage[i] == context::lineEndMark) {
                Enter();
                i += 2;
            } else {
                Type(passage.substr(i, 1));
            }
        }
    }

    void SetCopy(std::u16string_view text)
    {
        EditField(It().txtTest, 0, It().txtTest.Size(), text);
    }

    std::string Message() { return Utf8(It().label7.caption); }
};

TEST_F(ReviewTest, APassageWithAMistakeIsPutRightByHand)
{
    ReachReview();
    EXPECT_EQ(State(), R"(1/1 abcڑ\r\nd[] | axcڑ\r\nd | 4+1 review)");
    EXPECT_TRUE(Reviewing(It()));
    EXPECT_FALSE(It().imgRest.enabled);
    EXPECT_FALSE(It().imgResume.enabled);
    EXPECT_FALSE(It().txtTest.readOnly);
    EXPECT_EQ(It().txtTest.cursor, plainPointer);
    EXPECT_EQ(It().txtOrigin.cursor, customPointer);
    EXPECT_TRUE(It().label7.visible);
    EXPECT_EQ(Message(), "No of Errors: 1. Please correct the text.");
}

TEST_F(ReviewTest, ItsStartShowsTheCaretAndDoesNotEndTheKey)
{
    ReachReview(u"abc");
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin", "focus txtOrigin", "ShowCaret txtTest"}));
    EXPECT_EQ(It().litChar, u"");
    EXPECT_EQ(Looks(), "");
    EXPECT_FALSE(Runs(TimerName::Auto));
    EXPECT_EQ(EditableField(It()), &It().txtTest);
}

TEST_F(ReviewTest, ItsStartFixesTheMarks)
{
    ReachReview(u"abc");
    EXPECT_EQ(It().accuracyPercent, 67);
    EXPECT_EQ(context.accuracyMark, 134);
    EXPECT_EQ(context.exerciseMark, 134);
    EXPECT_EQ(context.studentTable.Record(31)[5], 134);
    EXPECT_FALSE(context.inExercise);
}

TEST_F(ReviewTest, ItsStartReckonsTheFiguresButDoesNotShowThem)
{
    OpenRows(15, 1, Language::English, {u"abcdefghijklmnopqrst"});
    Type(u"abcdefghijklmnopqrs");
    // The clock moves on by six seconds at each reading.
    int readings = 0;
    const double start = machine.platform.secondsSinceMidnight();
    machine.platform.secondsSinceMidnight = [&readings, start] { return start + 6 * ++readings; };
    Type(u"x");
    EXPECT_STREQ(PhaseOf(It()), "review");
    EXPECT_EQ(It().lblSpeed.caption, u"185"); // 19 in 6 seconds, less 5
    EXPECT_EQ(It().speedRate, 90);            // 19 in 12 seconds, less 5
    EXPECT_EQ(readings, 3);                   // and once for the evaluation
}

TEST_F(ReviewTest, NothingDoneInItChangesAMark)
{
    ReachReview(u"abc");
    const int speed = It().speedRate;
    Wait(30000);
    Key('A');
    Wait(1000);
    SetCopy(u"abc");
    Wait(20);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(context.exerciseMark, 134);
    EXPECT_EQ(It().speedRate, speed);
    EXPECT_EQ(It().errorCount, 1);
    EXPECT_EQ(It().correctCount, 2);
}

TEST_F(ReviewTest, AKeyIsHandedOnAndStartsTheWatcher)
{
    ReachReview(u"abc");
    for (const int code : {65, 8, 13, 16, 17, 20, 27, 37, 46, 65535}) {
        EXPECT_EQ(Key(code), code);
    }
    EXPECT_EQ(It().txtTest.Text(), u"axc");
    EXPECT_FALSE(It().shiftDown);
    EXPECT_TRUE(Runs(TimerName::Auto));
    EXPECT_EQ(It().correctCount, 2);
}

TEST_F(ReviewTest, AKeyCountsTheDifferencesAnew)
{
    ReachReview(u"abc");
    SetCopy(u"xyz");
    Key(37);
    EXPECT_EQ(Message(), "No of Errors: 3. Please correct the text.");
    SetCopy(u"abz");
    Key(37);
    EXPECT_EQ(Message(), "No of Errors: 1. Please correct the text.");
}

TEST_F(ReviewTest, AKeyThatFindsTheTextsEqualEndsTheLessonWithoutAResult)
{
    ReachReview(u"abc");
    machine.events.clear();
    SetCopy(u"abc");
    EXPECT_EQ(Key(37), 37);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeEvents(), (Events{"unload frmLesson"}));
    EXPECT_FALSE(Runs(TimerName::Auto));
}

TEST_F(ReviewTest, NormallyTheWatcherIsFirstAndTheResultIsShown)
{
    ReachReview(u"abc");
    Key(37);
    machine.events.clear();
    SetCopy(u"abc");
    Wait(20);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeEvents(), (Events{"unload frmLesson", "show frmResult"}));
}

TEST_F(ReviewTest, WithoutAnyKeyTheWatcherNeverStarts)
{
    ReachReview(u"abc");
    SetCopy(u"abc");
    Wait(10000);
    EXPECT_TRUE(IsOpen());
}

TEST_F(ReviewTest, DifferencesAreCountedOverTheModelOnly)
{
    OpenRows(15, 1, Language::English, {u"abcde"});
    const std::pair<std::u16string_view, int> copies[] = {
        {u"abcde", 0}, {u"", 5},      {u"abc", 2},     {u"abcdefgh", 0},
        {u"Abcde", 1}, {u"bcdea", 5}, {u"xbcdexx", 1}, {u"abcd ", 1},
    };
    for (const auto& [copy, differences] : copies) {
        It().txtTest.SetText(copy);
        EXPECT_EQ(CountDifferences(It()), differences) << Utf8(copy);
    }
}

TEST_F(ReviewTest, ASurplusIsNoDifferenceAndNoEnd)
{
    ReachReview(u"abc");
    Key(37);
    SetCopy(u"abcd");
    Key(37);
    EXPECT_EQ(Message(), "There is no any error in the text.");
    Wait(100);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Message(), "There is no any error in the text.");
    EXPECT_TRUE(Runs(TimerName::Auto));
}

TEST_F(ReviewTest, TheMessageIsInTheLanguageOfTheInterface)
{
    ReachReview(u"abc");
    EXPECT_FALSE(It().label7.rightToLeft);
    context.arabicInterface = true;
    ShowReviewMessage(It());
    EXPECT_EQ(Message(), "عدد الأخطاء : 1. الرجاء تصليح الأخطاء");
    EXPECT_TRUE(It().label7.rightToLeft);
    It().txtTest.SetText(u"abc");
    ShowReviewMessage(It());
    EXPECT_EQ(Message(), "لا يوجد أية أخطاء.");
    EXPECT_TRUE(It().label7.rightToLeft);
    context.arabicInterface = false;
    ShowReviewMessage(It());
    EXPECT_EQ(Message(), "There is no any error in the text.");
    EXPECT_FALSE(It().label7.rightToLeft);
}

TEST_F(ReviewTest, ManyDifferencesAreWrittenInPlainDigits)
{
    OpenRows(15, 1, Language::English, {u"abc"});
    It().txtOrigin.SetText(std::u16string(12345, u'a'));
    ShowReviewMessage(It());
    EXPECT_EQ(Message(), "No of Errors: 12345. Please correct the text.");
}

TEST_F(ReviewTest, EnterPutsBackAWholeLineEnd)
{
    ReachReview();
    SetCopy(u"abcd");
    It().txtTest.Select(3, 0);
    PressEnterInReview(It());
    EXPECT_EQ(It().txtTest.Text(), u"abc\u0691\r\nd");
    EXPECT_EQ(It().txtTest.SelectionStart(), 6);
    Key(keyEnter);
    EXPECT_FALSE(IsOpen());
}

TEST_F(ReviewTest, AnEditMovesTheCaretBehindIt)
{
    ReachReview();
    EditField(It().txtTest, 1, 1, u"b");
    EXPECT_EQ(It().txtTest.Text(), u"abc\u0691\r\nd");
    EXPECT_EQ(It().txtTest.SelectionStart(), 2);
}

TEST_F(ReviewTest, OutsideTheReviewTheStudentEditsOnlyFreeText)
{
    Open(1, 1, Language::English);
    EXPECT_EQ(EditableField(It()), nullptr);
    Open(15, 1, Language::English);
    EXPECT_EQ(EditableField(It()), nullptr);
    context.freeText = true;
    Open(12, 4, Language::English);
    EXPECT_EQ(EditableField(It()), &It().txtOrigin);
}

TEST_F(ReviewTest, AStopInItKeepsWhatIsStoredAndShowsNoResult)
{
    ReachReview(u"abc");
    machine.events.clear();
    machine.draws = {0.0};
    PressStop(It());
    EXPECT_EQ(TakeEvents(), (Events{"unload frmLesson", "show frmStopNote 1"}));
    EXPECT_EQ(context.studentTable.Record(31)[5], 134);
}

TEST_F(ReviewTest, ALateDrillOfTheLastLessonHasAReviewAndNoResult)
{
    context.arabicAnagram = true;
    context.freeTextChars = u"ب";
    context.anagramLanguage = true;
    Open(15, 5, Language::English);
    const std::u16string row = It().txtOrigin.Text();
    Key('X');
    Type(row.substr(1, row.size() - 2));
    Wait(100000);
    Type(row.substr(row.size() - 1));
    EXPECT_STREQ(PhaseOf(It()), "review");
    Key(37);
    machine.events.clear();
    SetCopy(row);
    Wait(20);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeEvents(), (Events{"unload frmLesson"}));
}

TEST_F(ReviewTest, TextsOfDifferentLengthStartNoReview)
{
    OpenRows(15, 1, Language::English, {u"ab\u0691\r\nc"});
    Type(u"ab");
    Key('X');
    Type(u"c");
    EXPECT_EQ(State(), R"(1/1 abڑ\r\nc[] | abxc | 3+1 running)");
    EXPECT_FALSE(It().reviewMode);
}

} // namespace
} // namespace keyfluent::session
