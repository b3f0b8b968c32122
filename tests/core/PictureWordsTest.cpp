#include "course/PictureWords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace keyfluent::course
{
namespace
{

// The pictures that are looked at: of the greetings and the note, of the help and the
// recommendations, and the random set.
std::vector<int> Pictures()
{
    std::vector<int> pictures{104, 105, 108, 106, 109, 129, 132, 135, 200, 202};
    for (int bitmap = 138; bitmap <= 157; ++bitmap) {
        pictures.push_back(bitmap);
    }
    return pictures;
}

bool HasArabicLetter(std::u16string_view text)
{
    return std::ranges::any_of(text, [](char16_t unit) { return unit >= 0x621 && unit <= 0x64A; });
}

} // namespace

TEST(PictureWords, EveryPictureHasWordsOfItsOwnInBothLanguages)
{
    for (const bool arabic : {false, true}) {
        std::set<std::u16string_view> told;
        for (const int bitmap : Pictures()) {
            const std::u16string_view words = PictureWords(bitmap, arabic);
            ASSERT_FALSE(words.empty()) << bitmap;
            EXPECT_TRUE(told.insert(words).second) << bitmap;
            EXPECT_EQ(HasArabicLetter(words), arabic) << bitmap;
        }
    }
}

TEST(PictureWords, TellWhatAPictureShows)
{
    EXPECT_EQ(PictureWords(104, false), u"A hand waves");
    EXPECT_EQ(PictureWords(104, true), u"يد تلوح");
}

TEST(PictureWords, HandsBoxesAndCaptionedFacesHaveNone)
{
    for (const int bitmap : {0, -1, 102, 103, 113, 124, 126, 127, 158, 1113, 1127}) {
        EXPECT_EQ(PictureWords(bitmap, false), u"") << bitmap;
        EXPECT_EQ(PictureWords(bitmap, true), u"") << bitmap;
    }
}

} // namespace keyfluent::course
