// The core's platform on a real desktop.
#pragma once

#include "context/Platform.h"

#include <QString>

namespace keyfluent::shell
{

class CapsLockWatch;
class SoundPlayer;

// The record refers to the watch and the player, which must live as long as it is used. folder is
// the program's folder: the sounds lie there.
context::Platform MakePlatform(CapsLockWatch& capsLock, SoundPlayer& sounds, const QString& folder);

} // namespace keyfluent::shell
