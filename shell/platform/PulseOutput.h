// Sounds through the desktop's sound server.
#pragma once

#include "shell/platform/SoundOutput.h"

#include <memory>

namespace keyfluent::shell
{

// The server's library is looked for when the output opens, so that the program also runs where it
// is not installed; the output then never opens. The connection is kept until it is closed, without
// anything of it waking the process while nothing plays.
std::unique_ptr<SoundOutput> MakePulseOutput();

} // namespace keyfluent::shell
