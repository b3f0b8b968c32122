// The sign-in: asks for the student's name.
#pragma once

#include "shell/base/Form.h"
#include <string>

class QLineEdit;

namespace keyfluent::shell
{

class frmEName : public Form
{
    Q_OBJECT

public:
    explicit frmEName(Program& program);

protected:
    void Activated() override;

private:
    void Confirm();
    void Cancel();

    std::u16string nameAtOpening_;
    QLineEdit* txtName_ = nullptr;
};

} // namespace keyfluent::shell
