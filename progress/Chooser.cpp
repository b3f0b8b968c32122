#include "progress/Chooser.h"

#include "context/Text.h"
#include "progress/Evaluation.h"
#include "progress/Records.h"
#include "progress/StandardMarks.h"
#include "progress/StudentFile.h"
#include "progress/Wording.h"

namespace keyfluent::progress
{
namespace
{

using context::Decimal;
using context::SessionContext;
using course::SpecialKind;

std::u16string LessonTitle(int lesson, bool arabicInterface)
{
    return Join({arabicInterface ? u"الدرس رقم : (" : u"Lesson No: (", Decimal(lesson), u" ) ",
                 course::LessonName(lesson, arabicInterface)});
}

std::u16string StandardText(int lesson, int exercise, bool arabic)
{
    const std::u16string_view star = HasSpeedBonus(lesson, exercise, arabic) ? u" *" : u"";
    return Join({Decimal(StandardMark(lesson, exercise, arabic)), star});
}

void FillExercise(ChooserTexts& texts, const SessionContext& context, std::size_t index)
{
    const int lesson = context.lessonNo;
    const int exercise = static_cast<int>(index) + 1;
    const context::StudentRecord& record =
        RecordOrZeros(context.studentTable, lesson + RecordBase(context));

    texts.arabicStandard[index] = StandardText(lesson, exercise, true);
    texts.englishStandard[index] = StandardText(lesson, exercise, false);
    texts.arabicMark[index] = Decimal(record[firstArabicField + index]);
    // The date of the diploma stands in such places and is no mark.
    const bool isPlaceOfMark = texts.englishStandard[index] != u"0";
    texts.englishMark[index] = Decimal(isPlaceOfMark ? record[firstEnglishField + index] : 0);

    const std::u16string_view dash = context.arabicInterface ? u" - " : u" -";
    texts.arabicButton[index] = Join({Decimal(lesson), dash, Decimal(exercise)});
    const SpecialKind kind = course::SpecialKindOf(lesson, exercise, false);
    texts.englishButton[index] = kind == SpecialKind::None
                                     ? texts.arabicButton[index]
                                     : std::u16string(course::SpecialCaption(kind));
}

void ClearFlags(SessionContext& context)
{
    context.arabicAnagram = false;
    context.englishAnagram = false;
    context.freeText = false;
}

} // namespace

ChooserTexts LoadChooser(SessionContext& context)
{
    const bool arabic = context.arabicInterface;
    ChooserTexts texts;
    texts.lessonTitle = LessonTitle(context.lessonNo, arabic);
    for (std::size_t i = 0; i < texts.arabicButton.size(); ++i) {
        FillExercise(texts, context, i);
    }
    texts.passing = Join(
        {arabic ? u"علامة النجاح : " : u"Passing Mark: ", Decimal(PassingMark(context.lessonNo))});
    texts.sum = Join({arabic ? u"مجموعك :      " : u"Your Score:",
                      Decimal(LessonSum(context, RecordBase(context)))});
    ClearFlags(context);
    return texts;
}

void ChooseExercise(SessionContext& context, std::uint8_t exercise, bool arabicList)
{
    context.exerciseNo = exercise;
    context.arabicExercise = arabicList;
    if (arabicList) {
        return;
    }
    ClearFlags(context);
    switch (course::SpecialKindOf(context.lessonNo, exercise, arabicList)) {
    case SpecialKind::None:
        break;
    case SpecialKind::EnglishAnagram:
        context.englishAnagram = true;
        break;
    case SpecialKind::ArabicAnagram:
        context.arabicAnagram = true;
        break;
    case SpecialKind::FreeText:
        context.freeText = true;
        break;
    }
}

} // namespace keyfluent::progress
