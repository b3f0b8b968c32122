#include "progress/Wording.h"

#include <gtest/gtest.h>

namespace keyfluent::progress
{
namespace
{

TEST(Wording, JoinPutsThePartsBesideOneAnotherWithNothingBetween)
{
    EXPECT_TRUE(Join({}).empty());
    EXPECT_TRUE(Join({u"", u""}).empty());
    EXPECT_TRUE(Join({u"a ", u"", u"ب", u"\r"}) == u"a ب\r");
}

} // namespace
} // namespace keyfluent::progress
