// Printing through the desktop's printers.
#pragma once

#include <QSize>

#include <functional>

class QPainter;
class QPrinter;
class QWidget;

namespace keyfluent::shell
{

// Draws the printer's number of copies on it, one after another, each on a page of its own, on a
// painter that counts in twips from the paper's corner. Ends without a word where the printer
// fails.
void PrintOn(QPrinter& printer, const std::function<void(QPainter&, QSize page)>& drawPage);

// Asks for a printer first; see Desktop::printPages.
void PrintPages(QWidget* parent, const std::function<void(QPainter&, QSize page)>& drawPage);

} // namespace keyfluent::shell
