#include "progress/Grades.h"

#include <span>

namespace keyfluent::progress
{
namespace
{

struct GradeRange {
    std::int16_t lowest;
    std::int16_t highest;
    std::uint8_t grade;
};

constexpr GradeRange arabicGrades[] = {
    {250, 400, 2},
    {401, 500, 3},
    {501, 800, 4},
    {801, 1000, 1},
};

constexpr GradeRange englishGrades[] = {
    {350, 500, 2},
    {501, 800, 3},
    {801, 1050, 4},
    {1051, 1400, 1},
};

// Each range begins where the one before it ends.
static_assert([] {
    for (const std::span<const GradeRange> ranges :
         {std::span<const GradeRange>(arabicGrades), std::span<const GradeRange>(englishGrades)}) {
        for (std::size_t i = 1; i < ranges.size(); ++i) {
            if (ranges[i].lowest != ranges[i - 1].highest + 1) {
                return false;
            }
        }
    }
    return true;
}());

std::optional<std::uint8_t> GradeIn(std::span<const GradeRange> ranges, std::int16_t total)
{
    for (const GradeRange& range : ranges) {
        if (total >= range.lowest && total <= range.highest) {
            return range.grade;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<std::uint8_t> ArabicGrade(std::int16_t total)
{
    return GradeIn(arabicGrades, total);
}

std::optional<std::uint8_t> EnglishGrade(std::int16_t total)
{
    return GradeIn(englishGrades, total);
}

} // namespace keyfluent::progress
