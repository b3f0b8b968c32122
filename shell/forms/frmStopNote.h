// What a student who stopped an exercise is told: one of ten notes, Arabic in any case.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmStopNote : public Form
{
    Q_OBJECT

public:
    // note 1 to 10, drawn by the exercise that stopped.
    frmStopNote(Program& program, int note);
};

} // namespace keyfluent::shell
