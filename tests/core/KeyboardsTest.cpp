#include "progress/Keyboards.h"

#include <gtest/gtest.h>

namespace keyfluent::progress
{
namespace
{

context::SessionContext WithKind(std::int32_t kind)
{
    context::SessionContext context;
    context.keyboardKind = kind;
    return context;
}

TEST(Keyboards, OnlyZeroIsTheMacintoshWhereEveryOtherKindCountsAsWindows)
{
    EXPECT_FALSE(CountsAsWindows(WithKind(0)));
    for (const std::int32_t kind : {192, 1, 191, 193, -1, 0x7FFFFFFF}) {
        EXPECT_TRUE(CountsAsWindows(WithKind(kind))) << kind;
    }
}

TEST(Keyboards, OnlyTheNumber192IsWindowsByNumber)
{
    EXPECT_TRUE(IsWindowsByNumber(WithKind(192)));
    for (const std::int32_t kind : {0, 1, 191, 193, -1, 0x7FFFFFFF}) {
        EXPECT_FALSE(IsWindowsByNumber(WithKind(kind))) << kind;
    }
}

TEST(Keyboards, EachKeyboardHasItsOwnReachedLesson)
{
    context::SessionContext context;
    ReachedLesson(context, false) = 4;
    ReachedLesson(context, true) = 9;
    EXPECT_EQ(context.reachedLessonMac, 4);
    EXPECT_EQ(context.reachedLessonWin, 9);
    const context::SessionContext& read = context;
    EXPECT_EQ(ReachedLesson(read, false), 4);
    EXPECT_EQ(ReachedLesson(read, true), 9);
}

} // namespace
} // namespace keyfluent::progress
