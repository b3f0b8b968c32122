// Arabic lesson 8: ى ؤ, then آ إ ئ, and the punctuation marks ، . ؛ / ؟.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"اتى ابى رأى اخرى ادنى اعلى اغنى ڑ",
    u"مؤمن مؤلف رؤية سؤال فؤاد لؤلؤ ڑ",
    u"جرى الفتى على الرمل ورأى لؤلؤة",
};

constexpr Row exercise2[] = {
    u"إن إبل إيوان إكرام إبريق إستأثر ڑ",
    u"آلة آمن مرآة آثار بئر طائر مئة ڑ",
    u"إذا آن الأوان آب الطائر إلى عشه",
};

constexpr Row exercise3[] = {
    u"بديع, جديد، قريب, بعيد, شديد, فريد. ڑ",
    u"اقرأ كل يوم؛ فالكتاب رفيق لا يمل. ڑ",
    u"غابت الشمس، فأضاءت المدينة؛ ما أجملها.",
};

constexpr Row exercise4[] = {
    u"شمال /شرق جنوب/ غرب شمال/ غرب جنوب/ شرق ڑ",
    u"هل نسافر ليلا/نهارا؟ وكم نبقى؟ ڑ",
    u"من طرق الباب؟ وأين المفتاح؟",
};

constexpr Row exercise5[] = {
    u"إن الأخرى، لا بد، آن، مؤات، فؤاد، شاطئ. ڑ",
    u"هل رأيت الطائر؟ لقد آن له أن ينام. ڑ",
    u"إن في البحر لؤلؤا، وفي القرى آبارا.",
};
// clang-format on

} // namespace

const LessonTexts arabic08 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
