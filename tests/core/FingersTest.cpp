#include "keyboard/Fingers.h"

#include "KeyboardFixtures.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <ostream>

namespace keyfluent::keyboard
{

// Found by its name when a test fails.
static void PrintTo(const Fingers& fingers, std::ostream* out)
{
    *out << "left " << fingers.left << " right " << fingers.right << " Shift " << fingers.shiftCap;
}

namespace
{

using fixtures::bothWays;
using fixtures::CodePoints;
using fixtures::IsIn;
using fixtures::kinds;
using fixtures::Place;
using fixtures::PlacesOf;
using fixtures::Setting;

constexpr Fingers atRest{0, 0, -1};

Fingers LeftAlone(int finger)
{
    return {finger, 0, -1};
}
Fingers RightAlone(int finger)
{
    return {0, finger, -1};
}
Fingers RightWithShift(int finger)
{
    return {5, finger, 60};
}

// The caps that each finger strikes: column by column from the little finger of the left hand to
// that of the right one.
struct Column {
    bool leftHand;
    int finger;
    std::vector<int> caps;
};
const std::vector<Column> columns{
    {true, 5, {16, 17, 18, 34, 48, 61}},
    {true, 4, {19, 35, 49, 62}},
    {true, 3, {20, 36, 50, 63}},
    {true, 2, {21, 22, 37, 38, 51, 52, 64, 65}},
    {false, 2, {23, 24, 39, 40, 53, 54, 66, 67}},
    {false, 3, {25, 41, 55, 68}},
    {false, 4, {26, 42, 56, 69}},
    {false, 5, {27, 28, 43, 44, 45, 46, 57, 58, 70}},
};

// The key's finger; with Shift also the little finger of the other hand on its own Shift key.
Fingers FingersAt(const Place& place)
{
    for (const Column& column : columns) {
        if (std::find(column.caps.begin(), column.caps.end(), place.cap) == column.caps.end()) {
            continue;
        }
        if (column.leftHand) {
            return {column.finger, place.shift ? 5 : 0, place.shift ? 71 : -1};
        }
        return {place.shift ? 5 : 0, column.finger, place.shift ? 60 : -1};
    }
    ADD_FAILURE() << "no finger for cap " << place.cap;
    return atRest;
}

// Characters that have keys and yet leave the hands at rest.
constexpr std::u16string_view resting =
    u"\"#$%&'@[\\]^`{|}~×÷\u2019\u064B\u064C\u064D\u064E\u064F\u0650\u0651\u0652";

// Fingers that follow from no layout, on every keyboard and in both languages.
const std::map<char16_t, Fingers> exceptions{
    {u'!', {0, 5, 71}},
    {u'*', {5, 0, 60}},
    {u'؛', {5, 4, 60}},
};

const std::map<char16_t, Fingers> exceptionsInEnglishOnWindows{
    {u'،', {0, 3, -1}},
    {u'/', {0, 4, -1}},
};

// Signs go by the Arabic layout in an Arabic exercise on a Windows keyboard, by the English one
// elsewhere, the round brackets by the Arabic one everywhere.
Fingers FingersByLayout(char16_t character, bool windows, bool arabicExercise)
{
    if (IsIn(character, resting)) {
        return atRest;
    }
    if (character == u' ') {
        return RightAlone(1);
    }
    if (character == u'\u0691') {
        return RightAlone(5);
    }
    if (const auto found = exceptions.find(character); found != exceptions.end()) {
        return found->second;
    }
    const auto& english = exceptionsInEnglishOnWindows;
    if (const auto found = english.find(character);
        windows && !arabicExercise && found != english.end()) {
        return found->second;
    }
    const bool arabicFirst = (windows && arabicExercise) || IsIn(character, u"()");
    auto places = PlacesOf(character, windows, arabicFirst);
    if (places.empty()) {
        places = PlacesOf(character, windows, !arabicFirst);
    }
    return places.empty() ? atRest : FingersAt(places.front());
}

TEST(Fingers, EveryCharacterHasTheFingersOfItsPlaceOrLeavesTheHandsAtRest)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (int code = 0; code <= 0xFFFF; ++code) {
                const auto character = static_cast<char16_t>(code);
                const std::u16string_view text(&character, 1);
                ASSERT_EQ(FingersOf(text, kind, arabic),
                          FingersByLayout(character, kind != context::macintoshKeyboard, arabic))
                    << Setting(kind, arabic) << ", " << CodePoints(text);
            }
        }
    }
}

TEST(Fingers, TheEnglishHomeRowHasTheFingersThatRestOnIt)
{
    const std::map<std::u16string_view, Fingers> homeRow{
        {u"a", LeftAlone(5)},  {u"s", LeftAlone(4)},  {u"d", LeftAlone(3)},  {u"f", LeftAlone(2)},
        {u"g", LeftAlone(2)},  {u"h", RightAlone(2)}, {u"j", RightAlone(2)}, {u"k", RightAlone(3)},
        {u"l", RightAlone(4)}, {u";", RightAlone(5)}};
    for (std::int32_t kind : kinds) {
        for (const auto& [character, fingers] : homeRow) {
            EXPECT_EQ(FingersOf(character, kind, false), fingers) << CodePoints(character);
        }
    }
}

TEST(Fingers, ACapitalAddsTheLittleFingerOfTheOtherHandOnItsShift)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (char16_t small = u'a'; small <= u'z'; ++small) {
                const auto capital = static_cast<char16_t>(small - u'a' + u'A');
                Fingers fingers = FingersOf(std::u16string_view(&small, 1), kind, arabic);
                if (fingers.left != 0) {
                    fingers.right = 5;
                    fingers.shiftCap = 71;
                } else {
                    fingers.left = 5;
                    fingers.shiftCap = 60;
                }
                EXPECT_EQ(FingersOf(std::u16string_view(&capital, 1), kind, arabic), fingers)
                    << CodePoints(std::u16string_view(&capital, 1));
            }
        }
    }
}

TEST(Fingers, SpaceIsForTheRightThumbAndTheLeftThumbIsNeverShown)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(FingersOf(u" ", kind, arabic), RightAlone(1));
            for (int code = 0; code <= 0xFFFF; ++code) {
                const auto character = static_cast<char16_t>(code);
                ASSERT_NE(FingersOf(std::u16string_view(&character, 1), kind, arabic).left, 1);
            }
        }
    }
}

TEST(Fingers, TheReturnMarkIsForTheRightLittleFinger)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(FingersOf(u"\u0691", kind, arabic), RightAlone(5));
        }
    }
}

TEST(Fingers, LooksUpWholeStrings)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (std::u16string_view text :
                 {u"", u"لا", u"لإ", u"لأ", u"لآ", u"ab", u"aa", u"  "}) {
                EXPECT_EQ(FingersOf(text, kind, arabic), atRest) << CodePoints(text);
            }
        }
    }
}

TEST(Fingers, SignsThatDependOnTheLanguageOnAWindowsKeyboard)
{
    struct Sign {
        std::u16string_view sign;
        Fingers arabic, english;
    };
    const Sign signs[] = {
        {u",", RightWithShift(3), RightAlone(3)},     {u"،", RightWithShift(3), RightAlone(3)},
        {u".", RightWithShift(4), RightAlone(4)},     {u"/", RightWithShift(4), RightAlone(4)},
        {u"<", RightWithShift(5), RightWithShift(3)}, {u">", RightWithShift(5), RightWithShift(4)}};
    for (const Sign& sign : signs) {
        const std::string shown = CodePoints(sign.sign);
        EXPECT_EQ(FingersOf(sign.sign, context::windowsKeyboard, true), sign.arabic) << shown;
        EXPECT_EQ(FingersOf(sign.sign, context::windowsKeyboard, false), sign.english) << shown;
    }
}

TEST(Fingers, NothingDependsOnTheLanguageOnAMacintoshKeyboard)
{
    for (int code = 0; code <= 0xFFFF; ++code) {
        const auto character = static_cast<char16_t>(code);
        const std::u16string_view text(&character, 1);
        ASSERT_EQ(FingersOf(text, context::macintoshKeyboard, true),
                  FingersOf(text, context::macintoshKeyboard, false))
            << CodePoints(text);
    }
    EXPECT_EQ(FingersOf(u",", context::macintoshKeyboard, true), RightAlone(3));
    EXPECT_EQ(FingersOf(u"،", context::macintoshKeyboard, true), RightAlone(3));
    EXPECT_EQ(FingersOf(u".", context::macintoshKeyboard, true), RightAlone(4));
    EXPECT_EQ(FingersOf(u"/", context::macintoshKeyboard, true), RightAlone(5));
    EXPECT_EQ(FingersOf(u"<", context::macintoshKeyboard, true), RightWithShift(3));
    EXPECT_EQ(FingersOf(u">", context::macintoshKeyboard, true), RightWithShift(4));
}

TEST(Fingers, OtherSignsDoNotDependOnTheLanguageOnAWindowsKeyboard)
{
    for (int code = 0; code <= 0xFFFF; ++code) {
        const auto character = static_cast<char16_t>(code);
        const std::u16string_view text(&character, 1);
        if (!IsIn(character, u",،./<>")) {
            ASSERT_EQ(FingersOf(text, context::windowsKeyboard, true),
                      FingersOf(text, context::windowsKeyboard, false))
                << CodePoints(text);
        }
    }
}

TEST(Fingers, ExclamationMarkAndAsteriskAreOutOfTheRule)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(FingersOf(u"!", kind, arabic), (Fingers{0, 5, 71}));
            EXPECT_EQ(FingersOf(u"*", kind, arabic), (Fingers{5, 0, 60}));
        }
    }
}

TEST(Fingers, TheRoundBracketsHaveTheArabicFingersInEnglishToo)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(FingersOf(u"(", kind, arabic), RightWithShift(4));
            EXPECT_EQ(FingersOf(u")", kind, arabic), RightWithShift(3));
        }
    }
}

TEST(Fingers, TheTatweelHasItsOwnFingerOnEachKeyboard)
{
    for (bool arabic : bothWays) {
        EXPECT_EQ(FingersOf(u"\u0640", context::windowsKeyboard, arabic), RightWithShift(2));
        EXPECT_EQ(FingersOf(u"\u0640", context::macintoshKeyboard, arabic), RightWithShift(5));
    }
}

TEST(Fingers, AMarkThatWantsShiftLeavesTheHandsAtRestAndHoldsNoShift)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(FingersOf(u"\u064E", kind, arabic), atRest);
        }
    }
}

TEST(Fingers, TheDefaultIsBothHandsAtRest)
{
    EXPECT_EQ(Fingers{}, atRest);
}

TEST(Fingers, TheFingersCountFromTheThumbOutwards)
{
    EXPECT_EQ(handAtRest, 0);
    EXPECT_EQ(thumb, 1);
    EXPECT_EQ(indexFinger, 2);
    EXPECT_EQ(middleFinger, 3);
    EXPECT_EQ(ringFinger, 4);
    EXPECT_EQ(littleFinger, 5);
}

} // namespace
} // namespace keyfluent::keyboard
