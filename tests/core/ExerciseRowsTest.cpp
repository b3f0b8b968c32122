#include "course/ExerciseRows.h"

#include "context/Text.h"
#include "course/Lessons.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace keyfluent::course
{
namespace
{

// What a caller has after a call: the number, and the rows up to the last that is not empty.
struct Answer {
    int rowCount = 0;
    std::vector<std::string> rows;
};

constexpr std::uint8_t before = 77;

Answer Ask(std::int32_t kind, int lesson, int exercise, bool arabic)
{
    ExerciseRows rows;
    for (int number = 1; number <= maxRows; ++number) {
        rows[number] = u"left from before";
    }
    std::uint8_t rowCount = before;
    GetExerciseRows(kind, lesson, exercise, arabic, rowCount, rows);
    Answer answer{rowCount, {}};
    for (int number = 1; number <= maxRows; ++number) {
        answer.rows.push_back(context::ToUtf8(rows[number]));
    }
    while (!answer.rows.empty() && answer.rows.back().empty()) {
        answer.rows.pop_back();
    }
    return answer;
}

// Words of a drill, each with the blank that belongs to it.
std::vector<std::string> Drill(const std::string& words)
{
    std::vector<std::string> rows{""};
    for (const char letter : words) {
        rows.back() += letter;
        if (letter == ' ') {
            rows.emplace_back();
        }
    }
    rows.pop_back();
    return rows;
}

TEST(ExerciseRows, TheFirstEnglishDrillStandsAsItIsTaught)
{
    const std::string pairs = "ffff jjjj dddd kkkk ssss llll aaaa ;;;; ";
    const Answer answer = Ask(textKeyboard, 1, 1, false);
    EXPECT_EQ(answer.rowCount, 46);
    EXPECT_EQ(answer.rows, Drill("asdf asdf asdf jkl; jkl; jkl; asdf jkl; " + pairs + pairs +
                                 "fdsa jkl; dkfj a;sl asdf ;lkj jf;a lska ksla skal lad; alas "
                                 "lads all; ask; fall lass sad; dad; fad; add; ass; "));
}

TEST(ExerciseRows, TheFirstArabicDrillStandsAsItIsTaught)
{
    const Answer answer = Ask(textKeyboard, 1, 1, true);
    EXPECT_EQ(answer.rowCount, 40);
    EXPECT_EQ(
        answer.rows,
        (std::vector<std::string>{
            "ش س ي ب ", "ش س ي ب ", "ش س ي ب ",  "ت ن م ك ", "ت ن م ك ", "ت ن م ك ",  "ب ب ب ب ",
            "ت ت ت ت ", "ب ب ب ب ", "ت ت ت ت ڑ", "ي ي ي ي ", "ن ن ن ن ", "س س س س ",  "م م م م ",
            "ش ش ش ش ", "ك ك ك ك ", "ب ي س ش ",  "ت ن م ك ", "ي ن ب ت ", "ش ك س م ",  "ش س ي ب ",
            "ك م ن ت ", "ت ب ك ش ", "م س ن ي ڑ", "ن س م ش ", "س ن ش م ", "م ش ي ك ڑ", "م ش ك س ",
            "ب ن ك ش ", "ب س م ن ", "ت س ي ش ",  "ك م س ن ", "ي ش س ت ", "ك م ي س ڑ", "ش س ت ن ",
            "ش ت ي ك ", "س ي ب ن ", "س م ن ش ",  "ك ن ت ي ", "ك ي س ت "}));
}

// How many rows each place has, exercises from 1 to 5; 0 where it holds no text.
constexpr int englishRows[lessonCount][exerciseCount] = {
    {46, 48, 60, 56, 6}, {62, 104, 12, 103, 11}, {44, 12, 66, 7, 7},  {55, 14, 14, 6, 8},
    {77, 85, 66, 15, 6}, {41, 92, 14, 14, 10},   {44, 36, 4, 13, 15}, {36, 11, 24, 9, 0},
    {15, 40, 5, 9, 0},   {13, 26, 12, 0, 0},     {68, 80, 8, 8, 0},   {111, 10, 0, 0, 0},
    {7, 14, 0, 0, 0},    {11, 13, 0, 0, 0},      {1, 1, 0, 0, 0},
};
constexpr int arabicRows[lessonCount][exerciseCount] = {
    {40, 49, 5, 28, 4}, {48, 6, 49, 6, 6}, {3, 5, 6, 4, 6}, {5, 4, 4, 5, 5}, {4, 4, 47, 4, 4},
    {4, 4, 3, 4, 3},    {5, 5, 5, 4, 5},   {3, 3, 3, 3, 3}, {6, 5, 4, 3, 3}, {7, 4, 23, 6, 6},
    {69, 104, 4, 3, 4}, {34, 7, 4, 8, 6},  {6, 6, 7, 7, 6}, {3, 6, 8, 6, 5}, {1, 1, 1, 1, 1},
};

TEST(ExerciseRows, EveryPlaceHasItsNumberOfRows)
{
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
            const int english = englishRows[lesson - 1][exercise - 1];
            const Answer answer = Ask(textKeyboard, lesson, exercise, false);
            EXPECT_EQ(answer.rowCount, english == 0 ? 1 : english) << lesson << "." << exercise;
            EXPECT_EQ(static_cast<int>(answer.rows.size()), english) << lesson << "." << exercise;
            const int arabic = arabicRows[lesson - 1][exercise - 1];
            const Answer other = Ask(textKeyboard, lesson, exercise, true);
            EXPECT_EQ(other.rowCount, arabic) << lesson << "." << exercise;
            EXPECT_EQ(static_cast<int>(other.rows.size()), arabic) << lesson << "." << exercise;
        }
    }
}

TEST(ExerciseRows, APlaceWithoutATextGivesOneEmptyRow)
{
    int places = 0;
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
            if (!IsSpecialExercise(lesson, exercise, false)) {
                continue;
            }
            ++places;
            const Answer answer = Ask(textKeyboard, lesson, exercise, false);
            EXPECT_EQ(answer.rowCount, 1) << lesson << "." << exercise;
            EXPECT_TRUE(answer.rows.empty()) << lesson << "." << exercise;
        }
    }
    EXPECT_EQ(places, 17);
}

TEST(ExerciseRows, NoRowInUseOfATextIsEmpty)
{
    for (const bool arabic : {false, true}) {
        for (int lesson = 1; lesson <= lessonCount; ++lesson) {
            for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
                for (const std::string& row : Ask(textKeyboard, lesson, exercise, arabic).rows) {
                    EXPECT_FALSE(row.empty()) << lesson << "." << exercise;
                }
            }
        }
    }
}

TEST(ExerciseRows, AnotherKeyboardGivesNothingAndKeepsTheNumber)
{
    for (const std::int32_t kind : {0, 1, 191, 193, -192, 448}) {
        const Answer answer = Ask(kind, 1, 1, false);
        EXPECT_EQ(answer.rowCount, before) << kind;
        EXPECT_TRUE(answer.rows.empty()) << kind;
        EXPECT_TRUE(Ask(kind, 8, 5, false).rows.empty()) << kind;
        EXPECT_EQ(Ask(kind, 8, 5, false).rowCount, before) << kind;
    }
}

TEST(ExerciseRows, AskingOutsideTheCourseGivesNothingAndKeepsTheNumber)
{
    for (const bool arabic : {false, true}) {
        for (const auto& [lesson, exercise] :
             {std::pair(0, 1), std::pair(16, 1), std::pair(255, 1), std::pair(1, 0),
              std::pair(1, 6), std::pair(8, 255), std::pair(-1, 5), std::pair(15, -1)}) {
            const Answer answer = Ask(textKeyboard, lesson, exercise, arabic);
            EXPECT_EQ(answer.rowCount, before) << lesson << "." << exercise;
            EXPECT_TRUE(answer.rows.empty()) << lesson << "." << exercise;
        }
    }
}

TEST(ExerciseRows, APassageIsOneRowWithItsLineEndsInside)
{
    int passages = 0;
    for (const bool arabic : {false, true}) {
        for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
            if (IsSpecialExercise(15, exercise, arabic)) {
                continue;
            }
            ++passages;
            ExerciseRows rows;
            std::uint8_t rowCount = 0;
            GetExerciseRows(textKeyboard, 15, exercise, arabic, rowCount, rows);
            EXPECT_EQ(rowCount, 1);
            const Row passage = rows[1];
            int lineEnds = 0;
            for (std::size_t i = 0; i < passage.size(); ++i) {
                const bool mark = passage[i] == context::lineEndMark;
                lineEnds += mark ? 1 : 0;
                EXPECT_EQ(mark, passage.substr(i + 1, 2) == u"\r\n") << "15." << exercise;
            }
            EXPECT_GE(lineEnds, 1) << "15." << exercise;
            EXPECT_GE(passage.size(), 300U) << "15." << exercise;
        }
    }
    EXPECT_EQ(passages, 7);
}

TEST(ExerciseRows, NoRowOfTheOtherLessonsHoldsALineEnd)
{
    for (const bool arabic : {false, true}) {
        for (int lesson = 1; lesson < lessonCount; ++lesson) {
            for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
                for (const std::string& row : Ask(textKeyboard, lesson, exercise, arabic).rows) {
                    EXPECT_EQ(row.find_first_of("\r\n"), std::string::npos)
                        << lesson << "." << exercise;
                }
            }
        }
    }
}

TEST(ExerciseRows, RowsOfALongerTextBeforeAreGone)
{
    ExerciseRows rows;
    std::uint8_t rowCount = 0;
    GetExerciseRows(textKeyboard, 12, 1, false, rowCount, rows);
    ASSERT_EQ(rowCount, 111);
    GetExerciseRows(textKeyboard, 15, 1, false, rowCount, rows);
    for (int number = 2; number <= maxRows; ++number) {
        EXPECT_EQ(rows[number], u"") << number;
    }
}

} // namespace
} // namespace keyfluent::course
