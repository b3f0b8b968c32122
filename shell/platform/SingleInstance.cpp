#include "shell/platform/SingleInstance.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace keyfluent::shell
{
namespace
{

// A zero in front makes the name an abstract one, which is no file.
struct AbstractAddress {
    sockaddr_un address{};
    socklen_t length = 0;

    explicit AbstractAddress(const std::string& name)
    {
        const std::size_t size = std::min(name.size(), sizeof address.sun_path - 1);
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path + 1, name.data(), size);
        length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + size);
    }
};

} // namespace

SingleInstance::SingleInstance()
    : SingleInstance("keyfluent-" + std::to_string(static_cast<unsigned long>(::getuid())))
{
}

SingleInstance::SingleInstance(std::string name) : name_(std::move(name)) {}

SingleInstance::~SingleInstance()
{
    if (socket_ >= 0) {
        ::close(socket_);
    }
}

bool SingleInstance::Acquire()
{
    if (socket_ >= 0) {
        return true;
    }
    // Closed at exec, so that no program started from this one goes on holding the name.
    const int candidate = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (candidate < 0) {
        return true;
    }
    const AbstractAddress name(name_);
    const int result =
        ::bind(candidate, reinterpret_cast<const sockaddr*>(&name.address), name.length);
    if (result == 0) {
        socket_ = candidate;
        return true;
    }
    const bool taken = errno == EADDRINUSE;
    ::close(candidate);
    return !taken;
}

} // namespace keyfluent::shell
