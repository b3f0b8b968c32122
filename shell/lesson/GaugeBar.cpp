#include "shell/lesson/GaugeBar.h"

#include "shell/base/Twips.h"

#include <QPainter>

namespace keyfluent::shell
{

GaugeBar::GaugeBar(QWidget* parent, const QColor& colour) : QProgressBar(parent), colour_(colour)
{
    setTextVisible(false);
    setMinimum(0);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void GaugeBar::Show(const session::Gauge& gauge)
{
    setMaximum(gauge.maximum);
    setValue(static_cast<int>(gauge.value));
    setGeometry(PixelsOf(gauge.box));
    setVisible(gauge.visible);
}

void GaugeBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0x6B, 0x7F, 0x8C));
    const QRect inside = rect().adjusted(1, 1, -1, -1);
    painter.fillRect(inside, Qt::white);
    const int filled = maximum() > 0 ? inside.width() * value() / maximum() : 0;
    painter.fillRect(inside.left(), inside.top(), filled, inside.height(), colour_);
}

} // namespace keyfluent::shell
