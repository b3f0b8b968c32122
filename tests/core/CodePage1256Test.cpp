#include "context/CodePage1256.h"

#include "KeyboardFixtures.h"

#include <bit>
#include <gtest/gtest.h>
#include <iconv.h>
#include <set>

namespace keyfluent::context
{
namespace
{

using keyboard::fixtures::CodePoints;

// The system library's idea of the same page.
class Converter
{
public:
    Converter(const char* to, const char* from) : handle(iconv_open(to, from)) {}
    ~Converter()
    {
        if (IsOpen()) {
            iconv_close(handle);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool IsOpen() const { return handle != reinterpret_cast<iconv_t>(-1); }

    // False where the value has no counterpart.
    template <class From, class To> bool Convert(From from, To& to)
    {
        char* in = reinterpret_cast<char*>(&from);
        char* out = reinterpret_cast<char*>(&to);
        std::size_t inLeft = sizeof from;
        std::size_t outLeft = sizeof to;
        iconv(handle, nullptr, nullptr, nullptr, nullptr);
        const std::size_t result = iconv(handle, &in, &inLeft, &out, &outLeft);
        return result == 0 && inLeft == 0 && outLeft == 0;
    }

private:
    iconv_t handle;
};

// Sixteen-bit units in the byte order of this machine, without a mark in front.
constexpr const char* unicode =
    std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";

TEST(CodePage1256, EveryCodeIsTheCharacterThatTheSystemLibraryHas)
{
    Converter converter(unicode, "CP1256");
    ASSERT_TRUE(converter.IsOpen());
    for (int code = 0; code <= 255; ++code) {
        char16_t character = 0xFFFF;
        ASSERT_TRUE(converter.Convert(static_cast<std::uint8_t>(code), character)) << code;
        EXPECT_EQ(FromCodePage1256(static_cast<std::uint8_t>(code)), character) << code;
    }
}

TEST(CodePage1256, EveryCharacterHasTheCodeThatTheSystemLibraryGivesOrNone)
{
    Converter converter("CP1256", unicode);
    ASSERT_TRUE(converter.IsOpen());
    int inPage = 0;
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        const auto character = static_cast<char16_t>(unit);
        std::uint8_t code = 0;
        const bool found = converter.Convert(character, code);
        inPage += found ? 1 : 0;
        ASSERT_EQ(ToCodePage1256(character), found ? code : 0)
            << CodePoints(std::u16string_view(&character, 1));
    }
    EXPECT_EQ(inPage, 256);
}

TEST(CodePage1256, EveryCodeComesBackFromItsCharacter)
{
    std::set<char16_t> characters;
    for (int code = 0; code <= 255; ++code) {
        const char16_t character = FromCodePage1256(static_cast<std::uint8_t>(code));
        EXPECT_EQ(ToCodePage1256(character), code);
        EXPECT_TRUE(characters.insert(character).second) << code;
    }
}

TEST(CodePage1256, CharactersOfTheCourseHaveTheirCodes)
{
    const std::pair<char16_t, int> codes[] = {
        {u'A', 0x41},      {u'~', 0x7E},      {u'\u0691', 0x9A}, {u'\u2018', 0x91},
        {u'\u2019', 0x92}, {u'،', 0xA1},      {u'؛', 0xBA},      {u'؟', 0xBF},
        {u'×', 0xD7},      {u'÷', 0xF7},      {u'\u0640', 0xDC}, {u'\u064B', 0xF0},
        {u'\u064C', 0xF1}, {u'\u064D', 0xF2}, {u'\u064E', 0xF3}, {u'\u064F', 0xF5},
        {u'\u0650', 0xF6}, {u'\u0651', 0xF8}, {u'\u0652', 0xFA}, {u'ا', 0xC7},
        {u'ي', 0xED},      {u'ى', 0xEC},      {u'\u06A9', 0x98}};
    for (const auto& [character, code] : codes) {
        EXPECT_EQ(ToCodePage1256(character), code)
            << CodePoints(std::u16string_view(&character, 1));
    }
}

TEST(CodePage1256, EveryCharacterOfTheLayoutsIsInThePage)
{
    for (const keyboard::CharacterKey& key : keyboard::characterKeys) {
        for (std::u16string_view text :
             {key.english, key.englishShift, key.arabicWindows, key.arabicWindowsShift,
              key.arabicMac, key.arabicMacShift}) {
            for (char16_t character : text) {
                EXPECT_NE(ToCodePage1256(character), 0) << CodePoints(text);
            }
        }
    }
}

TEST(CodePage1256, CharactersOutsideThePageHaveNoCode)
{
    for (char16_t character :
         {u'\u0000', u'\u0080', u'\u0671', u'\u06CC', u'\u0661', u'\uFEFB', u'\uFFFF'}) {
        EXPECT_EQ(ToCodePage1256(character), 0);
    }
    EXPECT_EQ(ToCodePage1256(static_cast<char16_t>(0xD800)), 0);
}

} // namespace
} // namespace keyfluent::context
