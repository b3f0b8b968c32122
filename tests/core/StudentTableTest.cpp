#include "context/StudentTable.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace keyfluent::context
{
namespace
{

static_assert(sizeof(StudentRecord) == 20, "ten numbers of 16 bits");
static_assert(sizeof(StudentTable) == 620, "31 records");

TEST(StudentTable, StartsWithNothingButNoughts)
{
    const StudentTable table;
    for (int number = 1; number <= StudentTable::recordCount; ++number) {
        for (const std::int16_t value : table.Record(number)) {
            EXPECT_EQ(value, 0) << "record " << number;
        }
    }
}

TEST(StudentTable, RecordsAreNumberedFromOne)
{
    StudentTable table;
    for (int number = 1; number <= StudentTable::recordCount; ++number) {
        table.Record(number)[0] = static_cast<std::int16_t>(number);
    }
    for (std::size_t index = 0; index < table.records.size(); ++index) {
        EXPECT_EQ(table.records[index][0], static_cast<int>(index) + 1);
    }
    const StudentTable& same = table;
    EXPECT_EQ(same.Record(31)[0], 31);
}

TEST(StudentTable, ThereIsNoRecordOutsideOneToThirtyOne)
{
    StudentTable table;
    const StudentTable& same = table;
    for (const int number : {-1, 0, 32, 1000}) {
        EXPECT_THROW(table.Record(number), std::out_of_range) << number;
        EXPECT_THROW(same.Record(number), std::out_of_range) << number;
    }
}

TEST(StudentTable, TwoTablesAreEqualWhenAllTheirNumbersAre)
{
    StudentTable one;
    StudentTable other;
    EXPECT_EQ(one, other);
    other.Record(31)[9] = 1;
    EXPECT_FALSE(one == other);
}

TEST(StudentTable, OnlyAHundredMeansYes)
{
    EXPECT_EQ(recordYes, 100);
}

} // namespace
} // namespace keyfluent::context
