// The texts that loading makes itself: the anagrams and free text.
#include "LessonFixture.h"
#include "context/FatalError.h"
#include "session/Loading.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;

class LoadingDrillsTest : public LessonFixture
{
protected:
    // As the chooser and the dialog of the letters leave the context.
    void OpenArabicAnagram(std::u16string_view letters, bool arabicLetters = true)
    {
        context.arabicAnagram = true;
        context.freeTextChars = letters;
        context.anagramLanguage = arabicLetters;
        Open(9, 5, Language::English);
    }
    void OpenEnglishAnagram(std::u16string_view letters, bool arabicLetters = false)
    {
        context.englishAnagram = true;
        context.freeTextChars = letters;
        context.anagramLanguage = arabicLetters;
        Open(8, 5, Language::English);
    }
};

TEST_F(LoadingDrillsTest, AnArabicAnagramHasAboutThirtyLetters)
{
    // Thirty divided by the number of letters, halves to the even neighbour.
    const int repeats[] = {30, 15, 10, 8, 6, 5, 4, 4, 3, 3};
    const std::u16string letters = u"ابتثجحخدذر";
    for (std::size_t count = 1; count <= letters.size(); ++count) {
        OpenArabicAnagram(letters.substr(0, count));
        const std::u16string& drill = It().txtOrigin.Text();
        EXPECT_EQ(drill.size(), 2 * count * static_cast<std::size_t>(repeats[count - 1])) << count;
        for (std::size_t i = 0; i < drill.size(); ++i) {
            if (i % 2 == 0) {
                EXPECT_NE(letters.substr(0, count).find(drill[i]), std::u16string::npos);
            } else {
                EXPECT_EQ(drill[i], u' ');
            }
        }
    }
}

TEST_F(LoadingDrillsTest, AnArabicAnagramPicksEachLetterByADraw)
{
    machine.draws = {0.0, 0.34, 0.99, 0.33, 0.67, 0.66};
    OpenArabicAnagram(u"ابت");
    EXPECT_EQ(Utf8(It().txtOrigin.Text()).substr(0, 18), "ا ب ت ا ت ب ");
}

TEST_F(LoadingDrillsTest, AnEnglishAnagramBeginsWithTheLettersAndHasNineGroupsOfFive)
{
    machine.draws.assign(45, 0.0);
    OpenEnglishAnagram(u"xyz");
    EXPECT_EQ(Utf8(It().txtOrigin.Text()),
              "xyz xxxxx xxxxx xxxxx xxxxx xxxxx xxxxx xxxxx xxxxx xxxxx ");
    machine.draws.assign(45, 0.5);
    OpenEnglishAnagram(u"x  z");
    EXPECT_EQ(Utf8(It().txtOrigin.Text()), "x  z" + std::string(55, ' '));
}

TEST_F(LoadingDrillsTest, AnEnglishAnagramPicksEachLetterByADraw)
{
    machine.draws = {0.0, 0.26, 0.51, 0.76, 0.9999999999999999, 0.24, 0.25, 0.49, 0.5, 0.75};
    OpenEnglishAnagram(u"abcd");
    EXPECT_EQ(Utf8(It().txtOrigin.Text()).substr(0, 17), "abcd abcdd abbcd ");
}

TEST_F(LoadingDrillsTest, EveryLetterCanComeAndNoneOutside)
{
    std::set<char16_t> drawn;
    for (int run = 0; run < 20; ++run) {
        OpenEnglishAnagram(u"0123456789");
        for (const char16_t unit : It().txtOrigin.Text().substr(11)) {
            drawn.insert(unit);
        }
    }
    EXPECT_EQ(drawn.size(), 11U); // with the blank
}

TEST_F(LoadingDrillsTest, ADrillSeedsOnceFromTheTimeOfDay)
{
    machine.SetTimeOfDay(12345.5);
    OpenArabicAnagram(u"اب");
    EXPECT_EQ(machine.seeds, (std::vector<double>{12345.5}));
    context.arabicAnagram = false;
    OpenEnglishAnagram(u"ab");
    EXPECT_EQ(machine.seeds.size(), 2U);
}

TEST_F(LoadingDrillsTest, TwoDrillsAtOneMomentDiffer)
{
    OpenEnglishAnagram(u"abcdefghij");
    const std::u16string first = It().txtOrigin.Text();
    OpenEnglishAnagram(u"abcdefghij");
    EXPECT_NE(It().txtOrigin.Text(), first);
}

TEST_F(LoadingDrillsTest, ADrillIsTheOneRowOfItsExercise)
{
    OpenArabicAnagram(u"ابت");
    EXPECT_EQ(It().rowCount, 1);
    EXPECT_EQ(It().exerciseRows[1], It().txtOrigin.Text());
    EXPECT_EQ(It().exerciseRows[2], u"");
    OpenEnglishAnagram(u"abc");
    EXPECT_EQ(It().rowCount, 1);
    EXPECT_EQ(It().exerciseRows[1], It().txtOrigin.Text());
}

TEST_F(LoadingDrillsTest, ADrillTakesTheLanguageOfItsLetters)
{
    OpenArabicAnagram(u"ab", false);
    EXPECT_FALSE(context.arabicExercise);
    EXPECT_FALSE(It().txtOrigin.rightToLeft);
    EXPECT_EQ(CapText(48), "a");
    OpenArabicAnagram(u"اب", true);
    EXPECT_TRUE(context.arabicExercise);
    EXPECT_TRUE(It().txtOrigin.rightToLeft);
    EXPECT_EQ(CapText(48), "ش");
}

TEST_F(LoadingDrillsTest, AnOrdinaryExerciseKeepsItsLanguage)
{
    context.anagramLanguage = true;
    Open(2, 1, Language::English);
    EXPECT_FALSE(context.arabicExercise);
    context.anagramLanguage = false;
    Open(2, 1, Language::Arabic);
    EXPECT_TRUE(context.arabicExercise);
}

TEST_F(LoadingDrillsTest, ADrillRunAgainStillHasOneRow)
{
    OpenArabicAnagram(u"ابت");
    ASSERT_TRUE(context.arabicExercise); // as the first run left it
    Open();
    EXPECT_EQ(It().rowCount, 1);
    EXPECT_EQ(It().exerciseRows[2], u"");
}

TEST_F(LoadingDrillsTest, ADrillCarriedToATextTakesOnlyItsFirstRow)
{
    context.englishAnagram = true;
    context.freeTextChars = u"ab";
    context.anagramLanguage = false;
    machine.draws.assign(45, 0.0);
    Open(8, 4, Language::English);
    EXPECT_EQ(It().rowCount, 9);
    EXPECT_EQ(Utf8(It().exerciseRows[1]).substr(0, 9), "ab aaaaa ");
    EXPECT_NE(It().exerciseRows[2], u"");
}

TEST_F(LoadingDrillsTest, TheMarkGaugeGoesByTheLanguageOfTheLetters)
{
    context.arabicAnagram = true;
    context.freeTextChars = u"اب";
    context.anagramLanguage = true;
    Open(10, 5, Language::English); // worth 200 in Arabic and nothing in English
    EXPECT_EQ(It().pbMark.maximum, 200);
    context.anagramLanguage = false;
    Open(10, 5, Language::English);
    EXPECT_EQ(It().pbMark.maximum, 100);
}

TEST_F(LoadingDrillsTest, FreeTextTakesTheLastLanguageOfTheLetters)
{
    context.freeText = true;
    context.anagramLanguage = true;
    Open(12, 4, Language::English);
    EXPECT_TRUE(context.arabicExercise);
    EXPECT_TRUE(It().txtOrigin.rightToLeft);
    EXPECT_EQ(It().txtOrigin.Text(), u"");
    EXPECT_EQ(It().rowCount, 1);
    context.anagramLanguage = false;
    Open();
    EXPECT_FALSE(context.arabicExercise);
    EXPECT_EQ(It().txtOrigin.Text(), u"");
}

TEST_F(LoadingDrillsTest, FreeTextDrawsNothing)
{
    context.freeText = true;
    Open(12, 4, Language::English);
    EXPECT_TRUE(machine.seeds.empty());
}

TEST_F(LoadingDrillsTest, AnArabicAnagramWithoutLettersEndsTheProgram)
{
    context.arabicAnagram = true;
    Place(9, 5, Language::English);
    EXPECT_THROW(LoadOnly(), context::FatalError);
}

TEST_F(LoadingDrillsTest, AnEnglishAnagramWithoutLettersIsTenBlanks)
{
    OpenEnglishAnagram(u"");
    EXPECT_EQ(It().txtOrigin.Text(), std::u16string(10, u' '));
}

} // namespace
} // namespace keyfluent::session
