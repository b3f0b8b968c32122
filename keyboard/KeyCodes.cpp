#include "keyboard/KeyCodes.h"

#include "keyboard/Layouts.h"

#include <array>
#include <cstdint>

namespace keyfluent::keyboard
{
namespace
{

// Key codes are 16 bits wide; those of real keys take 8.
constexpr int codeCount = 256;
using CapTable = std::array<std::int8_t, codeCount>;

// The keys with a cap that type no character of a layout. The function keys come on top.
struct OtherKey {
    int keyCode;
    int cap;
};
constexpr OtherKey otherKeys[] = {
    {keyEnter, capReturn},
    {keyEscape, capEscape},
    {keySpace, capSpace},
    {keyPadMultiply, capPadMultiply}, // the one key of the pad that the exercise knows
};

CapTable MakeCapTable()
{
    CapTable caps;
    caps.fill(noCap);
    const auto enter = [&caps](int keyCode, int cap) {
        caps[static_cast<std::size_t>(keyCode)] = static_cast<std::int8_t>(cap);
    };
    for (const CharacterKey& key : characterKeys) {
        enter(key.keyCode, key.cap);
        if (key.secondKeyCode != 0) {
            enter(key.secondKeyCode, key.cap);
        }
    }
    for (const OtherKey& key : otherKeys) {
        enter(key.keyCode, key.cap);
    }
    for (int keyCode = keyF1; keyCode <= keyF12; ++keyCode) {
        enter(keyCode, capF1 + keyCode - keyF1);
    }
    return caps;
}

} // namespace

int CapOfKey(int keyCode)
{
    static const CapTable caps = MakeCapTable();
    if (keyCode < 0 || keyCode >= codeCount) {
        return noCap;
    }
    return caps[static_cast<std::size_t>(keyCode)];
}

} // namespace keyfluent::keyboard
