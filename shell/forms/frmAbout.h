// About the program.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmAbout : public Form
{
    Q_OBJECT

public:
    explicit frmAbout(Program& program);
};

} // namespace keyfluent::shell
