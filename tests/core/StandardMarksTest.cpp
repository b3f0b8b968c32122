#include "progress/StandardMarks.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>
#include <string>
#include <string_view>

namespace keyfluent::progress
{
namespace
{

// The table once more, as it is read aloud: a lesson a line, Arabic 1 to 5, then English 1 to 5; a
// star marks a speed bonus.
constexpr std::array<const char*, 15> table = {
    "100 50 100 100 200        100 50 100 100 200",
    "50 100 100 100 200        100 50 100 100 200*",
    "100 50 100 100 200*       100 100 100 50 200*",
    "100 50 100 100 200*       100 100 100 100 100*",
    "100 50 100 100* 200*      100 50 100 100* 200*",
    "100 50 100 100* 200*      100 50 100 100* 200*",
    "100 50 100 100 200*       100 50 100 100 200*",
    "100 50 100 100 200*       50 100 50 300 0",
    "100 50 100 50 50          100* 50 100 100* 0",
    "100* 50 100 100 200*      200* 100 100* 0 0",
    "50 50 100 50 100*         50 50 100 100* 100",
    "100* 100* 100* 100* 100*  100* 200* 0 0 0",
    "100* 200* 200* 200* 200*  300* 500* 0 0 0",
    "100* 100* 100* 100* 200*  200* 300* 100 100 100",
    "100* 100* 100* 100* 100*  200* 500* 0 0 0",
};

TEST(StandardMarks, EveryCellOfTheTableHoldsItsMarkAndItsStar)
{
    for (int lesson = 1; lesson <= 15; ++lesson) {
        std::istringstream cells(table[static_cast<std::size_t>(lesson - 1)]);
        for (const bool arabic : {true, false}) {
            for (int exercise = 1; exercise <= 5; ++exercise) {
                std::string cell;
                cells >> cell;
                const bool star = cell.ends_with('*');
                EXPECT_EQ(StandardMark(lesson, exercise, arabic), std::stoi(cell))
                    << lesson << "." << exercise << (arabic ? " Arabic" : " English");
                EXPECT_EQ(HasSpeedBonus(lesson, exercise, arabic), star)
                    << lesson << "." << exercise << (arabic ? " Arabic" : " English");
            }
        }
        std::string more;
        EXPECT_FALSE(cells >> more);
    }
}

TEST(StandardMarks, OutsideTheCourseThereIsNoMarkAndNoStar)
{
    for (const bool arabic : {true, false}) {
        for (int lesson = -2; lesson <= 300; ++lesson) {
            for (int exercise = -2; exercise <= 300; ++exercise) {
                if (lesson >= 1 && lesson <= 15 && exercise >= 1 && exercise <= 5) {
                    continue;
                }
                ASSERT_EQ(StandardMark(lesson, exercise, arabic), 0) << lesson << "." << exercise;
                ASSERT_FALSE(HasSpeedBonus(lesson, exercise, arabic)) << lesson << "." << exercise;
            }
        }
    }
}

TEST(StandardMarks, PassingMarksAre300Or800InThreeLessonsAnd500InEveryOther)
{
    constexpr std::array<int, 16> expected = {500, 500, 500, 500, 500, 500, 500, 500,
                                              500, 300, 500, 300, 500, 800, 500, 500};
    for (int lesson = 0; lesson <= 15; ++lesson) {
        EXPECT_EQ(PassingMark(lesson), expected[static_cast<std::size_t>(lesson)]) << lesson;
    }
    for (const int lesson : {-1, 16, 255}) {
        EXPECT_EQ(PassingMark(lesson), 500) << lesson;
    }
}

TEST(StandardMarks, SeventeenEnglishPlacesNeverScore)
{
    // The exercises of lessons 0 to 15, as digits.
    constexpr std::array<std::string_view, 16> places = {
        "", "", "", "", "", "", "", "", "5", "5", "45", "5", "345", "345", "345", "345"};
    int count = 0;
    for (int lesson = 0; lesson <= 15; ++lesson) {
        const std::string_view exercises = places[static_cast<std::size_t>(lesson)];
        for (int exercise = 0; exercise <= 7; ++exercise) {
            const bool listed = exercises.find(std::to_string(exercise)) != exercises.npos;
            EXPECT_EQ(NeverScores(lesson, exercise), listed) << lesson << "." << exercise;
            count += listed ? 1 : 0;
        }
    }
    EXPECT_EQ(count, 17);
    EXPECT_FALSE(NeverScores(16, 5));
    EXPECT_FALSE(NeverScores(255, 4));
}

TEST(StandardMarks, PlacesThatNeverScoreShow100InLessons11And14And0Elsewhere)
{
    for (int lesson = 1; lesson <= 15; ++lesson) {
        for (int exercise = 1; exercise <= 5; ++exercise) {
            if (NeverScores(lesson, exercise)) {
                EXPECT_EQ(StandardMark(lesson, exercise, false),
                          lesson == 11 || lesson == 14 ? 100 : 0)
                    << lesson << "." << exercise;
            }
        }
    }
}

} // namespace
} // namespace keyfluent::progress
