// A text holds only what has been taught; what is taught is drilled.
#include "TaughtKeys.h"

#include "context/Text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace keyfluent::course::fixtures
{
namespace
{

std::string Shown(char16_t character)
{
    return "'" + context::ToUtf8(std::u16string(1, character)) + "'";
}

bool Holds(Row row, char16_t key)
{
    return row.find(key) != Row::npos;
}

TEST(TaughtKeys, NoTextHoldsAKeyThatComesLater)
{
    for (const Place& place : TextPlaces()) {
        const std::set<char16_t> known = KeysKnownAt(place);
        const std::vector<Row> rows = RowsAt(place);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            for (const char16_t character : rows[i]) {
                EXPECT_TRUE(known.contains(character))
                    << Shown(character) << " is not taught yet in " << Name(place, i + 1);
            }
        }
    }
}

// The capitals count as one: it is the Shift key that is drilled.
bool IsDrilledIn(const std::vector<Row>& rows, std::u16string_view oneOf)
{
    const auto holding = std::count_if(rows.begin(), rows.end(), [oneOf](Row row) {
        return row.find_first_of(oneOf) != Row::npos;
    });
    return 3 * static_cast<std::size_t>(holding) >= rows.size();
}

TEST(TaughtKeys, EveryNewKeyStandsInAThirdOfTheRowsThatBringIt)
{
    for (const Place& place : TextPlaces()) {
        const std::u16string_view keys = NewKeysAt(place);
        const std::vector<Row> rows = RowsAt(place);
        if (place.lesson == 1 && place.exercise == 1) {
            continue; // given row by row
        }
        if (Holds(keys, u'A')) {
            EXPECT_TRUE(IsDrilledIn(rows, keys)) << Name(place) << ": capitals";
            continue;
        }
        for (std::size_t i = 0; i < keys.size(); ++i) {
            EXPECT_TRUE(IsDrilledIn(rows, keys.substr(i, 1)))
                << Name(place) << ": " << Shown(keys[i]);
        }
    }
}

TEST(TaughtKeys, EveryTeachableKeyIsTaughtOnce)
{
    for (const bool arabic : {false, true}) {
        std::map<char16_t, int> brought;
        for (const Introduction& introduction : IntroductionsIn(arabic)) {
            for (const char16_t key : introduction.keys) {
                ++brought[key];
            }
        }
        for (const char16_t key : TeachableKeys(arabic)) {
            EXPECT_EQ(brought[key], 1) << (arabic ? "Arabic " : "English ") << Shown(key);
        }
        EXPECT_EQ(brought.size(), TeachableKeys(arabic).size());
    }
}

TEST(TaughtKeys, EveryTeachableKeyIsUsedAgainAndAgain)
{
    // Meant: the Latin comma of the Arabic keyboards has one exercise, and so have the signs of
    // sums in English; they stay below the others.
    constexpr int leastUses = 4;
    for (const bool arabic : {false, true}) {
        std::map<char16_t, int> uses;
        for (const Place& place : TextPlaces()) {
            if (place.arabic == arabic) {
                for (const Row row : RowsAt(place)) {
                    for (const char16_t character : row) {
                        ++uses[character];
                    }
                }
            }
        }
        for (const char16_t key : TeachableKeys(arabic)) {
            EXPECT_GE(uses[key], leastUses) << (arabic ? "Arabic " : "English ") << Shown(key);
        }
    }
}

TEST(TaughtKeys, TheEightGuideKeysAreAllDrilledInTheFirstExercise)
{
    for (const bool arabic : {false, true}) {
        const Place place{arabic, 1, 1};
        const std::vector<Row> rows = RowsAt(place);
        for (const char16_t key : NewKeysAt(place)) {
            const auto holding =
                std::count_if(rows.begin(), rows.end(), [key](Row row) { return Holds(row, key); });
            EXPECT_GE(holding, 10) << Name(place) << ": " << Shown(key);
        }
    }
}

TEST(TaughtKeys, OnlySignsThatBothKeyboardsTypeAndShowTrulyAreUsed)
{
    for (const Place& place : TextPlaces()) {
        const std::u16string_view teachable = TeachableKeys(place.arabic);
        const std::vector<Row> rows = RowsAt(place);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            for (const char16_t character : rows[i]) {
                const bool between = character == u' ' || character == context::lineEndMark ||
                                     character == u'\r' || character == u'\n';
                EXPECT_TRUE(between || Holds(teachable, character))
                    << Shown(character) << " in " << Name(place, i + 1);
            }
        }
    }
}

TEST(TaughtKeys, ThePassagesKeepToSignsWhoseCapShowsThem)
{
    // What is typed there is the text of the cap, which for these is another one on a keyboard.
    constexpr std::u16string_view misleadingInArabic = u",';?[]{}~\"";
    for (int exercise = 1; exercise <= 5; ++exercise) {
        const Row row = RowsAt({true, 15, exercise}).front();
        EXPECT_EQ(row.find_first_of(misleadingInArabic), Row::npos) << Name({true, 15, exercise});
        EXPECT_TRUE(std::none_of(row.begin(), row.end(), IsEnglishLetter))
            << Name({true, 15, exercise});
    }
    for (int exercise = 1; exercise <= 2; ++exercise) {
        const Row row = RowsAt({false, 15, exercise}).front();
        EXPECT_EQ(row.find_first_of(u"<>[]{}~"), Row::npos) << Name({false, 15, exercise});
        EXPECT_TRUE(std::none_of(row.begin(), row.end(), IsArabicLetter))
            << Name({false, 15, exercise});
    }
}

TEST(TaughtKeys, ApostrophesAreStraightAndNothingIsQuoted)
{
    constexpr std::u16string_view unwanted = u"\u2018\u2019\u201C\u201D\"\u0640\u064B\u064C\u064D"
                                             u"\u064E\u064F\u0650\u0651\u0652\u00A0\u2013\u2014";
    for (const Place& place : TextPlaces()) {
        const std::vector<Row> rows = RowsAt(place);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i].find_first_of(unwanted), Row::npos) << Name(place, i + 1);
        }
    }
}

} // namespace
} // namespace keyfluent::course::fixtures
