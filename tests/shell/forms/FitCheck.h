// Whether a window has room for all that it says.
#pragma once

#include <QByteArray>
#include <QRegion>

class QWidget;

namespace keyfluent::shell
{

class TextLabel;

// The pixels that a label paints, in its window.
QRegion InkOf(const TextLabel& label);

// What is wrong in the window, one line for each fault; empty when nothing is. A label that shows
// must have room for its whole text within the window, a caption within the face of its button, and
// no text may stand on another text or on a picture or field that is not its own. mayCover names
// labels that are meant to stand on a picture. The window need not be shown.
QByteArray FaultsOfFit(QWidget& window, const QByteArray& mayCover = {});

} // namespace keyfluent::shell
