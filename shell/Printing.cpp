#include "shell/Printing.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

namespace keyfluent::shell
{
namespace
{

constexpr int twipsPerInch = 1440;

QSize PaperInTwips(const QPrinter& printer)
{
    const QSizeF inches = printer.pageLayout().fullRect(QPageLayout::Inch).size();
    return {static_cast<int>(inches.width() * twipsPerInch),
            static_cast<int>(inches.height() * twipsPerInch)};
}

// The copies are drawn one after another; a printer that copies by itself is told to make one.
void DrawCopies(QPrinter& printer, const std::function<void(QPainter&, QSize page)>& drawPage)
{
    const int copies = std::max(printer.copyCount(), 1);
    printer.setCopyCount(1);
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer)) {
        return;
    }
    const double scale = static_cast<double>(printer.resolution()) / twipsPerInch;
    painter.scale(scale, scale);
    for (int copy = 0; copy < copies; ++copy) {
        if (copy > 0 && !printer.newPage()) {
            return;
        }
        drawPage(painter, PaperInTwips(printer));
    }
}

} // namespace

void PrintPages(QWidget* parent, const std::function<void(QPainter&, QSize page)>& drawPage)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() == QDialog::Accepted) {
        DrawCopies(printer, drawPage);
    }
}

} // namespace keyfluent::shell
