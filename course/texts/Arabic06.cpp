// Arabic lesson 6: the bottom row goes on. ط ظ ز و.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"غبار ديار دمار دثار دكان دخان رمان ڑ",
    u"طريق نظر زهر ورد بطل ظل زيت وطن ڑ",
    u"ظرف وطواط زرزور نظيف طويل عزيز ڑ",
    u"زار الطبيب المريض ظهرا وفحص ظهره",
};

constexpr Row exercise2[] = {
    u"عزيز غزير زاحم زاكم زاخم زاهر الزهور ڑ",
    u"وزن زوار زورق زيتون موز لوز جوز ڑ",
    u"هطل المطر غزيرا فابتل ظهر الطفل ڑ",
    u"ظل الطاووس يزهو بريشه طوال الظهر",
};

constexpr Row exercise3[] = {
    u"البحر والبحور والنهر والانهار في كتاب مصور ڑ",
    u"يزور الطلاب البحر ويكتبون وصفا له ڑ",
    u"وفي النهر زورق صغير ينقل الزوار",
};

constexpr Row exercise4[] = {
    u"البحر والبحور والنهر والانهار في كل صوب ڑ",
    u"تطير النوارس وتصطاد السمك ڑ",
    u"وتظل القوارب في ظل الصخور ڑ",
    u"ثم يعود الصيادون قبل الغروب",
};

constexpr Row exercise5[] = {
    u"يود كل طالب ذكي ان يظهر مظهر ودود ڑ",
    u"زرع جدي في حوض البيت وردا وزعترا ڑ",
    u"طار الحمام فوق السطوح وحط قربنا",
};
// clang-format on

} // namespace

const LessonTexts arabic06 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
