#include "keyboard/CharacterIndex.h"

#include "KeyboardFixtures.h"

#include <gtest/gtest.h>

namespace keyfluent::keyboard
{
namespace
{

// Built while compiling, as the tables are.
constexpr CharacterIndex letters = [] {
    CharacterIndex index;
    index.Add(u"ab", 0);
    index.Add(u"\u00FFش\u0600\u06FF", 127);
    index.Replace(u'b', 5);
    return index;
}();

TEST(CharacterIndex, FindsTheNumberOfEachCharacterAddedAndOfNoOther)
{
    for (int code = 0; code <= 0xFFFF; ++code) {
        const auto character = static_cast<char16_t>(code);
        int number = CharacterIndex::none;
        if (fixtures::IsIn(character, u"\u00FFش\u0600\u06FF")) {
            number = 127;
        }
        if (character == u'a' || character == u'b') {
            number = character == u'a' ? 0 : 5;
        }
        ASSERT_EQ(letters.Find(std::u16string_view(&character, 1)), number) << code;
    }
}

TEST(CharacterIndex, LooksUpWholeStrings)
{
    EXPECT_EQ(letters.Find(u""), CharacterIndex::none);
    EXPECT_EQ(letters.Find(u"aa"), CharacterIndex::none);
    EXPECT_EQ(letters.Find(u"ab"), CharacterIndex::none);
}

TEST(CharacterIndex, RefusesATableThatContradictsItself)
{
    CharacterIndex index;
    index.Add(u"a", 1);
    EXPECT_ANY_THROW(index.Add(u"ba", 2));
    EXPECT_ANY_THROW(index.Replace(u'c', 2));
    EXPECT_EQ(index.Find(u"a"), 1);
}

TEST(CharacterIndex, RefusesWhatItCannotHold)
{
    CharacterIndex index;
    EXPECT_ANY_THROW(index.Add(u"a", -1));
    EXPECT_ANY_THROW(index.Add(u"a", 128));
    EXPECT_ANY_THROW(index.Add(u"\u0100", 1));
    EXPECT_ANY_THROW(index.Add(u"\u2019", 1));
    EXPECT_EQ(index.Find(u"a"), CharacterIndex::none);
}

} // namespace
} // namespace keyfluent::keyboard
