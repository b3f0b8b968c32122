#include "course/PictureWords.h"

#include <algorithm>
#include <iterator>

namespace keyfluent::course
{
namespace
{

struct Words {
    int bitmap;
    std::u16string_view english;
    std::u16string_view arabic;
};

// clang-format off

constexpr Words pictures[] = {
    // Beside a text.
    {104, u"A hand waves", u"يد تلوح"},
    {105, u"A form with a person and a pencil", u"استمارة عليها شخص وقلم"},
    {108, u"A finger before the lips", u"إصبع أمام الشفتين"},

    // Buttons, as the help shows them.
    {106, u"The Stop button", u"زر التوقيف"},
    {109, u"The Exercises button", u"زر التمارين"},
    {129, u"The button of the previous exercise", u"زر التمرين السابق"},
    {132, u"The button of the next exercise", u"زر التمرين التالي"},
    {135, u"The button that repeats the exercise", u"زر تكرار التمرين"},
    {200, u"The Break button", u"زر الاستراحة"},
    {202, u"The Resumption button", u"زر المتابعة"},

    // Fingers and keys.
    {138, u"The keys that the two index fingers reach",
          u"المفاتيح التي تصل إليها السبابتان"},
    {139, u"The keys that the two middle fingers reach",
          u"المفاتيح التي تصل إليها الإصبعان الوسطيان"},
    {140, u"The keys that the two ring fingers reach",
          u"المفاتيح التي يصل إليها البنصران"},
    {141, u"The keys that the two little fingers reach",
          u"المفاتيح التي يصل إليها الخنصران"},
    {142, u"Three steps of a stroke: the finger above the key, down on it, up again",
          u"ثلاث خطوات للنقرة: الإصبع فوق المفتاح، ثم عليه، ثم يرتفع عنه"},
    {143, u"The little finger of one hand holds Shift while the other hand strikes a key",
          u"خنصر يد يضغط العالي واليد الأخرى تنقر المفتاح"},
    {144, u"The four rows of the keyboard, and the bumps under the two index fingers on the "
          u"guide row",
          u"صفوف لوحة المفاتيح الأربعة، والبروزان تحت السبابتين في صف الارتكاز"},
    {145, u"Even strokes beside a metronome are right, uneven ones are wrong",
          u"النقرات المنتظمة مع بندول الإيقاع صحيحة، والمتفاوتة خطأ"},
    {146, u"A chart of the keyboard and the hands: each key has the colour of its finger",
          u"مخطط للوحة المفاتيح واليدين: لكل مفتاح لون إصبعه"},
    {147, u"A chart of the numeric keypad and the right hand: each key has the colour of its "
          u"finger",
          u"مخطط للوحة الأرقام واليد اليمنى: لكل مفتاح لون إصبعه"},
    {148, u"Both hands on the guide row: four fingers of each on neighbouring keys, the thumbs "
          u"on the space bar",
          u"اليدان على صف الارتكاز: أربع أصابع من كل يد على مفاتيح متجاورة، والإبهامان على "
          u"المسافة"},
    {149, u"A stretch: the fingers spread wide, a soft fist, the wrists let loose",
          u"تمرين للأصابع: بسطها واسعة، ثم قبضة لينة، ثم إرخاء المعصمين"},
    {155, u"Two fingers leave the guide row for a key and come back to it",
          u"إصبعان تتركان صف الارتكاز إلى مفتاح ثم تعودان إليه"},
    {156, u"The keyboard in two halves, one for each hand",
          u"لوحة المفاتيح نصفان، لكل يد نصف"},

    // Sitting at the desk.
    {150, u"A rest for the eyes: a person looks out of the window at something far away",
          u"راحة للعينين: شخص ينظر من النافذة إلى شيء بعيد"},
    {151, u"The screen an arm's length away and the window at the side, so that nothing glares "
          u"on the screen",
          u"الشاشة على بعد ذراع والنافذة إلى الجانب، فلا ينعكس ضوء على الشاشة"},
    {152, u"The forearm level and the hand in line with it; a wrist bent down or up is wrong",
          u"الساعد أفقي واليد على امتداده، وثني المعصم إلى أسفل أو إلى أعلى خطأ"},
    {153, u"Sitting upright: the back against the chair, the eyes level with the top of the "
          u"screen, the feet flat on the floor",
          u"جلسة مستقيمة: الظهر إلى الكرسي، والعينان بمستوى أعلى الشاشة، والقدمان على الأرض"},
    {154, u"The eyes on the text are right, the eyes on the keys are wrong",
          u"النظر إلى النص صحيح، والنظر إلى المفاتيح خطأ"},
    {157, u"A quarter of an hour each day leads up like a stair to the diploma; a heap of hours in "
          u"one night topples",
          u"ربع ساعة كل يوم درج يصعد إلى الشهادة، وكومة ساعات في ليلة واحدة تنهار"},
};

// clang-format on

} // namespace

std::u16string_view PictureWords(int bitmap, bool arabic)
{
    const auto found = std::ranges::find(pictures, bitmap, &Words::bitmap);
    if (found == std::end(pictures)) {
        return {};
    }
    return arabic ? found->arabic : found->english;
}

} // namespace keyfluent::course
