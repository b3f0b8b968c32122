// The outcome of an exercise. A click anywhere closes it.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmResult : public Form
{
    Q_OBJECT

public:
    explicit frmResult(Program& program);

protected:
    void PaintExtra(QPainter& painter) override;
};

} // namespace keyfluent::shell
