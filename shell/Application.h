// The process: from the command line to the end, on a real desktop.
#pragma once

namespace keyfluent::shell
{

// Runs the program to its end and returns the exit status: 0, or 1 after a failure that was
// reported.
int RunProgram(int argc, char** argv);

} // namespace keyfluent::shell
