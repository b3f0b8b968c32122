// The four layouts: what each cap reads, and so what its key types, by keyboard, language and
// Shift. The exercise takes a key's meaning from here and never from the operating system.
#pragma once

#include "keyboard/KeyCaps.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace keyfluent::keyboard
{

// A key that types a character. English is the same on both keyboards.
struct CharacterKey {
    int cap;
    int keyCode;
    int secondKeyCode; // of the same key on other boards; 0 where there is none
    std::u16string_view english;
    std::u16string_view englishShift;
    std::u16string_view arabicWindows;
    std::u16string_view arabicWindowsShift;
    std::u16string_view arabicMac;
    std::u16string_view arabicMacShift; // empty: the key types nothing
};

// A key that carries a name.
struct NamedKey {
    int cap;
    std::u16string_view englishWindows;
    std::u16string_view englishMac;
    std::u16string_view arabicWindows;
    std::u16string_view arabicMac;
};

extern const std::array<CharacterKey, 47> characterKeys;
extern const std::array<NamedKey, 13> namedKeys;

// Writes the layout on the caps; `texts` is indexed by cap number. The views point at constants.
// The symbol caps and the blank one are never written. In an Arabic exercise a kind that is neither
// of the two keyboards leaves the 47 character caps as they were; for the named keys, and in
// English altogether, it counts as Windows.
void WriteCapTexts(std::int32_t keyboardKind, bool shifted, bool arabicExercise,
                   std::span<std::u16string_view, capCount> texts);

} // namespace keyfluent::keyboard
