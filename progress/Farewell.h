// The last words to a student who leaves.
#pragma once

#include "context/Platform.h"
#include "context/SessionContext.h"

#include <string>

namespace keyfluent::progress
{

struct ByeTexts {
    std::u16string message; // its lines divided by one carriage return
    std::u16string caption; // of the button
};

// In the language of the interface. One of five farewells by chance, or always the plain one after
// an answer of No on leaving (leaveNoSave). An empty studentName becomes the word for a friend.
ByeTexts ByeMessage(context::SessionContext& context, const context::Platform& platform);

} // namespace keyfluent::progress
