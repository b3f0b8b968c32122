// Keys in the passages of the last lesson, where line ends are part of the text and the check waits
// for its end.
#include "LessonFixture.h"
#include "session/Keystrokes.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;
using namespace keyboard;

class KeystrokesPassageTest : public LessonFixture
{
protected:
    void SetUp() override { OpenPassage(u"ab\u0691\r\ncd\u0691\r\nef"); }

    void OpenPassage(course::Row passage) { OpenRows(15, 1, Language::English, {passage}); }

    // The caret in the copy.
    int CopyCaret() { return It().txtTest.SelectionStart(); }
};

TEST_F(KeystrokesPassageTest, ARightKeyAddsTheTextOfItsCap)
{
    Key('A');
    EXPECT_EQ(State(), R"(1/1 a[b]ڑ\r\ncdڑ\r\nef | a | 1+0 running)");
    EXPECT_EQ(CopyCaret(), 1);
    EXPECT_TRUE(Runs(TimerName::Hilite));
}

TEST_F(KeystrokesPassageTest, ARightKeyWhoseCapShowsAnotherCharacterSpoilsTheText)
{
    OpenPassage(u">ab");
    Strike({188, true});
    EXPECT_EQ(State(), "1/1 >[a]b | < | 1+0 running");
    OpenPassage(u"Aab");
    machine.capsLockState = 1;
    Key(keyCapsLock);
    Key('A');
    EXPECT_EQ(State(), "1/1 A[a]b | a | 1+0 running caps");
}

TEST_F(KeystrokesPassageTest, ASpaceIsABlank)
{
    OpenPassage(u"a b");
    Type(u"a ");
    EXPECT_EQ(State(), "1/1 a [b] | a  | 2+0 running");
}

TEST_F(KeystrokesPassageTest, EnterAtTheMarkTypesTheWholeLineEnd)
{
    Type(u"ab");
    Enter();
    EXPECT_EQ(State(), R"(1/1 abڑ\r\n[c]dڑ\r\nef | abڑ\r\n | 3+0 running)");
    EXPECT_EQ(It().caretPos, 5);
    EXPECT_EQ(CopyCaret(), 5);
}

TEST_F(KeystrokesPassageTest, AWrongKeyIsTypedThroughAndCounted)
{
    Key('X');
    EXPECT_EQ(State(), R"(1/1 a[b]ڑ\r\ncdڑ\r\nef | x | 0+1 running)");
    EXPECT_EQ(CopyCaret(), 0); // one before the end
    Key('B');
    Key('X');
    EXPECT_EQ(CopyCaret(), 2);
    EXPECT_FALSE(Runs(TimerName::ErrKey));
}

TEST_F(KeystrokesPassageTest, AWrongKeyNeitherBeepsNorBlinks)
{
    Key('X');
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin", "focus txtOrigin", "focus txtOrigin"}));
}

TEST_F(KeystrokesPassageTest, AWrongEnterAddsALineEndForOneStep)
{
    Key('A');
    Enter();
    EXPECT_EQ(State(), R"(1/1 ab[ڑ]\r\ncdڑ\r\nef | aڑ\r\n | 1+1 running)");
    EXPECT_EQ(It().caretPos, 2);
    EXPECT_EQ(CopyCaret(), 3);
}

TEST_F(KeystrokesPassageTest, ALetterOverALineEndJumpsItAndAddsOneCharacter)
{
    Type(u"ab");
    Key('X');
    EXPECT_EQ(State(), R"(1/1 abڑ\r\n[c]dڑ\r\nef | abx | 2+1 running)");
    EXPECT_EQ(It().caretPos, 5);
    EXPECT_EQ(CopyCaret(), 2);
}

TEST_F(KeystrokesPassageTest, EitherMistakeLeavesTheTextsTwoApart)
{
    OpenPassage(u"a\u0691\r\nb");
    Type(u"a");
    Key('X');
    Type(u"b");
    EXPECT_EQ(State(), R"(1/1 aڑ\r\nb[] | axb | 2+1 running)");
    EXPECT_EQ(It().txtOrigin.Size() - It().txtTest.Size(), 2);
    OpenPassage(u"ab\u0691\r\nc");
    Type(u"a");
    Enter();
    Enter();
    EXPECT_EQ(State(), R"(1/1 abڑ\r\n[c] | aڑ\r\nڑ\r\n | 2+1 running)");
    EXPECT_EQ(It().txtTest.Size() - It().caretPos, 2);
}

TEST_F(KeystrokesPassageTest, PastTheEndOfTheTextEveryKeyIsWrong)
{
    OpenPassage(u"a\u0691\r\nb");
    Type(u"a");
    Key('X');
    Type(u"b");
    Key('Y');
    EXPECT_EQ(State(), R"(1/1 aڑ\r\nb[] | axby | 2+2 running)");
    EXPECT_EQ(It().caretPos, 6);
}

TEST_F(KeystrokesPassageTest, BackspaceTakesOneCharacter)
{
    Type(u"ab");
    Backspace();
    EXPECT_EQ(State(), R"(1/1 a[b]ڑ\r\ncdڑ\r\nef | a | 2+5 running)");
    EXPECT_EQ(CopyCaret(), 1);
    Backspace();
    EXPECT_EQ(State(), R"(1/1 [a]bڑ\r\ncdڑ\r\nef |  | 2+10 running)");
}

TEST_F(KeystrokesPassageTest, BackspaceAtTheStartOnlySounds)
{
    Backspace();
    EXPECT_EQ(State(), R"(1/1 [a]bڑ\r\ncdڑ\r\nef |  | 0+0 running)");
}

TEST_F(KeystrokesPassageTest, BackspaceTakesALineEndWithItsMark)
{
    Type(u"ab");
    Enter();
    Backspace();
    EXPECT_EQ(State(), R"(1/1 ab[ڑ]\r\ncdڑ\r\nef | ab | 3+5 running)");
    EXPECT_EQ(It().caretPos, 2);
    EXPECT_EQ(CopyCaret(), 2);
    Enter();
    EXPECT_EQ(State(), R"(1/1 abڑ\r\n[c]dڑ\r\nef | abڑ\r\n | 4+5 running)");
}

TEST_F(KeystrokesPassageTest, BackspaceOverTheFirstCharacterOfALineTakesTheLineEndButNotItsMark)
{
    Type(u"ab");
    Enter();
    Type(u"c");
    Backspace();
    EXPECT_EQ(State(), R"(1/1 abڑ\r\n[c]dڑ\r\nef | abڑ | 4+5 running)");
    EXPECT_EQ(It().caretPos, 5);
    EXPECT_EQ(It().txtTest.Size(), 3);
}

TEST_F(KeystrokesPassageTest, TwoBackspacesMendTheStartOfALine)
{
    Type(u"ab");
    Enter();
    Key('X');
    Backspace();
    Backspace();
    EXPECT_EQ(State(), R"(1/1 ab[ڑ]\r\ncdڑ\r\nef | ab | 3+11 running)");
    Enter();
    Type(u"cd");
    EXPECT_EQ(State(), R"(1/1 abڑ\r\ncd[ڑ]\r\nef | abڑ\r\ncd | 6+11 running)");
}

TEST_F(KeystrokesPassageTest, RetypingAfterOneBackspaceThereLeavesTheTextsApart)
{
    Type(u"ab");
    Enter();
    Type(u"c");
    Backspace();
    Type(u"cd");
    Enter();
    Type(u"ef");
    EXPECT_EQ(State(), R"(1/1 abڑ\r\ncdڑ\r\nef[] | abڑcdڑ\r\nef | 9+5 running)");
}

TEST_F(KeystrokesPassageTest, BackspaceWithTheLineFeedSelectedGoesBackToTheMark)
{
    Type(u"ab");
    It().caretPos = 4; // on the line feed
    It().txtOrigin.Select(4, 1);
    Backspace();
    EXPECT_EQ(It().caretPos, 2);
    EXPECT_EQ(It().txtTest.Text(), u"a");
}

TEST_F(KeystrokesPassageTest, BackspaceOverAWrongLineEndStepsBackOne)
{
    Key('A');
    Enter();
    Backspace();
    EXPECT_EQ(State(), R"(1/1 a[b]ڑ\r\ncdڑ\r\nef | a | 1+6 running)");
}

TEST_F(KeystrokesPassageTest, BackspaceOverALetterThatJumpedALineEndGoesBackToTheMark)
{
    Type(u"ab");
    Key('X');
    Backspace();
    EXPECT_EQ(State(), R"(1/1 ab[ڑ]\r\ncdڑ\r\nef | ab | 2+6 running)");
}

TEST_F(KeystrokesPassageTest, BackspaceOverTheOnlyCharacterStartsAnewFromAnywhere)
{
    OpenPassage(u"\u0691\r\nab");
    Key('X'); // jumps the line end
    EXPECT_EQ(It().caretPos, 3);
    Backspace();
    EXPECT_EQ(State(), R"(1/1 [ڑ]\r\nab |  | 0+6 running)");
    EXPECT_EQ(It().caretPos, 0);
}

TEST_F(KeystrokesPassageTest, ACapOfTwoLettersAddsBothForOneStep)
{
    Key(keyF1);
    EXPECT_EQ(State(), R"(1/1 a[b]ڑ\r\ncdڑ\r\nef | F1 | 0+1 running)");
    EXPECT_EQ(CopyCaret(), 1);
    Backspace();
    EXPECT_EQ(State(), R"(1/1 [a]bڑ\r\ncdڑ\r\nef | F | 0+6 running)");
    Backspace(); // out of reach
    EXPECT_EQ(State(), R"(1/1 [a]bڑ\r\ncdڑ\r\nef | F | 0+6 running)");
}

TEST_F(KeystrokesPassageTest, ACaretAtTheLimitOfItsFieldStaysThere)
{
    Type(u"a");
    It().caretPos = 32767;
    Key('X');
    EXPECT_EQ(It().caretPos, 32767);
    EXPECT_EQ(It().errorCount, 1);
    EXPECT_EQ(It().txtTest.Text(), u"ax");
}

TEST_F(KeystrokesPassageTest, ADrillOfTheLastLessonThatIsCheckedAtOnceRefusesAWrongKey)
{
    context.englishAnagram = true;
    context.freeTextChars = u"ab";
    context.anagramLanguage = false;
    machine.draws.assign(45, 0.0);
    Open(15, 3, Language::English);
    Key(keySpace);
    EXPECT_EQ(State().substr(0, 14), "1/1 [a]b aaaaa");
    EXPECT_EQ(It().txtTest.Text(), u" "); // the cap reads what it types here
    EXPECT_TRUE(Runs(TimerName::ErrKey));
    Wait(420);
    Type(u"ab ");
    EXPECT_EQ(It().txtTest.Text(), u"ab ");
}

} // namespace
} // namespace keyfluent::session
