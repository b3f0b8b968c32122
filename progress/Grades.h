// The grades of the diploma, from the total of lesson 15. Meant: the numbers are not in the order
// of merit. 1 is the best, then 4, 3, and 2 the lowest.
#pragma once

#include <cstdint>
#include <optional>

namespace keyfluent::progress
{

// Nothing where the total fits no range of the table.
std::optional<std::uint8_t> ArabicGrade(std::int16_t total);
std::optional<std::uint8_t> EnglishGrade(std::int16_t total);

} // namespace keyfluent::progress
