// Arabic lesson 9: signs. The colon, forms to fill in, < and >, + and =.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"العدد: الثمن: الساعة: الكمية: اللون: ڑ",
    u"المكان: المكتبة، الوقت: العصر. ڑ",
    u"قالت الجدة: الصبر مفتاح الأبواب. ڑ",
    u"سؤال اليوم: لماذا يطفو الخشب على الماء، ولا يطفو الحجر الص",
    u"غير مثله؟ ڑ",
    u"الجواب: لأن كثافة الخشب أقل.",
};

constexpr Row exercise2[] = {
    u"العنوان التاريخ الاسباب الاسماء الأعمار ڑ",
    u"التوقيع: الصفة: رقم الصفحة: المقعد: ڑ",
    u"املأ الورقة بخط واضح: الاسم أولا. ڑ",
    // Meant: left uncut, the longest row outside lesson 15.
    u"أما من أراد أن يسافر مع مجموعته، فليكتب أسماء أفرادها "
    u"وعناوينهم في الصفحة الأخيرة، ثم ليوقع أسفلها باسمه الكامل. ڑ",
    u"شكرا لك: وصلت الورقة كاملة.",
};

constexpr Row exercise3[] = {
    u"النوع الطراز الماركة الاسم المقدار ڑ",
    u"نوع السيارة: صغيرة، ولونها أزرق. ڑ",
    u"هل تريد الطراز القديم أم الجديد؟ ڑ",
    u"أجبته: يكفيني ما كان متينا. ڑ",
};

constexpr Row exercise4[] = {
    u"واحد<اثنين<ثلاثة<اربعة<خمسة<ستة<سبعة ڑ",
    u"مئة>تسعين>خمسين>عشرين>عشرة ڑ",
    u"النملة<العصفور<القط<الحصان<الفيل<الحوت",
};

constexpr Row exercise5[] = {
    u"واحد+اثنين=ثلاثة+ثلاثة=ستة+ستة=اثنا عشر ڑ",
    u"بذرة+ماء+شمس=زهرة، ودقيق+ماء+نار=خبز ڑ",
    u"أزرق+أصفر=أخضر، وأحمر+أصفر=برتقالي",
};
// clang-format on

} // namespace

const LessonTexts arabic09 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
