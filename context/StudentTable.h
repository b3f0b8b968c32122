// What is kept of one student: 31 records of ten 16-bit numbers, in file order.
#pragma once

#include <array>
#include <cstdint>

namespace keyfluent::context
{

using StudentRecord = std::array<std::int16_t, 10>;

// Records are numbered from 1 wherever the rules speak of them: 1 is the student's header, 2 to 16
// are lessons 1 to 15 on the Macintosh keyboard, 17 to 31 the same on the Windows keyboard.
struct StudentTable {
    static constexpr int recordCount = 31;

    std::array<StudentRecord, recordCount> records{};

    // number 1 to 31.
    StudentRecord& Record(int number) { return records.at(static_cast<std::size_t>(number - 1)); }
    const StudentRecord& Record(int number) const
    {
        return records.at(static_cast<std::size_t>(number - 1));
    }

    bool operator==(const StudentTable&) const = default;
};

// The one number that means yes in a student's header.
inline constexpr std::int16_t recordYes = 100;

} // namespace keyfluent::context
