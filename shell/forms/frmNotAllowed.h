// The caution after a click into the text fields of an exercise.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmNotAllowed : public Form
{
    Q_OBJECT

public:
    explicit frmNotAllowed(Program& program);
};

} // namespace keyfluent::shell
