// Arabic lesson 4: little and ring fingers; the groups ال and كم.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"العمل الجمل الكسل الكهل القمع الفحم ڑ",
    u"الشمس الشمال الشمع الشباب العشب ڑ",
    u"الضيف الضحك الضباب المضيف البيض ڑ",
    u"شق الشعاع الضباب ثم ضحكت الشمس ڑ",
    u"عشش البلبل الشاب في غصن المشمش",
};

constexpr Row exercise2[] = {
    u"كانا لكننا اماكننا ايامك شمسكما ڑ",
    u"بيتكم صفكم عملكم حقلكم ضيفكم ڑ",
    u"كم كعك حملتم معكم لحفل صالح ڑ",
    u"جلس عمكم الحكيم يحكي لكم الحكايات",
};

constexpr Row exercise3[] = {
    u"سا سن سم سب سل سمك سمين سمان سماح ڑ",
    u"صيف سيف قصص حصص صفصاف مسك سلس ملمس ڑ",
    u"سبع سمكات سبحن في صحن صيني ڑ",
    u"يسقي الصبي صفصاف الساحل كل خميس",
};

constexpr Row exercise4[] = {
    u"مات مال ماس ماص ملك ملص مالح مالك ڑ",
    u"خاتم مخيم خصم خماسي مخ ضخم مخلص ڑ",
    u"خيم خالي مع عمي في مخيم الخليج ڑ",
    u"متحفنا يضم خاتما من الماس الخام ڑ",
    u"ختم المعلم كلامه الممتع بمثل جميل",
};

constexpr Row exercise5[] = {
    u"انكما شابان جميلا الخلق تتماشيان ڑ",
    u"حمل الشقيقان كتبهما في صمت جميل ڑ",
    u"قال عمكما لكما البيت فاسكناه معا ڑ",
    u"في الجبل الشاهق ثلج لامع كالماس ڑ",
    u"كل ضحكات الضيف مسك في مجلسكم ڑ",
};
// clang-format on

} // namespace

const LessonTexts arabic04 = {exercise1, exercise2, exercise3, exercise4, exercise5};

} // namespace keyfluent::course
