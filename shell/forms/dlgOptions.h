// The options before an exercise: its note, and the five aids of its place.
#pragma once

#include "course/Aids.h"
#include "shell/base/Form.h"

#include <array>

namespace keyfluent::shell
{

class dlgOptions : public Form
{
    Q_OBJECT

public:
    explicit dlgOptions(Program& program);

protected:
    void PaintExtra(QPainter& painter) override;

private:
    void AddNote();
    void AddAids();
    void DrawAid(course::Aid aid);
    void TurnAid(course::Aid aid);
    void Confirm();

    struct AidControl {
        ImageControl* image = nullptr;
        TextLabel* label = nullptr;
    };

    course::AidPlan plan_;
    std::array<AidControl, course::aidCount> aids_{};
};

} // namespace keyfluent::shell
