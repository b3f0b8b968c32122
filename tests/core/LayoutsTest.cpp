#include "keyboard/Layouts.h"

#include "KeyboardFixtures.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace keyfluent::keyboard
{
namespace
{

using fixtures::bothWays;
using fixtures::CapTexts;
using fixtures::CodePoints;
using fixtures::kinds;
using fixtures::Setting;
using fixtures::TextOf;
using fixtures::Written;

// A layout as it reads from left to right, row by row; a cap that holds two letters or none is
// named apart and has a full stop of the centre (U+00B7) in its row.
struct Rows {
    std::u16string_view number;
    std::u16string_view upper;
    std::u16string_view home;
    std::u16string_view lower;
    std::map<int, std::u16string_view> apart;
};

const Rows english{u"`1234567890-=", u"qwertyuiop[]\\", u"asdfghjkl;'", u"zxcvbnm,./", {}};
const Rows englishShift{u"~!@#$%^&*()_+", u"QWERTYUIOP{}|", u"ASDFGHJKL:\"", u"ZXCVBNM<>?", {}};
const Rows arabicWindows{
    u"ذ1234567890-=", u"ضصثقفغعهخحجد\\", u"شسيبلاتنمكط", u"ئءؤر·ىةوزظ", {{65, u"لا"}}};
const Rows arabicWindowsShift{u"\u0651!@#$%^&*)(_+",
                              u"\u064E\u064B\u064F\u064C·إ'÷×؛<>|",
                              u"\u0650\u064D][·أ\u0640،/:\"",
                              u"~\u0652}{·آ',.؟",
                              {{38, u"لإ"}, {52, u"لأ"}, {65, u"لآ"}}};
const Rows arabicMac{u"_1234567890-=", u"ضصثقفغعهخحجة\\", u"شسيبلاتنمك؛", u"ظطذدزرو،./", {}};
const Rows arabicMacShift{u"·!@#$%^&*)(\u0640+",
                          u"\u064E\u064B\u0650\u064D\u064F\u064C\u0652\u0651][}{|",
                          u"··ى··آ···:\"",
                          u"\u2019·ئءأإؤ><؟",
                          {{16, u""},
                           {48, u""},
                           {49, u""},
                           {51, u""},
                           {52, u""},
                           {54, u""},
                           {55, u""},
                           {56, u""},
                           {62, u""}}};

std::map<int, std::u16string_view> CapsOf(const Rows& rows)
{
    std::map<int, std::u16string_view> caps;
    const auto enter = [&caps](std::u16string_view row, int firstCap, std::size_t length) {
        EXPECT_EQ(row.size(), length) << "row of cap " << firstCap;
        for (std::size_t i = 0; i < row.size(); ++i) {
            caps[firstCap + static_cast<int>(i)] = row.substr(i, 1);
        }
    };
    enter(rows.number, 16, 13);
    enter(rows.upper, 34, 13);
    enter(rows.home, 48, 11);
    enter(rows.lower, 61, 10);
    for (const auto& [cap, text] : rows.apart) {
        EXPECT_EQ(caps[cap], u"·") << "cap " << cap;
        caps[cap] = text;
    }
    return caps;
}

void ExpectCharacterCaps(const CapTexts& texts, const Rows& rows, const std::string& setting)
{
    const auto caps = CapsOf(rows);
    ASSERT_EQ(caps.size(), 47U);
    for (const auto& [cap, text] : caps) {
        EXPECT_EQ(TextOf(texts, cap), text)
            << setting << ", cap " << cap << ": " << CodePoints(TextOf(texts, cap)) << " for "
            << CodePoints(text);
    }
}

TEST(Layouts, EnglishReadsTheSameOnEveryKeyboard)
{
    for (std::int32_t kind : kinds) {
        ExpectCharacterCaps(Written(kind, false, false), english, Setting(kind, false));
        ExpectCharacterCaps(Written(kind, true, false), englishShift,
                            Setting(kind, false) + ", Shift");
    }
}

TEST(Layouts, ArabicReadsAsOnAWindowsKeyboard)
{
    ExpectCharacterCaps(Written(context::windowsKeyboard, false, true), arabicWindows, "Windows");
    ExpectCharacterCaps(Written(context::windowsKeyboard, true, true), arabicWindowsShift,
                        "Windows, Shift");
}

TEST(Layouts, ArabicReadsAsOnAMacintoshKeyboard)
{
    ExpectCharacterCaps(Written(context::macintoshKeyboard, false, true), arabicMac, "Macintosh");
    ExpectCharacterCaps(Written(context::macintoshKeyboard, true, true), arabicMacShift,
                        "Macintosh, Shift");
}

TEST(Layouts, TheKeyTableHasOneRowForEachCharacterCap)
{
    std::set<int> caps;
    std::set<int> codes;
    for (const CharacterKey& key : characterKeys) {
        EXPECT_TRUE(caps.insert(key.cap).second) << "cap " << key.cap;
        EXPECT_TRUE(codes.insert(key.keyCode).second) << "key " << key.keyCode;
        EXPECT_EQ(key.secondKeyCode, key.cap == 46 ? 226 : 0) << "cap " << key.cap;
    }
    std::set<int> expected;
    for (const auto& [cap, text] : CapsOf(english)) {
        expected.insert(cap);
    }
    EXPECT_EQ(caps, expected);
}

TEST(Layouts, AKeyHasTheNumberOfItsLatinCapitalOrOfItsDigit)
{
    const std::map<std::u16string_view, int> signs{
        {u"`", 192}, {u"-", 189}, {u"=", 187}, {u"[", 219}, {u"]", 221}, {u"\\", 220},
        {u";", 186}, {u"'", 222}, {u",", 188}, {u".", 190}, {u"/", 191}};
    for (const CharacterKey& key : characterKeys) {
        const auto sign = signs.find(key.english);
        if (sign != signs.end()) {
            EXPECT_EQ(key.keyCode, sign->second) << "cap " << key.cap;
        } else if (key.english >= u"a" && key.english <= u"z") {
            EXPECT_EQ(key.keyCode, key.englishShift[0]) << "cap " << key.cap;
        } else {
            EXPECT_EQ(key.keyCode, key.english[0]) << "cap " << key.cap;
        }
    }
}

TEST(Layouts, AKindThatIsNeitherKeyboardLeavesTheCharacterCapsOfAnArabicExercise)
{
    for (std::int32_t kind : {1, 191, 193, -192, 0x10000}) {
        for (bool shifted : bothWays) {
            const CapTexts texts = Written(kind, shifted, true);
            for (const CharacterKey& key : characterKeys) {
                EXPECT_EQ(TextOf(texts, key.cap), u"as it was") << "kind " << kind;
            }
        }
    }
}

TEST(Layouts, OverTheDesignedTextsAKindThatIsNeitherKeyboardShowsAlefWithHamza)
{
    CapTexts texts;
    for (std::size_t cap = 0; cap < texts.size(); ++cap) {
        texts[cap] = CapDesigns()[cap].designText;
    }
    WriteCapTexts(1, false, true, texts);
    for (const CharacterKey& key : characterKeys) {
        EXPECT_EQ(TextOf(texts, key.cap), u"أ") << "cap " << key.cap;
    }
    EXPECT_EQ(TextOf(texts, capSpace), u"المسافة");
}

TEST(Layouts, NamedKeysCarryTheirNames)
{
    const std::map<int, std::array<std::u16string_view, 4>> names{
        // English on Windows, on Macintosh; Arabic on Windows, on Macintosh
        {29, {u"delete", u"delete", u"حذف", u"حذف"}},
        {33, {u"tab", u"tab", u"الحقول", u"الحقول"}},
        {47, {u"Caps", u"Caps", u"تثبيت", u"تثبيت"}},
        {59, {u"Return", u"Return", u"إدخال", u"الرجوع"}},
        {60, {u"Shift", u"Shift", u"العالي", u"العالي"}},
        {71, {u"Shift", u"Shift", u"العالي", u"العالي"}},
        {72, {u"ctrl", u"ctrl", u"تحكم", u"تحكم"}},
        {78, {u"ctrl", u"ctrl", u"تحكم", u"تحكم"}},
        {73, {u"Start", u"alt", u"ابدأ", u"الاختيار"}},
        {77, {u"Start", u"alt", u"ابدأ", u"الاختيار"}},
        {74, {u"alr", u"الأوامر", u"الاختيار", u"الأوامر"}},
        {76, {u"alt", u"الأوامر", u"الاختيار", u"الأوامر"}},
        {75, {u"Space", u"Space", u"المسافة", u"المسافة"}},
    };
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (bool shifted : bothWays) {
                const CapTexts texts = Written(kind, shifted, arabic);
                const std::size_t column = (arabic ? 2U : 0U) + (kind == 0 ? 1U : 0U);
                for (const auto& [cap, name] : names) {
                    EXPECT_EQ(TextOf(texts, cap), name[column])
                        << Setting(kind, arabic) << ", cap " << cap;
                }
            }
        }
    }
}

TEST(Layouts, LastingCapsAreWrittenAnewAtEveryChange)
{
    const std::set<int> never{32, 81, 82, 83, 84, 85, 86, 102};
    std::set<int> layoutCaps;
    for (const CharacterKey& key : characterKeys) {
        layoutCaps.insert(key.cap);
    }
    for (const NamedKey& key : namedKeys) {
        layoutCaps.insert(key.cap);
    }
    ASSERT_EQ(layoutCaps.size(), 60U);
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            for (bool shifted : bothWays) {
                const CapTexts texts = Written(kind, shifted, arabic);
                for (int cap = 0; cap < capCount; ++cap) {
                    const auto at = static_cast<std::size_t>(cap);
                    if (never.contains(cap)) {
                        EXPECT_EQ(texts[at], u"as it was") << "cap " << cap;
                    } else if (!layoutCaps.contains(cap)) {
                        EXPECT_EQ(texts[at], CapDesigns()[at].designText) << "cap " << cap;
                    }
                }
            }
        }
    }
}

TEST(Layouts, ACapThatAKeyRewroteReadsAsDesignedAgain)
{
    CapTexts texts = Written(context::windowsKeyboard, false, true);
    texts[capEscape] = u"?";
    texts[capReturn] = u"\u0691";
    texts[capSpace] = u" ";
    texts[capLamAlef] = u"ل";
    WriteCapTexts(context::windowsKeyboard, true, true, texts);
    EXPECT_EQ(TextOf(texts, capEscape), u"esc");
    EXPECT_EQ(TextOf(texts, capReturn), u"إدخال");
    EXPECT_EQ(TextOf(texts, capSpace), u"المسافة");
    EXPECT_EQ(TextOf(texts, capLamAlef), u"لآ");
}

TEST(Layouts, ShiftAndBackGivesTheSameCaps)
{
    for (std::int32_t kind : kinds) {
        for (bool arabic : bothWays) {
            CapTexts texts = Written(kind, false, arabic);
            const CapTexts before = texts;
            WriteCapTexts(kind, true, arabic, texts);
            WriteCapTexts(kind, false, arabic, texts);
            EXPECT_EQ(texts, before) << Setting(kind, arabic);
        }
    }
}

TEST(Layouts, TheLamAlefKeyGivesTwoLettersOnAWindowsKeyboardOnly)
{
    EXPECT_EQ(TextOf(Written(context::windowsKeyboard, false, true), capLamAlef), u"لا");
    EXPECT_EQ(TextOf(Written(context::windowsKeyboard, true, true), capLamAlef), u"لآ");
    EXPECT_EQ(TextOf(Written(context::macintoshKeyboard, false, true), capLamAlef), u"ز");
    EXPECT_EQ(TextOf(Written(context::macintoshKeyboard, true, true), capLamAlef), u"أ");
}

TEST(Layouts, WithShiftNineKeysOfTheArabicMacintoshKeyboardTypeNothing)
{
    const CapTexts texts = Written(context::macintoshKeyboard, true, true);
    std::set<int> empty;
    for (const CharacterKey& key : characterKeys) {
        if (TextOf(texts, key.cap).empty()) {
            empty.insert(key.cap);
        }
    }
    EXPECT_EQ(empty, (std::set<int>{16, 48, 49, 51, 52, 54, 55, 56, 62}));
}

TEST(Layouts, TheRoundBracketsAreMirroredInArabic)
{
    for (std::int32_t kind : {context::windowsKeyboard, context::macintoshKeyboard}) {
        EXPECT_EQ(TextOf(Written(kind, true, false), 25), u"(");
        EXPECT_EQ(TextOf(Written(kind, true, false), 26), u")");
        EXPECT_EQ(TextOf(Written(kind, true, true), 25), u")");
        EXPECT_EQ(TextOf(Written(kind, true, true), 26), u"(");
    }
}

} // namespace
} // namespace keyfluent::keyboard
