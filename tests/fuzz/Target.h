// What a fuzz target supplies and what it may use. The names of the entry points are those that
// other drivers call too, so that a target can be linked with any of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// Runs one input. Returns 0; a broken rule ends the process by Require, a broken memory rule by the
// sanitizers.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Changes an input in place into another that makes sense to the target; optional. Returns the new
// size, at most maxSize.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed);

namespace keyfluent::fuzz
{

// Ends the process with a report unless the rule holds.
inline void Require(bool holds, const char* rule)
{
    if (!holds) {
        std::fprintf(stderr, "broken rule: %s\n", rule);
        std::abort();
    }
}

} // namespace keyfluent::fuzz
