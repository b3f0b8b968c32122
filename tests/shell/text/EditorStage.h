// An editor on show beside the record that it edits, for the tests of the editor.
#pragma once

#include "session/Review.h"
#include "shell/text/FieldEditor.h"

#include "tests/shell/text/FieldTestSupport.h"

#include <QClipboard>
#include <QKeyEvent>

namespace keyfluent::shell
{

// The record is edited by what the editor tells alone, as the window does it.
struct EditorStage {
    explicit EditorStage(std::u16string_view text, bool rightToLeft = false,
                         QSize size = {627, 157})
        : editor(ExerciseTestFont(), &window), field(MakeField(text, rightToLeft))
    {
        QObject::connect(&editor, &FieldEditor::edited, &editor,
                         [this](int position, int removed, const std::u16string& inserted) {
                             ++edits;
                             session::EditField(field, position, removed, inserted);
                         });
        QObject::connect(&editor, &FieldEditor::selected, &editor,
                         [this](int start, int length) { field.Select(start, length); });
        field.readOnly = false;
        window.resize(size + QSize(20, 20));
        editor.setGeometry(10, 10, size.width(), size.height());
        editor.Show(field);
        window.show();
        QApplication::processEvents();
        window.activateWindow();
        editor.setFocus();
        QApplication::processEvents();
    }

    void Key(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(&editor, &event);
    }
    void Type(std::u16string_view letters)
    {
        for (const char16_t letter : letters) {
            Key(0, {}, QString(QChar(letter)));
        }
    }
    void Put(int anchor, int caret) { editor.Select(anchor, caret); }
    int Caret() { return editor.Canvas().Caret(); }

    // A point on the leading part of the letter at position, which must be in view.
    QPoint PointOf(int position)
    {
        const QRect letter = editor.Canvas().LetterRect(position);
        const bool rightToLeft = field.rightToLeft;
        return {rightToLeft ? letter.right() - letter.width() / 8
                            : letter.left() + letter.width() / 4,
                letter.center().y()};
    }

    // The editor shows what the record holds.
    bool Agree()
    {
        TextCanvas& canvas = editor.Canvas();
        return canvas.Text() == field.Text() && canvas.SelectionStart() == field.SelectionStart() &&
               canvas.SelectionEnd() == field.SelectionStart() + field.SelectionLength();
    }

    QWidget window;
    FieldEditor editor;
    session::TextField field;
    int edits = 0;
};

} // namespace keyfluent::shell
