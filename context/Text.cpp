#include "context/Text.h"

#include <algorithm>

namespace keyfluent::context
{
namespace
{

constexpr char32_t replacement = 0xFFFD;

bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void AppendUtf8(std::string& bytes, char32_t code)
{
    const auto byte = [&bytes](char32_t value) { bytes += static_cast<char>(value); };
    if (code < 0x80) {
        byte(code);
    } else if (code < 0x800) {
        byte(0xC0 | (code >> 6));
        byte(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        byte(0xE0 | (code >> 12));
        byte(0x80 | ((code >> 6) & 0x3F));
        byte(0x80 | (code & 0x3F));
    } else {
        byte(0xF0 | (code >> 18));
        byte(0x80 | ((code >> 12) & 0x3F));
        byte(0x80 | ((code >> 6) & 0x3F));
        byte(0x80 | (code & 0x3F));
    }
}

void AppendUtf16(std::u16string& text, char32_t code)
{
    if (code < 0x10000) {
        text += static_cast<char16_t>(code);
        return;
    }
    code -= 0x10000;
    text += static_cast<char16_t>(0xD800 + (code >> 10));
    text += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
}

// How many bytes follow the first one, or -1 where no character begins.
int FollowingBytes(unsigned char first)
{
    if (first < 0x80) {
        return 0;
    }
    if (first >= 0xC2 && first <= 0xDF) {
        return 1;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        return 2;
    }
    return first >= 0xF0 && first <= 0xF4 ? 3 : -1;
}

// Decodes the character at position and moves past it; a broken one costs one byte.
char32_t NextCode(std::string_view bytes, std::size_t& position)
{
    const auto first = static_cast<unsigned char>(bytes[position++]);
    const int following = FollowingBytes(first);
    if (following <= 0) {
        return following == 0 ? first : replacement;
    }
    char32_t code = first & (0x3FU >> following);
    for (int i = 0; i < following; ++i) {
        const std::size_t at = position + static_cast<std::size_t>(i);
        if (at >= bytes.size() || (static_cast<unsigned char>(bytes[at]) & 0xC0) != 0x80) {
            return replacement;
        }
        code = (code << 6) | (static_cast<unsigned char>(bytes[at]) & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    if (code < smallest[following] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) {
        return replacement;
    }
    position += static_cast<std::size_t>(following);
    return code;
}

} // namespace

std::u16string_view TrimBlanks(std::u16string_view text)
{
    const auto first = text.find_first_not_of(u' ');
    if (first == std::u16string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::u16string Decimal(std::int64_t number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

std::u16string Decimal(std::int64_t number, int width)
{
    std::u16string digits = Decimal(number);
    const auto wanted = static_cast<std::size_t>(std::max(width, 0));
    return digits.size() >= wanted ? digits : std::u16string(wanted - digits.size(), u'0') + digits;
}

std::string ToUtf8(std::u16string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            code = 0x10000 + ((code - 0xD800) << 10) + (text[++i] - 0xDC00U);
        } else if (IsHighSurrogate(text[i]) || IsLowSurrogate(text[i])) {
            code = replacement;
        }
        AppendUtf8(bytes, code);
    }
    return bytes;
}

std::u16string FromUtf8(std::string_view bytes)
{
    std::u16string text;
    text.reserve(bytes.size());
    for (std::size_t position = 0; position < bytes.size();) {
        AppendUtf16(text, NextCode(bytes, position));
    }
    return text;
}

} // namespace keyfluent::context
