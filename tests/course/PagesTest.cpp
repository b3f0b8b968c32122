// The help pages and the recommendations: each tells what its title promises, and leaves room for
// its pictures.
#include "CourseFixtures.h"

#include "context/Text.h"
#include "course/Lessons.h"
#include "course/Notes.h"
#include "progress/StandardMarks.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace keyfluent::course::fixtures
{
namespace
{

std::vector<std::u16string_view> LinesOf(std::u16string_view text)
{
    std::vector<std::u16string_view> lines;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find(u'\r', at), text.size());
        lines.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return lines;
}

struct Told {
    int page;
    std::vector<std::u16string_view> words;
};

void ExpectTold(std::u16string_view text, const Told& told)
{
    for (const std::u16string_view words : told.words) {
        EXPECT_NE(text.find(words), std::u16string_view::npos)
            << "page " << told.page << ": " << context::ToUtf8(words);
    }
}

TEST(Pages, EachHelpPageTellsWhatItsTitlePromises)
{
    const Told pages[] = {
        {1, {u"خمسة عشر درسا", u"علامة أساسية", u"انفتح لك الدرس التالي"}},
        {2, {u"قائمة ملف", u"قائمة الدروس", u"توصية", u"تعليمات", u"زر الاستراحة"}},
        {3, {u"قائمة الدروس", u"الأسماء الرمادية", u"علامة صح"}},
        {4, {u"انقر زر التمارين", u"الجناس", u"النص الحر"}},
        {5, {u"ملاحظة", u"وسائل العون", u"الرمز ڑ يعني يجب عليك ضغط مفتاح الإدخال"}},
        {6, {u"الكرونومتر", u"مقياس الدقة", u"مقياس السرعة", u"الصوت"}},
        {7, {u"زر الاستراحة", u"زر المتابعة", u"لا يحسب عليك"}},
        {8, {u"زر التوقيف", u"لا تحسب علامته"}},
        {9, {u"زر التالي", u"زر السابق"}},
        {10, {u"زر التكرار"}},
        {11, {u"الدروس", u"هل تريد تسجيل نتائج هذه المجموعة؟"}},
    };
    ASSERT_EQ(std::size(pages), static_cast<std::size_t>(helpPageCount));
    for (const Told& told : pages) {
        ExpectTold(HelpText(told.page), told);
    }
}

TEST(Pages, EachRecommendationTellsWhatItsTitlePromises)
{
    const Told pages[] = {
        {1, {u"كل يوم", u"ترتيب الدروس", u"متقاربة"}},
        {2, {u"كل مفتاح دائما بالإصبع نفسها"}},
        {3,
         {u"صف الارتكاز", u"اليد اليسرى على المفاتيح: ش س ي ب",
          u"اليد اليمنى على المفاتيح: ك م ن ت"}},
        {4, {u"مستقيمة", u"صف الارتكاز"}},
        {5, {u"ظهرك", u"ذراعيك", u"قدميك", u"كتفيك"}},
        {6, {u"في ذهنك", u"قبل أن تكتبها"}},
    };
    ASSERT_EQ(std::size(pages), static_cast<std::size_t>(recommendationPageCount));
    for (const Told& told : pages) {
        ExpectTold(RecommendationText(told.page), told);
    }
}

TEST(Pages, TheNumbersThatTheFirstPageNamesAreTheMarksOfTheTable)
{
    const std::u16string_view page = HelpText(1);
    EXPECT_NE(page.find(u"500 في أكثر الدروس، و300 في الدرسين التاسع والحادي عشر، و800 في الدرس "
                        u"الثالث عشر"),
              std::u16string_view::npos);
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        const int expected = lesson == 9 || lesson == 11 ? 300 : lesson == 13 ? 800 : 500;
        EXPECT_EQ(progress::PassingMark(lesson), expected) << lesson;
    }
}

// Paragraphs are divided by one CR; an empty line between two of them is one more.
void ExpectCleanLines(std::u16string_view text, bool hasRoomOnTop, const std::string& where)
{
    const std::vector<std::u16string_view> lines = LinesOf(text);
    EXPECT_EQ(lines.front().empty(), hasRoomOnTop) << where;
    EXPECT_FALSE(lines.back().empty()) << where;
    EXPECT_EQ(text.find(u'\n'), std::u16string_view::npos) << where;
    for (const std::u16string_view line : lines) {
        EXPECT_EQ(line, context::TrimBlanks(line)) << where;
    }
    EXPECT_EQ(text.find(u"\r\r\r\r"), std::u16string_view::npos) << where;
}

TEST(Pages, LinesAreDividedByReturnsAndThreePagesLeaveRoomOnTop)
{
    for (int page = 1; page <= helpPageCount; ++page) {
        const bool hasRoomOnTop = page == 7 || page == 9 || page == 10;
        ExpectCleanLines(HelpText(page), hasRoomOnTop, "help page " + std::to_string(page));
    }
    for (int page = 1; page <= recommendationPageCount; ++page) {
        ExpectCleanLines(RecommendationText(page), false, "recommendation " + std::to_string(page));
    }
}

// A picture of a help page by its top edge, in twips, and how the lines beside it begin.
struct Picture {
    int page;
    int top;
    std::u16string_view beside;
};

TEST(Pages, EachPictureStandsBesideTheLinesThatTellOfIt)
{
    // The pages are set in lines of 300 twips, the first of them at 590.
    constexpr int firstLine = 590;
    constexpr int lineHeight = 300;
    // Longer ones would run into a second line and push the next ones down.
    constexpr std::size_t longestBesidePictures = 62;
    const Picture pictures[] = {
        {4, 470, u"انقر زر التمارين"},  {7, 1190, u"إذا أردت أن تستريح"},
        {7, 4790, u"إذا أردت أن تعود"}, {8, 1190, u"انقر زر التوقيف"},
        {9, 2390, u"زر التالي"},        {9, 4790, u"زر السابق"},
        {10, 1190, u"زر التكرار"},
    };
    for (const Picture& picture : pictures) {
        const std::vector<std::u16string_view> lines = LinesOf(HelpText(picture.page));
        const std::size_t number =
            static_cast<std::size_t>(std::max(0, (picture.top - firstLine) / lineHeight));
        ASSERT_LT(number + 1, lines.size()) << "page " << picture.page;
        EXPECT_TRUE(lines[number].starts_with(picture.beside))
            << "page " << picture.page << ", line " << number + 1 << ": "
            << context::ToUtf8(lines[number]);
        for (std::size_t above = 0; above <= number + 2; ++above) {
            EXPECT_LE(lines[above].size(), longestBesidePictures)
                << "page " << picture.page << ", line " << above + 1;
        }
    }
}

TEST(Pages, TheChartsOfTheRecommendationsHaveRoomBelowTheText)
{
    // On page 2 the chart stands one line below the top, on page 3 four.
    EXPECT_EQ(LinesOf(RecommendationText(2)).size(), 1u);
    EXPECT_LE(RecommendationText(2).size(), 70u);
    EXPECT_LE(LinesOf(RecommendationText(3)).size(), 4u);
    for (const std::u16string_view line : LinesOf(RecommendationText(3))) {
        EXPECT_LE(line.size(), 80u) << context::ToUtf8(line);
    }
}

} // namespace
} // namespace keyfluent::course::fixtures
