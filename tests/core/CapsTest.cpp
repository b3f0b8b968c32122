#include "session/Caps.h"

#include "LessonFixture.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;

class CapsTest : public LessonFixture
{
protected:
    // "left 115, right 119"
    std::string Hands()
    {
        return "left " + std::to_string(It().imgLeftHand.bitmap) + ", right " +
               std::to_string(It().imgRightHand.bitmap);
    }

    void Paint(int cap, std::int32_t fore, std::int32_t back)
    {
        It().caps.foreColour[static_cast<std::size_t>(cap)] = fore;
        It().caps.backColour[static_cast<std::size_t>(cap)] = back;
    }
};

TEST_F(CapsTest, TheCapOfAnExpectedCharacterIsWhiteOnTheStudentsColour)
{
    Open();
    HighlightKey(It(), u"k");
    EXPECT_EQ(Looks(), "55 lit");
    EXPECT_EQ(It().caps.foreColour[55], 16777215);
    EXPECT_EQ(It().caps.backColour[55], trueColour);
    EXPECT_EQ(It().litChar, u"k");
}

TEST_F(CapsTest, ANewCharacterPutsTheLastCapOut)
{
    Open();
    HighlightKey(It(), u"k");
    HighlightKey(It(), u" ");
    EXPECT_EQ(Looks(), "75 lit");
    HighlightKey(It(), u"\u0691");
    EXPECT_EQ(Looks(), "59 lit");
}

TEST_F(CapsTest, WhatHasNoCapLightsNothingAndIsKept)
{
    Open();
    for (const std::u16string_view text : {u"\"", u"", u"لا", u"ab", u"\u20AC"}) {
        HighlightKey(It(), u"k");
        HighlightKey(It(), text);
        EXPECT_EQ(Looks(), "") << Utf8(text);
        EXPECT_EQ(It().litChar, text);
    }
}

TEST_F(CapsTest, SevenSignsGoByTheExercisesLanguage)
{
    Open(1, 1, Language::Arabic);
    HighlightKey(It(), u"[");
    EXPECT_EQ(Looks(), "51 lit");
    Open(1, 1, Language::English);
    HighlightKey(It(), u"[");
    EXPECT_EQ(Looks(), "44 lit");
    context.keyboardKind = context::macintoshKeyboard;
    HighlightKey(It(), u"<");
    EXPECT_EQ(Looks(), "69 lit");
}

TEST_F(CapsTest, LightingACharacterKeepsCapsLockAndTheShiftKeys)
{
    Open();
    for (int cap = 0; cap < keyboard::capCount; ++cap) {
        Paint(cap, 7, 8);
    }
    HighlightKey(It(), u"k");
    EXPECT_EQ(Looks(), "47 7 on 8, 55 lit, 60 7 on 8, 71 7 on 8");
}

TEST_F(CapsTest, TheCapOfShiftIsNotLitForACapital)
{
    Open();
    HighlightKey(It(), u"K");
    EXPECT_EQ(Looks(), "55 lit");
}

TEST_F(CapsTest, WithBothColoursBlackALitCapLooksLikeAHeldOne)
{
    context.trueKeyColour = 0;
    context.errKeyColour = 0;
    Open(1, 1, Language::English);
    EXPECT_EQ(It().caps.foreColour[48], white);
    EXPECT_EQ(It().caps.backColour[48], black);
    SetModifierCap(It(), 72, true);
    EXPECT_EQ(It().caps.foreColour[72], white);
    EXPECT_EQ(It().caps.backColour[72], black);
}

TEST_F(CapsTest, AKeyWithoutACapPressesNone)
{
    Open();
    for (const int code : {0,   8,   9,   16,  17,  18,  19,  20,  33,  34,  35,  36,   37,  38,
                           39,  40,  45,  46,  91,  92,  93,  96,  97,  98,  99,  100,  101, 102,
                           103, 104, 105, 107, 109, 110, 111, 124, 144, 255, 256, 65535}) {
        SelectPressedKey(It(), 'A');
        SelectPressedKey(It(), code);
        EXPECT_EQ(It().pressedKey, keyboard::noCap) << code;
        EXPECT_EQ(PressedText(It()), u"") << code;
    }
}

TEST_F(CapsTest, AKeyPressesItsCap)
{
    Open();
    const std::pair<int, int> caps[] = {{'A', 48}, {'0', 26}, {192, 16}, {220, 46},
                                        {226, 46}, {13, 59},  {27, 0},   {32, 75},
                                        {106, 90}, {112, 1},  {123, 12}};
    for (const auto& [code, cap] : caps) {
        SelectPressedKey(It(), code);
        EXPECT_EQ(It().pressedKey, cap) << code;
    }
    SelectPressedKey(It(), 'A');
    EXPECT_EQ(PressedText(It()), u"a");
}

TEST_F(CapsTest, EscapeReadsAQuestionMarkUntilShiftNextChanges)
{
    Open();
    EXPECT_EQ(CapText(0), "esc");
    SelectPressedKey(It(), 27);
    EXPECT_EQ(CapText(0), "?");
    SelectPressedKey(It(), 'A');
    EXPECT_EQ(CapText(0), "?");
    Key(keyboard::keyShift);
    EXPECT_EQ(CapText(0), "esc");
}

TEST_F(CapsTest, CheckedAtOnceReturnAndSpaceKeepTheirWords)
{
    Open(1, 1, Language::English);
    SelectPressedKey(It(), 13);
    SelectPressedKey(It(), 32);
    EXPECT_EQ(CapText(59), "Return");
    EXPECT_EQ(CapText(75), "Space");
    Open(1, 1, Language::Arabic);
    SelectPressedKey(It(), 13);
    SelectPressedKey(It(), 32);
    SelectPressedKey(It(), 66);
    EXPECT_EQ(CapText(59), "إدخال");
    EXPECT_EQ(CapText(75), "المسافة");
    EXPECT_EQ(CapText(65), "لا");
}

TEST_F(CapsTest, CheckedLateReturnAndSpaceReadWhatTheyType)
{
    for (const int lesson : {14, 15}) {
        Open(lesson, 1, Language::English);
        SelectPressedKey(It(), 13);
        SelectPressedKey(It(), 32);
        EXPECT_EQ(CapText(59), "ڑ");
        EXPECT_EQ(CapText(75), " ");
        Key(keyboard::keyShift);
        EXPECT_EQ(CapText(59), "Return");
        EXPECT_EQ(CapText(75), "Space");
    }
}

TEST_F(CapsTest, InAllOfTheLastLessonReturnAndSpaceReadWhatTheyType)
{
    Open(15, 3, Language::English); // checked at once
    SelectPressedKey(It(), 13);
    SelectPressedKey(It(), 32);
    EXPECT_EQ(CapText(59), "ڑ");
    EXPECT_EQ(CapText(75), " ");
}

TEST_F(CapsTest, TheKeyOfTwoLettersGivesTheFirstWhereArabicIsTypedThrough)
{
    Open(14, 1, Language::Arabic);
    EXPECT_EQ(CapText(65), "لا");
    SelectPressedKey(It(), 66);
    EXPECT_EQ(CapText(65), "ل");
    Key(keyboard::keyShift);
    EXPECT_EQ(CapText(65), "لآ");
    SelectPressedKey(It(), 66);
    EXPECT_EQ(CapText(65), "ل");
    context.keyboardKind = context::macintoshKeyboard;
    Open();
    SelectPressedKey(It(), 66);
    EXPECT_EQ(CapText(65), "ز");
    context.keyboardKind = context::windowsKeyboard;
    Open(14, 1, Language::English);
    SelectPressedKey(It(), 66);
    EXPECT_EQ(CapText(65), "b");
    context.keyboardKind = 5; // counts as Windows
    Open(14, 1, Language::Arabic);
    SelectPressedKey(It(), 66);
    EXPECT_EQ(CapText(65), "ل");
}

TEST_F(CapsTest, AModifierThatIsDownIsWhiteOnBlack)
{
    Open();
    SetModifierCap(It(), 72, true);
    EXPECT_EQ(It().caps.foreColour[72], white);
    EXPECT_EQ(It().caps.backColour[72], black);
    SetModifierCap(It(), 72, false);
    EXPECT_EQ(Look(72), "plain");
}

TEST_F(CapsTest, OnlyTheToggleOfCapsLockCounts)
{
    Open();
    SyncCapsCap(It(), 1);
    EXPECT_TRUE(It().capsOn);
    EXPECT_EQ(Look(47), "held");
    SyncCapsCap(It(), 0);
    EXPECT_FALSE(It().capsOn);
    EXPECT_EQ(Look(47), "plain");
    SyncCapsCap(It(), -127);
    EXPECT_TRUE(It().capsOn);
    SyncCapsCap(It(), -128);
    EXPECT_FALSE(It().capsOn);
}

TEST_F(CapsTest, AnyOtherStateOfCapsLockLeavesItAsItWas)
{
    for (const bool on : {false, true}) {
        Open();
        SyncCapsCap(It(), on ? 1 : 0);
        for (const int state : {2, 3, -1, -126, 127, 32767, -32768}) {
            Paint(47, 7, 8);
            SyncCapsCap(It(), static_cast<std::int16_t>(state));
            EXPECT_EQ(It().capsOn, on) << state;
            EXPECT_EQ(Look(47), on ? "held" : "plain") << state;
        }
    }
}

TEST_F(CapsTest, ShiftWritesTheOtherTextsAndCapsLockDoesNot)
{
    Open(1, 1, Language::English);
    machine.capsLockState = 1;
    Key(keyboard::keyCapsLock);
    EXPECT_EQ(CapText(48), "a");
    ShowKeyCaps(It(), 192, true, false);
    EXPECT_EQ(CapText(48), "A");
    ShowKeyCaps(It(), 192, false, false);
    EXPECT_EQ(CapText(48), "a");
}

TEST_F(CapsTest, WhileShiftIsDownTheShiftedTextsAreNotWrittenAgain)
{
    Open(1, 1, Language::English);
    Key(keyboard::keyShift);
    SelectPressedKey(It(), 27);
    ShowKeyCaps(It(), 192, true, true);
    EXPECT_EQ(CapText(0), "?");
    EXPECT_NE(It().txtOrigin.Text(), u"");
    ShowKeyCaps(It(), 192, false, false);
    EXPECT_EQ(CapText(0), "esc");
    EXPECT_EQ(CapText(48), "a");
}

TEST_F(CapsTest, WritingTheCapsEmptiesTheFieldsOnlyWhenAsked)
{
    Open(1, 1, Language::English);
    It().txtTest.SetText(u"as");
    ShowKeyCaps(It(), 192, false, false);
    EXPECT_EQ(It().txtTest.Text(), u"as");
    ShowKeyCaps(It(), 192, false, true);
    EXPECT_EQ(It().txtTest.Text(), u"");
    EXPECT_EQ(It().txtOrigin.Text(), u"");
}

TEST_F(CapsTest, TheHandsShowTheFingersOfACharacter)
{
    Open(8, 5, Language::English);
    const std::pair<std::u16string_view, std::string> fingers[] = {
        {u"f", "left 115, right 119"},  {u"d", "left 116, right 119"},
        {u"s", "left 117, right 119"},  {u"a", "left 118, right 119"},
        {u" ", "left 113, right 120"},  {u"j", "left 113, right 121"},
        {u"k", "left 113, right 122"},  {u"l", "left 113, right 123"},
        {u";", "left 113, right 124"},  {u"\u0691", "left 113, right 124"},
        {u"F", "left 115, right 124"},  {u"J", "left 118, right 121"},
        {u"!", "left 113, right 124"},  {u"*", "left 118, right 119"},
        {u"\"", "left 113, right 119"}, {u"لا", "left 113, right 119"},
        {u"", "left 113, right 119"},   {u"\u064E", "left 113, right 119"}};
    for (const auto& [character, expected] : fingers) {
        ShowHands(It(), character);
        EXPECT_EQ(Hands(), expected) << Utf8(character);
    }
}

TEST_F(CapsTest, TheColouredHandsHaveNumbersOfTheirOwn)
{
    context.colouredHands = true;
    Open(8, 5, Language::English);
    ShowHands(It(), u"F");
    EXPECT_EQ(Hands(), "left 1115, right 1124");
    ShowHands(It(), u"");
    EXPECT_EQ(Hands(), "left 1113, right 1119");
}

TEST_F(CapsTest, TheShiftThatACharacterWantsIsShownAsHeldAndStays)
{
    Open(8, 5, Language::English);
    ShowHands(It(), u"F");
    EXPECT_EQ(Looks(), "71 held");
    ShowHands(It(), u"f");
    EXPECT_EQ(Looks(), "71 held");
    HighlightKey(It(), u"J");
    ShowHands(It(), u"J");
    EXPECT_EQ(Looks(), "54 lit, 60 held, 71 held");
    Key(keyboard::keyShift);
    Up(keyboard::keyShift);
    EXPECT_EQ(Look(60), "plain");
    EXPECT_EQ(Look(71), "plain");
}

TEST_F(CapsTest, WithoutTheHandsAidTheShiftIsHeldAllTheSame)
{
    context.optHands = false;
    OpenRows(1, 1, Language::English, {u"Fj"});
    EXPECT_EQ(Looks(), "51 lit, 71 held");
    EXPECT_EQ(Hands(), "left 115, right 124");
}

TEST_F(CapsTest, AMarkWantsShiftButNoneIsShown)
{
    OpenRows(1, 1, Language::Arabic, {u"\u064E\u064E"});
    EXPECT_EQ(Looks(), "");
    EXPECT_EQ(Hands(), "left 113, right 119");
    Type(u"\u064E");
    EXPECT_EQ(It().correctCount, 1);
}

} // namespace
} // namespace keyfluent::session
