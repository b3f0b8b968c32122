// The numbers by which a key is known. A number names a place on the keyboard and is the same on
// both keyboards, in both languages and under every input language of the desktop.
#pragma once

namespace keyfluent::keyboard
{

inline constexpr int keyBackspace = 8;
inline constexpr int keyEnter = 13;
inline constexpr int keyShift = 16; // either of the two
inline constexpr int keyCtrl = 17;  // either of the two
inline constexpr int keyCapsLock = 20;
inline constexpr int keyEscape = 27;
inline constexpr int keySpace = 32;
inline constexpr int keyLamAlef = 66; // the place of the Latin B
inline constexpr int keyPadMultiply = 106;
inline constexpr int keyF1 = 112;
inline constexpr int keyF12 = 123;

// The cap of a key, or noCap (-1) for a key that has none: Backspace, Tab, Shift, Ctrl, Caps Lock,
// the arrows and the numeric pad's digits among them, and every number that is no key at all.
int CapOfKey(int keyCode);

} // namespace keyfluent::keyboard
