// Printing through the desktop's printers.
#pragma once

#include <QSize>

#include <functional>

class QPainter;
class QWidget;

namespace keyfluent::shell
{

// See Desktop::printPages.
void PrintPages(QWidget* parent, const std::function<void(QPainter&, QSize page)>& drawPage);

} // namespace keyfluent::shell
