// The little of JSON that the console speaks: strings both ways and objects on one line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace keyfluent::headless
{

// With quotes, in UTF-8. Only '"', '\' and the characters below U+0020 are escaped.
std::string Quoted(std::u16string_view text);

// Reads the string that begins at position and moves past its closing quote. False where none
// begins there or it is not well formed; position is undefined then.
bool ReadQuoted(std::string_view line, std::size_t& position, std::u16string& text);

// {"key": value, "key": value}, in the order in which the members are added.
class JsonObject
{
public:
    JsonObject& Add(std::string_view key, std::u16string_view text);
    JsonObject& Add(std::string_view key, const std::u16string& text);
    // A literal would otherwise be taken for a truth value.
    JsonObject& Add(std::string_view key, const char16_t* text);
    JsonObject& Add(std::string_view key, std::int64_t number);
    JsonObject& Add(std::string_view key, int number);
    JsonObject& Add(std::string_view key, bool value);
    JsonObject& Add(std::string_view key, std::span<const std::u16string> texts);
    // json is taken as it is.
    JsonObject& AddRaw(std::string_view key, std::string_view json);

    std::string Line() const { return "{" + members_ + "}"; }

private:
    std::string members_;
};

} // namespace keyfluent::headless
