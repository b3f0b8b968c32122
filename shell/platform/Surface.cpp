#include "shell/platform/Surface.h"

#include <QBackingStore>
#include <QGuiApplication>
#include <QWidget>

namespace keyfluent::shell
{

void SettleSurface(QWidget& window)
{
    QBackingStore* surface = window.backingStore();
    if (surface == nullptr || QGuiApplication::platformName() != QLatin1String("xcb")) {
        return;
    }
    // Beginning to paint is what waits.
    surface->beginPaint(window.rect());
    surface->endPaint();
}

} // namespace keyfluent::shell
