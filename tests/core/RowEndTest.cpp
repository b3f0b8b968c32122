#include "session/RowEnd.h"

#include "LessonFixture.h"
#include "context/FatalError.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;
using namespace keyboard;

class RowEndTest : public LessonFixture
{
protected:
    // The best mark kept for the place of the context, on the Windows keyboard.
    int Kept(int lesson, int exercise, Language language)
    {
        const int field = (language == Language::Arabic ? 0 : 5) + exercise - 1;
        return context.studentTable.Record(16 + lesson)[static_cast<std::size_t>(field)];
    }

    // A drill of letters at its place of the English list.
    void OpenDrill(bool arabicDrill, int lesson, int exercise, bool arabicLetters)
    {
        context.arabicAnagram = arabicDrill;
        context.englishAnagram = !arabicDrill;
        context.freeTextChars = arabicLetters ? u"اب" : u"ab";
        context.anagramLanguage = arabicLetters;
        Open(lesson, exercise, Language::English);
    }

    void TypeRow()
    {
        const std::u16string row = It().txtOrigin.Text();
        Type(row);
    }
};

TEST_F(RowEndTest, AFullRowGivesWayToTheNext)
{
    OpenRows(1, 1, Language::English, {u"as ", u"df", u"jk "});
    Type(u"as");
    EXPECT_EQ(State(), "1/3 as[ ] | as | 2+0 running");
    Type(u" ");
    EXPECT_EQ(State(), "2/3 [d]f |  | 3+0 running");
    EXPECT_EQ(It().caretPos, 0);
    Type(u"df");
    EXPECT_EQ(State(), "3/3 [j]k  |  | 5+0 running");
}

TEST_F(RowEndTest, ARefusedKeyAtTheLastCharacterDoesNotEndTheRow)
{
    OpenRows(1, 1, Language::English, {u"as", u"df"});
    Type(u"a");
    Key('X');
    EXPECT_EQ(State(), "1/2 a[s] | ax | 1+1 blinking");
}

TEST_F(RowEndTest, ARowWithAMarkAtItsEndWaitsForEnter)
{
    OpenRows(1, 1, Language::English, {u"as \u0691", u"df"});
    Type(u"as ");
    EXPECT_EQ(State(), "1/2 as [ڑ] | as  | 3+0 running");
    Enter();
    EXPECT_EQ(State(), "2/2 [d]f |  | 4+0 running");
}

TEST_F(RowEndTest, ALateRowGivesWayWhenItIsTypedAsItStands)
{
    OpenRows(14, 1, Language::English, {u"as ", u"df"});
    Type(u"as ");
    EXPECT_EQ(State(), "2/2 [d]f |  | 3+0 running");
    Type(u"d");
    EXPECT_EQ(State(), "2/2 d[f] | d | 4+0 running");
}

TEST_F(RowEndTest, ALateRowWithOneWrongCharacterIsWipedWhole)
{
    OpenRows(14, 1, Language::English, {u"asdf ", u"jk"});
    Type(u"axdf");
    EXPECT_EQ(State(), "1/2 asdf[ ] | axdf | 3+1 running");
    Type(u" ");
    EXPECT_EQ(State(), "1/2 [a]sdf  | axdf  | 4+1 erasing");
    EXPECT_EQ(It().caretPos, 0);
    Wait(120); // five characters and the tick that finds none
    EXPECT_EQ(State(), "1/2 [a]sdf  |  | 4+1 running");
    Type(u"asdf ");
    EXPECT_EQ(State(), "2/2 [j]k |  | 9+1 running");
}

TEST_F(RowEndTest, AMendedLateRowIsGood)
{
    OpenRows(14, 1, Language::English, {u"as ", u"df"});
    Type(u"ax");
    Backspace();
    Type(u"s ");
    EXPECT_EQ(State(), "2/2 [d]f |  | 3+6 running");
}

TEST_F(RowEndTest, CapitalsAndSmallLettersDiffer)
{
    OpenRows(14, 1, Language::English, {u"as"});
    Type(u"aS");
    EXPECT_EQ(State(), "1/1 [a]s | aS | 1+1 erasing");
}

TEST_F(RowEndTest, ALateRowThatWasJumpedOverGoesOnUntilItIsTakenBack)
{
    OpenRows(14, 1, Language::English, {u"as", u"df"});
    Type(u"a");
    Key(keyF1); // two characters at the last place
    EXPECT_EQ(State(), "1/2 as[] | aF1 | 1+1 running");
    Backspace();
    EXPECT_EQ(State(), "1/2 a[s] | aF | 1+6 running"); // the check runs at the next judged key
    Backspace();
    EXPECT_EQ(State(), "1/2 [a]s | a | 1+11 running");
    Type(u"x");
    EXPECT_EQ(State(), "1/2 [a]s | ax | 1+12 erasing");
}

TEST_F(RowEndTest, TheEndOfATextIsEvaluatedAndItsResultShown)
{
    OpenRows(1, 1, Language::English, {u"as"});
    Type(u"a");
    Wait(1000);
    machine.events.clear();
    Type(u"s");
    EXPECT_EQ(State(), "2/1 as[] | as | 2+0 ended");
    EXPECT_EQ(TakeEvents(),
              (Events{"focus txtOrigin", "focus txtOrigin", "unload frmLesson", "show frmResult"}));
    EXPECT_TRUE(context.inExercise);
    EXPECT_EQ(context.accuracyMark, 100);
    EXPECT_EQ(context.exerciseMark, 100);
    EXPECT_EQ(Kept(1, 1, Language::English), 100);
}

TEST_F(RowEndTest, TheMarkIsTheGauges)
{
    OpenRows(2, 1, Language::Arabic, {u"شس"}); // worth 50
    Type(u"ش");
    Key('X');
    Wait(420);
    Type(u"س");
    EXPECT_EQ(context.accuracyMark, 34); // 67 percent of 50, rounded to the even
    EXPECT_EQ(Kept(2, 1, Language::Arabic), 34);
}

TEST_F(RowEndTest, ALateTextEndsWithTheCaretHidden)
{
    OpenRows(14, 1, Language::English, {u"as"});
    Type(u"a");
    Wait(100000);
    machine.events.clear();
    Type(u"s");
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin", "focus txtOrigin", "HideCaret txtTest",
                                    "unload frmLesson", "show frmResult"}));
    EXPECT_TRUE(context.inExercise);
    EXPECT_EQ(context.exerciseMark, 200); // a hundred seconds earn no bonus
    EXPECT_EQ(Kept(14, 1, Language::English), 200);
}

TEST_F(RowEndTest, APassageTypedRightEndsWithoutAReview)
{
    OpenRows(15, 1, Language::English, {u"a\u0691\r\nb"});
    Type(u"a");
    Wait(100000);
    Enter();
    machine.events.clear();
    Type(u"b");
    EXPECT_EQ(State(), R"(2/1 aڑ\r\nb[] | aڑ\r\nb | 3+0 ended)");
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin", "focus txtOrigin", "HideCaret txtTest",
                                    "unload frmLesson", "show frmResult"}));
    EXPECT_EQ(Kept(15, 1, Language::English), 200);
}

TEST_F(RowEndTest, AnExerciseWhereSpeedCountsAndNoTimePassedEndsTheProgram)
{
    OpenRows(14, 1, Language::English, {u"as"});
    Type(u"a");
    EXPECT_THROW(Type(u"s"), context::FatalError);
}

TEST_F(RowEndTest, AnExerciseOverMidnightLosesItsMark)
{
    OpenRows(14, 1, Language::English, {u"as"});
    machine.SetTimeOfDay(86390);
    Type(u"a");
    machine.SetTimeOfDay(10);
    Type(u"s");
    EXPECT_EQ(context.accuracyMark, 200);
    EXPECT_EQ(context.speedBonus, -200);
    EXPECT_EQ(context.exerciseMark, 0);
}

TEST_F(RowEndTest, ADrillThatIsCheckedAtOnceEndsInSilence)
{
    OpenDrill(true, 9, 5, true);
    TypeRow();
    EXPECT_FALSE(IsOpen());
    const Events events = TakeEvents();
    EXPECT_EQ(events.back(), "unload frmLesson");
    EXPECT_FALSE(context.inExercise);
    EXPECT_EQ(context.exerciseMark, 0);
    EXPECT_EQ(Kept(9, 5, Language::Arabic), 0);
    context.exerciseMark = 77;
    OpenDrill(false, 8, 5, false);
    TypeRow();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeEvents().back(), "unload frmLesson");
    EXPECT_EQ(context.exerciseMark, 77);
}

TEST_F(RowEndTest, AnArabicDrillThatIsCheckedLateIsEvaluatedWithoutAResult)
{
    // Where the drills over Arabic letters are checked late, and what those places are worth.
    struct Case {
        int lesson;
        int exercise;
        bool arabicDrill;
        int worth;
    };
    const Case cases[] = {{11, 5, true, 100}, {13, 5, true, 200},  {14, 3, false, 100},
                          {14, 5, true, 200}, {15, 3, false, 100}, {15, 5, true, 100}};
    for (const Case& drill : cases) {
        OpenDrill(drill.arabicDrill, drill.lesson, drill.exercise, true);
        const std::u16string row = It().txtOrigin.Text();
        Type(row.substr(0, row.size() - 1));
        Wait(100000);
        machine.events.clear();
        Type(row.substr(row.size() - 1));
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin", "focus txtOrigin", "HideCaret txtTest",
                                        "unload frmLesson"}));
        EXPECT_TRUE(context.inExercise);
        EXPECT_EQ(Kept(drill.lesson, drill.exercise, Language::Arabic), drill.worth)
            << drill.lesson << "." << drill.exercise;
        context.inExercise = false;
    }
}

TEST_F(RowEndTest, ALateDrillWithAMistakeIsWiped)
{
    OpenDrill(true, 14, 5, true);
    const std::u16string row = It().txtOrigin.Text();
    Key('X');
    Type(row.substr(1));
    EXPECT_STREQ(PhaseOf(It()), "erasing");
}

TEST_F(RowEndTest, AnEmptyRowEndsWithItsFirstKey)
{
    Open(8, 5, Language::English);
    EXPECT_EQ(State(), "1/1 [] |  | 0+0 waiting");
    for (const int code : {16, 8, 9, 37, 17, 20}) {
        Key(code);
    }
    Up(keyShift);
    EXPECT_EQ(State(), "1/1 [] |  | 0+0 running");
    EXPECT_EQ(It().imgLeftHand.bitmap, 113);
    EXPECT_EQ(Looks(), "72 held, 78 held");
    machine.events.clear();
    Key('A');
    EXPECT_EQ(State(), "2/1 [] | a | 0+1 ended");
    EXPECT_EQ(TakeEvents(),
              (Events{"focus txtOrigin", "system beep", "unload frmLesson", "show frmResult"}));
    EXPECT_EQ(context.exerciseMark, 0);
    EXPECT_EQ(context.accuracyMark, 0);
    EXPECT_EQ(context.speedBonus, 0);
    EXPECT_TRUE(context.inExercise);
}

TEST_F(RowEndTest, AnEmptyRowDoesNotEndByItself)
{
    Open(8, 5, Language::English);
    Wait(60000);
    EXPECT_TRUE(IsOpen());
}

TEST_F(RowEndTest, AfterARowTheLastLookedUpCharacterIsTheNewOne)
{
    OpenRows(1, 1, Language::English, {u"a", u"jf"});
    Type(u"a");
    EXPECT_EQ(It().litChar, u"j");
    EXPECT_EQ(Looks(), "54 lit");
}

TEST_F(RowEndTest, ABetterMarkIsKeptAndAWorseOneNot)
{
    OpenRows(1, 1, Language::English, {u"as"});
    Type(u"as");
    ASSERT_EQ(Kept(1, 1, Language::English), 100);
    OpenRows(1, 1, Language::English, {u"as"});
    Key('X');
    Wait(420);
    Type(u"as");
    EXPECT_EQ(context.exerciseMark, 67);
    EXPECT_EQ(Kept(1, 1, Language::English), 100);
}

TEST_F(RowEndTest, APauseIsNoPartOfTheTimeThatIsMarked)
{
    OpenRows(14, 1, Language::English, {u"asd"});
    Type(u"a");
    Wait(50000);
    It().paused = true;
    It().resumeArmed = true;
    It().pauseStart = context::TimeOfDay(machine.platform);
    Wait(1000000);
    Type(u"s");
    Wait(50000);
    Type(u"d");
    EXPECT_EQ(context.speedBonus, 0); // a hundred seconds
}

} // namespace
} // namespace keyfluent::session
