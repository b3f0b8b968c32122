// Greets a known student, whose file it reads.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmWelcome : public Form
{
    Q_OBJECT

public:
    explicit frmWelcome(Program& program);
};

} // namespace keyfluent::shell
