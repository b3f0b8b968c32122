// The Windows code page for Arabic, in which an expected character is handed to the judge of keys.
#pragma once

#include <cstdint>

namespace keyfluent::context
{

// 0 for a character that is not in the page (no other is put in its place), and for U+0000.
std::uint8_t ToCodePage1256(char16_t character);

// Every one of the 256 codes has a character.
char16_t FromCodePage1256(std::uint8_t code);

} // namespace keyfluent::context
