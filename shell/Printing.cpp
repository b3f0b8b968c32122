#include "shell/Printing.h"

#include <QFile>
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
    return (inches * twipsPerInch).toSize();
}

// A file that cannot be written is found out before the toolkit tells the terminal.
bool CanBegin(const QPrinter& printer)
{
    const QString name = printer.outputFileName();
    return name.isEmpty() || QFile(name).open(QIODevice::Append);
}

} // namespace

// The copies are drawn here; a printer that copies by itself is told to make one.
void PrintOn(QPrinter& printer, const std::function<void(QPainter&, QSize page)>& drawPage)
{
    const int copies = std::max(printer.copyCount(), 1);
    printer.setCopyCount(1);
    printer.setFullPage(true);
    QPainter painter;
    if (!CanBegin(printer) || !painter.begin(&printer)) {
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

void PrintPages(QWidget* parent, const std::function<void(QPainter&, QSize page)>& drawPage)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() == QDialog::Accepted) {
        PrintOn(printer, drawPage);
    }
}

} // namespace keyfluent::shell
