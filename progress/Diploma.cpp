#include "progress/Diploma.h"

#include "context/Text.h"
#include "progress/Courses.h"
#include "progress/Wording.h"

#include <array>
#include <cstdlib>

namespace keyfluent::progress
{
namespace
{

using context::SessionContext;

// In the order of courses.
constexpr std::array<std::u16string_view, courses.size()> courseNames = {
    u"- Arabic Mac Typing: ",
    u"- English Mac Typing: ",
    u"- Arabic Win Typing: ",
    u"- English Win Typing: ",
};

// A negative number from a broken file keeps its sign before the zeros.
std::u16string Padded(int number, int width)
{
    return Join({number < 0 ? u"-" : u"", context::Decimal(std::abs(number), width)});
}

std::u16string DateText(const SessionContext& context)
{
    const context::StudentRecord& record = context.studentTable.Record(dateRecord);
    return Join({u"Date: ", Padded(record[DateField::day], 2), u"/",
                 Padded(record[DateField::month], 2), u"/", Padded(record[DateField::year], 4)});
}

// Meant: no separator stands between the items, but for one blank before the last one.
std::u16string CourseText(const SessionContext& context)
{
    std::u16string text;
    for (std::size_t i = 0; i < courses.size(); ++i) {
        if (!(context.*courses[i].done)) {
            continue;
        }
        if (i + 1 == courses.size() && !text.empty()) {
            text += u' ';
        }
        text += courseNames[i];
        text += GradeLetter(context.*courses[i].grade);
    }
    return text;
}

} // namespace

DiplomaTexts LoadDiploma(const SessionContext& context)
{
    return {context.studentName, DateText(context), CourseText(context)};
}

std::u16string_view GradeLetter(std::uint8_t grade)
{
    switch (grade) {
    case 1:
        return u"A -";
    case 4:
        return u"B -";
    case 3:
        return u"C -";
    case 2:
        return u"D -";
    default:
        return {};
    }
}

} // namespace keyfluent::progress
