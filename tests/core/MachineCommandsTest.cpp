#include "ConsoleFixture.h"

#include <gtest/gtest.h>

namespace keyfluent::headless
{
namespace
{

using MachineCommandsTest = fixtures::ConsoleFixture;

TEST_F(MachineCommandsTest, NowSetsTheSecondsSinceMidnight)
{
    Run("now 40000.125\nopen\nkey 65");
    EXPECT_NE(Run("state").find("\"startTime\": 40000.125,"), std::string::npos);
}

TEST_F(MachineCommandsTest, NowIsRoundedToAMillisecond)
{
    Run("now 5.0004");
    EXPECT_EQ(console.Machine().Platform().secondsSinceMidnight(), 5.0);
    Run("now 5.0006");
    EXPECT_EQ(console.Machine().Platform().secondsSinceMidnight(), 5.001);
    Run("now 0");
    EXPECT_EQ(console.Machine().Platform().secondsSinceMidnight(), 0.0);
    Run("now 86399.999");
    EXPECT_EQ(console.Machine().Platform().secondsSinceMidnight(), 86399.999);
}

TEST_F(MachineCommandsTest, NowOutsideTheDayIsAMistake)
{
    ExpectMistakes({"now 86400", "now -0.001", "now x", "now \"5\"", "now 1e9", "now nan"});
}

TEST_F(MachineCommandsTest, NowFiresNoTimerAndMovesNone)
{
    Run("set optClock true\nopen\nkey 65\nwait 999\nnow 50000");
    EXPECT_EQ(Run("label lblTimer").substr(0, 20), R"({"caption": "00:00",)");
    Run("wait 1");
    EXPECT_EQ(Run("label lblTimer").substr(0, 20), R"({"caption": "00:01",)");
}

TEST_F(MachineCommandsTest, WaitLetsTheTimersFire)
{
    Run("set optClock true\nopen\nkey 65\nwait 61000");
    EXPECT_EQ(Run("label lblTimer").substr(0, 20), R"({"caption": "01:01",)");
    EXPECT_EQ(console.Machine().Platform().secondsSinceMidnight(), 36061.0);
    EXPECT_EQ(Run("wait 0"), "");
    EXPECT_EQ(console.Machine().Platform().secondsSinceMidnight(), 36061.0);
}

TEST_F(MachineCommandsTest, WaitTakesWholeMillisecondsOnly)
{
    ExpectMistakes({"wait -1", "wait 1.5", "wait x", "wait \"1\""});
}

TEST_F(MachineCommandsTest, TheDateIsMonthDayYear)
{
    Run("date 02-29-2024");
    EXPECT_EQ(console.Machine().date, (context::CalendarDate{2024, 2, 29}));
    Run("date 12-31-1999");
    EXPECT_EQ(console.Machine().date, (context::CalendarDate{1999, 12, 31}));
    Run("date 02-29-2000");
    EXPECT_EQ(console.Machine().date, (context::CalendarDate{2000, 2, 29}));
}

TEST_F(MachineCommandsTest, WhatIsNoDateIsAMistake)
{
    ExpectMistakes({"date 13-01-2026", "date 00-01-2026", "date 01-00-2026", "date 01-32-2026",
                    "date 04-31-2026", "date 02-29-2026", "date 02-29-1900", "date 1-1-2026",
                    "date 01/31/2026", "date 01-31-26", "date xx-31-2026", "date 01-xx-2026",
                    "date 01-31-xxxx", "date 01-31-0000", "date 2026-01-31", "date \"01-31-2026\"",
                    "date -1-31-2026"});
    EXPECT_EQ(console.Machine().date, (context::CalendarDate{2026, 1, 31}));
}

TEST_F(MachineCommandsTest, QueuedNumbersServeTheNextDraws)
{
    Run("random 0.5 0.99\nrandom 0\nopen\nmouse imgStop\nopen\nmouse imgStop\nopen\nmouse imgStop");
    const std::string events = Events();
    const std::size_t five = events.find("show frmStopNote 5");
    const std::size_t nine = events.find("show frmStopNote 9", five);
    const std::size_t one = events.find("show frmStopNote 1\n", nine);
    EXPECT_NE(one, std::string::npos) << events;
}

TEST_F(MachineCommandsTest, NumbersOutsideZeroToOneAreMistakes)
{
    ExpectMistakes({"random 1", "random -0.1", "random 0.5 1", "random x", "random \"0.5\""});
}

TEST_F(MachineCommandsTest, CapsLockIsSetForTheNextReading)
{
    Run("open\ncapslock on");
    EXPECT_NE(Run("state").find("\"capsOn\": false"), std::string::npos);
    Run("key 20");
    EXPECT_NE(Run("state").find("\"capsOn\": true"), std::string::npos);
    Run("capslock off\nactivate");
    EXPECT_NE(Run("state").find("\"capsOn\": false"), std::string::npos);
    ExpectMistakes({"capslock true", "capslock 1", "capslock"});
}

TEST_F(MachineCommandsTest, EventsAreToldOnce)
{
    EXPECT_EQ(Events(), "end\n");
    Run("open");
    Events();
    Run("activate");
    EXPECT_EQ(Events(), "paint frmLesson\nfocus txtOrigin\nHideCaret txtOrigin\nend\n");
    EXPECT_EQ(Events(), "end\n");
}

TEST_F(MachineCommandsTest, FieldsAreSetAndPrinted)
{
    EXPECT_EQ(Run("set studentName \"علي\"\nget studentName"), "\"علي\"\n");
    EXPECT_EQ(Run("set speedBonus -5\nget speedBonus"), "-5\n");
    ExpectMistakes({"set optSound 1", "get studentTable", "set fontSize x"});
}

TEST_F(MachineCommandsTest, RecordsAreNumberedFromOneToThirtyOne)
{
    EXPECT_EQ(Run("record 1"), "0 0 0 0 0 0 0 0 0 0\n");
    Run("setrecord 31 -32768 1 2 3 4 5 6 7 8 32767");
    EXPECT_EQ(Run("record 31"), "-32768 1 2 3 4 5 6 7 8 32767\n");
    EXPECT_EQ(Run("record 30"), "0 0 0 0 0 0 0 0 0 0\n");
    ExpectMistakes({"record 0", "record 32", "record x", "setrecord 0 0 0 0 0 0 0 0 0 0 0",
                    "setrecord 32 0 0 0 0 0 0 0 0 0 0", "setrecord 1 0 0 0 0 0 0 0 0 0 32768",
                    "setrecord 1 -32769 0 0 0 0 0 0 0 0 0", "setrecord 1 0 0 0 0 0 0 0 0 0 x"});
    EXPECT_EQ(Run("record 1"), "0 0 0 0 0 0 0 0 0 0\n");
}

} // namespace
} // namespace keyfluent::headless
