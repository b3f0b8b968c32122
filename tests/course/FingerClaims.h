// What a note says of keys and fingers, read from its steady forms.
#pragma once

#include "CourseFixtures.h"

#include "keyboard/Fingers.h"

#include <optional>
#include <string>
#include <vector>

namespace keyfluent::course::fixtures
{

struct FingerClaim {
    char16_t character;
    std::optional<bool> windows; // none: on both keyboards
    keyboard::Fingers fingers;
    std::string words; // as the note has them
};

// Where a key lies as seen from a key of the same finger.
struct WayClaim {
    char16_t character;
    int rowsDown; // below 0: up
    char16_t from;
    std::string words;
};

struct Claims {
    std::vector<FingerClaim> fingers;
    std::vector<WayClaim> ways;
    std::vector<std::string> unread; // what looks like a claim but has no steady form
};

// The rule of Shift for all capitals is no claim on a key and is left out.
Claims EnglishClaims(const std::string& note);
Claims ArabicClaims(const std::string& note);

// Of the note at a place with a text.
Claims ClaimsAt(const Place& place);

} // namespace keyfluent::course::fixtures
