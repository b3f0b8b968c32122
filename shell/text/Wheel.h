// Turns of the mouse wheel as lines of text.
#pragma once

#include <QWheelEvent>

namespace keyfluent::shell
{

// Lines to scroll by, downwards positive. angle keeps what is less than a line, in eighths of a
// degree, until the next turn.
inline int WheelLines(const QWheelEvent& event, int& angle)
{
    constexpr int anglePerLine = 120 / 3;
    angle += event.angleDelta().y();
    const int lines = angle / anglePerLine;
    angle -= lines * anglePerLine;
    return -lines;
}

} // namespace keyfluent::shell
