#include "shell/text/FieldAccessible.h"

#include "tests/shell/text/EditorStage.h"
#include "tests/shell/text/RowStage.h"

#include <QAccessible>

namespace keyfluent::shell
{
namespace
{

QAccessibleInterface* InterfaceOf(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget);
}

} // namespace

class FieldAccessibleTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void initTestCase() { QVERIFY(HasTestFaces()); }

    void ARowViewIsAReadOnlyText()
    {
        Stage stage(RowView::Keep::Selection, rowSize);
        stage.view.setAccessibleName(QStringLiteral("Row to copy"));
        stage.view.Show(MakeField(arabicRow, true, 3, 1));
        QAccessibleInterface* field = InterfaceOf(stage.view);
        QVERIFY(field);
        QCOMPARE(field->role(), QAccessible::EditableText);
        QCOMPARE(field->text(QAccessible::Name), QStringLiteral("Row to copy"));
        QCOMPARE(field->text(QAccessible::Value), QString::fromStdU16String(arabicRow));
        QVERIFY(field->state().readOnly);
        QVERIFY(!field->state().editable);
        QVERIFY(!field->editableTextInterface());

        QAccessibleTextInterface* text = field->textInterface();
        QVERIFY(text);
        QCOMPARE(text->characterCount(), static_cast<int>(arabicRow.size()));
        QCOMPARE(text->text(0, -1), QString::fromStdU16String(arabicRow));
        QCOMPARE(text->text(4, 6), QString::fromStdU16String(arabicRow.substr(4, 2)));
        QCOMPARE(text->text(4, 999), QString::fromStdU16String(arabicRow.substr(4)));
        QCOMPARE(text->cursorPosition(), 3);
        QCOMPARE(text->selectionCount(), 1);
        int start = -1;
        int end = -1;
        text->selection(0, &start, &end);
        QCOMPARE(start, 3);
        QCOMPARE(end, 4);
        text->setSelection(0, 0, 5);
        QCOMPARE(text->cursorPosition(), 3);
    }

    void TheCaretOfACopyStandsWhereTheNextLetterGoes()
    {
        Stage stage(RowView::Keep::End, rowSize);
        stage.view.Show(MakeField(latinRow, false, 0, 0));
        QAccessibleTextInterface* text = InterfaceOf(stage.view)->textInterface();
        QCOMPARE(text->cursorPosition(), static_cast<int>(latinRow.size()));
        stage.view.Show(MakeField(latinRow.substr(0, 2), false, 0, 0));
        QCOMPARE(text->cursorPosition(), 2);
    }

    void PlacesOfLettersAreThoseOnTheScreen()
    {
        Stage stage(RowView::Keep::Selection, rowSize);
        stage.view.Show(MakeField(latinRow, false, 0, 1));
        QAccessibleTextInterface* text = InterfaceOf(stage.view)->textInterface();
        const QRect letter = stage.view.Canvas().LetterRect(2);
        QCOMPARE(text->characterRect(2),
                 QRect(stage.view.mapToGlobal(letter.topLeft()), letter.size()));
        const QPoint point(letter.left() + 1, letter.center().y());
        QCOMPARE(text->offsetAtPoint(stage.view.mapToGlobal(point)), 2);
        int start = -1;
        int end = -1;
        QVERIFY(text->attributes(1, &start, &end).isEmpty());
        QCOMPARE(end, static_cast<int>(latinRow.size()));
    }

    void ALetterOutOfViewCanBeScrolledTo()
    {
        Stage stage(RowView::Keep::Selection, passageSize);
        const std::u16string passage = Passage(false, 15);
        stage.view.Show(MakeField(passage, false, 0, 1));
        QAccessibleTextInterface* text = InterfaceOf(stage.view)->textInterface();
        const int last = static_cast<int>(passage.size()) - 1;
        QVERIFY(text->characterRect(last).isEmpty());
        text->scrollToSubstring(last, last + 1);
        QVERIFY(!text->characterRect(last).isEmpty());
    }

    void AChangeIsToldAsWhatItIs()
    {
        QWidget field;
        TextCanvas canvas(ExerciseTestFont());
        canvas.SetText(u"axc");
        canvas.Select(1, 2);

        auto events = EventsOf(&field, {2, u"", u"c"}, canvas, 2);
        QCOMPARE(events.size(), std::size_t(2));
        QCOMPARE(events[0]->type(), QAccessible::TextInserted);
        QVERIFY(events[0]->object() == &field);
        auto* inserted = static_cast<QAccessibleTextInsertEvent*>(events[0].get());
        QCOMPARE(inserted->changePosition(), 2);
        QCOMPARE(inserted->textInserted(), QStringLiteral("c"));
        QCOMPARE(events[1]->type(), QAccessible::TextSelectionChanged);
        auto* selection = static_cast<QAccessibleTextSelectionEvent*>(events[1].get());
        QCOMPARE(selection->selectionStart(), 1);
        QCOMPARE(selection->selectionEnd(), 2);
        QCOMPARE(selection->cursorPosition(), 2);

        events = EventsOf(&field, {1, u"b", u"x"}, canvas, 2);
        QCOMPARE(events[0]->type(), QAccessible::TextUpdated);
        auto* updated = static_cast<QAccessibleTextUpdateEvent*>(events[0].get());
        QCOMPARE(updated->textRemoved(), QStringLiteral("b"));
        QCOMPARE(updated->textInserted(), QStringLiteral("x"));

        events = EventsOf(&field, {1, u"xc", u""}, canvas, 1);
        QCOMPARE(events[0]->type(), QAccessible::TextRemoved);
        auto* removed = static_cast<QAccessibleTextRemoveEvent*>(events[0].get());
        QCOMPARE(removed->changePosition(), 1);
        QCOMPARE(removed->textRemoved(), QStringLiteral("xc"));

        events = EventsOf(&field, {}, canvas, 1);
        QCOMPARE(events.size(), std::size_t(1));
        QCOMPARE(events[0]->type(), QAccessible::TextSelectionChanged);
    }

    void AnEditorCanBeEditedAndItsCaretMoved()
    {
        EditorStage stage(u"one\r\ntwo");
        QAccessibleInterface* field = InterfaceOf(stage.editor);
        QVERIFY(field->state().editable && !field->state().readOnly);
        QAccessibleTextInterface* text = field->textInterface();
        QCOMPARE(text->characterCount(), 8);
        text->setCursorPosition(7);
        QCOMPARE(text->cursorPosition(), 7);
        text->setSelection(0, 5, 8);
        QCOMPARE(text->selectionCount(), 1);
        QVERIFY(stage.Agree());
        QAccessibleEditableTextInterface* editable = field->editableTextInterface();
        QVERIFY(editable);
        editable->replaceText(5, 8, QStringLiteral("2\n3"));
        QVERIFY(stage.field.Text() == u"one\r\n2\r\n3");
        editable->insertText(0, QStringLiteral("0"));
        editable->deleteText(1, 4);
        QVERIFY(stage.field.Text() == u"0\r\n2\r\n3");
        field->setText(QAccessible::Value, QStringLiteral("all"));
        QVERIFY(stage.field.Text() == u"all");
        QVERIFY(stage.Agree());
        stage.field.readOnly = true;
        stage.editor.Show(stage.field);
        QVERIFY(field->state().readOnly);
        QVERIFY(!field->editableTextInterface());
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::FieldAccessibleTest)

#include "FieldAccessibleTest.moc"
