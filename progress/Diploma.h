// The texts of the diploma, in English in both interfaces.
#pragma once

#include "context/SessionContext.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace keyfluent::progress
{

struct DiplomaTexts {
    std::u16string name;
    std::u16string date;   // of the first diploma, day first: "Date: 31/01/2026"
    std::u16string course; // every completed course with its grade; "" for none
};

DiplomaTexts LoadDiploma(const context::SessionContext& context);

// As the diploma shows a grade, such as "A -"; "" for 0 and for every number that is no grade.
std::u16string_view GradeLetter(std::uint8_t grade);

} // namespace keyfluent::progress
