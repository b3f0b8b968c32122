// The chooser: the five Arabic and the five English exercises of the lesson, with their marks.
#pragma once

#include "shell/base/Form.h"

#include <array>
#include <string>

namespace keyfluent::shell
{

class dlgExercise : public Form
{
    Q_OBJECT

public:
    explicit dlgExercise(Program& program);

protected:
    void PaintExtra(QPainter& painter) override;
    void LightButton(ImageControl& image) override;
    void PutOutButtons() override;
    void KeyReached(QKeyEvent& event) override;

private:
    enum Column { English, Arabic };

    void AddColumn(Column column);
    void AddHeadings();
    void DescribeExercise(Column column, ImageControl& image, const std::u16string& standard,
                          const std::u16string& mark);
    void Choose(Column column, int index);
    void Cancel();

    std::array<std::array<ImageControl*, 5>, 2> exercises_{};
    std::array<int, 2> lit_ = {-1, -1}; // of each column, -1 for none
};

} // namespace keyfluent::shell
