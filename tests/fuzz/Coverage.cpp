#include "tests/fuzz/Coverage.h"

namespace keyfluent::fuzz
{

std::array<std::uint8_t, coverageSize> coverage;

} // namespace keyfluent::fuzz

extern "C" void __sanitizer_cov_trace_pc()
{
    const auto address = reinterpret_cast<std::uintptr_t>(__builtin_return_address(0));
    std::uint8_t& count =
        keyfluent::fuzz::coverage[(address ^ (address >> 16)) % keyfluent::fuzz::coverageSize];
    if (count < 255) {
        ++count;
    }
}
