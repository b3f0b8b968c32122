// The truth value of the records: 16 bits, -1 for true and 0 for false. A file may hold any other
// number; every number but 0 counts as true.
#pragma once

#include <cstdint>

namespace keyfluent::context
{

class Boolean16
{
public:
    constexpr Boolean16() = default;
    constexpr Boolean16(bool value) : raw_(value ? -1 : 0) {}

    static constexpr Boolean16 FromRaw(std::int16_t raw) { return Boolean16(raw != 0); }

    constexpr operator bool() const { return raw_ != 0; }
    constexpr std::int16_t Raw() const { return raw_; }

private:
    std::int16_t raw_ = 0;
};

} // namespace keyfluent::context
