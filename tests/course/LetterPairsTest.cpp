// The texts train the movements that the language asks for most.
#include "LetterCounts.h"

#include "context/Text.h"

#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace keyfluent::course::fixtures
{
namespace
{

TEST(LetterPairs, TheListsHoldAHundredPairsEach)
{
    for (const bool arabic : {false, true}) {
        const std::vector<std::u16string> pairs = FrequentPairs(arabic);
        EXPECT_EQ(pairs.size(), 100u);
        EXPECT_EQ(std::set<std::u16string>(pairs.begin(), pairs.end()).size(), 100u);
        for (const std::u16string& pair : pairs) {
            EXPECT_EQ(pair.size(), 2u) << context::ToUtf8(pair);
        }
    }
}

// The further up in its list a pair stands, the more often a student types it. The Arabic list has
// the longer tail: the article alone takes the share of a dozen English pairs.
int LeastUses(bool arabic, std::size_t rank)
{
    if (rank < 10) {
        return arabic ? 50 : 60;
    }
    if (rank < 50) {
        return arabic ? 6 : 20;
    }
    return arabic ? 3 : 15;
}

TEST(LetterPairs, TheHundredMostFrequentPairsAllOccurAndTheFirstOnesOften)
{
    for (const bool arabic : {false, true}) {
        std::map<std::u16string, UsesByLesson> uses = PairUses(arabic);
        const std::vector<std::u16string> pairs = FrequentPairs(arabic);
        for (std::size_t rank = 0; rank < pairs.size(); ++rank) {
            EXPECT_GE(Total(uses[pairs[rank]]), LeastUses(arabic, rank))
                << context::ToUtf8(pairs[rank]) << ", number " << rank + 1;
        }
    }
}

TEST(LetterPairs, TheDocumentShowsTheTextsAsTheyAre)
{
    std::ifstream document(KEYFLUENT_LETTER_DOCUMENT, std::ios::binary);
    ASSERT_TRUE(document) << KEYFLUENT_LETTER_DOCUMENT;
    std::istringstream printed(LetterDocument());
    std::string stands;
    std::string should;
    for (int number = 1; std::getline(printed, should); ++number) {
        ASSERT_TRUE(std::getline(document, stands)) << "ends before line " << number;
        ASSERT_EQ(stands, should) << "line " << number
                                  << "; keyfluent_letter_table prints the document anew";
    }
    EXPECT_FALSE(std::getline(document, stands)) << "goes on after its end: " << stands;
}

} // namespace
} // namespace keyfluent::course::fixtures
