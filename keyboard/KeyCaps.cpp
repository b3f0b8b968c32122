#include "keyboard/KeyCaps.h"

#include <span>

namespace keyfluent::keyboard
{
namespace
{

// Equal caps side by side, this many twips from left edge to left edge.
constexpr int pitch = 405;

struct Run {
    int top;
    int firstCap;
    int lastCap;
    int left; // of the first cap
    int width;
    int height = 360;
};

constexpr Run runs[] = {
    // Function keys.
    {1815, capEscape, capEscape, 1305, 405},
    {1815, 1, 4, 1980, 390},
    {1815, 5, 8, 3855, 390},
    {1815, 9, 12, 5745, 390},
    {1815, 13, 15, 7620, 390},
    {1815, capBlank, capBlank, 10305, 390},

    // Number row.
    {2295, 16, 27, 1305, 390},
    {2280, 28, 28, 6165, 390}, // Meant: one pixel above its row.
    {2295, 29, 29, 6570, 780},
    {2295, 30, 32, 7635, 390},
    {2295, 87, 87, 9090, 390}, // Meant: one pixel to the left of the column under it.
    {2295, 88, 90, 9510, 390},

    // Upper letter row.
    {2670, 33, 33, 1305, 600},
    {2670, 34, 45, 1920, 390},
    {2670, 46, 46, 6780, 570},
    {2670, 79, 81, 7635, 390},
    {2670, 91, 94, 9105, 390},

    // Home row.
    {3045, capCapsLock, capCapsLock, 1305, 735},
    {3045, 48, 58, 2055, 390},
    {3045, capReturn, capReturn, 6510, 840},
    {3045, 95, 98, 9105, 390},

    // Lower letter row.
    {3420, capLeftShift, capLeftShift, 1305, 885},
    {3420, 61, 70, 2205, 390},
    {3420, capRightShift, capRightShift, 6255, 1095},
    {3420, 82, 82, 8040, 390},
    {3420, 99, 101, 9105, 390},
    {3420, capPadEnter, capPadEnter, 10320, 390, 735}, // reaches down over the next row

    // Space bar row.
    {3795, capLeftCtrl, capLeftCtrl, 1305, 600},
    {3795, 73, 73, 1920, 540},
    {3795, 74, 74, 2475, 600},
    {3795, capSpace, capSpace, 3090, 2475},
    {3795, 76, 76, 5580, 600},
    {3795, 77, 77, 6195, 540},
    {3795, capRightCtrl, capRightCtrl, 6750, 600},
    {3795, 83, 85, 7635, 390},
    {3795, 103, 103, 9105, 795},
    {3795, 104, 104, 9915, 390},
};

// Each cap has one place.
static_assert([] {
    for (int cap = 0; cap < capCount; ++cap) {
        int places = 0;
        for (const Run& run : runs) {
            places += cap >= run.firstCap && cap <= run.lastCap ? 1 : 0;
        }
        if (places != 1) {
            return false;
        }
    }
    return true;
}());

// Caps from the first to the last one.
struct Range {
    int first;
    int last;
};

// clang-format off

struct Face {
    Range caps;
    CapFont font;
};

constexpr Face faces[] = {
    {{0, 15}, CapFont::Tahoma9Bold},
    {{30, 31}, CapFont::Tahoma825Bold},
    {{32, 32}, CapFont::Symbols975Bold},
    {{79, 80}, CapFont::Tahoma825Bold},
    {{81, 85}, CapFont::Symbols975Bold},
    {{capPadEnter, capPadEnter}, CapFont::Symbols975Bold},
};

// The caps of the 47 character keys, and what they hold until a layout is written on them.
constexpr Range characterCaps[] = {{16, 28}, {34, 46}, {48, 58}, {61, 70}};
constexpr std::u16string_view characterDesignText = u"\u0623";

// Texts that no layout changes, of neighbouring caps in order.
constexpr std::u16string_view functionKeys[] = {
    u"esc", u"F1", u"F2", u"F3", u"F4", u"F5", u"F6", u"F7",
    u"F8", u"F9", u"F10", u"F11", u"F12", u"F13", u"F14", u"F15",
};
constexpr std::u16string_view keysOverArrows[] = {u"ins", u"home", u"p"};
constexpr std::u16string_view keysOverArrowsBelow[] = {u"del", u"end", u"q"};
constexpr std::u16string_view arrows[] = {u"h", u"f", u"i", u"g"};
constexpr std::u16string_view pad[] = {
    u"", // the blank cap
    u"Num", u"=", u"/", u"*",
    u"7", u"8", u"9", u"-",
    u"4", u"5", u"6", u"+",
    u"1", u"2", u"3", u"\r\n8\r\n", // on the middle one of three lines
    u"0", u".",
};

struct LastingTexts {
    int firstCap;
    std::span<const std::u16string_view> texts;
};

constexpr LastingTexts lastingTexts[] = {
    {capEscape, functionKeys},
    {30, keysOverArrows},
    {79, keysOverArrowsBelow},
    {82, arrows},
    {capBlank, pad},
};

// clang-format on

constexpr std::array<CapDesign, capCount> MakeDesigns()
{
    std::array<CapDesign, capCount> designs;
    const auto at = [&designs](int cap) -> CapDesign& {
        return designs[static_cast<std::size_t>(cap)];
    };

    for (const Run& run : runs) {
        for (int cap = run.firstCap; cap <= run.lastCap; ++cap) {
            at(cap).left = run.left + (cap - run.firstCap) * pitch;
            at(cap).top = run.top;
            at(cap).width = run.width;
            at(cap).height = run.height;
        }
    }
    for (const Face& face : faces) {
        for (int cap = face.caps.first; cap <= face.caps.last; ++cap) {
            at(cap).font = face.font;
        }
    }
    for (const Range& range : characterCaps) {
        for (int cap = range.first; cap <= range.last; ++cap) {
            at(cap).designText = characterDesignText;
        }
    }
    for (const LastingTexts& neighbours : lastingTexts) {
        int cap = neighbours.firstCap;
        for (std::u16string_view text : neighbours.texts) {
            at(cap++).designText = text;
        }
    }
    return designs;
}

constexpr std::array<CapDesign, capCount> designs = MakeDesigns();

struct Picture {
    int cap;
    std::u16string_view sign;
};

constexpr Picture pictures[] = {
    {32, u"\u25B2"},          // p: page up
    {81, u"\u25BC"},          // q: page down
    {82, u"\u2191"},          // h: up
    {83, u"\u2190"},          // f: left
    {84, u"\u2193"},          // i: down
    {85, u"\u2192"},          // g: right
    {capPadEnter, u"\u21B5"}, // 8: enter
};

} // namespace

const std::array<CapDesign, capCount>& CapDesigns()
{
    return designs;
}

bool FollowsExerciseDirection(int cap)
{
    return (cap >= 16 && cap <= 28) || (cap >= 33 && cap <= 78);
}

std::u16string_view PictureOnCap(int cap)
{
    for (const Picture& picture : pictures) {
        if (picture.cap == cap) {
            return picture.sign;
        }
    }
    return u"";
}

} // namespace keyfluent::keyboard
