#include "context/Boolean16.h"

#include <gtest/gtest.h>

#include <limits>

namespace keyfluent::context
{
namespace
{

static_assert(sizeof(Boolean16) == 2, "a record holds it in 16 bits");

TEST(Boolean16, TrueIsMinusOneAndFalseIsNought)
{
    EXPECT_EQ(Boolean16(true).Raw(), -1);
    EXPECT_EQ(Boolean16(false).Raw(), 0);
}

TEST(Boolean16, StartsFalse)
{
    EXPECT_FALSE(Boolean16());
    EXPECT_EQ(Boolean16().Raw(), 0);
}

TEST(Boolean16, EveryNumberButNoughtOfAFileCountsAsTrue)
{
    using Limits = std::numeric_limits<std::int16_t>;
    for (int raw = Limits::min(); raw <= Limits::max(); ++raw) {
        const Boolean16 value = Boolean16::FromRaw(static_cast<std::int16_t>(raw));
        ASSERT_EQ(bool(value), raw != 0) << raw;
        ASSERT_EQ(value.Raw(), raw != 0 ? -1 : 0) << raw;
    }
}

TEST(Boolean16, TakesAndGivesOrdinaryTruthValues)
{
    Boolean16 value = true;
    EXPECT_TRUE(value);
    value = !value;
    EXPECT_FALSE(value);
    EXPECT_EQ(value, Boolean16(false));
}

} // namespace
} // namespace keyfluent::context
