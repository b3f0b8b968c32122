#include "progress/Result.h"

#include "context/Text.h"
#include "course/Lessons.h"
#include "progress/Courses.h"
#include "progress/Evaluation.h"
#include "progress/Keyboards.h"
#include "progress/Wording.h"

#include <algorithm>
#include <span>

namespace keyfluent::progress
{
namespace
{

using context::Decimal;
using context::SessionContext;
using context::StudentRecord;

ResultTexts MarkTexts(const SessionContext& context)
{
    const std::u16string accuracy = Decimal(context.accuracyMark);
    const std::u16string bonus = Decimal(context.speedBonus);
    const std::u16string mark = Decimal(context.exerciseMark);
    ResultTexts texts;
    if (context.arabicInterface) {
        texts.title = u"النتيجة";
        texts.res = Join({u"علامة دقة الطباعة:   ", accuracy});
        texts.bonus = Join({u"مكافأة للسرعة:      ", bonus});
        texts.result = Join({u"علامتك لهذا التمرين:  ", mark});
    } else {
        texts.title = u"Result";
        texts.res = Join({u"Resolution Typing Mark: ", accuracy});
        texts.bonus = Join({u"Speed Bonus:            ", bonus});
        texts.result = Join({u"Your Mark:             ", mark});
    }
    return texts;
}

std::u16string_view NextLessonNote(bool arabicInterface)
{
    return arabicInterface ? u"إن نتيجتك جيدة وتتيح لك الانتقال إلى الدرس التالي."
                           : u"Your result was good, and allowed you to move to the next lesson.";
}

std::u16string_view DiplomaNote(bool arabicInterface)
{
    return arabicInterface ? u"إن نتيجتك جيدة وتتيح لك الحصول على شهادة دبلوم. اختر عرض شهادة "
                             u"التخرج من قائمة ملف."
                           : u"Your result was good, and allowed you to get your diploma, select "
                             u"View Diploma from File Menu.";
}

void ShowProgress(const SessionContext& context, ResultTexts& texts)
{
    if (context.lessonNo != ReachedLesson(context, IsWindowsByNumber(context))) {
        return;
    }
    texts.noteVisible = true;
    if (context.lessonNo != course::lessonCount) {
        texts.note = NextLessonNote(context.arabicInterface);
    }
}

void OpenNextLesson(SessionContext& context)
{
    std::uint8_t& reached = ReachedLesson(context, CountsAsWindows(context));
    if (reached < course::lessonCount && context.lessonNo == reached) {
        ++reached;
    }
}

// Meant: an Arabic total of 250 is enough, an English one of 350 is not.
bool IsCompleted(const SessionContext& context, const Course& course)
{
    const std::int16_t total = CourseTotal(context, course);
    if (course.arabic ? total < 250 : total <= 350) {
        return false;
    }
    const std::span<const std::int16_t> marks =
        RecordOrZeros(context.studentTable, course.lastRecord);
    const auto counted =
        course.arabic ? marks.subspan(firstArabicField, 5) : marks.subspan(firstEnglishField, 2);
    return std::ranges::find(counted, 0) == counted.end();
}

void AwardDiploma(SessionContext& context, const context::Platform& platform, ResultTexts& texts)
{
    texts.noteVisible = true;
    texts.note = DiplomaNote(context.arabicInterface);
    std::int16_t& earned = context.studentTable.Record(headerRecord)[HeaderField::diplomaEarned];
    if (earned == context::recordYes) {
        return;
    }
    earned = context::recordYes;
    const context::CalendarDate today = platform.today();
    StudentRecord& record = context.studentTable.Record(dateRecord);
    record[DateField::day] = static_cast<std::int16_t>(today.day);
    record[DateField::month] = static_cast<std::int16_t>(today.month);
    record[DateField::year] = static_cast<std::int16_t>(today.year);
}

void CompleteCourse(SessionContext& context, const Course& course,
                    const context::Platform& platform, ResultTexts& texts)
{
    std::int16_t& flag = context.studentTable.Record(headerRecord)[course.headerField];
    if (!IsCompleted(context, course) || flag == context::recordYes) {
        return;
    }
    AwardDiploma(context, platform, texts);
    flag = context::recordYes;
    context.*course.done = true;
    TakeGrade(context, course);
}

} // namespace

ResultTexts LoadResult(SessionContext& context, const context::Platform& platform)
{
    ResultTexts texts = MarkTexts(context);
    if (LessonPassed(context)) {
        ShowProgress(context, texts);
        OpenNextLesson(context);
    }
    if (context.lessonNo == course::lessonCount) {
        for (const Course& course : courses) {
            if (course.onWindows == CountsAsWindows(context)) {
                CompleteCourse(context, course, platform, texts);
            }
        }
    }
    return texts;
}

} // namespace keyfluent::progress
