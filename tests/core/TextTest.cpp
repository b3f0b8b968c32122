#include "context/Text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

namespace keyfluent::context
{
namespace
{

TEST(Text, TheReturnMarkIsTheArabicLetterRreh)
{
    EXPECT_EQ(lineEndMark, 0x0691);
    EXPECT_EQ(ToUtf8(std::u16string(1, lineEndMark)), "ڑ");
}

TEST(Text, TrimmingTakesTheBlanksAtBothEndsOnly)
{
    EXPECT_EQ(TrimBlanks(u"  two words  "), u"two words");
    EXPECT_EQ(TrimBlanks(u"word"), u"word");
    EXPECT_EQ(TrimBlanks(u"word "), u"word");
    EXPECT_EQ(TrimBlanks(u" word"), u"word");
    EXPECT_EQ(TrimBlanks(u"   "), u"");
    EXPECT_EQ(TrimBlanks(u""), u"");
}

TEST(Text, TrimmingLeavesWhiteSpaceThatIsNoBlank)
{
    EXPECT_EQ(TrimBlanks(u" \tname\u00A0 "), u"\tname\u00A0");
    EXPECT_EQ(TrimBlanks(u"\r\n"), u"\r\n");
    EXPECT_EQ(TrimBlanks(u" \t "), u"\t");
}

TEST(Text, NumbersAreWrittenInPlainDigits)
{
    EXPECT_EQ(Decimal(0), u"0");
    EXPECT_EQ(Decimal(1234567), u"1234567");
    EXPECT_EQ(Decimal(-12), u"-12");
    EXPECT_EQ(Decimal(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
}

TEST(Text, NumbersOfAWidthGetNoughtsInFront)
{
    EXPECT_EQ(Decimal(0, 2), u"00");
    EXPECT_EQ(Decimal(7, 2), u"07");
    EXPECT_EQ(Decimal(59, 2), u"59");
    EXPECT_EQ(Decimal(2026, 2), u"2026");
    EXPECT_EQ(Decimal(5, 0), u"5");
    EXPECT_EQ(Decimal(5, -1), u"5");
}

// The bytes of a character, made here from the definition of the encoding.
std::string EncodedByHand(char32_t code)
{
    std::string bytes;
    const auto add = [&bytes](unsigned value) { bytes += static_cast<char>(value); };
    const auto value = static_cast<unsigned>(code);
    if (value < 0x80) {
        add(value);
    } else if (value < 0x800) {
        add(192 + value / 64);
        add(128 + value % 64);
    } else if (value < 0x10000) {
        add(224 + value / 4096);
        add(128 + value / 64 % 64);
        add(128 + value % 64);
    } else {
        add(240 + value / 262144);
        add(128 + value / 4096 % 64);
        add(128 + value / 64 % 64);
        add(128 + value % 64);
    }
    return bytes;
}

TEST(Text, EveryCharacterGoesToUtf8AndBack)
{
    for (char32_t code = 0; code <= 0x10FFFF; code += code < 0x10000 ? 1 : 0x101) {
        if (code >= 0xD800 && code <= 0xDFFF) {
            continue;
        }
        std::u16string text;
        if (code < 0x10000) {
            text = static_cast<char16_t>(code);
        } else {
            text += static_cast<char16_t>(0xD800 + (code - 0x10000) / 0x400);
            text += static_cast<char16_t>(0xDC00 + (code - 0x10000) % 0x400);
        }
        const std::string bytes = EncodedByHand(code);
        ASSERT_EQ(ToUtf8(text), bytes) << static_cast<unsigned>(code);
        ASSERT_EQ(FromUtf8(bytes), text) << static_cast<unsigned>(code);
    }
}

TEST(Text, CharactersStandInTheirOrder)
{
    EXPECT_EQ(ToUtf8(u"aش\U0001F600z"), "aش\xF0\x9F\x98\x80z");
    EXPECT_EQ(FromUtf8("aش\xF0\x9F\x98\x80z"), u"aش\U0001F600z");
}

TEST(Text, ALoneSurrogateBecomesTheReplacementCharacter)
{
    const char16_t high = 0xD83D;
    const char16_t low = 0xDE00;
    const std::string replacement = "\xEF\xBF\xBD";
    EXPECT_EQ(ToUtf8(std::u16string{high}), replacement);
    EXPECT_EQ(ToUtf8(std::u16string{low}), replacement);
    EXPECT_EQ(ToUtf8(std::u16string{high, u'a'}), replacement + "a");
    EXPECT_EQ(ToUtf8(std::u16string{low, high}), replacement + replacement);
    EXPECT_EQ(ToUtf8(std::u16string{high, high, low}), replacement + "\xF0\x9F\x98\x80");
}

struct Broken {
    std::string_view bytes;
    std::u16string_view text;
};

TEST(Text, EveryByteThatIsNotUtf8BecomesTheReplacementCharacter)
{
    constexpr Broken cases[] = {
        {"\x80", u"\uFFFD"},
        {"\xBF", u"\uFFFD"},
        {"\xFF", u"\uFFFD"},
        {"\xF8\x88\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        // Longer than needed.
        {"\xC0\x80", u"\uFFFD\uFFFD"},
        {"\xC1\xBF", u"\uFFFD\uFFFD"},
        {"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD"},
        {"\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        // Surrogates and what lies beyond the last character.
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
        {"\xED\xBF\xBF", u"\uFFFD\uFFFD\uFFFD"},
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF5\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        // Cut off.
        {"\xD8", u"\uFFFD"},
        {"\xE2\x82", u"\uFFFD\uFFFD"},
        {"\xF0\x9F\x98", u"\uFFFD\uFFFD\uFFFD"},
        {"\xD8z", u"\uFFFDz"},
        {"a\xE2\x82z", u"a\uFFFD\uFFFDz"},
    };
    for (const Broken& broken : cases) {
        EXPECT_EQ(FromUtf8(broken.bytes), broken.text) << ToUtf8(broken.text);
    }
}

TEST(Text, NoOtherByteBeginsACharacter)
{
    for (int first = 0x80; first <= 0xFF; ++first) {
        if (first >= 0xC2 && first <= 0xF4) {
            continue;
        }
        const std::string bytes = std::string(1, static_cast<char>(first)) + "\x90\x80\x80";
        EXPECT_EQ(FromUtf8(bytes), u"\uFFFD\uFFFD\uFFFD\uFFFD") << first;
    }
}

TEST(Text, EmptyTextsStayEmpty)
{
    EXPECT_EQ(ToUtf8(u""), "");
    EXPECT_EQ(FromUtf8(""), u"");
}

} // namespace
} // namespace keyfluent::context
