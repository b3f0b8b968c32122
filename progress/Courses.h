// The four courses that earn a place on the diploma: a language on a keyboard.
#pragma once

#include "context/SessionContext.h"
#include "course/Lessons.h"
#include "progress/Records.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace keyfluent::progress
{

struct Course {
    bool arabic;
    bool onWindows;
    int lastRecord;          // of lesson 15 on the course's keyboard
    std::size_t headerField; // 100 once the course is completed
    context::Boolean16 context::SessionContext::*done;
    std::uint8_t context::SessionContext::*grade;
};

// In the order in which the diploma lists them.
inline constexpr std::array<Course, 4> courses = {{
    {true, false, 16, HeaderField::arabicMacDone, &context::SessionContext::courseDoneArabicMac,
     &context::SessionContext::gradeArabicMac},
    {false, false, 16, HeaderField::englishMacDone, &context::SessionContext::courseDoneEnglishMac,
     &context::SessionContext::gradeEnglishMac},
    {true, true, 31, HeaderField::arabicWinDone, &context::SessionContext::courseDoneArabicWin,
     &context::SessionContext::gradeArabicWin},
    {false, true, 31, HeaderField::englishWinDone, &context::SessionContext::courseDoneEnglishWin,
     &context::SessionContext::gradeEnglishWin},
}};

// The marks of lesson 15 together. Throws context::FatalError when a sum leaves 16 bits.
std::int16_t CourseTotal(const context::SessionContext& context, const Course& course);

// Sets the course's grade from its total; a total that fits no grade leaves it as it was.
void TakeGrade(context::SessionContext& context, const Course& course);

} // namespace keyfluent::progress
