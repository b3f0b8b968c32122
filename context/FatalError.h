// A failure that ends the program. The message is one plain sentence that names what failed and,
// where a file is concerned, the file; the shell shows it once and ends with exit status 1.
#pragma once

#include <stdexcept>
#include <string>

namespace keyfluent::context
{

class FatalError : public std::runtime_error
{
public:
    // message is UTF-8.
    explicit FatalError(const std::string& message) : std::runtime_error(message) {}
};

} // namespace keyfluent::context
