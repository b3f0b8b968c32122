// The viewer of the help pages and of the recommendations.
#pragma once

#include "shell/base/Form.h"

namespace keyfluent::shell
{

class frmViewRecommands : public Form
{
    Q_OBJECT

public:
    explicit frmViewRecommands(Program& program);

private:
    void SetUpPage();
    void Step(int by);
    std::uint8_t& Page();
    int LastPage() const;

    TextLabel* lblTitle_ = nullptr;
    TextLabel* lblhelp_ = nullptr;
    TextLabel* lblB_ = nullptr;
    ImageControl* imgKeysHands_ = nullptr;
    ImageControl* imgIcon_ = nullptr;
    ImageControl* imgIcon2_ = nullptr;
    Button next_;
    Button back_;
};

} // namespace keyfluent::shell
