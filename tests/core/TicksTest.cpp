#include "session/Ticks.h"

#include "LessonFixture.h"
#include "session/Caps.h"
#include "session/Review.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;
using namespace keyboard;

class TicksTest : public LessonFixture
{
protected:
    // As after a blink that has had its full length.
    void OpenSettled(course::Row row = u"asdf ")
    {
        OpenRows(1, 1, Language::English, {row});
        It().blinkCount = 0;
    }

    std::string Clock() { return Utf8(It().lblTimer.caption); }
};

TEST_F(TicksTest, TheClockCountsASecondATick)
{
    OpenSettled();
    Key('A');
    Wait(999);
    EXPECT_EQ(Clock(), "00:00");
    Wait(1);
    EXPECT_EQ(Clock(), "00:01");
    Wait(58000);
    EXPECT_EQ(Clock(), "00:59");
    Wait(1000);
    EXPECT_EQ(Clock(), "01:00");
    EXPECT_EQ(It().clockMinutes, 1);
    EXPECT_EQ(It().clockSeconds, 0);
    Wait(9 * 60000 + 5000);
    EXPECT_EQ(Clock(), "10:05");
}

TEST_F(TicksTest, AfterNinetyNineMinutesTheClockFallsBack)
{
    OpenSettled();
    Key('A');
    Wait(99 * 60000 + 59000);
    EXPECT_EQ(Clock(), "99:59");
    Wait(1000);
    EXPECT_EQ(Clock(), "00:00");
    Wait(1000);
    EXPECT_EQ(Clock(), "00:01");
}

TEST_F(TicksTest, TheClockCountsTicksAndNotTheTimeOfDay)
{
    OpenSettled();
    Key('A');
    machine.SetTimeOfDay(5);
    TickOf(TimerName::Clock, 3);
    EXPECT_EQ(Clock(), "00:03");
    It().startTime = 0;
    TickOf(TimerName::Clock);
    EXPECT_EQ(Clock(), "00:04");
}

TEST_F(TicksTest, WithoutTheClocksAidNothingIsCounted)
{
    context.optClock = false;
    OpenSettled();
    Key('A');
    machine.events.clear();
    TickOf(TimerName::Clock, 3);
    EXPECT_EQ(Clock(), "00:00");
    EXPECT_EQ(It().clockSeconds, 0);
    EXPECT_EQ(TakeEvents(),
              (Events{"HideCaret txtOrigin", "HideCaret txtOrigin", "HideCaret txtOrigin"}));
}

TEST_F(TicksTest, TheClockHidesTheCaretButInFreeText)
{
    OpenSettled();
    TickOf(TimerName::Clock);
    EXPECT_EQ(TakeEvents(), (Events{"HideCaret txtOrigin"}));
    context.freeText = true;
    Open(12, 4, Language::English);
    TickOf(TimerName::Clock);
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(Clock(), "00:01");
}

TEST_F(TicksTest, AFirstKeyInTheMiddleOfASecondStartsAWholeOne)
{
    OpenSettled();
    Wait(730);
    Key('A');
    Wait(500);
    Key('S');
    Wait(499);
    EXPECT_EQ(Clock(), "00:00");
    Wait(1);
    EXPECT_EQ(Clock(), "00:01");
}

TEST_F(TicksTest, ARightKeyWinksInThreePhases)
{
    OpenSettled();
    Key('A'); // the pressed cap is plain, as the next character has another
    EXPECT_EQ(Look(48), "plain");
    Wait(90);
    EXPECT_EQ(Looks(), "48 lit, 49 lit");
    Wait(90);
    EXPECT_EQ(Looks(), "48 reversed, 49 lit");
    EXPECT_TRUE(Runs(TimerName::Hilite));
    Wait(90);
    EXPECT_EQ(Looks(), "49 lit");
    EXPECT_FALSE(Runs(TimerName::Hilite));
    EXPECT_EQ(It().blinkCount, 0);
}

TEST_F(TicksTest, WhereTheSameKeyComesAgainTheWinkBeginsReversed)
{
    OpenSettled(u"aab");
    Key('A');
    Wait(90);
    EXPECT_EQ(Looks(), "48 reversed");
    Wait(90);
    EXPECT_EQ(Looks(), "48 lit");
    Wait(90);
    EXPECT_EQ(Looks(), "48 lit"); // as the key to press
}

TEST_F(TicksTest, AWinkEndsWithTheHandsAndTheExpectedCharacter)
{
    OpenSettled(u"aj");
    Key('A');
    It().imgRightHand.bitmap = 0;
    It().txtOrigin.Select(0, 0);
    It().caps.foreColour[20] = 5;
    machine.events.clear();
    Wait(270);
    // The hands go by what is selected, before the selection is set again.
    EXPECT_EQ(It().imgRightHand.bitmap, 119);
    EXPECT_EQ(State(), "1/1 a[j] | a | 1+0 running");
    EXPECT_EQ(Looks(), "54 lit");
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin"}));
}

TEST_F(TicksTest, AWinkLeavesCapsLockAndTheShiftKeysAsTheyAre)
{
    OpenSettled();
    machine.capsLockState = 1;
    Key(keyCapsLock);
    Key(keyShift);
    Key('A');
    Wait(270);
    EXPECT_EQ(Looks(), "47 held, 49 lit, 60 held, 71 held");
}

TEST_F(TicksTest, AWinkGoesOnOnTheKeyPressedNext)
{
    OpenSettled(u"asdf ");
    Key('A');
    Wait(90);
    Key('S');
    Wait(90);
    EXPECT_EQ(Look(49), "lit");
    EXPECT_EQ(Look(48), "plain"); // the key before went out when the next was looked up
    Wait(90);
    EXPECT_FALSE(Runs(TimerName::Hilite));
}

TEST_F(TicksTest, AWinkOfAKeyWithoutACapOnlyCounts)
{
    OpenSettled();
    Key('A');
    Key(9);
    EXPECT_EQ(It().pressedKey, noCap);
    Wait(180);
    EXPECT_EQ(Looks(), "49 lit");
    EXPECT_EQ(It().blinkCount, 2);
    Wait(90);
    EXPECT_FALSE(Runs(TimerName::Hilite));
}

TEST_F(TicksTest, WithoutTheKeyCapsAWinkNeverEnds)
{
    context.optKeyCaps = false;
    OpenSettled(u"aj");
    Key('A');
    It().imgRightHand.bitmap = 0;
    machine.events.clear();
    Wait(900);
    EXPECT_TRUE(Runs(TimerName::Hilite));
    EXPECT_EQ(It().blinkCount, 0);
    EXPECT_EQ(It().imgRightHand.bitmap, 0);
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(Looks(), "54 lit");
}

TEST_F(TicksTest, TheFirstBlinkAfterLoadingEndsAtItsFirstTick)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Key('A');
    Wait(90);
    EXPECT_FALSE(Runs(TimerName::Hilite));
    EXPECT_EQ(Looks(), "49 lit");
    Key('S');
    Wait(269);
    EXPECT_TRUE(Runs(TimerName::Hilite));
    Wait(1);
    EXPECT_FALSE(Runs(TimerName::Hilite));
}

TEST_F(TicksTest, TheFirstBlinkAfterARepaintEndsAtItsFirstTick)
{
    OpenSettled();
    BackgroundDrawn(It());
    Key('X');
    Wait(60);
    EXPECT_EQ(State(), "1/1 [a]sdf  |  | 0+1 running");
    Key('X');
    Wait(60);
    EXPECT_STREQ(PhaseOf(It()), "blinking");
}

TEST_F(TicksTest, ARefusedKeyBlinksInSevenPhases)
{
    OpenSettled();
    Key('X');
    for (int tick = 1; tick <= 6; ++tick) {
        Wait(60);
        EXPECT_EQ(Look(62), tick % 2 == 1 ? "error" : "plain") << tick;
        EXPECT_EQ(It().blinkCount, tick);
        EXPECT_EQ(It().txtTest.Text(), u"x");
    }
    Wait(60);
    EXPECT_EQ(Looks(), "48 lit");
    EXPECT_EQ(State(), "1/1 [a]sdf  |  | 0+1 running");
    EXPECT_EQ(It().blinkCount, 0);
    EXPECT_FALSE(It().errorPending);
    EXPECT_FALSE(Runs(TimerName::ErrKey));
}

TEST_F(TicksTest, ABlinkKeepsTheColourOfTheCapsText)
{
    OpenSettled();
    Key('X');
    It().caps.foreColour[62] = 12345;
    Wait(60);
    EXPECT_EQ(It().caps.foreColour[62], 12345);
    EXPECT_EQ(It().caps.backColour[62], errColour);
    Wait(60);
    EXPECT_EQ(It().caps.foreColour[62], 12345);
    EXPECT_EQ(It().caps.backColour[62], white);
}

TEST_F(TicksTest, ABlinkOfTheLitCapLightsItAgainAtItsEnd)
{
    OpenSettled();
    Strike({'A', true}); // the right key with Shift
    Wait(420);
    EXPECT_EQ(Looks(), "48 lit");
    EXPECT_EQ(It().litChar, u"a");
}

TEST_F(TicksTest, ABlinkOfAKeyWithoutACapRunsItsTime)
{
    OpenSettled();
    Key('X');
    It().pressedKey = noCap;
    Wait(420);
    EXPECT_EQ(State(), "1/1 [a]sdf  |  | 0+1 running");
}

TEST_F(TicksTest, TheTwoBlinksCountTogether)
{
    OpenSettled();
    Key('A'); // winks at 90, 180, 270
    Wait(50);
    Key('X'); // blinks at 110, 170, 230 and so on
    EXPECT_TRUE(Runs(TimerName::Hilite));
    EXPECT_TRUE(Runs(TimerName::ErrKey));
    Wait(70); // 90, 110
    EXPECT_EQ(It().blinkCount, 2);
    Wait(60); // 170 and 180: the wink reaches its limit
    EXPECT_EQ(It().blinkCount, 0);
    EXPECT_FALSE(Runs(TimerName::Hilite));
    EXPECT_TRUE(Runs(TimerName::ErrKey));
    Wait(409); // 230 to 590, six and a half of seven
    EXPECT_TRUE(Runs(TimerName::ErrKey));
    EXPECT_EQ(It().blinkCount, 6);
    Wait(1);
    EXPECT_FALSE(Runs(TimerName::ErrKey));
    EXPECT_EQ(It().blinkCount, 0);
}

TEST_F(TicksTest, ABlinkThatEndsFirstSetsTheWinkBack)
{
    OpenSettled();
    It().blinkCount = 6;
    It().TimerOf(TimerName::Hilite).Start();
    Key('X');
    Wait(60);
    EXPECT_EQ(It().blinkCount, 0);
    EXPECT_TRUE(Runs(TimerName::Hilite));
    Wait(29 + 180);
    EXPECT_TRUE(Runs(TimerName::Hilite));
    Wait(1);
    EXPECT_FALSE(Runs(TimerName::Hilite));
}

TEST_F(TicksTest, AFailedRowGoesCharacterByCharacterFromItsEnd)
{
    OpenRows(14, 1, Language::English, {u"asdf"});
    Type(u"axdf");
    Wait(19);
    EXPECT_EQ(It().txtTest.Text(), u"axdf");
    Wait(1);
    EXPECT_EQ(It().txtTest.Text(), u"axd");
    Wait(60);
    EXPECT_EQ(State(), "1/1 [a]sdf |  | 3+1 erasing");
    EXPECT_EQ(Key('A'), 0);
    Wait(20); // one tick more than there were characters
    EXPECT_EQ(State(), "1/1 [a]sdf |  | 3+1 running");
    EXPECT_EQ(Key('A'), 'A');
}

TEST_F(TicksTest, TheEndOfTheWipingPutsTheCaretToTheStart)
{
    OpenRows(14, 1, Language::English, {u"asdf"});
    Type(u"axdf");
    It().txtTest.SetText(u"");
    It().caretPos = 3;
    TickOf(TimerName::EraseChar);
    EXPECT_EQ(It().caretPos, 0);
    EXPECT_FALSE(Runs(TimerName::EraseChar));
}

TEST_F(TicksTest, TheWatcherDoesNothingOutsideAReview)
{
    OpenRows(14, 1, Language::English, {u"as"});
    It().reviewMode = true;
    It().txtTest.SetText(u"as");
    TickOf(TimerName::Auto, 3);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(It().label7.caption, u"");
    OpenRows(15, 1, Language::English, {u"as"});
    It().txtTest.SetText(u"as");
    TickOf(TimerName::Auto, 3);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(It().label7.caption, u"");
}

TEST_F(TicksTest, TheWatcherCountsTheDifferencesAtEachTickAndEndsTheReview)
{
    OpenRows(15, 1, Language::English, {u"abc"});
    Type(u"ax");
    Wait(2000);
    Type(u"x");
    Key(37);
    Wait(19);
    It().txtTest.SetText(u"abx");
    EXPECT_EQ(Utf8(It().label7.caption), "No of Errors: 2. Please correct the text.");
    Wait(1);
    EXPECT_EQ(Utf8(It().label7.caption), "No of Errors: 1. Please correct the text.");
    It().txtTest.SetText(u"abc");
    machine.events.clear();
    Wait(20);
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(Runs(TimerName::Auto));
    EXPECT_EQ(Utf8(It().label7.caption), "There is no any error in the text.");
    EXPECT_EQ(TakeEvents(), (Events{"unload frmLesson", "show frmResult"}));
}

TEST_F(TicksTest, TheIdleTimerDoesNothing)
{
    OpenSettled();
    Key('A');
    const std::string state = State();
    const std::string looks = Looks();
    const int blinkCount = It().blinkCount;
    machine.events.clear();
    TickOf(TimerName::Selection, 10);
    EXPECT_EQ(State(), state);
    EXPECT_EQ(Looks(), looks);
    EXPECT_EQ(It().blinkCount, blinkCount);
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_TRUE(Runs(TimerName::Selection));
}

TEST_F(TicksTest, OnlyTheIdleTimerRunsUntilAKey)
{
    Open();
    machine.events.clear();
    Wait(3'600'000);
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(Clock(), "00:00");
}

} // namespace
} // namespace keyfluent::session
