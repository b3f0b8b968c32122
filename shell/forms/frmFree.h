// Asks for the letters of an anagram and for the keyboard to type them on.
#pragma once

#include "shell/base/Form.h"

class QLineEdit;

namespace keyfluent::shell
{

class frmFree : public Form
{
    Q_OBJECT

public:
    explicit frmFree(Program& program);

private:
    void ShowLanguage();
    void Confirm();

    QLineEdit* txtFree_ = nullptr;
    ImageControl* imgKeyboard_ = nullptr;
    Button ok_;
};

} // namespace keyfluent::shell
