// What the fields of a student's records hold, and records looked up by number.
#pragma once

#include "context/StudentTable.h"

#include <cstddef>
#include <cstdint>

namespace keyfluent::progress
{

// Record 1. The other fields are not used and stay 0.
struct HeaderField {
    static constexpr std::size_t reachedLessonMac = 0;
    static constexpr std::size_t diplomaEarned = 1;
    static constexpr std::size_t arabicMacDone = 2;
    static constexpr std::size_t englishMacDone = 3;
    static constexpr std::size_t reachedLessonWin = 5;
    static constexpr std::size_t arabicWinDone = 7;
    static constexpr std::size_t englishWinDone = 8;
};
inline constexpr int headerRecord = 1;

// A lesson's record: the best marks of the five Arabic exercises, then of the five English ones.
inline constexpr std::size_t firstArabicField = 0;
inline constexpr std::size_t firstEnglishField = 5;

// The date of the first diploma, whichever keyboard earned it. It stands in the record of lesson 15
// on the Windows keyboard, in the places of the English exercises 3 to 5, which never score there.
struct DateField {
    static constexpr std::size_t day = 7;
    static constexpr std::size_t month = 8;
    static constexpr std::size_t year = 9;
};
inline constexpr int dateRecord = 31;

// The record of that number, or nullptr outside 1 to 31.
context::StudentRecord* FindRecord(context::StudentTable& table, std::int64_t number);

// The record of that number; outside 1 to 31 a record of zeros, so that a place that a broken file
// or context names has no marks.
const context::StudentRecord& RecordOrZeros(const context::StudentTable& table,
                                            std::int64_t number);

} // namespace keyfluent::progress
