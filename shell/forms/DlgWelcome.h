// Greets a name that has no file yet, and asks whether to be a new student.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class DlgWelcome : public Form
{
    Q_OBJECT

public:
    explicit DlgWelcome(Program& program);
};

} // namespace keyfluent::shell
