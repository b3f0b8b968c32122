#include "session/Marks.h"

#include "context/Arithmetic.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace keyfluent::session
{
namespace
{

constexpr std::int32_t topSpeed = 300;

std::int32_t Limited(double value, std::int32_t top)
{
    return static_cast<std::int32_t>(std::clamp(context::RoundHalfEven(value), 0.0, double(top)));
}

// Meant: a speed gauge jumps to full at a first key that is right, and falls from there.
bool IsFirstKeyRight(const Lesson& lesson)
{
    return lesson.correctCount == 1 && lesson.totalCount == 1;
}

// Each step is held as a 32-bit float, as the times are.
float Rate(const Lesson& lesson)
{
    if (lesson.totalCount == 0) {
        return 0;
    }
    const float now = context::TimeOfDay(lesson.platform);
    const float elapsed = std::max(std::fabs(now - lesson.startTime), 1.0F);
    const float perSecond = static_cast<float>(double(lesson.correctCount) / double(elapsed));
    const float perMinute = perSecond * 60;
    const double errorPercent = double(lesson.errorCount) * 100 / double(lesson.totalCount);
    return static_cast<float>(double(perMinute) - errorPercent);
}

// In plain digits, without asking for memory.
void WriteNumber(std::u16string& caption, std::int32_t number)
{
    char digits[12];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    caption.assign(digits, end);
}

} // namespace

void ComputeMarks(Lesson& lesson)
{
    lesson.totalCount = lesson.correctCount + lesson.errorCount;
    lesson.accuracyPercent =
        lesson.totalCount > 0
            ? Limited(double(lesson.correctCount) * 100 / double(lesson.totalCount), 100)
            : 0;
    lesson.speedRate = IsFirstKeyRight(lesson) ? topSpeed : Limited(double(Rate(lesson)), topSpeed);
}

void ShowMarks(Lesson& lesson)
{
    const double scale = double(lesson.pbMark.maximum) / 100;
    const std::int16_t value = context::RoundTo16(double(lesson.accuracyPercent) * scale);
    lesson.pbMark.value = value;
    WriteNumber(lesson.lblMark.caption, value);
    lesson.pbSpeed.value = static_cast<float>(lesson.speedRate);
    WriteNumber(lesson.lblSpeed.caption, lesson.speedRate);
}

} // namespace keyfluent::session
