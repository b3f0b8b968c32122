// What the keyboard on the screen, the hands and the marked letter tell, in the words of the
// interface, for a student who hears them.
#pragma once

#include "session/Lesson.h"

#include <string>

namespace keyfluent::session
{

enum class Hand { Left, Right };

// The keyboard with its lit key. No key is lit in free text and in the review.
std::u16string KeyboardWords(const Lesson& lesson);

// A hand with the finger that its picture shows.
std::u16string HandWords(const Lesson& lesson, Hand hand);

// What there is to say after each event: the next key and, where the hands are on show, the fingers
// that type it; in the review the message line; "" in free text. Two keys that follow one another
// may have the same words.
std::u16string Announcement(const Lesson& lesson);

} // namespace keyfluent::session
