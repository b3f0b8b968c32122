#include "course/Notes.h"

#include "context/Text.h"
#include "course/Lessons.h"
#include "course/notes/NoteTables.h"

#include <array>
#include <span>

namespace keyfluent::course
{
namespace
{

constexpr std::array<std::u16string_view, stopNoteCount> stopNotes = {
    u"ما الفائدة إذن من المجهود الذي بذلته زن أورتشارد ؟",
    u"أتيت ... رأيت ...\rولكني لم أنتصر ...",
    u"لا تتكاسل، فلقد بدأت بالكاد بتحقيق بعض التقدم ...",
    u"نذكرك أن إيقاف التمرين قبل نهايته لا يؤثر على النتيجة التي سبق\rتسجيلها.",
    u"بكل سرعة ...\rفما زال لدي الكثير من العمل ...",
    u"ماذا ؟\rألم تذهب بعد لشرب الشاي في الغرفة المجاورة؟",
    u"قد بدأت تشنجات الأصابع ...",
    u"ماذا ؟\rألم يعجبك هذا التمرين ؟",
    u"هل بإمكانك القول للشخص المزعج الذي يحدث كل هذه الضوضاء\rأني أود التركيز على عملي بكل هدوء ...",
    u"حذار! إنك تفرط باستخدام الأمر (توقيف)...",
};

constexpr std::array<std::u16string_view, helpPageCount> helpTitles = {
    u"المبادئ",
    u"طريقة الاستعمال",
    u"قائمة أوامر الدروس",
    u"اختيار التمرين",
    u"تنفيذ التمرين (أ)",
    u"تنفيذ التمرين (ب)",
    u"استراحة / متابعة",
    u"توقيف",
    u"التالي/السابق",
    u"تكرار",
    u"إيقاف",
};

constexpr std::array<std::u16string_view, recommendationPageCount> recommendationTitles = {
    u"طريقة العمل",  u"المفاتيح والأصابع", u"وضعية الأصابع",
    u"نقر المفاتيح", u"وضعية الجلوس",      u"التمرين الذهني",
};

// The entry of a number that counts from 1; "" outside the table.
std::u16string_view Entry(std::span<const std::u16string_view> table, int number)
{
    if (number < 1 || static_cast<std::size_t>(number) > table.size()) {
        return {};
    }
    return table[static_cast<std::size_t>(number - 1)];
}

std::u16string NumberedTitle(std::span<const std::u16string_view> titles, int page)
{
    const std::u16string_view title = Entry(titles, page);
    return title.empty() ? std::u16string()
                         : context::Decimal(page) + u" - " + std::u16string(title);
}

} // namespace

std::u16string_view LessonNote(int lesson)
{
    return Entry(lessonNotes, lesson);
}

std::u16string LessonNoteTitle(int lesson, bool arabicInterface)
{
    std::u16string title = u"الدرس رقم: (";
    title += context::Decimal(lesson);
    title += u" ) ";
    title += LessonName(lesson, arabicInterface);
    return title;
}

std::u16string_view ExerciseNote(int lesson, int exercise, bool arabic)
{
    if (lesson < 1 || lesson > lessonCount) {
        return {};
    }
    const ExerciseNoteTable& notes = arabic ? arabicExerciseNotes : englishExerciseNotes;
    return Entry(notes[static_cast<std::size_t>(lesson - 1)], exercise);
}

std::u16string_view HelpText(int page)
{
    return Entry(helpPages, page);
}

std::u16string_view RecommendationText(int page)
{
    return Entry(recommendationPages, page);
}

std::u16string HelpTitle(int page)
{
    return NumberedTitle(helpTitles, page);
}

std::u16string RecommendationTitle(int page)
{
    return NumberedTitle(recommendationTitles, page);
}

std::u16string_view StopNoteText(int number)
{
    return Entry(stopNotes, number);
}

} // namespace keyfluent::course
