// How texts are cut into rows, by kind: what a row holds, how long it may be, where the Return
// mark stands, and the extremes of the whole course.
#include "CourseFixtures.h"

#include "context/Text.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace keyfluent::course::fixtures
{
namespace
{

using context::lineEndMark;

constexpr Place patternEnglish{false, 1, 1}; // given mark by mark, see TextTableTest
constexpr Place patternArabic{true, 1, 1};
constexpr Place longestRowAt{true, 9, 2};
constexpr Place longestPassageAt{true, 15, 1};
constexpr Place mostRowsAt{false, 12, 1};
// Meant: no blank before the mark of this row.
constexpr Place unblankedAt{false, 9, 3};

std::vector<Place> PlacesOfKind(Kind kind)
{
    std::vector<Place> places;
    for (const Place& place : TextPlaces()) {
        if (KindOf(place) == kind) {
            places.push_back(place);
        }
    }
    return places;
}

bool IsMarked(Row row)
{
    return row.ends_with(lineEndMark);
}

TEST(RowShape, TheKindsShareOutAllTexts)
{
    EXPECT_EQ(PlacesOfKind(Kind::GroupsAndWords).size(), 24u + 10u);
    EXPECT_EQ(PlacesOfKind(Kind::Passage).size(), 2u + 5u);
    EXPECT_EQ(PlacesOfKind(Kind::Lines).size(), 133u - 34u - 7u);
}

TEST(RowShape, NoRowIsEmptyOrOpensWithABlankOrAMark)
{
    for (const Place& place : TextPlaces()) {
        const std::vector<Row> rows = RowsAt(place);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            ASSERT_FALSE(rows[i].empty()) << Name(place);
            EXPECT_NE(rows[i].front(), u' ') << Name(place, i + 1);
            EXPECT_NE(rows[i].front(), lineEndMark) << Name(place, i + 1);
        }
    }
}

TEST(RowShape, ABlankIsSingleButAfterASentence)
{
    for (const Place& place : TextPlaces()) {
        const std::vector<Row> rows = RowsAt(place);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            for (std::size_t at = rows[i].find(u"  "); at != Row::npos;
                 at = rows[i].find(u"  ", at + 2)) {
                const bool afterSentence =
                    !place.arabic && std::u16string_view(u".!?").find(rows[i][at - 1]) != Row::npos;
                EXPECT_TRUE(afterSentence) << Name(place, i + 1);
                EXPECT_NE(rows[i].substr(at).substr(0, 3), u"   ") << Name(place, i + 1);
            }
        }
    }
}

TEST(RowShape, GroupsAndWordsAreShortAndClosedByABlank)
{
    for (const Place& place : PlacesOfKind(Kind::GroupsAndWords)) {
        const std::vector<Row> rows = RowsAt(place);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const Row unmarked =
                IsMarked(rows[i]) ? rows[i].substr(0, rows[i].size() - 1) : rows[i];
            EXPECT_LE(unmarked.size(), 12u) << Name(place, i + 1);
            EXPECT_TRUE(unmarked.ends_with(u' ')) << Name(place, i + 1);
            EXPECT_FALSE(unmarked.ends_with(u"  ")) << Name(place, i + 1);
            EXPECT_EQ(unmarked.find(lineEndMark), Row::npos) << Name(place, i + 1);
        }
    }
}

TEST(RowShape, AMarkClosesEvery15Or16GroupsAndWords)
{
    for (const Place& place : PlacesOfKind(Kind::GroupsAndWords)) {
        if (place == patternEnglish || place == patternArabic) {
            continue;
        }
        const std::vector<Row> rows = RowsAt(place);
        std::size_t sinceMark = 0;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            ++sinceMark;
            if (IsMarked(rows[i])) {
                EXPECT_TRUE(sinceMark == 15 || sinceMark == 16)
                    << sinceMark << " rows to " << Name(place, i + 1);
                sinceMark = 0;
            }
        }
        EXPECT_LE(sinceMark, 16u) << "after the last mark of " << Name(place);
        EXPECT_FALSE(IsMarked(rows.back())) << Name(place);
    }
}

TEST(RowShape, ALineIsClosedByTheMarkOrCutAt58Or59Characters)
{
    for (const Place& place : PlacesOfKind(Kind::Lines)) {
        const std::vector<Row> rows = RowsAt(place);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const Row row = rows[i];
            if (place != longestRowAt) {
                EXPECT_LE(row.size(), 59u) << Name(place, i + 1);
            }
            EXPECT_GE(row.find(lineEndMark), row.size() - 1) << Name(place, i + 1);
            const bool isLast = i + 1 == rows.size();
            if (!IsMarked(row) && !isLast) {
                EXPECT_TRUE(row.size() == 58 || row.size() == 59) << Name(place, i + 1);
            }
            if (IsMarked(row) && place != unblankedAt) {
                EXPECT_TRUE(row.ends_with(u" \u0691")) << Name(place, i + 1);
            }
        }
    }
}

TEST(RowShape, TheRowAfterACutClosesTheLine)
{
    for (const Place& place : PlacesOfKind(Kind::Lines)) {
        const std::vector<Row> rows = RowsAt(place);
        for (std::size_t i = 0; i + 2 < rows.size(); ++i) {
            if (!IsMarked(rows[i])) {
                EXPECT_TRUE(IsMarked(rows[i + 1])) << Name(place, i + 2);
            }
        }
    }
}

TEST(RowShape, ATextWithoutAMarkAtItsEndEndsInALetterASignOrTheBlankOfAGroup)
{
    for (const Place& place : TextPlaces()) {
        if (KindOf(place) != Kind::GroupsAndWords) {
            EXPECT_NE(RowsAt(place).back().back(), u' ') << Name(place);
        }
    }
}

TEST(RowShape, APassageIsOneRowWhoseLinesEndInMarkAndLineEnd)
{
    for (const Place& place : PlacesOfKind(Kind::Passage)) {
        const std::vector<Row> rows = RowsAt(place);
        ASSERT_EQ(rows.size(), 1u) << Name(place);
        const Row row = rows.front();
        for (std::size_t i = 0; i < row.size(); ++i) {
            const bool inLineEnd = row[i] == lineEndMark || row[i] == u'\r' || row[i] == u'\n';
            if (inLineEnd) {
                EXPECT_EQ(row.substr(i, 3), u"\u0691\r\n") << Name(place) << " at " << i;
                EXPECT_EQ(row[i - 1], u' ') << Name(place) << " at " << i;
                i += 2;
            }
        }
        EXPECT_GE(LinesAt(place).size(), 2u) << Name(place);
        EXPECT_FALSE(row.ends_with(u'\n')) << Name(place);
        EXPECT_GE(row.size(), 300u) << Name(place);
        if (place != longestPassageAt) {
            EXPECT_LE(row.size(), 700u) << Name(place);
        }
    }
}

TEST(RowShape, TheExtremesStandWhereTheyBelong)
{
    std::size_t mostRows = 0;
    std::size_t longestRow = 0;
    std::size_t longestPassage = 0;
    for (const Place& place : TextPlaces()) {
        const std::vector<Row> rows = RowsAt(place);
        mostRows = std::max(mostRows, rows.size());
        for (const Row row : rows) {
            std::size_t& longest = KindOf(place) == Kind::Passage ? longestPassage : longestRow;
            longest = std::max(longest, row.size());
        }
    }
    EXPECT_EQ(mostRows, 111u);
    EXPECT_EQ(RowsAt(mostRowsAt).size(), mostRows);

    EXPECT_EQ(longestRow, 114u);
    const std::vector<Row> rows = RowsAt(longestRowAt);
    EXPECT_EQ(std::count_if(rows.begin(), rows.end(), [](Row row) { return row.size() > 59; }), 1);
    EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), [](Row row) { return row.size() == 114; }));

    EXPECT_EQ(longestPassage, 707u);
    EXPECT_EQ(RowsAt(longestPassageAt).front().size(), longestPassage);
}

TEST(RowShape, Exactly122TextsEndWithoutAMark)
{
    std::string marked;
    int unmarked = 0;
    for (const Place& place : TextPlaces()) {
        if (IsMarked(RowsAt(place).back())) {
            EXPECT_EQ(KindOf(place), Kind::Lines) << Name(place);
            marked += Name(place) + "; ";
        } else {
            ++unmarked;
        }
    }
    EXPECT_EQ(unmarked, 122) << "with a mark: " << marked;
}

TEST(RowShape, AllTextsTogetherHoldAbout35700Characters)
{
    std::size_t total = 0;
    for (const Place& place : TextPlaces()) {
        for (const Row row : RowsAt(place)) {
            total += row.size();
        }
    }
    EXPECT_NEAR(static_cast<double>(total), 35700, 35700 * 0.02);
}

} // namespace
} // namespace keyfluent::course::fixtures
