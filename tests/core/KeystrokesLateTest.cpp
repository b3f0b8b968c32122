// Keys in the exercises that let a wrong key through and check at the end of the row, and in free
// text, where nothing is checked.
#include "LessonFixture.h"
#include "session/Keystrokes.h"
#include "session/Review.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;
using namespace keyboard;

class KeystrokesLateTest : public LessonFixture
{
protected:
    void OpenEnglish(std::initializer_list<course::Row> rows)
    {
        OpenRows(14, 1, Language::English, rows);
    }
    void OpenArabic(std::initializer_list<course::Row> rows)
    {
        OpenRows(14, 1, Language::Arabic, rows);
    }
};

TEST_F(KeystrokesLateTest, AWrongKeyIsTypedThroughAndCounted)
{
    OpenEnglish({u"asdf "});
    Key('A');
    Key('X');
    EXPECT_EQ(State(), "1/1 as[d]f  | ax | 1+1 running");
    Key('D');
    EXPECT_EQ(State(), "1/1 asd[f]  | axd | 2+1 running");
}

TEST_F(KeystrokesLateTest, AWrongKeyNeitherBeepsNorBlinks)
{
    OpenEnglish({u"asdf "});
    Key('X');
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin", "focus txtOrigin", "focus txtOrigin"}));
    EXPECT_FALSE(Runs(TimerName::ErrKey));
    EXPECT_FALSE(Runs(TimerName::Hilite));
    EXPECT_FALSE(It().errorPending);
    EXPECT_EQ(Looks(), "49 lit");
    EXPECT_EQ(It().pressedKey, 62);
}

TEST_F(KeystrokesLateTest, ARightKeyWinks)
{
    OpenEnglish({u"asdf "});
    Key('A');
    EXPECT_TRUE(Runs(TimerName::Hilite));
}

TEST_F(KeystrokesLateTest, WrongKeysAddWhatTheirCapsShow)
{
    OpenEnglish({u"abcdefghijkl"});
    Key(keySpace);
    Key(keyEnter);
    Key(keyEscape);
    Strike({'A', true});
    EXPECT_EQ(State(), "1/1 abcd[e]fghijkl |  ڑ?A | 0+4 running");
}

TEST_F(KeystrokesLateTest, ACapOfSeveralLettersAddsThemAllForOneStep)
{
    OpenEnglish({u"abcdefghijkl"});
    Key(keyF1);
    Key(keyF1 + 9);
    EXPECT_EQ(State(), "1/1 ab[c]defghijkl | F1F10 | 0+2 running");
    OpenArabic({u"ابتثجحخدذرزس"});
    Strike({'G', true});
    Strike({'T', true});
    EXPECT_EQ(State(), "1/1 اب[ت]ثجحخدذرزس | لألإ | 0+2 running");
}

TEST_F(KeystrokesLateTest, TheKeyOfTwoLettersGivesTheFirstAndIsWrong)
{
    OpenArabic({u"لال"});
    Key(keyLamAlef);
    EXPECT_EQ(State(), "1/1 ل[ا]ل | ل | 0+1 running");
    Type(u"ا");
    Wait(2000);
    Strike({keyLamAlef, true});
    EXPECT_EQ(State(), "2/1 لال[] | لال | 1+2 ended shift"); // the text came out right
}

TEST_F(KeystrokesLateTest, BackspaceTakesTheLastCharacterAndCostsFiveErrors)
{
    OpenEnglish({u"asdf "});
    Type(u"asd");
    EXPECT_EQ(Backspace(), keyBackspace);
    EXPECT_EQ(State(), "1/1 as[d]f  | as | 3+5 running");
    Backspace();
    EXPECT_EQ(State(), "1/1 a[s]df  | a | 3+10 running");
    EXPECT_EQ(It().litChar, u"s");
    EXPECT_EQ(It().totalCount, 13);
}

TEST_F(KeystrokesLateTest, BackspaceOverTheOnlyCharacterStartsTheRowAnew)
{
    OpenEnglish({u"asdf "});
    Key('X');
    Backspace();
    EXPECT_EQ(State(), "1/1 [a]sdf  |  | 0+6 running");
    It().txtTest.SetText(u"x");
    It().caretPos = 4;
    Backspace();
    EXPECT_EQ(State(), "1/1 [a]sdf  |  | 0+11 running");
}

TEST_F(KeystrokesLateTest, BackspaceAtTheStartOfTheRowOnlySounds)
{
    OpenEnglish({u"asdf "});
    EXPECT_EQ(Backspace(), keyBackspace);
    EXPECT_EQ(State(), "1/1 [a]sdf  |  | 0+0 running");
    EXPECT_EQ(TakeEvents(), (Events{"mmcBack Prev", "mmcBack Play", "focus txtOrigin"}));
}

TEST_F(KeystrokesLateTest, BackspaceEndsWithTheExpectedCharacterSelected)
{
    OpenEnglish({u"asdf "});
    Type(u"as");
    machine.events.clear();
    Backspace();
    EXPECT_EQ(TakeEvents(), (Events{"mmcBack Prev", "mmcBack Play", "focus txtOrigin"}));
    EXPECT_EQ(Looks(), "49 lit");
}

TEST_F(KeystrokesLateTest, AfterACapOfTwoLettersBackspaceRunsOutEarly)
{
    OpenEnglish({u"asdf "});
    Key(keyF1);
    Backspace();
    EXPECT_EQ(State(), "1/1 [a]sdf  | F | 0+6 running");
    Backspace();
    EXPECT_EQ(State(), "1/1 [a]sdf  | F | 0+6 running");
    Type(u"asdf"); // on to the row's length: it is wiped
    EXPECT_EQ(State(), "1/1 [a]sdf  | Fasdf | 4+6 erasing");
}

TEST_F(KeystrokesLateTest, PastTheEndOfTheRowEveryKeyIsWrong)
{
    OpenEnglish({u"as"});
    It().txtTest.SetText(u"x");
    It().caretPos = 2;
    It().txtTest.Append(u"yz"); // longer than the row
    Key('A');
    EXPECT_EQ(State(), "1/1 as[] | xyza | 0+1 running");
    EXPECT_EQ(It().caretPos, 3);
    Key(keySpace);
    EXPECT_EQ(State(), "1/1 as[] | xyza  | 0+2 running");
    EXPECT_EQ(Looks(), "");
}

TEST_F(KeystrokesLateTest, AMarkInTheRowIsTypedWithEnterAsOneCharacter)
{
    OpenEnglish({u"a\u0691", u"b"});
    Type(u"a");
    Enter();
    EXPECT_EQ(State(), "2/2 [b] |  | 2+0 running");
}

TEST_F(KeystrokesLateTest, AWrongEnterAddsTheMarkAlone)
{
    OpenEnglish({u"asdf "});
    Enter();
    EXPECT_EQ(State(), "1/1 a[s]df  | ڑ | 0+1 running");
}

TEST_F(KeystrokesLateTest, ARightKeyAddsTheTextsCharacterWhateverItsCapShows)
{
    OpenEnglish({u">~a"});
    Strike({188, true});
    EXPECT_EQ(State(), "1/1 >[~]a | > | 1+0 running");
}

TEST_F(KeystrokesLateTest, WhileARowIsWipedKeysAreLost)
{
    OpenEnglish({u"asdf"});
    Type(u"asdx");
    EXPECT_EQ(State(), "1/1 [a]sdf | asdx | 3+1 erasing");
    for (const int code : {65, 8, 13, 16, 17, 20, 32}) {
        EXPECT_EQ(Key(code), 0) << code;
    }
    Wait(1000);
    EXPECT_EQ(State(), "1/1 [a]sdf |  | 3+1 running");
    Type(u"asdf");
    EXPECT_EQ(State(), "2/1 asdf[] | asdf | 7+1 ended");
}

class FreeTextTest : public LessonFixture
{
protected:
    void SetUp() override
    {
        context.freeText = true;
        Open(12, 4, Language::English);
    }

    // A key as the window passes it on: first to the lesson, then to the field.
    void TypeInto(char16_t unit)
    {
        Key('A');
        EditField(It().txtOrigin, It().txtOrigin.Size(), 0, {&unit, 1});
    }
};

TEST_F(FreeTextTest, EveryKeyWithACapIsCountedAsRight)
{
    for (const int code : {65, 88, 13, 32, 27, 112, 188}) {
        EXPECT_EQ(Key(code), code);
    }
    EXPECT_EQ(State(), "1/1 [] |  | 7+0 running");
    EXPECT_EQ(It().totalCount, 7);
    EXPECT_EQ(It().accuracyPercent, 100);
}

TEST_F(FreeTextTest, BackspaceAndKeysWithoutACapAreNotCounted)
{
    TypeInto(u'a');
    for (const int code : {8, 9, 16, 37, 46}) {
        EXPECT_EQ(Key(code), code);
    }
    EXPECT_EQ(It().correctCount, 1);
    EXPECT_EQ(It().txtOrigin.Text(), u"a");
}

TEST_F(FreeTextTest, AKeyNeitherSelectsNorLightsAnything)
{
    TypeInto(u'a');
    machine.events.clear();
    Key('B');
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(Looks(), "");
    EXPECT_EQ(It().txtOrigin.SelectionStart(), 1);
    EXPECT_FALSE(Runs(TimerName::Hilite));
    EXPECT_FALSE(Runs(TimerName::ErrKey));
}

TEST_F(FreeTextTest, ErrorsAreHeldAtNought)
{
    It().errorCount = 9;
    Key('A');
    EXPECT_EQ(It().errorCount, 0);
    EXPECT_EQ(It().totalCount, 1);
}

TEST_F(FreeTextTest, KeysSoundWithTheAid)
{
    context.optSound = true;
    Key('A');
    Key(keySpace);
    Key(keyEnter);
    EXPECT_EQ(TakeEvents(), (Events{"mmcChar Prev", "mmcChar Play", "mmcSpace Prev",
                                    "mmcSpace Play", "mmcEnter Prev", "mmcEnter Play"}));
}

TEST_F(FreeTextTest, ThirtyThousandCharactersGoOn)
{
    It().txtOrigin.SetText(std::u16string(30000, u'a'));
    Key('A');
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(It().lblSpeed.caption, u"300");
}

TEST_F(FreeTextTest, MoreThanThirtyThousandCharactersEndItWithoutAResult)
{
    Key('A');
    Wait(2000);
    machine.events.clear();
    It().txtOrigin.SetText(std::u16string(30001, u'a'));
    Key('A');
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeEvents(), (Events{"unload frmLesson"}));
    EXPECT_TRUE(context.inExercise);
    // The figures are reckoned but no longer shown.
    EXPECT_EQ(It().correctCount, 2);
    EXPECT_EQ(It().speedRate, 60);
    EXPECT_EQ(It().lblSpeed.caption, u"300");
    EXPECT_EQ(context.exerciseMark, 0);
}

TEST_F(FreeTextTest, ALineEndCountsAsTwoOfThem)
{
    It().txtOrigin.SetText(std::u16string(29999, u'a') + u"\r\n");
    Key('A');
    EXPECT_FALSE(IsOpen());
}

TEST_F(FreeTextTest, TheKeyThatFindsTheLimitIsTheOneAfter)
{
    It().txtOrigin.SetText(std::u16string(30000, u'a'));
    TypeInto(u'b');
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(It().txtOrigin.Size(), 30001);
    Key('A');
    EXPECT_FALSE(IsOpen());
}

TEST_F(FreeTextTest, OnlyKeysThatAreCountedEndIt)
{
    It().txtOrigin.SetText(std::u16string(30001, u'a'));
    Key(keyShift);
    Backspace();
    EXPECT_TRUE(IsOpen());
}

TEST_F(FreeTextTest, InALateLanguageBackspaceIsStillNotCounted)
{
    context.anagramLanguage = true;
    Open(14, 4, Language::English);
    TypeInto(u'a');
    Backspace();
    EXPECT_EQ(State(), "1/1 a[] |  | 1+0 running");
}

} // namespace
} // namespace keyfluent::session
