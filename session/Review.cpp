#include "session/Review.h"

#include "session/RowEnd.h"
#include "session/Selection.h"

namespace keyfluent::session
{

int CountDifferences(const Lesson& lesson)
{
    const std::u16string& model = lesson.txtOrigin.Text();
    const std::u16string& copy = lesson.txtTest.Text();
    int differences = 0;
    for (std::size_t i = 0; i < model.size(); ++i) {
        if (i >= copy.size() || copy[i] != model[i]) {
            ++differences;
        }
    }
    return differences;
}

void ShowReviewMessage(Lesson& lesson)
{
    const bool arabic = lesson.context.arabicInterface;
    const int differences = CountDifferences(lesson);
    // Written in place: the watcher asks for it fifty times a second.
    std::u16string& message = lesson.label7.caption;
    if (differences < 1) {
        message = arabic ? u"لا يوجد أية أخطاء." : u"There is no any error in the text.";
    } else {
        message = arabic ? u"عدد الأخطاء : " : u"No of Errors: ";
        message += context::Decimal(differences);
        message += arabic ? u". الرجاء تصليح الأخطاء" : u". Please correct the text.";
    }
    lesson.label7.rightToLeft = arabic;
}

void CheckReview(Lesson& lesson)
{
    if (lesson.txtTest.Text() == lesson.txtOrigin.Text()) {
        Unload(lesson);
        return;
    }
    lesson.TimerOf(TimerName::Auto).Start();
    ShowReviewMessage(lesson);
}

TextField* EditableField(Lesson& lesson)
{
    if (lesson.context.freeText) {
        return &lesson.txtOrigin;
    }
    return Reviewing(lesson) ? &lesson.txtTest : nullptr;
}

void EditField(TextField& field, int position, int removed, std::u16string_view inserted)
{
    field.Replace(position, removed, inserted);
}

void PressEnterInReview(Lesson& lesson)
{
    TextField& field = lesson.txtTest;
    field.Replace(field.SelectionStart(), 0, u"\u0691\r\n");
}

} // namespace keyfluent::session
