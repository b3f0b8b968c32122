#include "headless/VirtualMachine.h"

#include "session/Keystrokes.h"
#include "session/RowEnd.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace keyfluent::headless
{
namespace
{

using Strings = std::vector<std::string>;

class VirtualMachineTest : public ::testing::Test
{
protected:
    VirtualMachineTest()
    {
        context.lessonNo = 1;
        context.exerciseNo = 1;
        context.keyboardKind = 192;
        context.optClock = true;
        context.optKeyCaps = true;
    }

    void Open()
    {
        machine.OpenLesson(context);
        machine.TakeEvents();
    }
    void Key(int code)
    {
        session::KeyDown(machine.Lesson(), static_cast<std::uint16_t>(code));
        machine.AfterEvent();
    }
    bool Runs(session::TimerName timer) { return machine.Lesson().TimerOf(timer).Enabled(); }

    context::SessionContext context;
    VirtualMachine machine;
};

TEST_F(VirtualMachineTest, StartsAtTenOnTheLastOfJanuary)
{
    EXPECT_EQ(machine.Platform().secondsSinceMidnight(), 36000.0);
    EXPECT_EQ(machine.Platform().today(), (context::CalendarDate{2026, 1, 31}));
    EXPECT_EQ(machine.Platform().capsLockState(), 0);
    EXPECT_FALSE(machine.HasLesson());
}

TEST_F(VirtualMachineTest, TimeStandsStillUnlessItIsToldToMove)
{
    Open();
    Key('A');
    EXPECT_EQ(machine.Platform().secondsSinceMidnight(), 36000.0);
    machine.Wait(1234);
    EXPECT_EQ(machine.Platform().secondsSinceMidnight(), 36001.234);
    machine.Wait(0);
    EXPECT_EQ(machine.Platform().secondsSinceMidnight(), 36001.234);
}

TEST_F(VirtualMachineTest, TheTimeOfDayFallsBackAtMidnightAndTheDateStays)
{
    machine.Clock().SetOfDay(86'399'500);
    machine.Wait(600);
    EXPECT_EQ(machine.Platform().secondsSinceMidnight(), 0.1);
    EXPECT_EQ(machine.Platform().today(), (context::CalendarDate{2026, 1, 31}));
    machine.Wait(10 * 86'400'000LL);
    EXPECT_EQ(machine.Platform().secondsSinceMidnight(), 0.1);
}

TEST_F(VirtualMachineTest, SettingTheTimeOfDayFiresNoTimer)
{
    Open();
    Key('A');
    machine.Wait(500);
    machine.Clock().SetOfDay(50'000'000);
    EXPECT_EQ(machine.Lesson().clockSeconds, 0);
    machine.Wait(499);
    EXPECT_EQ(machine.Lesson().clockSeconds, 0);
    machine.Wait(1);
    EXPECT_EQ(machine.Lesson().clockSeconds, 1);
    EXPECT_EQ(machine.Platform().secondsSinceMidnight(), 50000.5);
}

TEST_F(VirtualMachineTest, QueuedNumbersAreDrawnFirstInTheirOrder)
{
    machine.queuedRandom = {0.25, 0.75};
    EXPECT_EQ(machine.Platform().random(), 0.25);
    EXPECT_EQ(machine.Platform().random(), 0.75);
    const double drawn = machine.Platform().random();
    EXPECT_GE(drawn, 0.0);
    EXPECT_LT(drawn, 1.0);
    EXPECT_NE(machine.Platform().random(), drawn);
}

TEST_F(VirtualMachineTest, TheGeneratorIsSeeded)
{
    VirtualMachine other;
    machine.Platform().seedRandom(1.0);
    other.Platform().seedRandom(2.0);
    EXPECT_NE(machine.Platform().random(), other.Platform().random());
}

TEST_F(VirtualMachineTest, CapsLockIsAToggle)
{
    machine.capsLock = true;
    EXPECT_EQ(machine.Platform().capsLockState(), 1);
}

TEST_F(VirtualMachineTest, WhatTheCoreAsksForIsRecordedOldestFirst)
{
    machine.OpenLesson(context);
    EXPECT_EQ(machine.TakeEvents(),
              (Strings{R"(mmcEnter open "/enter.wav")", R"(mmcChar open "/char.wav")",
                       R"(mmcSpace open "/space.wav")", R"(mmcCaps open "/caps.wav")",
                       R"(mmcBack open "/Back.wav")", "paint frmLesson", "focus txtOrigin",
                       "HideCaret txtOrigin"}));
    EXPECT_EQ(machine.TakeEvents(), Strings{});
    Key('X');
    EXPECT_EQ(machine.TakeEvents(), (Strings{"focus txtOrigin", "beep", "focus txtOrigin"}));
}

TEST_F(VirtualMachineTest, ALessonIsDroppedWhenItHasUnloadedItself)
{
    Open();
    EXPECT_TRUE(machine.HasLesson());
    session::Unload(machine.Lesson());
    machine.AfterEvent();
    EXPECT_FALSE(machine.HasLesson());
    EXPECT_EQ(machine.TakeEvents(), (Strings{"unload frmLesson"}));
    machine.AfterEvent();
    machine.Wait(5000);
    EXPECT_EQ(machine.TakeEvents(), Strings{});
}

TEST_F(VirtualMachineTest, ATimerFiresAnIntervalAfterItsStartAndThenAtEachFurther)
{
    Open();
    machine.Wait(333);
    Key('A');
    machine.Wait(999);
    EXPECT_EQ(machine.Lesson().clockSeconds, 0);
    machine.Wait(1);
    EXPECT_EQ(machine.Lesson().clockSeconds, 1);
    machine.Wait(2999);
    EXPECT_EQ(machine.Lesson().clockSeconds, 3);
    machine.Wait(1);
    EXPECT_EQ(machine.Lesson().clockSeconds, 4);
}

TEST_F(VirtualMachineTest, EnablingARunningTimerChangesNothing)
{
    Open();
    machine.Lesson().blinkCount = 0;
    Key('A');
    machine.Wait(60);
    Key('S');
    machine.Wait(209);
    EXPECT_TRUE(Runs(session::TimerName::Hilite));
    machine.Wait(1);
    EXPECT_FALSE(Runs(session::TimerName::Hilite));
}

TEST_F(VirtualMachineTest, AStoppedTimerThatIsStartedAgainBeginsAnew)
{
    Open();
    machine.Lesson().blinkCount = 0;
    Key('X');
    machine.Wait(450); // over at 420
    Key('X');
    machine.Wait(419);
    EXPECT_TRUE(Runs(session::TimerName::ErrKey));
    machine.Wait(1);
    EXPECT_FALSE(Runs(session::TimerName::ErrKey));
}

TEST_F(VirtualMachineTest, TheTimeOfDayOfATickIsItsOwn)
{
    Open();
    for (const int code : {65, 83, 68, 70, 32, 65, 83, 68, 70, 32}) {
        Key(code);
    }
    machine.Wait(4000);
    machine.Lesson().blinkCount = 0;
    Key('X'); // the figures are reckoned anew when its blink ends, 4.42 seconds from the start
    machine.Wait(100000);
    EXPECT_EQ(machine.Lesson().speedRate, 127);
    EXPECT_EQ(machine.Lesson().lblTimer.caption, u"01:44");
}

TEST_F(VirtualMachineTest, TimersDueAtOneMomentFireInTheOrderOfTheirNames)
{
    using session::TimerName;
    Open();
    TimerQueue queue;
    session::Lesson& lesson = machine.Lesson();
    const std::pair<TimerName, int> starts[] = {
        {TimerName::Selection, 500}, {TimerName::Hilite, 910}, {TimerName::ErrKey, 940},
        {TimerName::EraseChar, 980}, {TimerName::Auto, 980},   {TimerName::Clock, 0}};
    for (const auto& [name, start] : starts) {
        lesson.TimerOf(name).Start();
        queue.Notice(lesson, start);
    }
    std::vector<int> fired;
    for (int timer = queue.NextDue(lesson, 1000); timer >= 0; timer = queue.NextDue(lesson, 1000)) {
        EXPECT_EQ(queue.DueTime(timer), 1000);
        fired.push_back(timer);
        queue.Advance(lesson, timer);
    }
    EXPECT_EQ(fired, (std::vector<int>{0, 1, 2, 3, 4, 5}));
}

TEST_F(VirtualMachineTest, TheEarlierTimerFiresFirst)
{
    using session::TimerName;
    Open();
    TimerQueue queue;
    session::Lesson& lesson = machine.Lesson();
    lesson.TimerOf(TimerName::Clock).Start();
    queue.Notice(lesson, 0); // with the idle timer, at 500 and 1000
    lesson.TimerOf(TimerName::Hilite).Start();
    queue.Notice(lesson, 600); // 690
    EXPECT_EQ(queue.NextDue(lesson, 499), -1);
    EXPECT_EQ(queue.NextDue(lesson, 5000), static_cast<int>(TimerName::Selection));
    queue.Advance(lesson, static_cast<int>(TimerName::Selection));
    EXPECT_EQ(queue.NextDue(lesson, 5000), static_cast<int>(TimerName::Hilite));
    lesson.TimerOf(TimerName::Hilite).Stop();
    EXPECT_EQ(queue.NextDue(lesson, 5000), static_cast<int>(TimerName::Clock));
}

TEST_F(VirtualMachineTest, TheTimersOfALessonThatHasGoneDoNotFireInTheNext)
{
    Open();
    Key('A');
    machine.Wait(900);
    session::Unload(machine.Lesson());
    machine.AfterEvent();
    Open();
    machine.Wait(5000);
    EXPECT_EQ(machine.Lesson().clockSeconds, 0);
}

TEST_F(VirtualMachineTest, TimeGoesOnAfterATickThatEndsTheLesson)
{
    context.lessonNo = 15;
    Open();
    session::Lesson& lesson = machine.Lesson();
    lesson.reviewMode = true;
    lesson.txtTest.SetText(lesson.txtOrigin.Text());
    lesson.TimerOf(session::TimerName::Auto).Start();
    machine.AfterEvent();
    machine.Wait(1000);
    EXPECT_FALSE(machine.HasLesson());
    EXPECT_EQ(machine.Platform().secondsSinceMidnight(), 36001.0);
    EXPECT_EQ(machine.TakeEvents(), (Strings{"unload frmLesson", "show frmResult"}));
}

TEST_F(VirtualMachineTest, WindowsAndPlayersAreNamedInTheEvents)
{
    Open();
    const session::LessonWindow& window = machine.Lesson().window;
    window.hideCaret(session::FieldName::Test);
    window.showCaret(session::FieldName::Test);
    window.showResult();
    window.showStopNote(10);
    window.showNotAllowed();
    machine.Platform().commandPlayer(context::Player::Caps, context::PlayerCommand::Play);
    machine.Platform().commandPlayer(context::Player::Back, context::PlayerCommand::Prev);
    EXPECT_EQ(
        machine.TakeEvents(),
        (Strings{"HideCaret txtTest", "ShowCaret txtTest", "show frmResult", "show frmStopNote 10",
                 "show frmNotAllowed", "mmcCaps Play", "mmcBack Prev"}));
}

} // namespace
} // namespace keyfluent::headless
