// How long each text is and how it begins, place by place, and the two texts that stand as the
// pattern of all drills, word for word.
#include "CourseFixtures.h"

#include "context/Text.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace keyfluent::course::fixtures
{
namespace
{

// A beginning of 31 or 32 characters is where the table stops, and the row may go on; a shorter
// one is the whole row. 0 rows: no text, the place of an anagram or of free text. An empty
// beginning: an address.
struct Entry {
    int lesson;
    int exercise;
    std::size_t englishRows;
    std::u16string_view englishBeginning;
    std::size_t arabicRows;
    std::u16string_view arabicBeginning;
};

// clang-format off
constexpr Entry table[] = {
    {1, 1, 46, u"asdf", 40, u"ش س ي ب"},
    {1, 2, 48, u"ded", 49, u"ي ث ي"},
    {1, 3, 60, u"lead;", 5, u"هنيم مهين منيه هيمن ميهن يمهن يه"},
    {1, 4, 56, u"fgf", 28, u"بلب"},
    {1, 5, 6, u"a las a flask falls;", 4, u"كان المشمش مهشما مكث الكهل ببيته"},
    {2, 1, 62, u"frf", 48, u"بقب"},
    {2, 2, 104, u"drag", 6, u"فقيس عفيف افقه غالب عفيف فقيس اف"},
    {2, 3, 12, u"was waste wasted wasteful we wel", 49, u"ضشض"},
    {2, 4, 103, u"dwell", 6, u"فقيس قفيس شفيق صفيق قفيص فقيص خف"},
    {2, 5, 11, u"this gay lady was a whole day at", 6, u"ضياع صياح صالح فالح مالح نجيب عج"},
    {3, 1, 44, u"write", 3, u"ضيف قيح صيح فيح جنح معه فقه فضح"},
    {3, 2, 12, u"quiet write wrote were pour type", 5, u"مع ضعيف فصيح اكتمال احتمال اشتما"},
    {3, 3, 66, u"tiger", 6, u"بص بق لب لبيب سليب بلبل بلابل بل"},
    {3, 4, 7, u"jay lay day gay flay slay yard t", 4, u"تمتع متاع بيت مات ميت تتمتع البن"},
    {3, 5, 7, u"the little girl says that the ti", 6, u"يضم الكتاب مقالا قال نحن الكاتبي"},
    {4, 1, 55, u"apple", 5, u"العمل الجمل الكسل الكهل القمع ال"},
    {4, 2, 14, u"afar adapt ahead apathy apart ap", 4, u"كانا لكننا اماكننا ايامك شمسكما"},
    {4, 3, 14, u"was walk word sword few law jaw", 4, u"سا سن سم سب سل سمك سمين سمان سما"},
    {4, 4, 6, u"wrap your wrist; would swallow a", 5, u"مات مال ماس ماص ملك ملص مالح مال"},
    {4, 5, 8, u"we are sorry your wife was ill t", 5, u"انكما شابان جميلا الخلق تتماشيان"},
    {5, 1, 77, u"shark", 4, u"شمسنا شعبنا شكلنا شملنا ضيفنا صي"},
    {5, 2, 85, u"dcd", 4, u"ذبح ذبحت ذبحنا ذبحتم مذبح مذابح"},
    {5, 3, 66, u"price;", 47, u"ترت"},
    {5, 4, 15, u"love rove over pave have rave fi", 4, u"تشرق الشمس شرقا كما تغرب غربا بد"},
    {5, 5, 6, u"these fifteen very ancient stove", 4, u"لا بد من تكرار هذا التمرين عددا"},
    {6, 1, 41, u"none;", 4, u"غبار ديار دمار دثار دكان دخان رم"},
    {6, 2, 92, u"fbf", 4, u"عزيز غزير زاحم زاكم زاخم زاهر ال"},
    {6, 3, 14, u"madam magic macro magnum machine", 3, u"البحر والبحور والنهر والانهار في"},
    {6, 4, 14, u"beverage brevity brave benevolen", 4, u"البحر والبحور والنهر والانهار في"},
    {6, 5, 10, u"these big blue books are both in", 3, u"يود كل طالب ذكي ان يظهر مظهر ودو"},
    {7, 1, 44, u"baby;", 5, u"البربط البربس البرجد البرود السج"},
    {7, 2, 36, u"k,k", 5, u"قوة هوة عامة ذروة عامية علمية كم"},
    {7, 3, 4, u"to be, or not to be, that is the", 5, u"النصيحة الهامة هي ان تراجع التما"},
    {7, 4, 13, u"Africa.  America.  September.  S", 4, u"بدء دفء جزء ملء شيء جاء هاء باء"},
    {7, 5, 15, u"The human body consists of the h", 5, u"أخذ أثر أذن أسف دأب صدأ دأم دبأ"},
    {8, 1, 36, u";?;", 3, u"اتى ابى رأى اخرى ادنى اعلى اغنى"},
    {8, 2, 11, u"How are you?  Who is she?  Where", 3, u"إن إبل إيوان إكرام إبريق إستأثر"},
    {8, 3, 24, u";-;", 3, u"بديع, جديد، قريب, بعيد, شديد, فر"},
    {8, 4, 9, u"twenty-one; thirty-two; fifty-fi", 3, u"شمال /شرق جنوب/ غرب شمال/ غرب جن"},
    {8, 5, 0, u"", 3, u"إن الأخرى، لا بد، آن، مؤات، فؤاد"},
    {9, 1, 15, u"Each day, thousands of electroni", 6, u"العدد: الثمن: الساعة: الكمية: ال"},
    {9, 2, 40, u"a!a", 5, u"العنوان التاريخ الاسباب الاسماء"},
    {9, 3, 5, u"Stop, thief!  Stop, thief!  Catc", 4, u"النوع الطراز الماركة الاسم المقد"},
    {9, 4, 9, u"To excel at tennis, football, or", 3, u"واحد<اثنين<ثلاثة<اربعة<خمسة<ستة<"},
    {9, 5, 0, u"", 3, u"واحد+اثنين=ثلاثة+ثلاثة=ستة+ستة=ا"},
    {10, 1, 13, u"- Do you know? I was the first a", 7, u"الرضى من الله تعالى والغنى عن ال"},
    {10, 2, 26, u"ki(", 4, u"مؤسسة صالح اخوان-بناية عبوشي-شار"},
    {10, 3, 12, u"Rome (it is said) was not built", 23, u"(و) (ر"},
    {10, 4, 0, u"", 6, u"ثلاث لا غرابة معها : مجانية الري"},
    {10, 5, 0, u"", 6, u"غضب أعرابي على ولده. فقال له: أت"},
    {11, 1, 68, u"aq1", 69, u"شض1"},
    {11, 2, 80, u"de4", 104, u"يث4"},
    {11, 3, 8, u"10.000*20.000*30.000*40.000*50.0", 4, u"123 321 654 456 987 789 198 098"},
    {11, 4, 8, u"", 3, u"150 بئر 789 ذئب 456 فأر 134 طائر"},
    {11, 5, 0, u"", 4, u""},
    {12, 1, 111, u"are", 34, u"قفيس"},
    {12, 2, 10, u"Try to put those old ropes in th", 7, u"كمين مكين متين سمين سكين سنين كت"},
    {12, 3, 0, u"", 4, u"الجهل العقل الجمل الجبل الحمل ال"},
    {12, 4, 0, u"", 8, u"لذيذ مذهب ذليل قذف ذكر حذف انقذ"},
    {12, 5, 0, u"", 6, u"الالحاد الالمام الالعاب المالي ا"},
    {13, 1, 7, u"No, John is one month older than", 6, u"كلية التجارة، كلية الزراعة، كلية"},
    {13, 2, 14, u"When every question had been ans", 6, u"اللؤلؤ، البؤبؤ، الكؤوس، الرؤوس،"},
    {13, 3, 0, u"", 7, u"خذ الأشياء على واقعها، وتحدث عن"},
    {13, 4, 0, u"", 7, u"إن الذي لا يعرف، ولا يعرف أنه لا"},
    {13, 5, 0, u"", 6, u"قيل إن الشعبي مر يوما بإبل قد فش"},
    {14, 1, 11, u"All kind of wild plants do not g", 3, u"سوف نقدم سوف نرسل سوف نبعث سوف ن"},
    {14, 2, 13, u"Conditions in the world today ar", 6, u"نشكر سعادتك جزيل الشكر لتفضلكم ب"},
    {14, 3, 0, u"", 8, u"بعد التحية،"},
    {14, 4, 0, u"", 6, u"ثلاثة لا يجتمعون: لا مروءة للكذو"},
    {14, 5, 0, u"", 5, u"قال الحكماء: جالسوا العقلاء أصدق"},
    {15, 1, 1, u"Every letter should be a credit", 1, u"حديث أبي سعيد، قال: قال رسول الل"},
    {15, 2, 1, u"You often hear people in England", 1, u"صدر المرسوم الملكي رقم م/23 بتار"},
    {15, 3, 0, u"", 1, u"خرج أبو شروان للصيد فأدركه العطش"},
    {15, 4, 0, u"", 1, u"لتجنب حدوث صدمة كهربائية، يجب عد"},
    {15, 5, 0, u"", 1, u"من الممكن نسخ مستند، أو مجلد، أو"},
};
// clang-format on

constexpr std::size_t fullRowBelow = 31;

void ExpectBeginning(const Place& place, std::u16string_view beginning)
{
    const Row first = Bare(RowsAt(place).front());
    if (beginning.size() < fullRowBelow) {
        EXPECT_EQ(context::ToUtf8(first), context::ToUtf8(beginning)) << Name(place);
    } else {
        EXPECT_TRUE(first.starts_with(beginning))
            << Name(place, 1) << "\nshould begin " << context::ToUtf8(beginning);
    }
}

void ExpectAddress(const Place& place)
{
    const Row first = RowsAt(place).front();
    EXPECT_TRUE(std::any_of(first.begin(), first.end(), IsDigit)) << Name(place, 1);
    EXPECT_FALSE(WordsIn(first).empty()) << Name(place, 1);
}

void ExpectEntry(const Place& place, std::size_t rows, std::u16string_view beginning)
{
    ASSERT_EQ(RowsAt(place).size(), rows) << Name(place);
    if (beginning.empty()) {
        ExpectAddress(place);
    } else {
        ExpectBeginning(place, beginning);
    }
}

TEST(TextTable, EachTextHasItsNumberOfRowsAndItsBeginning)
{
    std::size_t texts = 0;
    for (const Entry& entry : table) {
        if (entry.englishRows > 0) {
            ExpectEntry({false, entry.lesson, entry.exercise}, entry.englishRows,
                        entry.englishBeginning);
            ++texts;
        }
        ExpectEntry({true, entry.lesson, entry.exercise}, entry.arabicRows, entry.arabicBeginning);
        ++texts;
    }
    EXPECT_EQ(texts, 133u);
    EXPECT_EQ(TextPlaces().size(), texts);
}

TEST(TextTable, APlaceWithoutATextIsOneEmptyRow)
{
    for (const Entry& entry : table) {
        if (entry.englishRows == 0) {
            const Place place{false, entry.lesson, entry.exercise};
            EXPECT_EQ(RowsAt(place), std::vector<Row>{u""}) << Name(place);
        }
    }
}

// Rows are told as words that stand each in a row of its own, with its blank.
std::vector<std::u16string> EachWithABlank(const std::vector<std::u16string_view>& groups)
{
    std::vector<std::u16string> rows;
    for (const std::u16string_view group : groups) {
        rows.push_back(std::u16string(group) + u" ");
    }
    return rows;
}

void ExpectRows(const Place& place, const std::vector<std::u16string>& expected)
{
    const std::vector<Row> rows = RowsAt(place);
    ASSERT_EQ(rows.size(), expected.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(context::ToUtf8(rows[i]), context::ToUtf8(expected[i])) << Name(place, i + 1);
    }
}

TEST(TextTable, TheFirstEnglishTextIsThePatternOfADrill)
{
    std::vector<std::u16string_view> groups{u"asdf", u"asdf", u"asdf", u"jkl;",
                                            u"jkl;", u"jkl;", u"asdf", u"jkl;"};
    for (int round = 0; round < 2; ++round) {
        groups.insert(groups.end(),
                      {u"ffff", u"jjjj", u"dddd", u"kkkk", u"ssss", u"llll", u"aaaa", u";;;;"});
    }
    groups.insert(groups.end(),
                  {u"fdsa", u"jkl;", u"dkfj", u"a;sl", u"asdf", u";lkj", u"jf;a", u"lska",
                   u"ksla", u"skal", u"lad;", u"alas", u"lads", u"all;", u"ask;", u"fall",
                   u"lass", u"sad;", u"dad;", u"fad;", u"add;", u"ass;"});
    ExpectRows({false, 1, 1}, EachWithABlank(groups));
}

TEST(TextTable, TheFirstArabicTextIsThePatternOfADrill)
{
    std::vector<std::u16string> rows = EachWithABlank(
        {u"ش س ي ب", u"ش س ي ب", u"ش س ي ب", u"ت ن م ك", u"ت ن م ك", u"ت ن م ك", u"ب ب ب ب",
         u"ت ت ت ت", u"ب ب ب ب", u"ت ت ت ت", u"ي ي ي ي", u"ن ن ن ن", u"س س س س", u"م م م م",
         u"ش ش ش ش", u"ك ك ك ك", u"ب ي س ش", u"ت ن م ك", u"ي ن ب ت", u"ش ك س م", u"ش س ي ب",
         u"ك م ن ت", u"ت ب ك ش", u"م س ن ي", u"ن س م ش", u"س ن ش م", u"م ش ي ك", u"م ش ك س",
         u"ب ن ك ش", u"ب س م ن", u"ت س ي ش", u"ك م س ن", u"ي ش س ت", u"ك م ي س", u"ش س ت ن",
         u"ش ت ي ك", u"س ي ب ن", u"س م ن ش", u"ك ن ت ي", u"ك ي س ت"});
    for (const std::size_t closing : {10u, 24u, 27u, 34u}) {
        rows[closing - 1] += context::lineEndMark;
    }
    ExpectRows({true, 1, 1}, rows);
}

} // namespace
} // namespace keyfluent::course::fixtures
