// The desktop's own tool that tells about the computer.
#pragma once

#include <QString>

namespace keyfluent::shell
{

// Starts the first of the known tools that is found and leaves it to itself; false when none is
// found or none can be started. searchPath is a list of folders as in the variable PATH.
bool ShowSystemInformation(const QString& searchPath);

// Looks where the user's programs are.
bool ShowSystemInformation();

} // namespace keyfluent::shell
