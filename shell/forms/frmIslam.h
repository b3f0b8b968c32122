// The opening picture, for two seconds.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmIslam : public Form
{
    Q_OBJECT

public:
    explicit frmIslam(Program& program);
};

} // namespace keyfluent::shell
