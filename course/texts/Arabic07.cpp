// Arabic lesson 7: special letters. ة, the hamza alone, then أ; whole sentences from here on.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"البربط البربس البرجد البرود السجاد ڑ",
    u"سار القطار السريع بين الجبال ليلا ڑ",
    u"يشرب الطفل كوب لبن كل صباح ڑ",
    u"نظف رجال الحي الطرق من الغبار ڑ",
    u"زار الطلاب معرض الكتاب يوم الخميس",
};

constexpr Row exercise2[] = {
    u"قوة هوة عامة ذروة عامية علمية كمية ڑ",
    u"مدرسة حديقة مكتبة ساعة شجرة ڑ",
    u"في الحديقة شجرة توت كبيرة وجميلة ڑ",
    u"تبيع التاجرة ثيابا صوفية ناعمة ڑ",
    u"النملة صغيرة لكنها نشيطة وصبورة",
};

constexpr Row exercise3[] = {
    u"النصيحة الهامة هي ان تراجع التمارين ڑ",
    u"اجلس جلسة مريحة وظهرك مستقيم ڑ",
    u"عيناك تراقبان الشاشة ويداك تكتبان وليكن هدفك الدقة ثم تزيد ",
    u"السرعة ڑ",
    u"درب يديك كل يوم وخذ راحة قصيرة ڑ",
};

constexpr Row exercise4[] = {
    u"بدء دفء جزء ملء شيء جاء هاء باء ڑ",
    u"جاء الشتاء فصار الدفء نعمة ڑ",
    u"السماء صافية والهواء نقي ڑ",
    u"شربت الغزلان الماء بهدوء",
};

constexpr Row exercise5[] = {
    u"أخذ أثر أذن أسف دأب صدأ دأم دبأ ڑ",
    u"أحب أن أقرأ قصة قبل النوم ڑ",
    u"رأيت أرنبا أبيض يأكل الجزر ڑ",
    u"سأل الأب أبناءه عن أحلامهم ڑ",
    u"تأخر القطار فقرأت مقالة",
};
// clang-format on

} // namespace

const LessonTexts arabic07 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
