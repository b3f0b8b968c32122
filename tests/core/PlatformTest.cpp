#include "context/Platform.h"

#include <gtest/gtest.h>

namespace keyfluent::context
{
namespace
{

TEST(Platform, TheTimeOfDayIsHeldInThirtyTwoBits)
{
    Platform platform;
    double now = 86399.123456;
    platform.secondsSinceMidnight = [&now] { return now; };
    EXPECT_EQ(TimeOfDay(platform), 86399.123456F);
    // Near midnight the grain is 1/128 of a second.
    now = 86399.001;
    EXPECT_EQ(TimeOfDay(platform), 86399.0F);
    now = 86399.0 + 1.0 / 128;
    EXPECT_GT(TimeOfDay(platform), 86399.0F);
}

TEST(Platform, TheTimeOfDayIsReadAtEachCall)
{
    Platform platform;
    int calls = 0;
    platform.secondsSinceMidnight = [&calls] { return double(++calls); };
    EXPECT_EQ(TimeOfDay(platform), 1.0F);
    EXPECT_EQ(TimeOfDay(platform), 2.0F);
}

TEST(Platform, DatesAreEqualByYearMonthAndDay)
{
    EXPECT_EQ((CalendarDate{2026, 1, 31}), (CalendarDate{2026, 1, 31}));
    EXPECT_FALSE((CalendarDate{2026, 1, 31}) == (CalendarDate{2026, 1, 30}));
}

} // namespace
} // namespace keyfluent::context
