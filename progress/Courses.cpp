#include "progress/Courses.h"

#include "progress/Evaluation.h"
#include "progress/Grades.h"

namespace keyfluent::progress
{

std::int16_t CourseTotal(const context::SessionContext& context, const Course& course)
{
    return course.arabic ? ArabicTotal(context, course.lastRecord)
                         : EnglishTotal(context, course.lastRecord);
}

void TakeGrade(context::SessionContext& context, const Course& course)
{
    const std::int16_t total = CourseTotal(context, course);
    if (const auto grade = course.arabic ? ArabicGrade(total) : EnglishGrade(total)) {
        context.*course.grade = *grade;
    }
}

} // namespace keyfluent::progress
