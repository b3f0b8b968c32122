// Small services on texts. Texts are UTF-16 and counted in UTF-16 units; blanks are U+0020 alone.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace keyfluent::context
{

// The Return mark of the exercise rows, U+0691: here the student presses Return.
inline constexpr char16_t lineEndMark = u'\u0691';

// Without the blanks at both ends. Tabs and other white space stay.
std::u16string_view TrimBlanks(std::u16string_view text);

// In plain ASCII digits, whatever the locale.
std::u16string Decimal(std::int64_t number);
// With zeros in front up to width digits; number is 0 or more.
std::u16string Decimal(std::int64_t number, int width);

// A lone surrogate becomes U+FFFD; so does every byte that is not UTF-8.
std::string ToUtf8(std::u16string_view text);
std::u16string FromUtf8(std::string_view bytes);

} // namespace keyfluent::context
