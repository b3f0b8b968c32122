#include "shell/base/Boxes.h"

#include <QApplication>
#include <QPushButton>

namespace keyfluent::shell
{

std::unique_ptr<QMessageBox> MakeMessage(QMessageBox::Icon icon, const QString& text)
{
    auto box = std::make_unique<QMessageBox>(icon, QString(), text, QMessageBox::Ok,
                                             QApplication::activeWindow());
    const bool arabic = text.isRightToLeft();
    box->setTextFormat(Qt::PlainText);
    box->setAccessibleName(arabic ? QStringLiteral("كي فلونت") : QStringLiteral("KeyFluent"));
    box->setLayoutDirection(arabic ? Qt::RightToLeft : Qt::LeftToRight);
    box->button(QMessageBox::Ok)->setText(arabic ? QStringLiteral("موافق") : QStringLiteral("OK"));
    return box;
}

void ShowMessage(QMessageBox::Icon icon, const QString& text)
{
    MakeMessage(icon, text)->exec();
}

std::unique_ptr<QColorDialog> MakeColourDialog(const QColor& initial, QWidget* parent)
{
    auto dialog = std::make_unique<QColorDialog>(initial, parent);
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    return dialog;
}

QColor PickColour(const QColor& initial, QWidget* parent)
{
    const auto dialog = MakeColourDialog(initial, parent);
    return dialog->exec() == QDialog::Accepted ? dialog->selectedColor() : QColor();
}

} // namespace keyfluent::shell
