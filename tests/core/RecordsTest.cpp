#include "progress/Records.h"

#include <gtest/gtest.h>

#include <limits>

namespace keyfluent::progress
{
namespace
{

context::StudentTable NumberedTable()
{
    context::StudentTable table;
    for (int number = 1; number <= 31; ++number) {
        table.Record(number).fill(static_cast<std::int16_t>(100 + number));
    }
    return table;
}

TEST(Records, EveryNumberFrom1To31FindsItsRecord)
{
    context::StudentTable table = NumberedTable();
    for (int number = 1; number <= 31; ++number) {
        ASSERT_EQ(FindRecord(table, number), &table.Record(number)) << number;
        EXPECT_EQ(&RecordOrZeros(table, number), &table.Record(number)) << number;
    }
}

TEST(Records, ANumberOutsideTheTableIsNoRecordAndReadsAsZeros)
{
    context::StudentTable table = NumberedTable();
    constexpr std::int64_t numbers[] = {0,
                                        -1,
                                        32,
                                        271,
                                        256 + 16,
                                        std::int64_t{1} << 32,
                                        std::numeric_limits<std::int64_t>::min(),
                                        std::numeric_limits<std::int64_t>::max()};
    for (const std::int64_t number : numbers) {
        EXPECT_EQ(FindRecord(table, number), nullptr) << number;
        EXPECT_EQ(RecordOrZeros(table, number), context::StudentRecord{}) << number;
    }
}

} // namespace
} // namespace keyfluent::progress
