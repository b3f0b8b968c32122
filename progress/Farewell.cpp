#include "progress/Farewell.h"

#include "context/Random.h"
#include "context/Text.h"
#include "course/Lessons.h"
#include "progress/Keyboards.h"
#include "progress/Wording.h"

namespace keyfluent::progress
{
namespace
{

using context::SessionContext;

ByeTexts PlainArabic(std::u16string_view name)
{
    return {Join({u"إلى اللقاء يا ", name, u"\r", u"وبأقرب وقت ممكن، إن شاء الله..."}),
            u"مع السلامة"};
}

// Meant: no full stop after the name.
ByeTexts PlainEnglish(std::u16string_view name)
{
    return {Join({u"See you ", name, u"\r", u"as soon as possible, Insha Allah."}), u"Good Bye"};
}

// The number of a lesson and its name with no blank between them.
std::u16string NumberedLesson(int lesson, bool arabicInterface)
{
    return Join({context::Decimal(lesson), course::LessonName(lesson, arabicInterface)});
}

ByeTexts DrawnArabic(const SessionContext& context, int drawn)
{
    const std::u16string_view name = context.studentName;
    // Meant: the Windows keyboard's lesson on either keyboard, in Arabic alone.
    const std::u16string lesson = NumberedLesson(context.reachedLessonWin, true);
    switch (drawn) {
    case 1:
        return {
            Join({u"يسر كي فلونت أن يحييك يا ", name, u"\r", u" ويتمنى لك كامل الصحة والعافية."}),
            u"مع السلامة"};
    case 2:
        return {
            Join({u"إلى اللقاء يا ", name, u".\r", u"المرة القادمة: سنبدأ بالدرس ", lesson, u" "}),
            u"مع السلامة"};
    case 3:
        return {Join({u"آمل ألا تكون قد ضجرت يا ", name, u".\r\r",
                      u"إلى اللقاء قريبا وأنت بأحسن حال."}),
                u"إلى اللقاء"};
    case 4:
        return {u"يؤسفني جدا أن نفترق بهذه السرعة.\r\rفلقد كنا بكامل الانسجام سوية.",
                u"إلى اللقاء"};
    default:
        return {
            Join({u"ألم يعجبك كي فلونت؟ \r", u"آمل عودتك ثانية يا ", name, u" على الرغم من ذلك."}),
            u"إلى اللقاء"};
    }
}

ByeTexts DrawnEnglish(const SessionContext& context, int drawn)
{
    const std::u16string_view name = context.studentName;
    const std::u16string lesson =
        NumberedLesson(ReachedLesson(context, IsWindowsByNumber(context)), false);
    switch (drawn) {
    case 1:
        return {Join({u"It's pleased Keyfluent to greet you, ", name, u".\r",
                      u"And wish you a good health for ever."}),
                u"Good Bye"};
    case 2:
        return {Join({u"See you, ", name, u".\r", u"Next time we will start with the lesson: ",
                      lesson, u" "}),
                u"Good Bye"};
    case 3:
        return {u"I hope you did not get bored!\rSee you as soon as possible and you are fine",
                u"See you"};
    case 4:
        return {u"I am so sorry I will miss you!\r\rBut I was harmonized with you", u"See you"};
    default:
        return {Join({u"You don't like KeyFluent!, don't you?\r",
                      u"I hope you come back next time, ", name, u"."}),
                u"See you"};
    }
}

} // namespace

ByeTexts ByeMessage(SessionContext& context, const context::Platform& platform)
{
    const bool arabic = context.arabicInterface;
    if (context.studentName.empty()) {
        context.studentName = arabic ? u"صديقي" : u"Friend";
    }
    if (context.leaveNoSave) {
        return arabic ? PlainArabic(context.studentName) : PlainEnglish(context.studentName);
    }
    const int drawn = context::RandomBetween(platform, 1, 5);
    return arabic ? DrawnArabic(context, drawn) : DrawnEnglish(context, drawn);
}

} // namespace keyfluent::progress
