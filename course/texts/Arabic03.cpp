// Arabic lesson 3: the two upper rows again; left index (exercise 3), right index (exercise 4).
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"ضيف قيح صيح فيح جنح معه فقه فضح ڑ",
    u"شمس سحب غيم ضباب ثلج جبل نخل عشب ڑ",
    u"نصح ينصح نصحا فتح يفتح فتحا",
};

constexpr Row exercise2[] = {
    u"مع ضعيف فصيح اكتمال احتمال اشتمال ڑ",
    u"انتقال اكتشاف احتفال اجتماع اختلاف ڑ",
    u"ابتسم صالح حين انتهت الامتحانات ڑ",
    u"استقبلنا الضيف ثم احتفلنا معا ڑ",
    u"اقتسم الشقيقان الكعك ثم ابتسما",
};

constexpr Row exercise3[] = {
    u"بص بق لب لبيب سليب بلبل بلابل بلح ڑ",
    u"قلب قلبي قلبك قلبه قلبكم قلبهم ڑ",
    u"قبل قبيل قليل لقب قفل فلفل بقال فيل ڑ",
    u"لف الفلاح الحبل ثم قفل الباب ڑ",
    u"في قفص خالي بلبل لا يمل الليل ڑ",
    u"قال البقال بقي لي فلفل قليل",
};

constexpr Row exercise4[] = {
    u"تمتع متاع بيت مات ميت تتمتع البنات ڑ",
    u"تعلمنا اللغات فتعبنا ثم استمتعنا ڑ",
    u"بعنا المتاع ثم ابتعنا ساعات ڑ",
    u"تغتسل الغابات صباحا ثم تتمايل تباعا",
};

constexpr Row exercise5[] = {
    u"يضم الكتاب مقالا قال نحن الكاتبين نحب الصمت ڑ",
    u"سقيت النخل صباحا ثم جلست تحته ڑ",
    u"نمشي كل صباح في حقل القمح ثم نلعب مع الجميع في ملعب الحي ا",
    u"لفسيح ڑ",
    u"كتبت لخالي كلاما جميلا عن الصيف ڑ",
    u"من يتمهل في مشيه يصل سالما",
};
// clang-format on

} // namespace

const LessonTexts arabic03 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
