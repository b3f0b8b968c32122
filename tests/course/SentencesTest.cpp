// Texts read as texts: sentences whole and never twice, signs where a writer puts them, and no
// word that is typed to weariness.
#include "CourseFixtures.h"

#include "context/Text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace keyfluent::course::fixtures
{
namespace
{

bool IsOneOf(char16_t character, std::u16string_view set)
{
    return set.find(character) != std::u16string_view::npos;
}

std::u16string InSmallLetters(std::u16string_view text)
{
    std::u16string small(text);
    for (char16_t& character : small) {
        if (character >= u'A' && character <= u'Z') {
            character = static_cast<char16_t>(character - u'A' + u'a');
        }
    }
    return small;
}

// Words with single blanks between them: two sentences that differ in signs alone are one.
std::u16string WordsOf(std::u16string_view sentence)
{
    std::u16string words;
    for (const std::u16string& word : WordsIn(sentence)) {
        words += InSmallLetters(word) + u" ";
    }
    return words;
}

// A line may hold several sentences; a passage's sentences run over its lines.
std::vector<std::u16string> SentencesAt(const Place& place)
{
    std::u16string text;
    for (const std::u16string& line : LinesAt(place)) {
        text += line + (KindOf(place) == Kind::Passage ? u" " : u".");
    }
    std::vector<std::u16string> sentences(1);
    for (const char16_t character : text) {
        if (IsOneOf(character, u".;!?؟؛")) {
            sentences.emplace_back();
        } else {
            sentences.back() += character;
        }
    }
    return sentences;
}

TEST(Sentences, NoneStandsTwiceInTheCourse)
{
    std::map<std::u16string, Place> seen;
    for (const Place& place : TextPlaces()) {
        if (KindOf(place) == Kind::GroupsAndWords) {
            continue;
        }
        std::set<std::u16string> here;
        for (const std::u16string& sentence : SentencesAt(place)) {
            if (WordsIn(sentence).size() < 3) {
                continue;
            }
            const std::u16string words = WordsOf(sentence);
            EXPECT_TRUE(here.insert(words).second) << Name(place) << ": " << context::ToUtf8(words);
            const auto [first, isNew] = seen.emplace(words, place);
            EXPECT_TRUE(isNew || first->second == place)
                << context::ToUtf8(words) << " in " << Name(first->second) << " and "
                << Name(place);
        }
    }
}

TEST(Sentences, NoLineStandsTwiceInTheCourse)
{
    std::map<std::u16string, Place> seen;
    for (const Place& place : TextPlaces()) {
        if (KindOf(place) == Kind::GroupsAndWords) {
            continue;
        }
        for (const std::u16string& line : LinesAt(place)) {
            const auto [first, isNew] = seen.emplace(line, place);
            EXPECT_TRUE(isNew) << context::ToUtf8(line) << " in " << Name(first->second) << " and "
                               << Name(place);
        }
    }
}

// The words that an exercise is about.
struct Drill {
    Place place;
    std::u16string_view word;
};
constexpr Drill drills[] = {
    {{true, 10, 4}, u"ثلاث"},
    {{true, 14, 1}, u"سوف"},
};

bool IsDrilled(const Place& place, std::u16string_view word)
{
    return std::any_of(std::begin(drills), std::end(drills), [&](const Drill& drill) {
        return drill.place == place && drill.word == word;
    });
}

TEST(Sentences, NoWordIsTypedToWearinessInOneText)
{
    for (const Place& place : TextPlaces()) {
        std::map<std::u16string, int> uses;
        for (const std::u16string& line : LinesAt(place)) {
            for (const std::u16string& word : WordsIn(line)) {
                ++uses[InSmallLetters(word)];
            }
        }
        for (const auto& [word, count] : uses) {
            if (word.size() >= 4 && !IsDrilled(place, word) && place != Place{false, 1, 1}) {
                EXPECT_LE(count, 4) << context::ToUtf8(word) << " in " << Name(place);
            }
        }
    }
}

TEST(Sentences, AListOfSingleWordsHoldsEachWordOnce)
{
    for (const Place& place : TextPlaces()) {
        if (KindOf(place) != Kind::GroupsAndWords) {
            continue;
        }
        std::map<std::u16string, int> uses;
        for (const std::u16string& token : TokensAt(place)) {
            ++uses[token];
        }
        for (const auto& [token, count] : uses) {
            const bool isWord = token.size() >= 5 &&
                                std::all_of(token.begin(), token.end(),
                                            [](char16_t character) { return character != u';'; });
            if (isWord) {
                EXPECT_EQ(count, 1) << context::ToUtf8(token) << " in " << Name(place);
            }
        }
    }
}

// Given beginnings that set a blank before their sign.
bool IsGivenSpacing(const Place& place, std::size_t number)
{
    return place == Place{true, 10, 4} && number == 1;
}

TEST(Sentences, ASignFollowsItsWordAndTheNextWordABlank)
{
    for (const Place& place : TextPlaces()) {
        if (KindOf(place) == Kind::GroupsAndWords || place.lesson == 11) {
            continue; // groups of signs, and figures
        }
        const std::vector<Row> rows = RowsAt(place);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const Row row = rows[i];
            for (std::size_t at = 0; at + 1 < row.size(); ++at) {
                if (row[at] == u' ' && IsOneOf(row[at + 1], u",.;:!?،؛؟)")) {
                    EXPECT_TRUE(IsGivenSpacing(place, i + 1)) << Name(place, i + 1);
                }
                if (IsOneOf(row[at], u",;:!?،؛؟")) {
                    EXPECT_TRUE(IsOneOf(row[at + 1], u" )\u0691")) << Name(place, i + 1);
                }
            }
        }
    }
}

TEST(Sentences, BracketsComeInPairsOnceBothAreTaught)
{
    for (const Place& place : TextPlaces()) {
        if (KindOf(place) == Kind::GroupsAndWords || place.lesson < 10) {
            continue;
        }
        for (const std::u16string& line : LinesAt(place)) {
            int open = 0;
            for (const char16_t character : line) {
                open += character == u'(' ? 1 : character == u')' ? -1 : 0;
                EXPECT_TRUE(open == 0 || open == 1) << Name(place) << ": " << context::ToUtf8(line);
            }
            EXPECT_EQ(open, 0) << Name(place) << ": " << context::ToUtf8(line);
        }
    }
}

// Lines of English sentences: from the capitals on, the sums, the addresses and the list of
// hyphenated numbers apart.
bool HoldsEnglishSentences(const Place& place)
{
    return !place.arabic && KindOf(place) == Kind::Lines && place >= Place{false, 7, 4} &&
           place.lesson != 11 && place != Place{false, 8, 4};
}

TEST(Sentences, EnglishLinesOpenWithACapitalAndEndLikeASentence)
{
    for (const Place& place : TextPlaces()) {
        if (!HoldsEnglishSentences(place)) {
            continue;
        }
        for (const std::u16string& line : LinesAt(place)) {
            const bool isListed = line.starts_with(u"- ") || line.starts_with(u"a) ");
            const char16_t first = line[isListed ? line.find(u' ') + 1 : 0];
            EXPECT_TRUE(first >= u'A' && first <= u'Z')
                << Name(place) << ": " << context::ToUtf8(line);
            EXPECT_TRUE(IsOneOf(line.back(), u".!?"))
                << Name(place) << ": " << context::ToUtf8(line);
        }
    }
}

TEST(Sentences, AnEnglishSentenceAfterAnotherOpensWithACapital)
{
    for (const Place& place : TextPlaces()) {
        if (place.arabic || KindOf(place) == Kind::GroupsAndWords) {
            continue;
        }
        for (const std::u16string& line : LinesAt(place)) {
            for (std::size_t at = line.find(u"  "); at != std::u16string::npos;
                 at = line.find(u"  ", at + 2)) {
                const char16_t next = line[at + 2];
                const bool isListed = line[at + 3] == u')';
                EXPECT_TRUE(isListed || (next >= u'A' && next <= u'Z'))
                    << Name(place) << ": " << context::ToUtf8(line);
            }
        }
    }
}

TEST(Sentences, EveryLetterHasItsTurnInTheSentencesThatAreMadeForIt)
{
    int complete = 0;
    for (const std::u16string& line : LinesAt({false, 13, 2})) {
        std::set<char16_t> letters;
        for (const char16_t character : InSmallLetters(line)) {
            if (IsEnglishLetter(character)) {
                letters.insert(character);
            }
        }
        complete += letters.size() == 26 ? 1 : 0;
    }
    EXPECT_EQ(complete, 4);
}

} // namespace
} // namespace keyfluent::course::fixtures
