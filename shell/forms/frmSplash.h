// The splash picture, for two and a half seconds or until a key.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmSplash : public Form
{
    Q_OBJECT

public:
    explicit frmSplash(Program& program);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void GoOn();
};

} // namespace keyfluent::shell
