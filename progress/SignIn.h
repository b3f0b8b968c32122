// Signing in by name.
#pragma once

#include "context/SessionContext.h"

#include <string>
#include <string_view>

namespace keyfluent::progress
{

// How many UTF-16 units the name's field takes, and from how many on each change beeps.
inline constexpr std::size_t nameLimit = 60;
inline constexpr std::size_t nameWarning = 57;

// A change of the name's field to text: studentName and its copy become the text without the blanks
// at its ends. No character is refused, and no length. True if the change beeps: text holds 57
// UTF-16 units or more, its blanks counted.
bool ChangeName(context::SessionContext& context, std::u16string_view text);

// Whether there is a name to sign in with; without one the sign-in beeps and stays.
bool HasName(const context::SessionContext& context);

// A sign-in given up: studentName is again what it was when the sign-in was opened, so that a name
// half typed never stands for a signed-in student.
void CancelSignIn(context::SessionContext& context, std::u16string_view nameAtOpening);

// The question for the name; another one after a log-out. In the language of the interface.
std::u16string_view NameQuestion(const context::SessionContext& context);

// What a name without a file is told, its paragraphs divided by two carriage returns.
std::u16string NewStudentGreeting(const context::SessionContext& context);

} // namespace keyfluent::progress
