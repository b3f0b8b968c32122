#include "headless/Arguments.h"

#include <gtest/gtest.h>

#include <limits>

namespace keyfluent::headless
{
namespace
{

TEST(Arguments, AreDividedByBlanks)
{
    const Arguments arguments("  set   lessonNo\t7  \r");
    EXPECT_EQ(arguments.Command(), "set");
    EXPECT_EQ(arguments.Count(), 2);
    EXPECT_EQ(arguments.Word(0), "lessonNo");
    EXPECT_EQ(arguments.Word(1), "7");
}

TEST(Arguments, MayBeMissing)
{
    const Arguments arguments("open");
    EXPECT_EQ(arguments.Command(), "open");
    EXPECT_EQ(arguments.Count(), 0);
    EXPECT_NO_THROW(arguments.Expect(0));
}

TEST(Arguments, InQuotesAreStrings)
{
    const Arguments arguments(R"(edit "one \"two\" ڑ\r\n"  4 "")");
    EXPECT_EQ(arguments.Count(), 3);
    EXPECT_EQ(arguments.String(0), u"one \"two\" \u0691\r\n");
    EXPECT_EQ(arguments.Integer(1, 0, 9), 4);
    EXPECT_EQ(arguments.String(2), u"");
}

TEST(Arguments, AQuoteInsideAWordIsPartOfIt)
{
    const Arguments arguments(R"(free a"b")");
    EXPECT_EQ(arguments.Word(0), R"(a"b")");
}

TEST(Arguments, ABrokenStringIsAMistake)
{
    for (const char* line : {R"(free "abc)", R"(free "abc"d)", R"(free "a\x")", R"(free "a"")"}) {
        EXPECT_THROW(Arguments{line}, UsageError) << line;
    }
}

TEST(Arguments, TheirNumberIsToldWhereItIsWrong)
{
    const Arguments arguments("now 1 2");
    EXPECT_NO_THROW(arguments.Expect(2));
    EXPECT_THROW(arguments.Expect(1), UsageError);
    EXPECT_THROW(arguments.Expect(3), UsageError);
    try {
        arguments.Expect(1);
        FAIL() << "nothing was thrown";
    } catch (const UsageError& error) {
        EXPECT_STREQ(error.what(), "now takes 1 arguments, not 2");
    }
    EXPECT_THROW(arguments.Word(2), UsageError);
}

TEST(Arguments, WordsAndStringsAreNotTakenForEachOther)
{
    const Arguments arguments(R"(set word "string")");
    EXPECT_THROW(arguments.String(0), UsageError);
    EXPECT_THROW(arguments.Word(1), UsageError);
    EXPECT_THROW(arguments.Integer(1, 0, 1), UsageError);
    EXPECT_THROW(arguments.Real(1, 0, 1), UsageError);
    EXPECT_THROW(arguments.Boolean(1), UsageError);
}

TEST(Arguments, BooleansAreTrueOrFalse)
{
    const Arguments arguments("set true false 1 on True");
    EXPECT_TRUE(arguments.Boolean(0));
    EXPECT_FALSE(arguments.Boolean(1));
    for (const int index : {2, 3, 4}) {
        EXPECT_THROW(arguments.Boolean(index), UsageError) << index;
    }
}

TEST(Arguments, IntegersAreDecimalAndInTheirRange)
{
    const Arguments arguments("x 0 -5 255 256 007 2147483647 2147483648 9223372036854775808");
    EXPECT_EQ(arguments.Integer(0, 0, 255), 0);
    EXPECT_EQ(arguments.Integer(1, -5, 255), -5);
    EXPECT_THROW(arguments.Integer(1, -4, 255), UsageError);
    EXPECT_EQ(arguments.Integer(2, 0, 255), 255);
    EXPECT_THROW(arguments.Integer(3, 0, 255), UsageError);
    EXPECT_EQ(arguments.Integer(4, 0, 255), 7);
    EXPECT_EQ(arguments.Int32(5), std::numeric_limits<std::int32_t>::max());
    EXPECT_THROW(arguments.Int32(6), UsageError);
    EXPECT_THROW(arguments.Int32(7), UsageError);
}

TEST(Arguments, WhatIsNoWholeNumberIsAMistake)
{
    const Arguments arguments("x 1.5 x 1x +1 0x10 - 1e3");
    for (int index = 0; index < arguments.Count(); ++index) {
        EXPECT_THROW(arguments.Integer(index, -1000000, 1000000), UsageError)
            << arguments.Word(index);
    }
}

TEST(Arguments, RealNumbersStayBelowTheirEnd)
{
    const Arguments arguments("x 0 0.5 1 0.9999999999999999 -0.1 86399.9995 nan inf x 1.2.3");
    EXPECT_EQ(arguments.Real(0, 0, 1), 0);
    EXPECT_EQ(arguments.Real(1, 0, 1), 0.5);
    EXPECT_THROW(arguments.Real(2, 0, 1), UsageError);
    EXPECT_EQ(arguments.Real(3, 0, 1), 0.9999999999999999);
    EXPECT_THROW(arguments.Real(4, 0, 1), UsageError);
    EXPECT_EQ(arguments.Real(5, 0, 86400), 86399.9995);
    for (int index = 6; index < arguments.Count(); ++index) {
        EXPECT_THROW(arguments.Real(index, 0, 1), UsageError) << arguments.Word(index);
    }
}

TEST(Arguments, AChoiceIsOneOfItsWords)
{
    const Arguments arguments("keyboard win mac Win");
    EXPECT_TRUE(arguments.Choice(0, "win", "mac"));
    EXPECT_FALSE(arguments.Choice(1, "win", "mac"));
    EXPECT_THROW(arguments.Choice(2, "win", "mac"), UsageError);
    EXPECT_EQ(arguments.OneOf(1, {"a", "b", "mac"}), 2);
    EXPECT_THROW(arguments.OneOf(1, {}), UsageError);
}

} // namespace
} // namespace keyfluent::headless
