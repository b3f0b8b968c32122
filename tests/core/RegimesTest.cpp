#include "course/Regimes.h"

#include <gtest/gtest.h>

#include <string>

namespace keyfluent::course
{
namespace
{

// A line a lesson; the exercises from 1 to 5, Arabic before English: "." is checked at once, "L"
// late.
const std::string regimes[15] = {
    "..... .....", // 1
    "..... .....", // 2
    "..... ....L", // 3
    "..... .....", // 4
    "..... ....L", // 5
    "..... ....L", // 6
    "..... .....", // 7
    "..... .....", // 8
    "..... .....", // 9
    "..... .....", // 10
    "....L ...L.", // 11
    "LL... LL...", // 12
    "...LL LL...", // 13
    "LLLLL LL...", // 14
    "LLLLL LL...", // 15
};

TEST(Regimes, ArabicExercisesCheckLateWhereTheTableSaysSo)
{
    for (int lesson = 1; lesson <= 15; ++lesson) {
        for (int exercise = 1; exercise <= 5; ++exercise) {
            const char cell = regimes[lesson - 1][static_cast<std::size_t>(exercise - 1)];
            EXPECT_EQ(ChecksLate(lesson, exercise, true), cell == 'L') << lesson << "." << exercise;
        }
    }
}

TEST(Regimes, EnglishExercisesCheckLateWhereTheTableSaysSo)
{
    for (int lesson = 1; lesson <= 15; ++lesson) {
        for (int exercise = 1; exercise <= 5; ++exercise) {
            const char cell = regimes[lesson - 1][static_cast<std::size_t>(exercise + 5)];
            EXPECT_EQ(ChecksLate(lesson, exercise, false), cell == 'L')
                << lesson << "." << exercise;
        }
    }
}

TEST(Regimes, OutsideTheCourseNothingChecksLate)
{
    for (const bool arabic : {false, true}) {
        for (int lesson = -2; lesson <= 300; ++lesson) {
            for (int exercise = -2; exercise <= 300; ++exercise) {
                const bool inside = lesson >= 1 && lesson <= 15 && exercise >= 1 && exercise <= 5;
                if (!inside) {
                    ASSERT_FALSE(ChecksLate(lesson, exercise, arabic)) << lesson << "." << exercise;
                }
            }
        }
    }
}

} // namespace
} // namespace keyfluent::course
