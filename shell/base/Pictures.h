// The numbered pictures of the program.
#pragma once

#include <QPixmap>

namespace keyfluent::shell
{

// A picture by its number, in the size that its table gives and as sharp as the screen shows it.
// ratio is the screen's device pixels to a pixel of the layout. Each picture is decoded once for a
// ratio and kept. A number without a picture is a fault of the build and ends the program.
QPixmap LoadBitmap(int id, qreal ratio);

// A picture that covers a size, in device pixels, of at least one by one: scaled in its own shape,
// with what is left over cut off evenly. It is not kept.
QPixmap ScaledBackdrop(int id, QSize size);

} // namespace keyfluent::shell
