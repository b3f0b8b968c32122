// Words are words: all of them stand in a common dictionary, in American spelling for English, but
// for the groups of keys and the words that AcceptedWords.txt accepts, each for a reason.
#include "CourseFixtures.h"

#include "context/Text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <hunspell.hxx>
#include <map>
#include <memory>
#include <set>
#include <sstream>

namespace keyfluent::course::fixtures
{
namespace
{

using WordsByPlace = std::map<std::string, std::set<std::string>>;

const Hunspell& Dictionary(bool arabic)
{
    const auto open = [](const std::filesystem::path& words) {
        std::filesystem::path rules = words;
        rules.replace_extension(".aff");
        return std::make_unique<Hunspell>(rules.c_str(), words.c_str());
    };
    static const std::unique_ptr<Hunspell> english = open(KEYFLUENT_ENGLISH_DICTIONARY);
    static const std::unique_ptr<Hunspell> arabicWords = open(KEYFLUENT_ARABIC_DICTIONARY);
    return arabic ? *arabicWords : *english;
}

bool IsSpelled(bool arabic, const std::string& word)
{
    return const_cast<Hunspell&>(Dictionary(arabic)).spell(word);
}

// The words of a text without those that touch a digit, which are codes.
std::set<std::string> SpelledAt(const Place& place)
{
    std::set<std::string> words;
    for (const std::u16string& token : TokensAt(place)) {
        if (std::none_of(token.begin(), token.end(), IsDigit)) {
            for (const std::u16string& word : WordsIn(token)) {
                words.insert(context::ToUtf8(word));
            }
        }
    }
    return words;
}

WordsByPlace UnknownWords()
{
    WordsByPlace unknown;
    for (const Place& place : TextPlaces()) {
        for (const std::string& word : SpelledAt(place)) {
            if (!IsSpelled(place.arabic, word)) {
                unknown[Name(place)].insert(word);
            }
        }
    }
    return unknown;
}

// A line of the file: place | reason | words between blanks. "#" opens a comment.
WordsByPlace AcceptedWords()
{
    std::ifstream file(KEYFLUENT_ACCEPTED_WORDS);
    EXPECT_TRUE(file) << KEYFLUENT_ACCEPTED_WORDS;
    WordsByPlace accepted;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.starts_with("#")) {
            continue;
        }
        std::istringstream columns(line);
        std::string place;
        std::string reason;
        std::string words;
        std::getline(columns, place, '|');
        std::getline(columns, reason, '|');
        std::getline(columns, words);
        EXPECT_GE(reason.size(), 10u) << "a reason is missing: " << line;
        place.erase(place.find_last_not_of(' ') + 1);
        std::istringstream single(words);
        for (std::string word; single >> word;) {
            EXPECT_TRUE(accepted[place].insert(word).second) << word << " twice in: " << line;
        }
    }
    return accepted;
}

TEST(Spelling, TheDictionariesKnowWordsAndNothingElse)
{
    EXPECT_TRUE(IsSpelled(false, "neighbor"));
    EXPECT_FALSE(IsSpelled(false, "neighbour"));
    EXPECT_FALSE(IsSpelled(false, "recieve"));
    EXPECT_TRUE(IsSpelled(true, "مسؤول"));
    EXPECT_FALSE(IsSpelled(true, "مسءول"));
    EXPECT_FALSE(IsSpelled(true, "لاكن"));
}

TEST(Spelling, EveryWordIsInTheDictionaryOrAccepted)
{
    WordsByPlace accepted = AcceptedWords();
    for (const auto& [place, words] : UnknownWords()) {
        for (const std::string& word : words) {
            EXPECT_TRUE(accepted[place].contains(word)) << place << ": " << word;
        }
    }
}

TEST(Spelling, NothingIsAcceptedInVain)
{
    WordsByPlace unknown = UnknownWords();
    for (const auto& [place, words] : AcceptedWords()) {
        for (const std::string& word : words) {
            EXPECT_TRUE(unknown[place].contains(word))
                << place << ": " << word << " is known, or no longer in the text";
        }
    }
}

} // namespace
} // namespace keyfluent::course::fixtures
