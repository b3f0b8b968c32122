// The memory that a window's pixels are painted into and the X server reads them from.
#pragma once

class QWidget;

namespace keyfluent::shell
{

// Waits until the X server has read what was painted last in a window. The toolkit does so anyway
// before it paints there again, a round trip of a tenth of a millisecond; done in a pause it costs
// the next painting nothing. Does nothing on other platforms.
void SettleSurface(QWidget& window);

} // namespace keyfluent::shell
