// Which keys each exercise brings, and what a text may therefore hold.
#pragma once

#include "CourseFixtures.h"

#include <set>
#include <span>
#include <string_view>

namespace keyfluent::course::fixtures
{

struct Introduction {
    int lesson;
    int exercise;
    std::u16string_view keys;
};

// In the order of the course. The capitals come all at once, as the use of the Shift key.
std::span<const Introduction> IntroductionsIn(bool arabic);

// "" where the exercise brings nothing new.
std::u16string_view NewKeysAt(const Place& place);

// All keys that have come by then, the blank, the Return mark and the line ends of passages too.
std::set<char16_t> KeysKnownAt(const Place& place);

// All that the texts of a language may use: what has one right key on both keyboards that the
// screen shows truly, and no other sign.
std::u16string_view TeachableKeys(bool arabic);

} // namespace keyfluent::course::fixtures
