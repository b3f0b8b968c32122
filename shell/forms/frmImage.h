// A picture worth seeing, one of twenty at random, after a lesson's note or a cancelled chooser.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmImage : public Form
{
    Q_OBJECT

public:
    explicit frmImage(Program& program);

protected:
    void KeyReached(QKeyEvent& event) override;

private:
    void AddCaption(int bitmap, ImageControl& picture);
};

} // namespace keyfluent::shell
