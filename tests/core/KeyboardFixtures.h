// What the tests of the keyboard room share: the keyboards to go through, texts that print as code
// points, and the layouts read from the caps.
#pragma once

#include "context/KeyboardKind.h"
#include "keyboard/Layouts.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace keyfluent::keyboard::fixtures
{

// Both keyboards, and kinds that a damaged preferences file may hold.
inline constexpr std::array<std::int32_t, 6> kinds{context::windowsKeyboard,
                                                   context::macintoshKeyboard,
                                                   1,
                                                   -1,
                                                   std::numeric_limits<std::int32_t>::min(),
                                                   std::numeric_limits<std::int32_t>::max()};

inline constexpr std::array<bool, 2> bothWays{false, true};

// "U+0041 U+064E", or "(empty)".
inline std::string CodePoints(std::u16string_view text)
{
    std::string shown;
    for (char16_t character : text) {
        std::array<char, 8> code{};
        std::snprintf(code.data(), code.size(), "U+%04X", static_cast<unsigned>(character));
        shown += (shown.empty() ? "" : " ") + std::string(code.data());
    }
    return shown.empty() ? "(empty)" : shown;
}

// "kind 192, Arabic"
inline std::string Setting(std::int32_t kind, bool arabicExercise)
{
    return "kind " + std::to_string(kind) + (arabicExercise ? ", Arabic" : ", English");
}

using CapTexts = std::array<std::u16string_view, capCount>;

inline std::u16string_view TextOf(const CapTexts& texts, int cap)
{
    return texts.at(static_cast<std::size_t>(cap));
}

// Every cap holds `before` until the layout is written on it.
inline CapTexts Written(std::int32_t kind, bool shifted, bool arabicExercise,
                        std::u16string_view before = u"as it was")
{
    CapTexts texts;
    texts.fill(before);
    WriteCapTexts(kind, shifted, arabicExercise, texts);
    return texts;
}

// Where a character stands on a layout.
struct Place {
    int cap;
    int keyCode;
    bool shift;

    auto operator<=>(const Place&) const = default;
};

// All places of the character on the caps of the 47 character keys; a key with two codes is two
// places.
inline std::vector<Place> PlacesOf(char16_t character, bool windows, bool arabicLayout)
{
    static const auto layouts = [] {
        std::array<std::array<std::array<CapTexts, 2>, 2>, 2> read;
        for (bool onWindows : bothWays) {
            for (bool arabic : bothWays) {
                for (bool shift : bothWays) {
                    read[onWindows][arabic][shift] =
                        Written(onWindows ? context::windowsKeyboard : context::macintoshKeyboard,
                                shift, arabic);
                }
            }
        }
        return read;
    }();
    std::vector<Place> places;
    for (bool shift : bothWays) {
        const CapTexts& texts = layouts[windows][arabicLayout][shift];
        for (const CharacterKey& key : characterKeys) {
            if (TextOf(texts, key.cap) != std::u16string_view(&character, 1)) {
                continue;
            }
            places.push_back({key.cap, key.keyCode, shift});
            if (key.secondKeyCode != 0) {
                places.push_back({key.cap, key.secondKeyCode, shift});
            }
        }
    }
    return places;
}

inline bool IsIn(char16_t character, std::u16string_view set)
{
    return set.find(character) != std::u16string_view::npos;
}

} // namespace keyfluent::keyboard::fixtures
