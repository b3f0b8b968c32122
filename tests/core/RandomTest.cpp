#include "context/Random.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>
#include <vector>

namespace keyfluent::context
{
namespace
{

// A platform that tells in which order it was asked.
struct Chance {
    double draw = 0;
    double now = 36000.25;
    std::vector<std::string> asked;
    Platform platform;

    Chance()
    {
        platform.secondsSinceMidnight = [this] { return now; };
        platform.seedRandom = [this](double seconds) {
            asked.push_back("seed " + std::to_string(seconds));
        };
        platform.random = [this] {
            asked.push_back("draw");
            return draw;
        };
    }
};

TEST(Random, NumbersLieFromNoughtUpToOne)
{
    RandomGenerator generator;
    for (int i = 0; i < 100000; ++i) {
        const double drawn = generator.Next();
        ASSERT_GE(drawn, 0.0);
        ASSERT_LT(drawn, 1.0);
    }
}

TEST(Random, NumbersFillTheirRangeEvenly)
{
    RandomGenerator generator;
    std::vector<int> tenths(10);
    constexpr int draws = 100000;
    for (int i = 0; i < draws; ++i) {
        ++tenths[static_cast<std::size_t>(generator.Next() * 10)];
    }
    for (const int count : tenths) {
        EXPECT_NEAR(count, draws / 10, draws / 100);
    }
}

// The first numbers that SplitMix64 gives from its own constant on.
TEST(Random, NumbersAreThoseOfTheNamedGenerator)
{
    RandomGenerator generator;
    for (const std::uint64_t number :
         {0x6E789E6AA1B965F4U, 0x06C45D188009454FU, 0xF88BB8A8724C81ECU, 0x1B39896A51A8749BU}) {
        EXPECT_EQ(generator.Next() * 0x1.0p53, static_cast<double>(number >> 11));
    }
}

TEST(Random, SeedingAtOneMomentDoesNotRepeatADraw)
{
    RandomGenerator generator;
    std::set<double> drawn;
    for (int i = 0; i < 1000; ++i) {
        generator.Seed(36000.0);
        drawn.insert(generator.Next());
    }
    EXPECT_EQ(drawn.size(), 1000U);
}

TEST(Random, TheSeedChangesWhatIsDrawn)
{
    RandomGenerator one;
    RandomGenerator other;
    one.Seed(36000.0);
    other.Seed(36000.001);
    EXPECT_NE(one.Next(), other.Next());
    RandomGenerator again;
    again.Seed(36000.0);
    RandomGenerator same;
    same.Seed(36000.0);
    EXPECT_EQ(again.Next(), same.Next());
}

TEST(Random, ADrawSeedsFromTheTimeOfDayJustBefore)
{
    Chance chance;
    RandomBetween(chance.platform, 1, 9);
    EXPECT_EQ(chance.asked, (std::vector<std::string>{"seed 36000.250000", "draw"}));
    chance.now = 1.5;
    RandomBetween(chance.platform, 1, 9);
    EXPECT_EQ(chance.asked[2], "seed 1.500000");
}

TEST(Random, ADrawTakesTheWholeNumbersOfItsRangeInEqualParts)
{
    Chance chance;
    for (int tenth = 0; tenth < 10; ++tenth) {
        chance.draw = tenth / 10.0 + 0.00001;
        EXPECT_EQ(RandomBetween(chance.platform, 1, 10), tenth + 1);
        chance.draw = tenth / 10.0 + 0.09999;
        EXPECT_EQ(RandomBetween(chance.platform, 1, 10), tenth + 1);
        EXPECT_EQ(RandomBetween(chance.platform, -5, 4), tenth - 5);
    }
}

TEST(Random, ADrawStaysWithinItsLimits)
{
    Chance chance;
    for (const double draw : {0.0, 0.5, 0.9999999999999999, 1.0, -0.25}) {
        chance.draw = draw;
        const int drawn = RandomBetween(chance.platform, 3, 7);
        EXPECT_GE(drawn, 3) << draw;
        EXPECT_LE(drawn, 7) << draw;
        EXPECT_EQ(RandomBetween(chance.platform, 4, 4), 4) << draw;
    }
}

TEST(Random, ADrawMaySpanAllOfSixteenBits)
{
    using Limits = std::numeric_limits<std::int16_t>;
    Chance chance;
    EXPECT_EQ(RandomBetween(chance.platform, Limits::min(), Limits::max()), Limits::min());
    chance.draw = 0.9999999999999999;
    EXPECT_EQ(RandomBetween(chance.platform, Limits::min(), Limits::max()), Limits::max());
    chance.draw = 0.5;
    EXPECT_EQ(RandomBetween(chance.platform, Limits::min(), Limits::max()), 0);
}

TEST(Random, EveryNumberOfARangeComesSoonerOrLater)
{
    RandomGenerator generator;
    Platform platform;
    platform.secondsSinceMidnight = [] { return 0.0; };
    platform.seedRandom = [&generator](double seconds) { generator.Seed(seconds); };
    platform.random = [&generator] { return generator.Next(); };
    std::set<int> drawn;
    for (int i = 0; i < 1000; ++i) {
        drawn.insert(RandomBetween(platform, 138, 157));
    }
    EXPECT_EQ(drawn.size(), 20U);
    EXPECT_EQ(*drawn.begin(), 138);
    EXPECT_EQ(*drawn.rbegin(), 157);
}

} // namespace
} // namespace keyfluent::context
