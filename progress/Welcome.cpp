#include "progress/Welcome.h"

#include "context/Arithmetic.h"
#include "context/Random.h"
#include "context/Text.h"
#include "course/Lessons.h"
#include "progress/Keyboards.h"
#include "progress/Records.h"
#include "progress/StandardMarks.h"
#include "progress/StudentFile.h"
#include "progress/Wording.h"

#include <algorithm>
#include <array>
#include <optional>

namespace keyfluent::progress
{
namespace
{

using context::SessionContext;

// By exercise, from the first on.
using Percentages = std::array<std::int32_t, course::exerciseCount>;

int PlaceOf(const SessionContext& context)
{
    return ReachedLesson(context, CountsAsWindows(context));
}

Percentages PercentagesOf(const SessionContext& context, bool arabic)
{
    const int lesson = PlaceOf(context);
    const context::StudentRecord& record =
        RecordOrZeros(context.studentTable, lesson + RecordBase(context));
    const std::size_t first = arabic ? firstArabicField : firstEnglishField;
    Percentages percentages{};
    for (std::size_t i = 0; i < percentages.size(); ++i) {
        const std::int16_t standard = StandardMark(lesson, static_cast<int>(i) + 1, arabic);
        if (standard != 0) {
            percentages[i] = context::RoundTo32(100.0 * record[first + i] / standard);
        }
    }
    return percentages;
}

Suggestion Lowest(const SessionContext& context, bool arabic)
{
    const Percentages percentages = PercentagesOf(context, arabic);
    const auto lowest = std::ranges::min_element(percentages);
    return {static_cast<int>(lowest - percentages.begin()) + 1, *lowest, arabic};
}

// Meant: exactly 80 is not enough, although the praise speaks of 80% or more.
bool IsPraiseworthy(const Percentages& percentages)
{
    return std::ranges::all_of(percentages, [](std::int32_t percent) { return percent > 80; });
}

// The words that most of the messages share.
struct Words {
    std::u16string_view name;
    std::u16string lesson;
    std::u16string_view lessonName;
};

std::optional<std::u16string> SuggestionText(const SessionContext& context, const Words& words)
{
    const Suggestion suggestion = SuggestExercise(context);
    if (suggestion.exercise == 0) {
        return std::nullopt;
    }
    const std::u16string exercise = context::Decimal(suggestion.exercise);
    if (!context.arabicInterface) {
        // Meant: the language of the exercise is not told here.
        return Join({u"Welcome ", words.name, u"\r\r", u"You are now in the Lesson No: ",
                     words.lesson, u" ", words.lessonName, u"\r",
                     u"I Suggest to repeat exercise no: ", exercise, u".\r",
                     u"Because it's score is the lowest."});
    }
    const std::u16string_view language = suggestion.isArabic ? u"العربي" : u"الإنجليزي";
    return Join({u"أهلا بك يا ", words.name, u".\r\r", u"أنت الآن في الدرس: ", words.lesson, u" ",
                 words.lessonName, u"\r", u"أقترح عليك تكرار التمرين ", language, u" ورقمه: ",
                 words.lesson, u"-", exercise, u".\r", u"إن علامته أقل من علامات باقي التمارين."});
}

std::u16string NoRecommendation(bool arabicInterface)
{
    return arabicInterface
               ? u"توصية كي فلونت لهذا اليوم:\r\rلا أرغب بإعطاء أية وصية لهذا اليوم."
               : u"KeyFluent Recommends for today:\r\rI don't like to give any recommendations...";
}

std::u16string GoodWishes(bool arabicInterface, const Words& words)
{
    if (arabicInterface) {
        return Join({u"آمل أن تكون بكامل الصحة يا ", words.name, u" في هذا اليوم، فالحياة جميلة،\r",
                     u"إضافة إلى أن كي فلونت موجود هنا ليساعدك على العمل بكل بهجة وسرور!"});
    }
    return Join({u"I hope you will be fine, ", words.name,
                 u", in this day, as you know the life is beautiful, KeyFluent came here to help "
                 u"you finishing your wrok friendly."});
}

// menu is the menu that the student should read.
std::u16string PointerToMenu(bool arabicInterface, const Words& words, std::u16string_view menu)
{
    if (arabicInterface) {
        return Join({u"قبل بدء هذا الدرس رقم: ", words.lesson, u" ", words.lessonName, u"\r\r",
                     u"أقترح عليك قراء قائمة الأوامر ", menu, u"."});
    }
    return Join({u"Befor going on the ", words.lessonName, u", Lesson No: ", words.lesson, u"\r\r",
                 u"I suggest to read the ", menu, u" Menu."});
}

std::optional<std::u16string> Praise(const SessionContext& context)
{
    const bool arabic = IsPraiseworthy(PercentagesOf(context, true));
    const bool english = IsPraiseworthy(PercentagesOf(context, false));
    const bool inArabic = context.arabicInterface;
    if (arabic && english) {
        return inArabic ? u"مرحى لك! لقد حصلت على نتيجة 80% أو أكثر في جميع تمارين هذا الدرس!"
                        : u"Welldone!! You have achieved 80% or more in all exercises!";
    }
    if (arabic) {
        return inArabic ? u"مرحى لك! لقد حصلت على نتيجة 80% أو أكثر في جميع التمارين العربية في "
                          u"هذا الدرس."
                        : u"Welldone! You have achieved 80% or more in all Arabic exercise.";
    }
    if (english) {
        return inArabic ? u"مرحى لك! لقد حصلت على نتيجة 80% أو أكثر في جميع التمارين الإنجليزية "
                          u"هذا الدرس."
                        : u"Welldone! You have achieved 80% or more in all English exercise.";
    }
    return std::nullopt;
}

// The message of a draw from 1 to 8; nothing where the draw has failed.
std::optional<std::u16string> Message(const SessionContext& context, int drawn)
{
    const bool arabic = context.arabicInterface;
    const int lesson = PlaceOf(context);
    const Words words{context.studentName, context::Decimal(lesson),
                      course::LessonName(lesson, arabic)};
    switch (drawn) {
    case 1:
        return SuggestionText(context, words);
    case 2:
        return NoRecommendation(arabic);
    case 4:
        return PointerToMenu(arabic, words, arabic ? u"توصية" : u"Recommendation");
    case 5:
        return Praise(context);
    case 8:
        return PointerToMenu(arabic, words, arabic ? u"تعليمات" : u"Help");
    default:
        return GoodWishes(arabic, words);
    }
}

} // namespace

std::u16string WelcomeText(const SessionContext& context, const context::Platform& platform)
{
    std::optional<std::u16string> message;
    while (!message) {
        message = Message(context, context::RandomBetween(platform, 1, 8));
    }
    return *message;
}

Suggestion SuggestExercise(const SessionContext& context)
{
    const Suggestion arabic = Lowest(context, true);
    const Suggestion english = Lowest(context, false);
    if (arabic.percent > 0 && english.percent > 0) {
        if (arabic.percent == english.percent) {
            return {};
        }
        return arabic.percent < english.percent ? arabic : english;
    }
    if (arabic.percent > 0) {
        return arabic;
    }
    return english.percent > 0 ? english : Suggestion{};
}

} // namespace keyfluent::progress
