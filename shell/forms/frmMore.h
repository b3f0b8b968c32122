// More about the program: one page that a press anywhere closes.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmMore : public Form
{
    Q_OBJECT

public:
    explicit frmMore(Program& program);
};

} // namespace keyfluent::shell
