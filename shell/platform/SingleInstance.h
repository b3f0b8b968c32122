// Whether the program runs already. Told by a name in the kernel's socket table that belongs to
// the user: it leaves no file on the disk and is gone with the process, however that ends.
#pragma once

#include <string>

namespace keyfluent::shell
{

class SingleInstance
{
public:
    // The name of the user who runs the program.
    SingleInstance();
    explicit SingleInstance(std::string name); // at most 100 bytes
    ~SingleInstance();

    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    // True when this process now holds the name, until the object ends; true again when asked
    // again. False when another process of this machine (or another object) holds it. Where the
    // system gives out no sockets nothing can be told, and the answer is true.
    bool Acquire();

private:
    std::string name_;
    int socket_ = -1;
};

} // namespace keyfluent::shell
