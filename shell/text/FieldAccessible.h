// The text fields as assistive technology sees them: text, caret, selection and the places of the
// letters. Positions are those of the string.
#pragma once

#include "shell/text/TextCanvas.h"

#include <QAccessible>
#include <QWidget>

#include <memory>
#include <vector>

namespace keyfluent::shell
{

// From here on RowView and FieldEditor answer as text fields. Calling it again does nothing.
void InstallFieldAccessibility();

// What there is to tell of a change of field: of its text, if that has changed, and then of its
// caret and selection. caret is the position that the field answers when it is asked for it.
std::vector<std::unique_ptr<QAccessibleEvent>> EventsOf(QWidget* field, const TextChange& change,
                                                        const TextCanvas& canvas, int caret);

// Tells that field has changed. Costs nothing while nobody listens.
void TellAssistants(QWidget* field, const TextChange& change, const TextCanvas& canvas, int caret);

} // namespace keyfluent::shell
