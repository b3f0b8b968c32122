// The student's place is kept once for each of the two keyboards; these tell which of the two a
// rule means.
#pragma once

#include "context/KeyboardKind.h"
#include "context/SessionContext.h"

#include <cstdint>

namespace keyfluent::progress
{

// The preferences file is not range-checked, so a kind that is neither of the two can be in force
// until the main window first sets the keyboard right. Meant: most rules count such a kind as
// Windows, but the ones that ask for the Windows keyboard by its number do not.
inline bool CountsAsWindows(const context::SessionContext& context)
{
    return context::CountsAsWindows(context.keyboardKind);
}
inline bool IsWindowsByNumber(const context::SessionContext& context)
{
    return context.keyboardKind == context::windowsKeyboard;
}

inline std::uint8_t& ReachedLesson(context::SessionContext& context, bool onWindows)
{
    return onWindows ? context.reachedLessonWin : context.reachedLessonMac;
}
inline std::uint8_t ReachedLesson(const context::SessionContext& context, bool onWindows)
{
    return onWindows ? context.reachedLessonWin : context.reachedLessonMac;
}

} // namespace keyfluent::progress
