// Scripts that make sense to the console: each change leaves lines of known commands with arguments
// of the right kind, now and then of a wrong one.
#pragma once

#include <string>
#include <string_view>

namespace keyfluent::fuzz
{

// The script with one change: a line or a run of keys more, a line less, moved, repeated or with
// another argument. The same seed makes the same change.
std::string ChangedScript(std::string_view script, unsigned seed);

} // namespace keyfluent::fuzz
