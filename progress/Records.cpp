#include "progress/Records.h"

namespace keyfluent::progress
{
namespace
{

bool IsRecordNumber(std::int64_t number)
{
    return number >= 1 && number <= context::StudentTable::recordCount;
}

} // namespace

context::StudentRecord* FindRecord(context::StudentTable& table, std::int64_t number)
{
    return IsRecordNumber(number) ? &table.Record(static_cast<int>(number)) : nullptr;
}

const context::StudentRecord& RecordOrZeros(const context::StudentTable& table, std::int64_t number)
{
    static constexpr context::StudentRecord zeros{};
    return IsRecordNumber(number) ? table.Record(static_cast<int>(number)) : zeros;
}

} // namespace keyfluent::progress
