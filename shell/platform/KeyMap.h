// Which key was pressed, as the place on the keyboard that the core's key numbers name. The input
// language that is active on the desktop changes nothing here as long as the desktop tells the
// place; only where it does not (remote screens, synthetic events) is the typed symbol looked at.
#pragma once

#include <QString>
#include <Qt>

#include <cstdint>

class QKeyEvent;

namespace keyfluent::shell
{

// A key that is none of the keyboard's. The core has no key of this number: it has no cap and no
// meaning, but like any key it can start the clock.
inline constexpr std::uint16_t unknownKey = 255;

// The number of the key, 1 to 255.
// nativeScanCode is that of X11 and Wayland, the kernel's code plus 8; at 8 and below no place is
// told. nativeModifiers counts with a scan code only: its NumLock bit decides what the numeric pad
// gives. The other four count without a scan code only: arabicExercise says on which of two
// keyboards to look first for a symbol that both have, on different keys.
std::uint16_t KeyNumber(quint32 nativeScanCode, quint32 nativeModifiers, int qtKey,
                        Qt::KeyboardModifiers modifiers, const QString& text, bool arabicExercise);

std::uint16_t KeyNumber(const QKeyEvent& event, bool arabicExercise);

} // namespace keyfluent::shell
