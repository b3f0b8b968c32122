#include "progress/StandardMarks.h"

#include "course/Lessons.h"

namespace keyfluent::progress
{
namespace
{

struct Standard {
    std::int16_t mark;
    bool star;

    constexpr Standard(std::int16_t worth, bool speedCounts = false)
        : mark(worth), star(speedCounts)
    {
    }
};

// 200_star is a mark of 200 with a speed bonus.
constexpr Standard operator""_star(unsigned long long mark)
{
    return {static_cast<std::int16_t>(mark), true};
}

// clang-format off
constexpr Standard standards[course::lessonCount][2 * course::exerciseCount] = {
    // Arabic 1 to 5                                      English 1 to 5
    {100,      50,       100,      100,      200,         100,      50,       100,      100,      200},
    {50,       100,      100,      100,      200,         100,      50,       100,      100,      200_star},
    {100,      50,       100,      100,      200_star,    100,      100,      100,      50,       200_star},
    {100,      50,       100,      100,      200_star,    100,      100,      100,      100,      100_star},
    {100,      50,       100,      100_star, 200_star,    100,      50,       100,      100_star, 200_star},
    {100,      50,       100,      100_star, 200_star,    100,      50,       100,      100_star, 200_star},
    {100,      50,       100,      100,      200_star,    100,      50,       100,      100,      200_star},
    {100,      50,       100,      100,      200_star,    50,       100,      50,       300,      0},
    {100,      50,       100,      50,       50,          100_star, 50,       100,      100_star, 0},
    {100_star, 50,       100,      100,      200_star,    200_star, 100,      100_star, 0,        0},
    {50,       50,       100,      50,       100_star,    50,       50,       100,      100_star, 100},
    {100_star, 100_star, 100_star, 100_star, 100_star,    100_star, 200_star, 0,        0,        0},
    {100_star, 200_star, 200_star, 200_star, 200_star,    300_star, 500_star, 0,        0,        0},
    {100_star, 100_star, 100_star, 100_star, 200_star,    200_star, 300_star, 100,      100,      100},
    {100_star, 100_star, 100_star, 100_star, 100_star,    200_star, 500_star, 0,        0,        0},
};
// clang-format on

Standard StandardOf(int lesson, int exercise, bool arabic)
{
    if (lesson < 1 || lesson > course::lessonCount || exercise < 1 ||
        exercise > course::exerciseCount) {
        return {0};
    }
    return standards[lesson - 1][(arabic ? 0 : course::exerciseCount) + exercise - 1];
}

} // namespace

std::int16_t StandardMark(int lesson, int exercise, bool arabic)
{
    return StandardOf(lesson, exercise, arabic).mark;
}

bool HasSpeedBonus(int lesson, int exercise, bool arabic)
{
    return StandardOf(lesson, exercise, arabic).star;
}

std::int16_t PassingMark(int lesson)
{
    switch (lesson) {
    case 9:
    case 11:
        return 300;
    case 13:
        return 800;
    default:
        return 500;
    }
}

bool NeverScores(int lesson, int exercise)
{
    return course::IsSpecialExercise(lesson, exercise, false);
}

} // namespace keyfluent::progress
