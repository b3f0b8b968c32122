// The toolkit's own boxes: messages with an OK button, and the dialog that picks a colour.
#pragma once

#include <QColorDialog>
#include <QMessageBox>

#include <memory>

namespace keyfluent::shell
{

// A box that says a plain text and is closed by its one button. It reads the way its text does, and
// its button speaks the language of the text: Arabic or English.
std::unique_ptr<QMessageBox> MakeMessage(QMessageBox::Icon icon, const QString& text);
void ShowMessage(QMessageBox::Icon icon, const QString& text);

// Begins with a colour and has all its parts open, those for colours of one's own as well.
std::unique_ptr<QColorDialog> MakeColourDialog(const QColor& initial, QWidget* parent);
// The colour picked; an invalid one after Cancel.
QColor PickColour(const QColor& initial, QWidget* parent);

} // namespace keyfluent::shell
