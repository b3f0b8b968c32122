// The unit of the design: 15 twips are one device-independent pixel, at every scale of the screen.
#pragma once

#include "session/Controls.h"

#include <QRect>
#include <QRgb>

#include <cstdint>

namespace keyfluent::shell
{

inline constexpr int twipsPerPixel = 15;

constexpr int Pixels(int twips)
{
    return twips / twipsPerPixel;
}
constexpr int Twips(int pixels)
{
    return pixels * twipsPerPixel;
}

inline QRect PixelRect(int left, int top, int width, int height)
{
    return {Pixels(left), Pixels(top), Pixels(width), Pixels(height)};
}

// A colour of the state: 24 bits with red in the lowest byte.
constexpr QRgb RgbOf(std::int32_t colour)
{
    return qRgb(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

// The pixels of a box of the record.
inline QRect PixelsOf(const session::Box& box)
{
    return PixelRect(box.left, box.top, box.width, box.height);
}

} // namespace keyfluent::shell
