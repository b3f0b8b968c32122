#include "keyboard/KeyWords.h"

#include "KeyboardFixtures.h"

#include "context/Text.h"
#include "course/ExerciseRows.h"
#include "course/Lessons.h"
#include "keyboard/Fingers.h"

#include <algorithm>
#include <gtest/gtest.h>

#include <map>
#include <set>

namespace keyfluent::keyboard
{
namespace
{

using context::ToUtf8;
using fixtures::bothWays;
using fixtures::CodePoints;
using fixtures::PlacesOf;
using fixtures::Setting;

std::string Told(std::u16string_view character, bool arabicExercise, bool arabicWords,
                 std::int32_t kind = context::windowsKeyboard)
{
    return ToUtf8(KeyWords(character, kind, arabicExercise, arabicWords));
}

bool IsLatinLetterOrDigit(char16_t character)
{
    return (character >= u'0' && character <= u'9') || (character >= u'A' && character <= u'Z') ||
           (character >= u'a' && character <= u'z');
}

// All characters that an exercise of the language may ask for.
std::set<char16_t> CharactersOfTheCourse(bool arabic)
{
    std::set<char16_t> characters;
    for (int lesson = 1; lesson <= course::lessonCount; ++lesson) {
        for (int exercise = 1; exercise <= course::exerciseCount; ++exercise) {
            course::ExerciseRows rows;
            std::uint8_t count = 0;
            course::GetExerciseRows(course::textKeyboard, lesson, exercise, arabic, count, rows);
            for (int row = 1; row <= count; ++row) {
                const auto text = rows[row];
                characters.insert(text.begin(), text.end());
            }
        }
    }
    characters.erase(u'\r');
    characters.erase(u'\n');
    return characters;
}

} // namespace

TEST(KeyWords, ALatinLetterAndADigitAreTheirOwnNames)
{
    EXPECT_EQ(Told(u"a", false, false), "a");
    EXPECT_EQ(Told(u"a", false, true), "a");
    EXPECT_EQ(Told(u"7", true, true), "7");
}

TEST(KeyWords, AnArabicLetterHasItsNameInTheLanguageOfTheInterface)
{
    EXPECT_EQ(Told(u"ش", true, false), "sheen");
    EXPECT_EQ(Told(u"ش", true, true), "شين");
}

TEST(KeyWords, SpaceAndReturnAreToldAsTheirKeys)
{
    EXPECT_EQ(Told(u" ", false, false), "Space");
    EXPECT_EQ(Told(u" ", true, true), "المسافة");
    EXPECT_EQ(Told(u"\u0691", false, false), "Return");
    EXPECT_EQ(Told(u"\u0691", true, true), "إدخال");
}

TEST(KeyWords, TheShiftKeyOfTheOtherHandIsTold)
{
    EXPECT_EQ(Told(u"A", false, false), "A with right Shift");
    EXPECT_EQ(Told(u"H", false, false), "H with left Shift");
    EXPECT_EQ(Told(u"A", false, true), "A مع العالي الأيمن");
    EXPECT_EQ(Told(u"آ", true, true), "ألف عليها مدة مع العالي الأيسر");
}

TEST(KeyWords, ShiftHasNoSideWhereTheHandsRest)
{
    EXPECT_EQ(Told(u"\"", false, false), "quotation mark with Shift");
    EXPECT_EQ(Told(u"\"", true, true), "علامة تنصيص مع العالي");
}

TEST(KeyWords, TheLayoutDecidesAboutShift)
{
    EXPECT_EQ(Told(u"،", true, false, context::windowsKeyboard), "Arabic comma with left Shift");
    EXPECT_EQ(Told(u"،", true, false, context::macintoshKeyboard), "Arabic comma");
    EXPECT_EQ(Told(u".", true, false), "full stop with left Shift");
    EXPECT_EQ(Told(u".", false, false), "full stop");
}

TEST(KeyWords, NothingAndSeveralCharactersHaveNoWords)
{
    for (const std::u16string_view text : {u"", u"لا", u"\r\n", u"\r", u"\n"}) {
        EXPECT_EQ(Told(text, true, false), "") << CodePoints(text);
    }
}

TEST(KeyWords, WhatNoTableHoldsIsToldAsItIs)
{
    EXPECT_EQ(Told(u"é", false, false), "é");
}

TEST(KeyWords, EveryCharacterOfTheCourseHasANameOfItsOwn)
{
    std::set<char16_t> characters = CharactersOfTheCourse(false);
    characters.merge(CharactersOfTheCourse(true));
    ASSERT_GT(characters.size(), 110U);
    for (const bool arabicWords : bothWays) {
        std::map<std::u16string, char16_t> named;
        for (const char16_t character : characters) {
            const std::u16string name = CharacterName(character, arabicWords);
            const auto [first, isNew] = named.emplace(name, character);
            EXPECT_TRUE(isNew) << ToUtf8(name) << ": " << CodePoints({&character, 1}) << " and "
                               << CodePoints({&first->second, 1});
            EXPECT_EQ(name == std::u16string(1, character), IsLatinLetterOrDigit(character))
                << CodePoints({&character, 1});
        }
    }
}

TEST(KeyWords, EveryCharacterOnACapHasANameOfItsOwn)
{
    for (const bool arabicWords : bothWays) {
        std::map<std::u16string, std::u16string_view> named;
        for (const CharacterKey& key : characterKeys) {
            for (const std::u16string_view text :
                 {key.english, key.englishShift, key.arabicWindows, key.arabicWindowsShift,
                  key.arabicMac, key.arabicMacShift}) {
                if (text.size() != 1) {
                    continue;
                }
                const std::u16string name = CharacterName(text[0], arabicWords);
                EXPECT_EQ(named.emplace(name, text).first->second, text) << ToUtf8(name);
                EXPECT_EQ(name == text, IsLatinLetterOrDigit(text[0])) << CodePoints(text);
            }
        }
    }
}

// The caps are a second statement of where a character stands. A character that stands on both
// levels, on two keys, needs no Shift.
TEST(KeyWords, ShiftIsWantedWhereTheCapsShowIt)
{
    for (const std::int32_t kind : {context::windowsKeyboard, context::macintoshKeyboard}) {
        for (const bool arabic : bothWays) {
            for (const char16_t character : CharactersOfTheCourse(arabic)) {
                const auto places = PlacesOf(character, kind == context::windowsKeyboard, arabic);
                if (places.empty()) {
                    continue; // Space, Return, and what the layout cannot type
                }
                const bool onlyShifted =
                    std::ranges::all_of(places, [](const auto& place) { return place.shift; });
                EXPECT_EQ(WantsShift(character, kind, arabic), onlyShifted)
                    << Setting(kind, arabic) << ' ' << CodePoints({&character, 1});
            }
        }
    }
}

TEST(KeyWords, AShiftCapThatTheFingersShowIsAlwaysTold)
{
    for (const bool arabic : bothWays) {
        for (const char16_t character : CharactersOfTheCourse(arabic)) {
            const std::u16string_view text(&character, 1);
            const int shiftCap = FingersOf(text, context::windowsKeyboard, arabic).shiftCap;
            const std::string words = Told(text, arabic, false);
            EXPECT_EQ(words.ends_with(" with left Shift"), shiftCap == capLeftShift) << words;
            EXPECT_EQ(words.ends_with(" with right Shift"), shiftCap == capRightShift) << words;
        }
    }
}

TEST(KeyWords, FingersHaveNamesInBothLanguages)
{
    constexpr std::u16string_view english[] = {u"at rest",       u"thumb",       u"index finger",
                                               u"middle finger", u"ring finger", u"little finger"};
    constexpr std::u16string_view arabic[] = {u"في وضع الراحة", u"الإبهام", u"السبابة",
                                              u"الوسطى",        u"البنصر",  u"الخنصر"};
    for (int finger = handAtRest; finger <= littleFinger; ++finger) {
        EXPECT_EQ(FingerName(finger, false), english[finger]);
        EXPECT_EQ(FingerName(finger, true), arabic[finger]);
    }
}

} // namespace keyfluent::keyboard
