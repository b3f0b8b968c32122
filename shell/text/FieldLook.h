// How a text field looks: its face, its measures and its colours.
#pragma once

#include <QColor>
#include <QFont>

namespace keyfluent::shell
{

inline constexpr QColor fieldPaper{0xFF, 0xFF, 0xFF};
inline constexpr QColor fieldInk{0x00, 0x00, 0x00};
inline constexpr QColor fieldFrame{0x9A, 0xA5, 0xAB};
inline constexpr QColor fieldThumb{0xB4, 0xC0, 0xC5};
inline constexpr QColor selectedPaper{0x26, 0x73, 0x7A};
inline constexpr QColor selectedInk{0xFF, 0xFF, 0xFF};

// Pixels between the field's edge and its text.
inline constexpr int frameWidth = 1;
inline constexpr int sidePadding = 6;
inline constexpr int topPadding = 2;

// base at points, 96 to the inch, whatever the desktop's own scale, but at most 600 pixels; 0
// points or less are the toolkit's default size. base names an Arabic face and then a Latin one. In
// a left-to-right field the Latin face comes first, so that blanks, digits and signs match its
// letters, and no two letters are drawn as one sign, so that each can be lit alone.
QFont FieldFont(const QFont& base, int points, bool rightToLeft);

// Vertical measures of a line, the same whatever stands on it, in pixels.
struct LineMeasures {
    int height = 0;    // the least that a line needs
    int inkTop = 0;    // of the tallest letters above the base line, without vowel marks
    int inkBottom = 0; // of the deepest ones below it
    int blank = 0;     // width of a blank
};

// font is one of FieldFont for the same direction.
LineMeasures MeasuresOf(const QFont& font, bool rightToLeft);

} // namespace keyfluent::shell
