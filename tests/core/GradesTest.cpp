#include "progress/Grades.h"

#include <gtest/gtest.h>

#include <limits>

namespace keyfluent::progress
{
namespace
{

// The grade of a total by the lowest total of each grade and the highest of all; 0 for none.
int GradeByLimits(int total, int two, int three, int four, int one, int highest)
{
    if (total < two || total > highest) {
        return 0;
    }
    if (total < four) {
        return total < three ? 2 : 3;
    }
    return total < one ? 4 : 1;
}

TEST(Grades, EveryTotalHasItsGradeOrNone)
{
    for (int total = std::numeric_limits<std::int16_t>::min();
         total <= std::numeric_limits<std::int16_t>::max(); ++total) {
        const auto number = static_cast<std::int16_t>(total);
        ASSERT_EQ(ArabicGrade(number).value_or(std::uint8_t{0}),
                  GradeByLimits(total, 250, 401, 501, 801, 1000))
            << total;
        ASSERT_EQ(EnglishGrade(number).value_or(std::uint8_t{0}),
                  GradeByLimits(total, 350, 501, 801, 1051, 1400))
            << total;
    }
}

TEST(Grades, BothEndsOfEachRangeBelongToIt)
{
    EXPECT_FALSE(ArabicGrade(249).has_value());
    EXPECT_EQ(ArabicGrade(250), 2);
    EXPECT_EQ(ArabicGrade(400), 2);
    EXPECT_EQ(ArabicGrade(401), 3);
    EXPECT_EQ(ArabicGrade(500), 3);
    EXPECT_EQ(ArabicGrade(501), 4);
    EXPECT_EQ(ArabicGrade(800), 4);
    EXPECT_EQ(ArabicGrade(801), 1);
    EXPECT_EQ(ArabicGrade(1000), 1);
    EXPECT_FALSE(ArabicGrade(1001).has_value());

    EXPECT_FALSE(EnglishGrade(349).has_value());
    EXPECT_EQ(EnglishGrade(350), 2);
    EXPECT_EQ(EnglishGrade(500), 2);
    EXPECT_EQ(EnglishGrade(501), 3);
    EXPECT_EQ(EnglishGrade(800), 3);
    EXPECT_EQ(EnglishGrade(801), 4);
    EXPECT_EQ(EnglishGrade(1050), 4);
    EXPECT_EQ(EnglishGrade(1051), 1);
    EXPECT_EQ(EnglishGrade(1400), 1);
    EXPECT_FALSE(EnglishGrade(1401).has_value());
}

} // namespace
} // namespace keyfluent::progress
