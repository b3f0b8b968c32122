// Keys in the exercises that refuse a wrong key at once, and what every exercise does with a key.
#include "session/Keystrokes.h"

#include "LessonFixture.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;
using namespace keyboard;

using KeystrokesTest = LessonFixture;

TEST_F(KeystrokesTest, ARightKeyGoesIntoTheCopyAndTheCaretOn)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    EXPECT_EQ(Key('A'), 'A');
    EXPECT_EQ(State(), "1/1 a[s]df  | a | 1+0 running");
    EXPECT_TRUE(Runs(TimerName::Hilite));
    EXPECT_FALSE(Runs(TimerName::ErrKey));
    EXPECT_EQ(It().pressedKey, 48);
    EXPECT_EQ(It().litChar, u"s");
    EXPECT_EQ(It().text1, u"1");
}

TEST_F(KeystrokesTest, AWrongKeyIsShownAndLeavesTheCaretWhereItIs)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Type(u"as");
    EXPECT_EQ(Key('X'), 'X');
    EXPECT_EQ(State(), "1/1 as[d]f  | asx | 2+1 blinking");
    EXPECT_EQ(It().savedTestText, u"as");
    EXPECT_TRUE(It().errorPending);
    EXPECT_EQ(It().pressedKey, 62);
    EXPECT_TRUE(Runs(TimerName::ErrKey));
}

TEST_F(KeystrokesTest, AfterTheBlinkTheWrongCharacterIsGone)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Type(u"as");
    Wait(300);
    Key('X');
    Wait(419);
    EXPECT_EQ(State(), "1/1 as[d]f  | asx | 2+1 blinking");
    Wait(1);
    EXPECT_EQ(State(), "1/1 as[d]f  | as | 2+1 running");
    EXPECT_FALSE(It().errorPending);
    Type(u"df ");
    EXPECT_EQ(It().correctCount, 5);
}

TEST_F(KeystrokesTest, KeysInABlinkAreLost)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Key('X');
    for (const int code : {65, 88, 8, 13, 16, 17, 18, 20, 27, 32, 37, 112, 65535}) {
        EXPECT_EQ(Key(code), 0) << code;
    }
    EXPECT_EQ(State(), "1/1 [a]sdf  | x | 0+1 blinking");
    EXPECT_EQ(Looks(), "48 lit");
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin", "system beep", "focus txtOrigin"}));
}

TEST_F(KeystrokesTest, AShiftThatGoesDownInABlinkCountsFromItsRepeat)
{
    OpenRows(1, 1, Language::English, {u"Asdf "});
    Key('X');
    EXPECT_EQ(Key(keyShift), 0);
    Wait(420);
    EXPECT_FALSE(It().shiftDown);
    Key('A');
    EXPECT_EQ(State(), "1/1 [A]sdf  | a | 0+2 blinking");
    Wait(420);
    EXPECT_EQ(Key(keyShift), keyShift);
    Key('A');
    EXPECT_EQ(State(), "1/1 A[s]df  | A | 1+2 running shift");
}

TEST_F(KeystrokesTest, ASecondWrongKeyDoesNotLengthenTheBlink)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Wait(500);
    It().blinkCount = 0;
    Key('X');
    Wait(200);
    EXPECT_EQ(Key('X'), 0);
    Wait(219);
    EXPECT_EQ(It().errorCount, 1);
    EXPECT_TRUE(Runs(TimerName::ErrKey));
    Wait(1);
    EXPECT_FALSE(Runs(TimerName::ErrKey));
    EXPECT_EQ(It().errorCount, 1);
}

TEST_F(KeystrokesTest, WhileAnErrorIsPendingOnlyShiftIsTaken)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Type(u"a");
    It().errorPending = true;
    EXPECT_EQ(Key('S'), 'S');
    EXPECT_EQ(State(), "1/1 a[s]df  | a | 1+0 running");
    machine.events.clear();
    Backspace();
    EXPECT_EQ(TakeEvents(), (Events{"mmcBack Prev", "mmcBack Play"}));
    Key(keyShift);
    EXPECT_EQ(State(), "1/1 a[s]df  | a | 1+0 running shift");
    It().errorPending = false;
    Up(keyShift);
    Key('S');
    EXPECT_EQ(It().correctCount, 2);
}

TEST_F(KeystrokesTest, AFirstKeyThatIsWrongStartsTheClockAndCounts)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    machine.SetTimeOfDay(40000.5);
    Key('X');
    EXPECT_EQ(It().startTime, 40000.5F);
    EXPECT_TRUE(Runs(TimerName::Clock));
    EXPECT_EQ(It().errorCount, 1);
    EXPECT_EQ(It().totalCount, 1);
    EXPECT_EQ(It().accuracyPercent, 0);
}

TEST_F(KeystrokesTest, EveryFirstKeyButCapsLockAndCtrlStartsTheClock)
{
    for (const int code : {0, 8, 9, 13, 16, 18, 27, 32, 37, 46, 91, 96, 65, 88, 300, 65535}) {
        OpenRows(1, 1, Language::English, {u"asdf "});
        machine.SetTimeOfDay(40000);
        Key(code);
        EXPECT_FALSE(It().awaitingFirstKey) << code;
        EXPECT_TRUE(Runs(TimerName::Clock)) << code;
        EXPECT_EQ(It().startTime, 40000) << code;
    }
    for (const int code : {17, 20}) {
        OpenRows(1, 1, Language::English, {u"asdf "});
        EXPECT_EQ(Key(code), code);
        EXPECT_TRUE(It().awaitingFirstKey) << code;
        EXPECT_FALSE(Runs(TimerName::Clock)) << code;
        EXPECT_EQ(It().startTime, 0) << code;
    }
}

TEST_F(KeystrokesTest, OnlyTheFirstKeySetsTheStart)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    machine.SetTimeOfDay(40000);
    Key(keyShift);
    machine.SetTimeOfDay(40010);
    Up(keyShift);
    Type(u"a");
    EXPECT_EQ(It().startTime, 40000);
}

TEST_F(KeystrokesTest, OnlyPressingShiftCountsNothing)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    EXPECT_EQ(Key(keyShift), keyShift);
    EXPECT_EQ(State(), "1/1 [a]sdf  |  | 0+0 running shift");
    EXPECT_EQ(It().totalCount, 0);
    EXPECT_EQ(It().lblMark.caption, u"");
}

TEST_F(KeystrokesTest, ShiftShowsItsLayoutAndHoldsBothItsCaps)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Key(keyShift);
    EXPECT_EQ(Looks(), "48 lit, 60 held, 71 held");
    EXPECT_EQ(CapText(48), "A");
    It().caps.text[48] = u"changed";
    Key(keyShift); // the repeat of a held key
    EXPECT_EQ(CapText(48), "changed");
    Up(keyShift);
    EXPECT_EQ(CapText(48), "a");
    EXPECT_EQ(Looks(), "48 lit");
    EXPECT_FALSE(It().shiftDown);
}

TEST_F(KeystrokesTest, ShiftComingUpShowsTheHandsForWhatIsExpected)
{
    OpenRows(1, 1, Language::English, {u"Fa"});
    EXPECT_EQ(Looks(), "51 lit, 71 held");
    Key(keyShift);
    It().imgLeftHand.bitmap = 0;
    Up(keyShift);
    EXPECT_EQ(Looks(), "51 lit, 71 held"); // held again, as the character still wants it
    EXPECT_EQ(It().imgLeftHand.bitmap, 115);
}

TEST_F(KeystrokesTest, CtrlHoldsBothItsCapsUntilANewCharacter)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    EXPECT_EQ(Key(keyCtrl), keyCtrl);
    EXPECT_EQ(Looks(), "48 lit, 72 held, 78 held");
    Up(keyCtrl);
    EXPECT_EQ(Looks(), "48 lit");
    Key(keyCtrl);
    Key('A'); // judged like any letter
    EXPECT_EQ(State(), "1/1 a[s]df  | a | 1+0 running");
    EXPECT_EQ(Looks(), "49 lit");
}

TEST_F(KeystrokesTest, OtherKeysComingUpChangeNothing)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Key(keyShift);
    Key(keyCtrl);
    for (const int code : {0, 8, 13, 18, 20, 65, 65535}) {
        Up(code);
    }
    EXPECT_EQ(Looks(), "48 lit, 60 held, 71 held, 72 held, 78 held");
    EXPECT_TRUE(It().shiftDown);
}

TEST_F(KeystrokesTest, CapsLockReadsTheToggleAndShowsIt)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    machine.capsLockState = 1;
    EXPECT_EQ(Key(keyCapsLock), keyCapsLock);
    EXPECT_TRUE(It().capsOn);
    EXPECT_EQ(Looks(), "47 held, 48 lit");
    machine.capsLockState = 0;
    Key(keyCapsLock);
    EXPECT_FALSE(It().capsOn);
    EXPECT_EQ(TakeEvents(),
              (Events{"mmcCaps Play", "mmcCaps Prev", "mmcCaps Play", "mmcCaps Prev"}));
    EXPECT_EQ(It().totalCount, 0);
}

TEST_F(KeystrokesTest, WithCapsLockALatinLetterPassesInBothShiftStates)
{
    OpenRows(1, 1, Language::English, {u"aAaA"});
    machine.capsLockState = 1;
    Key(keyCapsLock);
    Key('A');
    Key('A');
    Key(keyShift);
    Key('A');
    EXPECT_EQ(State(), "1/1 aAa[A] | aAa | 3+0 running shift caps");
}

TEST_F(KeystrokesTest, WithoutCapsLockALatinLetterWantsItsShiftState)
{
    OpenRows(1, 1, Language::English, {u"aA"});
    Key(keyShift);
    Key('A');
    EXPECT_EQ(State(), "1/1 [a]A | A | 0+1 blinking shift");
    Wait(420);
    Up(keyShift);
    Key('A');
    Key('A');
    EXPECT_EQ(State(), "1/1 a[A] | aa | 1+2 blinking");
}

TEST_F(KeystrokesTest, ArabicLettersCareNothingForCapsLock)
{
    OpenRows(1, 1, Language::Arabic, {u"شسي"});
    Key('A');
    machine.capsLockState = 1;
    Key(keyCapsLock);
    Key('S');
    EXPECT_EQ(State(), "1/1 شس[ي] | شس | 2+0 running caps");
}

TEST_F(KeystrokesTest, BackspaceOnlySounds)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Type(u"as");
    machine.events.clear();
    EXPECT_EQ(Backspace(), keyBackspace);
    EXPECT_EQ(State(), "1/1 as[d]f  | as | 2+0 running");
    EXPECT_EQ(TakeEvents(), (Events{"mmcBack Prev", "mmcBack Play", "focus txtOrigin"}));
    EXPECT_EQ(It().pressedKey, noCap);
}

TEST_F(KeystrokesTest, KeysWithoutACapCostNothing)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Type(u"as");
    for (const int code : {0, 8, 9, 16, 18, 19, 33, 37, 40, 45, 46, 91, 96, 105, 107, 144, 65535}) {
        EXPECT_EQ(Key(code), code) << code;
        EXPECT_EQ(It().pressedKey, noCap) << code;
    }
    Up(keyShift);
    EXPECT_EQ(State(), "1/1 as[d]f  | as | 2+0 running");
}

TEST_F(KeystrokesTest, AKeyWhoseCapIsEmptyTypesNothing)
{
    context.keyboardKind = context::macintoshKeyboard;
    OpenRows(1, 1, Language::Arabic, {u"شس["});
    Key(keyShift);
    for (const int code : {65, 83, 70, 71, 74, 75, 76, 88, 192}) {
        EXPECT_EQ(Key(code), code);
        EXPECT_EQ(State(), "1/1 [ش]س[ |  | 0+0 running shift") << code;
    }
    EXPECT_EQ(It().pressedKey, 16);
}

TEST_F(KeystrokesTest, WhatTheJudgeTakesButNoCapGivesCanNotBeTyped)
{
    context.keyboardKind = context::macintoshKeyboard;
    OpenRows(1, 1, Language::Arabic, {u"[ "});
    Strike({'F', true}); // right for the sign, but the cap is empty there
    EXPECT_EQ(State(), "1/1 [[]  |  | 0+0 running");
}

TEST_F(KeystrokesTest, TheExpectedCharacterIsFoundAgainBeforeAKeyIsJudged)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    It().txtOrigin.Select(3, 1); // as a drag with the mouse would
    Key('A');
    EXPECT_EQ(State(), "1/1 a[s]df  | a | 1+0 running");
}

TEST_F(KeystrokesTest, AWrongSpaceOrEnterShowsTheWordOfItsCap)
{
    struct Case {
        Language language;
        std::int32_t kind;
        int key;
        std::string word;
    };
    const Case cases[] = {
        {Language::English, context::windowsKeyboard, keySpace, "Space"},
        {Language::English, context::windowsKeyboard, keyEnter, "Return"},
        {Language::Arabic, context::windowsKeyboard, keySpace, "المسافة"},
        {Language::Arabic, context::windowsKeyboard, keyEnter, "إدخال"},
        {Language::Arabic, context::macintoshKeyboard, keyEnter, "الرجوع"},
        {Language::English, context::windowsKeyboard, keyEscape, "?"},
        {Language::English, context::windowsKeyboard, keyF1 + 4, "F5"},
        {Language::English, context::windowsKeyboard, keyF12, "F12"},
        {Language::English, context::windowsKeyboard, keyPadMultiply, "*"},
        {Language::Arabic, context::windowsKeyboard, keyLamAlef, "لا"},
    };
    for (const Case& wanted : cases) {
        context.keyboardKind = wanted.kind;
        OpenRows(1, 1, wanted.language, {u"aa"});
        Key(wanted.key);
        EXPECT_EQ(State(), "1/1 [a]a | " + wanted.word + " | 0+1 blinking");
        Wait(420);
        EXPECT_EQ(State(), "1/1 [a]a |  | 0+1 running");
    }
}

TEST_F(KeystrokesTest, WithoutTheKeyCapsAWrongKeyStillShowsItsCharacter)
{
    context.optKeyCaps = false;
    OpenRows(1, 1, Language::English, {u"asdf "});
    Key('X');
    EXPECT_EQ(State(), "1/1 [a]sdf  | x | 0+1 blinking");
    Wait(420);
    EXPECT_EQ(State(), "1/1 [a]sdf  |  | 0+1 running");
}

TEST_F(KeystrokesTest, ARightKeyAddsTheTextsCharacterWhateverItsCapShows)
{
    OpenRows(1, 1, Language::English, {u">~a"});
    Strike({188, true}); // its cap reads <
    Strike({'Z', true});
    EXPECT_EQ(State(), "1/1 >~[a] | >~ | 2+0 running");
}

TEST_F(KeystrokesTest, EnterTypesTheReturnMarkAlone)
{
    OpenRows(1, 1, Language::English, {u"a\u0691", u"b"});
    Type(u"a");
    Enter();
    EXPECT_EQ(State(), "2/2 [b] |  | 2+0 running");
}

TEST_F(KeystrokesTest, ACharacterOutsideTheCodePageHasNoRightKey)
{
    OpenRows(1, 1, Language::English, {u"\u06CCa"});
    for (int code = 1; code <= 255; ++code) {
        OpenRows(1, 1, Language::English, {u"\u06CCa"});
        Strike({static_cast<std::uint16_t>(code), code % 2 == 0});
        EXPECT_EQ(It().correctCount, 0) << code;
    }
}

TEST_F(KeystrokesTest, AltAndItsLikeAreNoModifiersHere)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Key(18);
    Key('A');
    Key(91);
    Key('S');
    EXPECT_EQ(State(), "1/1 as[d]f  | as | 2+0 running");
}

TEST_F(KeystrokesTest, TheNextKeyMayComeInAWink)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Wait(500);
    It().blinkCount = 0;
    Key('A');
    Wait(100);
    EXPECT_TRUE(Runs(TimerName::Hilite));
    EXPECT_EQ(Key('S'), 'S');
    EXPECT_EQ(State(), "1/1 as[d]f  | as | 2+0 running");
    EXPECT_EQ(It().pressedKey, 49);
    Wait(170);
    EXPECT_FALSE(Runs(TimerName::Hilite)); // as if the first key had had no follower
}

TEST_F(KeystrokesTest, TheHandsShowTheCharacterAfterAJudgedKey)
{
    OpenRows(1, 1, Language::English, {u"aj"});
    EXPECT_EQ(It().imgLeftHand.bitmap, 118);
    Key('A');
    EXPECT_EQ(It().imgLeftHand.bitmap, 113);
    EXPECT_EQ(It().imgRightHand.bitmap, 121);
}

TEST_F(KeystrokesTest, AtANewRowTheHandsRestUntilTheWinkEnds)
{
    OpenRows(1, 1, Language::English, {u"a", u"jf"});
    Wait(500);
    It().blinkCount = 0;
    Key('A');
    EXPECT_EQ(State(), "2/2 [j]f |  | 1+0 running");
    EXPECT_EQ(It().imgLeftHand.bitmap, 113);
    EXPECT_EQ(It().imgRightHand.bitmap, 119);
    EXPECT_EQ(It().litChar, u"j");
    EXPECT_EQ(Looks(), "54 lit");
    Wait(269);
    EXPECT_EQ(It().imgRightHand.bitmap, 119);
    Wait(1);
    EXPECT_EQ(It().imgRightHand.bitmap, 121);
}

} // namespace
} // namespace keyfluent::session
