// A gauge of the exercise window. To assistive technology it is a progress bar with its values.
#pragma once

#include "session/Controls.h"

#include <QProgressBar>

namespace keyfluent::shell
{

class GaugeBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit GaugeBar(QWidget* parent, const QColor& colour);

    void Show(const session::Gauge& gauge);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour_;
};

} // namespace keyfluent::shell
