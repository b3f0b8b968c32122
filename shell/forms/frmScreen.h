// Tells that the screen is too small; its only way out ends the program.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmScreen : public Form
{
    Q_OBJECT

public:
    // screen in device-independent pixels.
    frmScreen(Program& program, QSize screen);
};

} // namespace keyfluent::shell
