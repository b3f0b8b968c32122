#include "shell/platform/CapsLock.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <cstdlib>
#include <memory>
#include <optional>
#include <xcb/xcb.h>

namespace keyfluent::shell
{
namespace
{

constexpr quint32 lockBit = 0x2;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

// Other platforms than xcb may offer the same interface with nothing behind it.
xcb_connection_t* XConnection()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        return nullptr;
    }
    const auto* application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return application != nullptr ? application->connection() : nullptr;
}

// The root window does not matter: the answer's modifiers are the keyboard's.
std::optional<bool> AskXServer()
{
    xcb_connection_t* connection = XConnection();
    if (connection == nullptr || xcb_connection_has_error(connection) != 0) {
        return std::nullopt;
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::unique_ptr<xcb_query_pointer_reply_t, Free> reply(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, root), nullptr));
    if (!reply) {
        return std::nullopt;
    }
    return (reply->mask & XCB_MOD_MASK_LOCK) != 0;
}

} // namespace

void CapsLockWatch::Refresh()
{
    if (const std::optional<bool> on = AskXServer()) {
        on_ = *on;
    }
}

// The modifiers of an event are those before it. The release of the key that turns Caps Lock off
// still has the bit, and a platform that tells no scan codes tells no bits either.
void CapsLockWatch::KeyEvent(const QKeyEvent& event)
{
    const bool bitsAreTold = event.nativeScanCode() != 0;
    const bool bit = (event.nativeModifiers() & lockBit) != 0;
    if (event.key() != Qt::Key_CapsLock) {
        on_ = bitsAreTold ? bit : on_;
    } else if (event.type() == QEvent::KeyPress && !event.isAutoRepeat()) {
        on_ = bitsAreTold ? !bit : !on_;
    }
}

} // namespace keyfluent::shell
