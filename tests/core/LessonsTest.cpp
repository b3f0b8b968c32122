#include "course/Lessons.h"

#include "context/Text.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace keyfluent::course
{
namespace
{

struct Name {
    int lesson;
    std::string english;
    std::string arabic;
};

const Name names[] = {
    {1, "Guide Row", "صف الارتكاز"},
    {2, "Top Row", "الصف العلوي"},
    {3, "Top Row", "الصف العلوي"},
    {4, "Pinkie & Ring", "خنصر وبنصر"},
    {5, "Bottom Row", "الصف الأسفل"},
    {6, "Bottom Row", "الصف الأسفل"},
    {7, "Special Characters", "حروف خاصة"},
    {8, "Punctuation Marks", "النقاط"},
    {9, "Signs", "الإشارات"},
    {10, "Signs", "الإشارات"},
    {11, "Numbers", "الأرقام"},
    {12, "Sets", "المجموعات"},
    {13, "Shift Key", "مفتاح العالي"},
    {14, "Revision", "مراجعة"},
    {15, "End & Mouse", "نهاية وماوس"},
};

TEST(Lessons, AreNamedInTheLanguageOfTheInterface)
{
    ASSERT_EQ(std::size(names), std::size_t{lessonCount});
    for (const Name& name : names) {
        EXPECT_EQ(context::ToUtf8(LessonName(name.lesson, false)), name.english) << name.lesson;
        EXPECT_EQ(context::ToUtf8(LessonName(name.lesson, true)), name.arabic) << name.lesson;
    }
}

TEST(Lessons, ThreePairsShareAName)
{
    for (const bool arabic : {false, true}) {
        EXPECT_EQ(LessonName(2, arabic), LessonName(3, arabic));
        EXPECT_EQ(LessonName(5, arabic), LessonName(6, arabic));
        EXPECT_EQ(LessonName(9, arabic), LessonName(10, arabic));
        EXPECT_NE(LessonName(1, arabic), LessonName(2, arabic));
    }
}

TEST(Lessons, OutsideTheCourseHaveNoName)
{
    for (const int lesson : {-1, 0, 16, 255}) {
        EXPECT_EQ(LessonName(lesson, false), u"") << lesson;
        EXPECT_EQ(LessonName(lesson, true), u"") << lesson;
    }
}

// The English list, an exercise a letter: a text, the English anagram, free text, the Arabic
// anagram.
const std::string englishList[lessonCount] = {
    "ttttt", "ttttt", "ttttt", "ttttt", "ttttt", "ttttt", "ttttt", "tttte",
    "tttta", "tttea", "tttta", "ttefa", "ttefa", "ttefa", "ttefa",
};

SpecialKind KindOfLetter(char letter)
{
    switch (letter) {
    case 'e':
        return SpecialKind::EnglishAnagram;
    case 'f':
        return SpecialKind::FreeText;
    case 'a':
        return SpecialKind::ArabicAnagram;
    default:
        return SpecialKind::None;
    }
}

TEST(Lessons, TheEnglishListHoldsSpecialExercises)
{
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
            const char letter = englishList[lesson - 1][static_cast<std::size_t>(exercise - 1)];
            EXPECT_EQ(SpecialKindOf(lesson, exercise, false), KindOfLetter(letter))
                << lesson << "." << exercise;
            EXPECT_EQ(IsSpecialExercise(lesson, exercise, false), letter != 't')
                << lesson << "." << exercise;
        }
    }
}

TEST(Lessons, TheArabicListHoldsNoSpecialExercise)
{
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
            EXPECT_EQ(SpecialKindOf(lesson, exercise, true), SpecialKind::None);
            EXPECT_FALSE(IsSpecialExercise(lesson, exercise, true)) << lesson << "." << exercise;
        }
    }
}

TEST(Lessons, HoldFiftyEightEnglishTextsAndSeventeenSpecialPlaces)
{
    std::map<SpecialKind, int> counts;
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
            ++counts[SpecialKindOf(lesson, exercise, false)];
        }
    }
    EXPECT_EQ(counts[SpecialKind::None], 58);
    EXPECT_EQ(counts[SpecialKind::EnglishAnagram], 6);
    EXPECT_EQ(counts[SpecialKind::FreeText], 4);
    EXPECT_EQ(counts[SpecialKind::ArabicAnagram], 7);
}

TEST(Lessons, NoPlaceOutsideTheCourseIsSpecial)
{
    for (const bool arabicList : {false, true}) {
        EXPECT_FALSE(IsSpecialExercise(0, 5, arabicList));
        EXPECT_FALSE(IsSpecialExercise(16, 5, arabicList));
        EXPECT_FALSE(IsSpecialExercise(8, 0, arabicList));
        EXPECT_FALSE(IsSpecialExercise(8, 6, arabicList));
        EXPECT_FALSE(IsSpecialExercise(-12, 3, arabicList));
    }
}

TEST(Lessons, SpecialPlacesAreCaptionedByTheirKind)
{
    EXPECT_EQ(SpecialCaption(SpecialKind::EnglishAnagram), u"Anagram");
    EXPECT_EQ(SpecialCaption(SpecialKind::FreeText), u"Free Text");
    EXPECT_EQ(context::ToUtf8(SpecialCaption(SpecialKind::ArabicAnagram)), "-الجناس-");
    EXPECT_EQ(SpecialCaption(SpecialKind::None), u"");
}

} // namespace
} // namespace keyfluent::course
