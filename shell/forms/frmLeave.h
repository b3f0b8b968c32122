// Asks on leaving whether to save.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmLeave : public Form
{
    Q_OBJECT

public:
    explicit frmLeave(Program& program);

private:
    void Leave();
};

} // namespace keyfluent::shell
