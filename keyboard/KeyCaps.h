// The 105 caps of the keyboard on the screen, as they are designed: place, size, face and the text
// that they hold before a layout is written on them. What they show at a moment (texts, colours)
// belongs to the exercise.
#pragma once

#include <array>
#include <string_view>

namespace keyfluent::keyboard
{

// Caps are numbered 0 to 104, row by row: first the whole main block with the arrows and the six
// keys above them, then from 86 on the numeric pad.
inline constexpr int capCount = 105;

// Stands for "no cap" wherever a cap is looked up.
inline constexpr int noCap = -1;

inline constexpr int capEscape = 0;
inline constexpr int capF1 = 1;
inline constexpr int capF12 = 12;
inline constexpr int capCapsLock = 47;
inline constexpr int capReturn = 59;
inline constexpr int capLeftShift = 60;
inline constexpr int capLamAlef = 65; // the one key that gives two letters on a Windows keyboard
inline constexpr int capRightShift = 71;
inline constexpr int capLeftCtrl = 72;
inline constexpr int capSpace = 75;
inline constexpr int capRightCtrl = 78;
inline constexpr int capBlank = 86; // over the numeric pad; never has a text
inline constexpr int capPadMultiply = 90;
inline constexpr int capPadEnter = 102;

enum class CapFont {
    Form,           // the face of the window
    Tahoma9Bold,    // 9 points
    Tahoma825Bold,  // 8.25 points
    Symbols975Bold, // 9.75 points; the letters stand for pictures, see PictureOnCap
};

// Lengths in twips, 15 to the pixel, from the left top corner of the exercise window.
struct CapDesign {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    CapFont font = CapFont::Form;
    // Also the lasting text of a cap that no layout writes on. Character keys hold U+0623.
    std::u16string_view designText = u"";
};

// Indexed by cap number.
const std::array<CapDesign, capCount>& CapDesigns();

// Whether the cap reads from right to left in an Arabic exercise: the main block does, from the
// number row down; the function keys, the arrows, the keys above them and the pad never do.
bool FollowsExerciseDirection(int cap);

// The sign to draw in place of the cap's text where that text is a letter of a symbol face, one
// character; empty for all other caps, which show their text.
std::u16string_view PictureOnCap(int cap);

} // namespace keyfluent::keyboard
