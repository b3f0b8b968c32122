// The state of Caps Lock. The toolkit has no call for it: an X server is asked, elsewhere the key
// events tell.
#pragma once

#include <QtGlobal>

class QKeyEvent;

namespace keyfluent::shell
{

class CapsLockWatch
{
public:
    // To be called whenever a window becomes active, before the state is used. Asks the X server;
    // on other platforms the state stays as the last key event told it.
    void Refresh();

    // To be told every key event once, before anything is done about it.
    void KeyEvent(const QKeyEvent& event);

    // 1 while Caps Lock is on, 0 while it is off and as long as nothing has told.
    qint16 State() const { return on_ ? 1 : 0; }

private:
    bool on_ = false;
};

} // namespace keyfluent::shell
