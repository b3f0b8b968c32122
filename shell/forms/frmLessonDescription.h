// The note of a lesson that the student has chosen in the menu.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmLessonDescription : public Form
{
    Q_OBJECT

public:
    explicit frmLessonDescription(Program& program);

protected:
    void PutOutButtons() override;

private:
    void Blink();
    void FollowPointer(bool held, bool inside);

    ImageControl* cmdThank_ = nullptr;
    QTimer* timer_ = nullptr;
    bool lit_ = false;
};

} // namespace keyfluent::shell
