#include "context/Arithmetic.h"

#include "context/FatalError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace keyfluent::context
{
namespace
{

TEST(Arithmetic, HalvesGoToTheEvenNeighbour)
{
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(3.5), 4);
    EXPECT_EQ(RoundHalfEven(7.5), 8);
    EXPECT_EQ(RoundHalfEven(48.5), 48);
    EXPECT_EQ(RoundHalfEven(49.5), 50);
    EXPECT_EQ(RoundHalfEven(-0.5), 0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2);
    EXPECT_EQ(RoundHalfEven(-2.5), -2);
}

TEST(Arithmetic, EverythingElseGoesToTheNearestNumber)
{
    EXPECT_EQ(RoundHalfEven(0.49999999999999994), 0);
    EXPECT_EQ(RoundHalfEven(0.5000000000000001), 1);
    EXPECT_EQ(RoundHalfEven(2.4999999), 2);
    EXPECT_EQ(RoundHalfEven(2.5000001), 3);
    EXPECT_EQ(RoundHalfEven(-2.4999999), -2);
    EXPECT_EQ(RoundHalfEven(-2.5000001), -3);
    EXPECT_EQ(RoundHalfEven(1e15 + 1), 1e15 + 1);
}

TEST(Arithmetic, RoundingAgreesWithTheMachinesOwnInSixteenths)
{
    for (int sixteenths = -20000; sixteenths <= 20000; ++sixteenths) {
        const double value = sixteenths / 16.0;
        ASSERT_EQ(RoundHalfEven(value), std::nearbyint(value)) << value;
    }
}

TEST(Arithmetic, ARoundedNumberMayFillItsField)
{
    EXPECT_EQ(RoundTo16(32767.4), 32767);
    EXPECT_EQ(RoundTo16(-32768.5), -32768);
    EXPECT_EQ(RoundTo16(2.5), 2);
    EXPECT_EQ(RoundTo32(2147483647.4), 2147483647);
    EXPECT_EQ(RoundTo32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(RoundTo32(40000.5), 40000);
}

TEST(Arithmetic, ARoundedNumberThatLeavesItsFieldEndsTheProgram)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
    for (const double value : {32767.5, 40000.0, -32768.6, infinity, -infinity, nothing}) {
        EXPECT_THROW(RoundTo16(value), FatalError) << value;
    }
    for (const double value : {2147483647.5, -2147483648.6, infinity, -infinity, nothing}) {
        EXPECT_THROW(RoundTo32(value), FatalError) << value;
    }
}

TEST(Arithmetic, SumsOfSixteenBitsMayReachTheirEnds)
{
    EXPECT_EQ(AddChecked(100, -50), 50);
    EXPECT_EQ(AddChecked(32000, 767), 32767);
    EXPECT_EQ(AddChecked(-32000, -768), -32768);
    EXPECT_EQ(AddChecked(-32768, 32767), -1);
}

TEST(Arithmetic, ASumThatLeavesSixteenBitsEndsTheProgramWithASentence)
{
    EXPECT_THROW(AddChecked(32767, 1), FatalError);
    EXPECT_THROW(AddChecked(-32768, -1), FatalError);
    try {
        AddChecked(32767, 32767);
        FAIL() << "nothing was thrown";
    } catch (const FatalError& error) {
        const std::string sentence = error.what();
        ASSERT_FALSE(sentence.empty());
        EXPECT_EQ(sentence.back(), '.');
    }
}

} // namespace
} // namespace keyfluent::context
