#include "headless/Json.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace keyfluent::headless
{
namespace
{

TEST(Json, OnlyQuotesBackslashesAndControlCharactersAreEscaped)
{
    EXPECT_EQ(Quoted(u""), R"("")");
    EXPECT_EQ(Quoted(u"جملة"), R"("جملة")");
    EXPECT_EQ(Quoted(u"a \"b\"\r\n"), R"("a \"b\"\r\n")");
    EXPECT_EQ(Quoted(u"\\ / \t ' \u007F"), "\"\\\\ / \\t ' \x7F\"");
    EXPECT_EQ(Quoted(u"\u0691\u20AC"), R"("ڑ€")");
}

TEST(Json, OtherControlCharactersAreWrittenWithSmallDigits)
{
    for (char16_t unit = 0; unit < 0x20; ++unit) {
        if (unit == u'\r' || unit == u'\n' || unit == u'\t') {
            continue;
        }
        const std::string digits = "0123456789abcdef";
        const std::string expected =
            std::string("\"\\u00") + digits[unit / 16U] + digits[unit % 16U] + "\"";
        EXPECT_EQ(Quoted(std::u16string(1, unit)), expected);
    }
    EXPECT_EQ(Quoted(std::u16string{u'\x1b', u'\b'}), R"("\u001b\u0008")");
}

// The text of a string and where reading stopped.
std::pair<std::u16string, std::size_t> Read(std::string_view line, std::size_t position = 0)
{
    std::u16string text = u"left from before";
    if (!ReadQuoted(line, position, text)) {
        return {u"refused", 0};
    }
    return {text, position};
}

TEST(Json, StringsAreReadToTheirClosingQuote)
{
    EXPECT_EQ(Read(R"("")"), std::pair(std::u16string(), std::size_t{2}));
    EXPECT_EQ(Read(R"("abc" 5)"), std::pair(std::u16string(u"abc"), std::size_t{5}));
    EXPECT_EQ(Read(R"(x "ab" )", 2), std::pair(std::u16string(u"ab"), std::size_t{6}));
    EXPECT_EQ(Read(R"("جملة")").first, u"جملة");
}

TEST(Json, EscapesAreRead)
{
    EXPECT_EQ(Read(R"("a \"b\"\r\n")").first, u"a \"b\"\r\n");
    EXPECT_EQ(Read(R"("\\\/\b\f\n\r\t")").first, u"\\/\b\f\n\r\t");
    EXPECT_EQ(Read(R"("\u0691\u00e9\u00E9\u0000x")").first,
              std::u16string(u"\u0691\u00e9\u00E9\0x", 5));
    EXPECT_EQ(Read(R"("\ud83d\ude00")").first, u"\U0001F600");
}

TEST(Json, WhatIsQuotedIsReadAgain)
{
    std::u16string text;
    for (char16_t unit = 0; unit < 0x800; ++unit) {
        text += unit;
    }
    const std::string line = Quoted(text);
    EXPECT_EQ(Read(line), std::pair(text, line.size()));
}

TEST(Json, WhatIsNoStringIsRefused)
{
    const std::string_view lines[] = {
        "",         "abc",       "'a'",         "\"",       "\"abc",       R"("\")",
        R"("\x")",  R"("\u12")", R"("\u12G4")", R"("\u")",  R"("\u-123")", R"("\u 123")",
        "\"a\tb\"", "\"a\nb\"",  R"("ab\)",     R"("\u123)"};
    for (const std::string_view line : lines) {
        EXPECT_EQ(Read(line).first, u"refused") << line;
    }
    EXPECT_EQ(Read("\"a\"", 3).first, u"refused");
    EXPECT_EQ(Read("\"a\"", 9).first, u"refused");
}

TEST(Json, ObjectsStandOnOneLineInTheOrderOfTheirMembers)
{
    JsonObject object;
    EXPECT_EQ(object.Line(), "{}");
    object.Add("text", u"a\"b").Add("number", 7).Add("long", std::int64_t{-5000000000});
    object.Add("yes", true).Add("no", false).Add("string", std::u16string(u"س"));
    const std::array<std::u16string, 2> texts = {u"one", u"two"};
    object.Add("list", std::span<const std::u16string>(texts));
    object.Add("empty", std::span<const std::u16string>());
    object.AddRaw("raw", "1.500");
    EXPECT_EQ(object.Line(),
              R"({"text": "a\"b", "number": 7, "long": -5000000000, "yes": true, "no": false, )"
              R"("string": "س", "list": ["one", "two"], "empty": [], "raw": 1.500})");
}

} // namespace
} // namespace keyfluent::headless
