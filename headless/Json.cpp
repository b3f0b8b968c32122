#include "headless/Json.h"

#include "context/Text.h"

#include <charconv>

namespace keyfluent::headless
{
namespace
{

std::u16string Escaped(char16_t unit)
{
    switch (unit) {
    case u'"':
        return u"\\\"";
    case u'\\':
        return u"\\\\";
    case u'\r':
        return u"\\r";
    case u'\n':
        return u"\\n";
    case u'\t':
        return u"\\t";
    default:
        break;
    }
    if (unit >= 0x20) {
        return std::u16string(1, unit);
    }
    constexpr char16_t digits[] = u"0123456789abcdef";
    return std::u16string(u"\\u00") + digits[unit >> 4] + digits[unit & 0xF];
}

// The character behind a backslash at position; moves past it.
bool ReadEscape(std::string_view line, std::size_t& position, std::u16string& text)
{
    constexpr std::string_view names = "\"\\/bfnrt";
    constexpr std::u16string_view meanings = u"\"\\/\b\f\n\r\t";
    if (position >= line.size()) {
        return false;
    }
    const char name = line[position++];
    if (name != 'u') {
        const auto found = names.find(name);
        if (found == std::string_view::npos) {
            return false;
        }
        text += meanings[found];
        return true;
    }
    constexpr std::size_t digits = 4;
    if (position + digits > line.size()) {
        return false;
    }
    unsigned unit = 0;
    const char* first = line.data() + position;
    const auto result = std::from_chars(first, first + digits, unit, 16);
    if (result.ptr != first + digits) {
        return false;
    }
    text += static_cast<char16_t>(unit);
    position += digits;
    return true;
}

} // namespace

std::string Quoted(std::u16string_view text)
{
    std::u16string quoted = u"\"";
    for (const char16_t unit : text) {
        quoted += Escaped(unit);
    }
    quoted += u'"';
    return context::ToUtf8(quoted);
}

bool ReadQuoted(std::string_view line, std::size_t& position, std::u16string& text)
{
    text.clear();
    if (position >= line.size() || line[position] != '"') {
        return false;
    }
    ++position;
    while (position < line.size()) {
        const std::size_t plain = line.find_first_of("\"\\", position);
        if (plain == std::string_view::npos) {
            return false;
        }
        const std::string_view run = line.substr(position, plain - position);
        for (const char byte : run) {
            if (static_cast<unsigned char>(byte) < 0x20) {
                return false;
            }
        }
        text += context::FromUtf8(run);
        position = plain + 1;
        if (line[plain] == '"') {
            return true;
        }
        if (!ReadEscape(line, position, text)) {
            return false;
        }
    }
    return false;
}

JsonObject& JsonObject::AddRaw(std::string_view key, std::string_view json)
{
    if (!members_.empty()) {
        members_ += ", ";
    }
    members_ += '"';
    members_ += key;
    members_ += "\": ";
    members_ += json;
    return *this;
}

JsonObject& JsonObject::Add(std::string_view key, std::u16string_view text)
{
    return AddRaw(key, Quoted(text));
}

JsonObject& JsonObject::Add(std::string_view key, const std::u16string& text)
{
    return AddRaw(key, Quoted(text));
}

JsonObject& JsonObject::Add(std::string_view key, const char16_t* text)
{
    return AddRaw(key, Quoted(text));
}

JsonObject& JsonObject::Add(std::string_view key, std::int64_t number)
{
    return AddRaw(key, std::to_string(number));
}

JsonObject& JsonObject::Add(std::string_view key, int number)
{
    return AddRaw(key, std::to_string(number));
}

JsonObject& JsonObject::Add(std::string_view key, bool value)
{
    return AddRaw(key, value ? "true" : "false");
}

JsonObject& JsonObject::Add(std::string_view key, std::span<const std::u16string> texts)
{
    std::string list = "[";
    for (const std::u16string& text : texts) {
        list += list.size() > 1 ? ", " : "";
        list += Quoted(text);
    }
    return AddRaw(key, list + "]");
}

} // namespace keyfluent::headless
