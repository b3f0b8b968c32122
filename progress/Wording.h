// Small services for the messages to the student. A line break in a message is a carriage return
// alone.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace keyfluent::progress
{

inline std::u16string Join(std::initializer_list<std::u16string_view> parts)
{
    std::u16string text;
    for (const std::u16string_view part : parts) {
        text += part;
    }
    return text;
}

} // namespace keyfluent::progress
