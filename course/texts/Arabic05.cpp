// Arabic lesson 5: the bottom row begins. ذ, then ر and د.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"شمسنا شعبنا شكلنا شملنا ضيفنا صيفنا ڑ",
    u"ذهب ذكي ذيل ذقن هذا هذه ذلك كذلك ڑ",
    u"هذا التلميذ ذكي يحب العسل اللذيذ ڑ",
    u"لعب الكلب بذيله لذلك ضحكنا",
};

constexpr Row exercise2[] = {
    u"ذبح ذبحت ذبحنا ذبحتم مذبح مذابح ڑ",
    u"جذب جذبت جذبنا جذبتم يجذب جاذب ڑ",
    u"ذاق الضيف عسل الجبل فقال هذا لذيذ ڑ",
    u"نفذ التلميذ هذا العمل كما يجب",
};

constexpr Row exercise3[] = {
    u"ترت ", u"بدب ", u"ترت ", u"بدب ", u"رتر ", u"دبد ", u"ردر ", u"درد ", u"تررت ",
    u"بددب ", u"كدك ", u"برب ", u"دكد ", u"ربر ", u"در ڑ",
    u"رد ", u"دار ", u"بدر ", u"برد ", u"قدر ", u"قرد ", u"درب ", u"رعد ", u"صدر ", u"درس ",
    u"نادر ", u"سدر ", u"جدار ", u"دهر ", u"رماد ڑ",
    u"بارد ", u"قادر ", u"مدرب ", u"جديد ", u"سرير ", u"دليل ", u"رجل ", u"حديد ", u"رحيم ",
    u"صادق ", u"ثمار ", u"دكان ", u"مدير ", u"رشيد ", u"جدير ڑ",
    u"تدريب ", u"مدارس ",
};

constexpr Row exercise4[] = {
    u"تشرق الشمس شرقا كما تغرب غربا بدرب بعيد ڑ",
    u"يسافر خالي في الشهر القادم بحرا ڑ",
    u"درس ماهر الدرس جيدا ثم خرج يلعب ڑ",
    u"رسم المدرس قصرا قرب شجر البرتقال",
};

constexpr Row exercise5[] = {
    u"لا بد من تكرار هذا التمرين عددا من المرات ڑ",
    u"يدرب المدرب فريقه كل صباح ڑ",
    u"رجع الصيادان عصرا بسمك كثير ڑ",
    u"من درس بجد حصد ثمار درسه",
};
// clang-format on

} // namespace

const LessonTexts arabic05 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
