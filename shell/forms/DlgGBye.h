// The last words to a student who quits. However it closes, the program ends.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class DlgGBye : public Form
{
    Q_OBJECT

public:
    explicit DlgGBye(Program& program);
};

} // namespace keyfluent::shell
