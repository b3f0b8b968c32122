#include "keyboard/KeyJudging.h"

#include "KeyboardFixtures.h"
#include "context/CodePage1256.h"

#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <set>

namespace keyfluent::keyboard
{
namespace
{

using context::FromCodePage1256;
using context::ToCodePage1256;
using fixtures::bothWays;
using fixtures::CodePoints;
using fixtures::IsIn;
using fixtures::kinds;
using fixtures::PlacesOf;
using fixtures::Setting;

// A key in a Shift state.
struct Stroke {
    int keyCode;
    bool shift;

    auto operator<=>(const Stroke&) const = default;
};
using Strokes = std::set<Stroke>;

std::string Show(const Strokes& strokes)
{
    std::string shown;
    for (const Stroke& stroke : strokes) {
        shown += (stroke.shift ? " Shift+" : " ") + std::to_string(stroke.keyCode);
    }
    return shown.empty() ? " none" : shown;
}

Strokes StrokesOn(char16_t character, bool windows, bool arabicLayout)
{
    Strokes strokes;
    for (const fixtures::Place& place : PlacesOf(character, windows, arabicLayout)) {
        strokes.insert({place.keyCode, place.shift});
    }
    return strokes;
}

// Characters that have keys, none of which is right.
constexpr std::u16string_view neverRight = u"#$%&@^_`\u2019";

// Strokes that follow from no layout.
const std::map<char16_t, Strokes> everywhere{
    {u'\u0691', {{13, false}, {13, true}}},
    {u' ', {{32, false}, {32, true}}},
    {u'*', {{56, true}, {106, false}}},
    {u'\u2018', {{85, true}}},
    {u'\'', {{222, false}}},
};
const std::map<char16_t, Strokes> windowsArabic{
    {u',', {{75, true}, {188, true}}},
    {u'،', {{75, true}, {188, true}}},
};
const std::map<char16_t, Strokes> windowsEnglish{
    {u'،', {{188, false}}},
    {u'>', {{188, true}}},
};

// In both languages a character is typed where the Arabic layout has it, or the English layout
// where the Arabic one has it not.
Strokes StrokesByLayout(char16_t character, bool windows, bool arabicExercise)
{
    if (IsIn(character, neverRight)) {
        return {};
    }
    if (const auto found = everywhere.find(character); found != everywhere.end()) {
        return found->second;
    }
    const auto& exceptions = arabicExercise ? windowsArabic : windowsEnglish;
    if (const auto found = exceptions.find(character); windows && found != exceptions.end()) {
        return found->second;
    }
    if (IsIn(character, u"[]{}~×÷")) { // as on the Arabic Windows layout on every keyboard
        return StrokesOn(character, true, true);
    }
    if (!arabicExercise && IsIn(character, windows ? u"(),./<" : u"()")) {
        return StrokesOn(character, windows, false);
    }
    const Strokes strokes = StrokesOn(character, windows, true);
    return strokes.empty() ? StrokesOn(character, windows, false) : strokes;
}

bool IsLatinLetter(char16_t character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

// The strokes that are right for a code, found by trying every key.
Strokes Tried(std::uint8_t code, bool capsOn, std::int32_t kind, bool arabicExercise)
{
    Strokes strokes;
    for (int keyCode = 0; keyCode <= 300; ++keyCode) {
        for (bool shift : bothWays) {
            if (IsValidKey(keyCode, code, shift, capsOn, kind, arabicExercise)) {
                strokes.insert({keyCode, shift});
            }
        }
    }
    return strokes;
}

Strokes Right(char16_t character, std::int32_t kind, bool arabicExercise)
{
    return Tried(ToCodePage1256(character), false, kind, arabicExercise);
}

TEST(KeyJudging, EveryCodeIsRightOnTheKeysOfItsPlacesAndOnNoOther)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (int code = 1; code <= 255; ++code) {
                const char16_t character = FromCodePage1256(static_cast<std::uint8_t>(code));
                if (IsLatinLetter(character)) {
                    continue;
                }
                const Strokes expected =
                    StrokesByLayout(character, kind != context::macintoshKeyboard, arabic);
                for (bool capsOn : bothWays) {
                    const Strokes strokes =
                        Tried(static_cast<std::uint8_t>(code), capsOn, kind, arabic);
                    EXPECT_EQ(Show(strokes), Show(expected))
                        << Setting(kind, arabic) << ", "
                        << CodePoints(std::u16string_view(&character, 1));
                }
            }
        }
    }
}

TEST(KeyJudging, ALatinLetterIsRightOnItsOwnKeyByShiftAndCapsLock)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (int capital = 'A'; capital <= 'Z'; ++capital) {
                const auto upper = static_cast<std::uint8_t>(capital);
                const auto lower = static_cast<std::uint8_t>(capital - 'A' + 'a');
                const Strokes both{{capital, false}, {capital, true}};
                EXPECT_EQ(Tried(lower, false, kind, arabic), (Strokes{{capital, false}}));
                EXPECT_EQ(Tried(upper, false, kind, arabic), (Strokes{{capital, true}}));
                EXPECT_EQ(Tried(lower, true, kind, arabic), both);
                EXPECT_EQ(Tried(upper, true, kind, arabic), both);
            }
        }
    }
}

TEST(KeyJudging, NoKeyIsRightForTheCodeOfNothing)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (bool capsOn : bothWays) {
                EXPECT_EQ(Tried(0, capsOn, kind, arabic), Strokes{});
            }
        }
    }
}

TEST(KeyJudging, ANumberThatIsNoKeyIsRightForNothing)
{
    for (int keyCode : {-1, -191, 256, 256 + 65, 65535, 65536 + 65, std::numeric_limits<int>::min(),
                        std::numeric_limits<int>::max()}) {
        for (int code = 0; code <= 255; ++code) {
            for (bool shift : bothWays) {
                EXPECT_FALSE(IsValidKey(keyCode, static_cast<std::uint8_t>(code), shift, true,
                                        context::windowsKeyboard, true))
                    << "key " << keyCode << ", code " << code;
            }
        }
    }
}

TEST(KeyJudging, TheReturnMarkIsEnterAndSpaceIsTheSpaceBarWithShiftOrWithout)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(Right(u'\u0691', kind, arabic), (Strokes{{13, false}, {13, true}}));
            EXPECT_EQ(Right(u' ', kind, arabic), (Strokes{{32, false}, {32, true}}));
        }
    }
}

TEST(KeyJudging, TheHyphenIsItsKeyWithoutShiftAndTheUnderscoreIsNoKey)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(Right(u'-', kind, arabic), (Strokes{{189, false}}));
            EXPECT_EQ(Right(u'_', kind, arabic), Strokes{});
        }
    }
    EXPECT_EQ(Right(u'\u0640', context::windowsKeyboard, true), (Strokes{{74, true}}));
    EXPECT_EQ(Right(u'\u0640', context::macintoshKeyboard, true), (Strokes{{189, true}}));
}

TEST(KeyJudging, SignsThatDependOnTheLanguage)
{
    struct Sign {
        char16_t sign;
        Strokes windowsEnglish, windowsArabic, macEnglish, macArabic;
    };
    const Strokes shift48{{48, true}};
    const Strokes shift57{{57, true}};
    const Strokes plain188{{188, false}};
    const Strokes shift188{{188, true}};
    const Strokes plain190{{190, false}};
    const Strokes shift190{{190, true}};
    const Strokes plain191{{191, false}};
    const Strokes twoCommas{{75, true}, {188, true}};
    const Sign signs[] = {
        {u'(', shift57, shift48, shift57, shift48},
        {u')', shift48, shift57, shift48, shift57},
        {u',', plain188, twoCommas, plain188, plain188},
        {u'،', plain188, twoCommas, plain188, plain188},
        {u'.', plain190, shift190, plain190, plain190},
        {u'/', plain191, {{76, true}}, plain191, plain191},
        {u'<', shift188, {{219, true}}, shift190, shift190},
        {u'>', shift188, {{221, true}}, shift188, shift188},
    };
    for (const Sign& sign : signs) {
        const std::string shown = CodePoints(std::u16string_view(&sign.sign, 1));
        EXPECT_EQ(Right(sign.sign, context::windowsKeyboard, false), sign.windowsEnglish) << shown;
        EXPECT_EQ(Right(sign.sign, context::windowsKeyboard, true), sign.windowsArabic) << shown;
        EXPECT_EQ(Right(sign.sign, context::macintoshKeyboard, false), sign.macEnglish) << shown;
        EXPECT_EQ(Right(sign.sign, context::macintoshKeyboard, true), sign.macArabic) << shown;
    }
}

TEST(KeyJudging, NoOtherCodeDependsOnTheLanguage)
{
    for (std::int32_t kind : kinds) {
        for (int code = 0; code <= 255; ++code) {
            const auto byte = static_cast<std::uint8_t>(code);
            if (!IsIn(FromCodePage1256(byte), u"(),،./<>")) {
                EXPECT_EQ(Tried(byte, false, kind, true), Tried(byte, false, kind, false))
                    << "code " << code;
            }
        }
    }
}

TEST(KeyJudging, SquareAndCurlyBracketsAndTheTildeHaveTheirArabicPlacesInEveryExercise)
{
    const std::map<char16_t, int> keys{{u'[', 70}, {u']', 68}, {u'{', 86}, {u'}', 67},
                                       {u'~', 90}, {u'×', 79}, {u'÷', 73}};
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (const auto& [sign, keyCode] : keys) {
                EXPECT_EQ(Right(sign, kind, arabic), (Strokes{{keyCode, true}}));
            }
        }
    }
}

TEST(KeyJudging, TheAsteriskIsOnThePadWithoutShiftOrOverTheEight)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(Right(u'*', kind, arabic), (Strokes{{56, true}, {106, false}}));
        }
    }
}

TEST(KeyJudging, DigitsAreRightOnTheNumberRowWithoutShiftOnly)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
                EXPECT_EQ(Right(digit, kind, arabic), (Strokes{{digit, false}}));
            }
        }
    }
}

TEST(KeyJudging, BackslashAndBarAreOnTwoKeys)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(Right(u'\\', kind, arabic), (Strokes{{220, false}, {226, false}}));
            EXPECT_EQ(Right(u'|', kind, arabic), (Strokes{{220, true}, {226, true}}));
        }
    }
}

TEST(KeyJudging, QuestionMarksOfBothLanguagesShareAKey)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(Right(u'?', kind, arabic), (Strokes{{191, true}}));
            EXPECT_EQ(Right(u'؟', kind, arabic), (Strokes{{191, true}}));
        }
    }
}

TEST(KeyJudging, QuotationMarksHaveTheirEnglishKeyInEveryExercise)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            EXPECT_EQ(Right(u'\'', kind, arabic), (Strokes{{222, false}}));
            EXPECT_EQ(Right(u'"', kind, arabic), (Strokes{{222, true}}));
            EXPECT_EQ(Right(u'\u2018', kind, arabic), (Strokes{{85, true}}));
            EXPECT_EQ(Right(u'\u2019', kind, arabic), Strokes{});
        }
    }
}

TEST(KeyJudging, TheEightMarksWantShift)
{
    const std::map<char16_t, int> windows{{u'\u0651', 192}, {u'\u064E', 81}, {u'\u064B', 87},
                                          {u'\u064F', 69},  {u'\u064C', 82}, {u'\u0650', 65},
                                          {u'\u064D', 83},  {u'\u0652', 88}};
    const std::map<char16_t, int> mac{{u'\u064E', 81}, {u'\u064B', 87}, {u'\u0650', 69},
                                      {u'\u064D', 82}, {u'\u064F', 84}, {u'\u064C', 89},
                                      {u'\u0652', 85}, {u'\u0651', 73}};
    for (bool arabic : bothWays) {
        for (const auto& [mark, keyCode] : windows) {
            EXPECT_EQ(Right(mark, context::windowsKeyboard, arabic), (Strokes{{keyCode, true}}));
        }
        for (const auto& [mark, keyCode] : mac) {
            EXPECT_EQ(Right(mark, context::macintoshKeyboard, arabic), (Strokes{{keyCode, true}}));
        }
    }
}

TEST(KeyJudging, NoKeyIsRightForNineSignsThatTheLayoutsShow)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (char16_t sign : neverRight) {
                EXPECT_EQ(Right(sign, kind, arabic), Strokes{});
            }
        }
    }
}

TEST(KeyJudging, TheKeyOfLamAlefIsRightForNeitherLetter)
{
    for (bool shift : bothWays) {
        for (char16_t letter : {u'ل', u'ا', u'آ'}) {
            EXPECT_FALSE(IsValidKey(66, ToCodePage1256(letter), shift, false,
                                    context::windowsKeyboard, true));
        }
    }
    EXPECT_EQ(Right(u'ل', context::windowsKeyboard, true), (Strokes{{71, false}}));
}

TEST(KeyJudging, AnArabicLetterHasNoRegardForCapsLock)
{
    for (std::int32_t kind : kinds) {
        for (bool capsOn : bothWays) {
            for (bool arabic : bothWays) {
                EXPECT_EQ(Tried(ToCodePage1256(u'ش'), capsOn, kind, arabic),
                          (Strokes{{65, false}}));
            }
        }
    }
}

TEST(KeyJudging, WawWithHamzaIsElsewhereOnEachKeyboard)
{
    EXPECT_EQ(Right(u'ؤ', context::windowsKeyboard, true), (Strokes{{67, false}}));
    EXPECT_EQ(Right(u'ؤ', context::macintoshKeyboard, true), (Strokes{{77, true}}));
}

TEST(KeyJudging, ACharacterOutsideTheCodePageIsNotTakenForAQuestionMark)
{
    for (char16_t character : {u'\u06CC', u'\u0671', u'\u0661', u'\uFEFB', u'\u2192'}) {
        EXPECT_EQ(Right(character, context::windowsKeyboard, true), Strokes{});
    }
}

} // namespace
} // namespace keyfluent::keyboard
