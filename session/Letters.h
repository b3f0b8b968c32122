// The dialog that asks for the letters of an anagram.
#pragma once

#include "context/SessionContext.h"

#include <string_view>

namespace keyfluent::session
{

// Each opening starts without letters and on Arabic, whatever was chosen before.
void OpenLetters(context::SessionContext& context);

// Takes ten characters of what was typed and returns true. A text without anything but blanks is
// refused: nothing changes, and the caller beeps.
bool ConfirmLetters(context::SessionContext& context, std::u16string_view typed);

void CancelLetters(context::SessionContext& context);

} // namespace keyfluent::session
