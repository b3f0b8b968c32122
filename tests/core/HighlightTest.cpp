#include "keyboard/Highlight.h"

#include "KeyboardFixtures.h"

#include <gtest/gtest.h>
#include <map>

namespace keyfluent::keyboard
{
namespace
{

using fixtures::bothWays;
using fixtures::CodePoints;
using fixtures::IsIn;
using fixtures::kinds;
using fixtures::PlacesOf;
using fixtures::Setting;

// Characters that have keys and light none.
constexpr std::u16string_view unlit =
    u"\"\\`{|}~×÷\u0640\u2019\u064B\u064C\u064D\u064E\u064F\u0650\u0651\u0652";

// Caps that follow from no layout.
const std::map<char16_t, int> exceptionsOnWindows{{u'،', 68}};
const std::map<char16_t, int> exceptionsOnMac{{u'<', 69}, {u'>', 68}};

// A character lights its cap of the English layout, or of the Arabic one where English has none;
// some signs go by the Arabic layout in an Arabic exercise.
int CapByLayout(char16_t character, bool windows, bool arabicExercise)
{
    if (IsIn(character, unlit)) {
        return noCap;
    }
    if (character == u' ') {
        return capSpace;
    }
    if (character == u'\u0691') {
        return capReturn;
    }
    const auto& exceptions = windows ? exceptionsOnWindows : exceptionsOnMac;
    if (const auto found = exceptions.find(character); found != exceptions.end()) {
        return found->second;
    }
    const bool arabicFirst = arabicExercise && IsIn(character, windows ? u"()/<>[]" : u"()");
    auto places = PlacesOf(character, windows, arabicFirst);
    if (places.empty()) {
        places = PlacesOf(character, windows, !arabicFirst);
    }
    return places.empty() ? noCap : places.front().cap;
}

int Cap(std::u16string_view character, std::int32_t kind, bool arabicExercise)
{
    return CapOfCharacter(character, kind, arabicExercise);
}

TEST(Highlight, EveryCharacterLightsItsCapOfTheLayoutsOrNone)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (int code = 0; code <= 0xFFFF; ++code) {
                const auto character = static_cast<char16_t>(code);
                const std::u16string_view text(&character, 1);
                ASSERT_EQ(CapOfCharacter(text, kind, arabic),
                          CapByLayout(character, kind != context::macintoshKeyboard, arabic))
                    << Setting(kind, arabic) << ", " << CodePoints(text);
            }
        }
    }
}

TEST(Highlight, LooksUpWholeStrings)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (std::u16string_view text :
                 {u"", u"لا", u"لإ", u"لأ", u"لآ", u"ab", u"aa", u"a ", u" a", u"\u0691\r\n"}) {
                EXPECT_EQ(CapOfCharacter(text, kind, arabic), noCap) << CodePoints(text);
            }
        }
    }
}

TEST(Highlight, SpaceAndTheReturnMarkLightTheirCapsOnEveryKeyboard)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(CapOfCharacter(u" ", kind, arabic), 75) << Setting(kind, arabic);
            EXPECT_EQ(CapOfCharacter(u"\u0691", kind, arabic), 59) << Setting(kind, arabic);
        }
    }
}

TEST(Highlight, CharactersThatLightNothingDoSoEverywhere)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (char16_t character : unlit) {
                const std::u16string_view text(&character, 1);
                EXPECT_EQ(CapOfCharacter(text, kind, arabic), noCap) << CodePoints(text);
            }
        }
    }
}

TEST(Highlight, SevenSignsDependOnTheLanguage)
{
    struct Sign {
        std::u16string_view sign;
        int windowsEnglish, windowsArabic, macEnglish, macArabic;
    };
    const Sign signs[] = {{u"(", 25, 26, 25, 26}, {u")", 26, 25, 26, 25}, {u"/", 70, 56, 70, 70},
                          {u"<", 68, 44, 69, 69}, {u">", 69, 45, 68, 68}, {u"[", 44, 51, 44, 44},
                          {u"]", 45, 50, 45, 45}};
    for (const Sign& sign : signs) {
        const std::string shown = CodePoints(sign.sign);
        EXPECT_EQ(Cap(sign.sign, context::windowsKeyboard, false), sign.windowsEnglish) << shown;
        EXPECT_EQ(Cap(sign.sign, context::windowsKeyboard, true), sign.windowsArabic) << shown;
        EXPECT_EQ(Cap(sign.sign, context::macintoshKeyboard, false), sign.macEnglish) << shown;
        EXPECT_EQ(Cap(sign.sign, context::macintoshKeyboard, true), sign.macArabic) << shown;
    }
}

TEST(Highlight, AllOtherCharactersLightTheSameCapInBothLanguages)
{
    for (std::int32_t kind : kinds) {
        for (int code = 0; code <= 0xFFFF; ++code) {
            const auto character = static_cast<char16_t>(code);
            const std::u16string_view text(&character, 1);
            if (!IsIn(character, u"()/<>[]")) {
                ASSERT_EQ(CapOfCharacter(text, kind, false), CapOfCharacter(text, kind, true))
                    << CodePoints(text);
            }
        }
    }
}

TEST(Highlight, OnTheMacintoshKeyboardTheAngleBracketsAreCrossed)
{
    EXPECT_EQ(PlacesOf(u'<', false, false).front().cap, 68);
    EXPECT_EQ(Cap(u"<", context::macintoshKeyboard, false), 69);
    EXPECT_EQ(PlacesOf(u'>', false, false).front().cap, 69);
    EXPECT_EQ(Cap(u">", context::macintoshKeyboard, false), 68);
}

TEST(Highlight, SignsOfTheArabicMacintoshLayoutThatLightTheirEnglishCaps)
{
    EXPECT_EQ(PlacesOf(u'[', false, true).front().cap, 43);
    EXPECT_EQ(Cap(u"[", context::macintoshKeyboard, true), 44);
    EXPECT_EQ(PlacesOf(u']', false, true).front().cap, 42);
    EXPECT_EQ(Cap(u"]", context::macintoshKeyboard, true), 45);
    EXPECT_EQ(PlacesOf(u'_', false, true).front().cap, 16);
    EXPECT_EQ(Cap(u"_", context::macintoshKeyboard, true), 27);
}

TEST(Highlight, SignsOfTheArabicWindowsLayoutThatLightOtherCaps)
{
    EXPECT_EQ(PlacesOf(u'\'', true, true).front().cap, 40);
    EXPECT_EQ(Cap(u"'", context::windowsKeyboard, true), 58);
    EXPECT_EQ(PlacesOf(u'،', true, true).front().cap, 55);
    EXPECT_EQ(Cap(u"،", context::windowsKeyboard, true), 68);
}

TEST(Highlight, InAnArabicWindowsExerciseTheSquareBracketLightsTheKeyOfBeh)
{
    EXPECT_EQ(Cap(u"[", context::windowsKeyboard, true), Cap(u"ب", context::windowsKeyboard, true));
}

TEST(Highlight, LettersOfTheOtherLanguageAreLitToo)
{
    for (bool arabic : bothWays) {
        EXPECT_EQ(Cap(u"ش", context::windowsKeyboard, arabic), 48);
        EXPECT_EQ(Cap(u"a", context::windowsKeyboard, arabic), 48);
        EXPECT_EQ(Cap(u"A", context::macintoshKeyboard, arabic), 48);
        EXPECT_EQ(Cap(u"ظ", context::windowsKeyboard, arabic), 70);
        EXPECT_EQ(Cap(u"ظ", context::macintoshKeyboard, arabic), 61);
    }
}

TEST(Highlight, TheKeyOfLamAlefIsLitForTheLatinLetterOnly)
{
    for (bool arabic : bothWays) {
        EXPECT_EQ(Cap(u"b", context::windowsKeyboard, arabic), capLamAlef);
        EXPECT_EQ(Cap(u"ل", context::windowsKeyboard, arabic), 52);
        EXPECT_EQ(Cap(u"ا", context::windowsKeyboard, arabic), 53);
    }
}

} // namespace
} // namespace keyfluent::keyboard
