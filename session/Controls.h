// The controls of the exercise window as plain records: what the session changes and a window, a
// console or a test reads back. Lengths are in twips, 15 to the pixel, from the window's corner;
// colours are 24 bits with red in the lowest byte.
#pragma once

#include "context/Text.h"
#include "keyboard/KeyCaps.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace keyfluent::session
{

struct Box {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Box&) const = default;
};

// Pointers that a text field can show.
inline constexpr int plainPointer = 0;
inline constexpr int customPointer = 101;

// A text with one selection. Positions are 0-based UTF-16 units; a line end is CR LF, two units.
class TextField
{
public:
    const std::u16string& Text() const { return text_; }
    int Size() const { return static_cast<int>(text_.size()); }

    // Each change of the text by the program puts the selection to 0, 0.
    void SetText(std::u16string_view text);
    void Append(std::u16string_view more);
    void Append(char16_t unit) { Append(std::u16string_view(&unit, 1)); }
    void RemoveLast(int units); // at most what there is
    void Reserve(std::size_t units) { text_.reserve(units); }

    // As the student's own editing does it: the caret stands where the edit ends.
    void Replace(int position, int removed, std::u16string_view inserted);

    // Limited to the text: start to 0..Size(), length to what follows start.
    void Select(int start, int length);
    int SelectionStart() const { return selectionStart_; }
    int SelectionLength() const { return selectionLength_; }
    std::u16string_view SelectedText() const;

    Box box;
    int fontSize = 12; // points
    int cursor = plainPointer;
    bool rightToLeft = false; // and right-aligned
    bool readOnly = true;
    bool visible = true;

private:
    std::u16string text_;
    int selectionStart_ = 0;
    int selectionLength_ = 0;
};

struct Label {
    std::u16string caption;
    Box box;
    int fontSize = 9; // points
    bool visible = true;
    bool rightToLeft = false;
    bool rightAligned = false;
};

struct Gauge {
    Box box;
    int maximum = 100; // the minimum is 0
    float value = 0;
    bool visible = true;
};

struct Image {
    Box box;
    int bitmap = 0; // number of its picture
    bool visible = true;
    bool enabled = true;

    // Hidden and disabled controls are out of the pointer's reach.
    bool Reachable() const { return visible && enabled; }
};

inline constexpr std::int32_t black = 0;
inline constexpr std::int32_t white = 0xFFFFFF;

// The 105 caps. Texts are constants of the layouts, so a cap's text is never copied.
struct CapArray {
    std::array<std::u16string_view, keyboard::capCount> text{};
    std::array<std::int32_t, keyboard::capCount> foreColour{};
    std::array<std::int32_t, keyboard::capCount> backColour{};
    std::array<Box, keyboard::capCount> box{};
    std::array<bool, keyboard::capCount> rightToLeft{};
};

// A periodic timer: it fires its interval after it was started and then at every further interval
// until it is stopped. Starting a running timer changes nothing.
class Timer
{
public:
    explicit constexpr Timer(int interval) : interval_(interval) {}

    int Interval() const { return interval_; } // milliseconds
    bool Enabled() const { return enabled_; }
    // Grows with every start of a stopped timer, so that a host sees a restart between two looks.
    std::uint32_t Starts() const { return starts_; }

    void Start()
    {
        starts_ += enabled_ ? 0 : 1;
        enabled_ = true;
    }
    void Stop() { enabled_ = false; }

private:
    int interval_;
    std::uint32_t starts_ = 0;
    bool enabled_ = false;
};

} // namespace keyfluent::session
