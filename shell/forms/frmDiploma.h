// The diploma of the signed-in student, on the screen and on paper.
#pragma once

#include "progress/Diploma.h"
#include "shell/base/Form.h"

class QPrinter;

namespace keyfluent::shell
{

class frmDiploma : public Form
{
    Q_OBJECT

public:
    explicit frmDiploma(Program& program);

protected:
    void PaintExtra(QPainter& painter) override;

private:
    void Print();

    progress::DiplomaTexts texts_;
};

// Draws one page: the sheet in the middle, at its own size, and the three texts at their places.
// page is the size of the paper in twips. painter draws in twips.
void DrawDiplomaPage(QPainter& painter, const progress::DiplomaTexts& texts, QSize page);

} // namespace keyfluent::shell
