#include "shell/text/FieldEditor.h"

#include "shell/platform/TextConversion.h"
#include "tests/shell/text/EditorStage.h"

#include <QInputMethodEvent>
#include <QMimeData>
#include <QSignalSpy>

namespace keyfluent::shell
{
namespace
{

void SetClipboard(std::u16string_view text)
{
    QGuiApplication::clipboard()->setText(ToQString(text));
}

std::u16string ClipboardText()
{
    return FromQString(QGuiApplication::clipboard()->text());
}

} // namespace

class FieldEditorTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void initTestCase() { QVERIFY(HasTestFaces()); }

    void TypedLettersGoInAtTheCaret()
    {
        EditorStage stage(u"ad");
        stage.Put(1, 1);
        stage.Type(u"bc");
        QVERIFY(stage.field.Text() == u"abcd");
        QCOMPARE(stage.Caret(), 3);
        QVERIFY(stage.Agree());
        QCOMPARE(stage.edits, 2);
    }

    void TypingReplacesTheSelection()
    {
        EditorStage stage(u"a\u0691\r\nbcd");
        stage.Put(5, 1);
        stage.Type(u"x");
        QVERIFY(stage.field.Text() == u"axcd");
        QVERIFY(stage.Agree());
        QCOMPARE(stage.edits, 1);
    }

    void ErasingALineEndTakesBothItsUnitsAndLeavesTheMark()
    {
        EditorStage stage(u"one\u0691\r\ntwo");
        stage.Put(6, 6);
        stage.Key(Qt::Key_Backspace);
        QVERIFY(stage.field.Text() == u"one\u0691two");
        QCOMPARE(stage.Caret(), 4);
        stage.Key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(stage.field.Text() == u"one\u0691\r\ntwo");
        stage.Put(4, 4);
        stage.Key(Qt::Key_Delete);
        QVERIFY(stage.field.Text() == u"one\u0691two");
        QVERIFY(stage.Agree());
    }

    void BackspaceTakesAMarkAndDeleteTheLetterWithIt()
    {
        EditorStage stage(u"\u0645\u064F\u062F\u064E", true);
        stage.Put(4, 4);
        stage.Key(Qt::Key_Backspace);
        QVERIFY(stage.field.Text() == u"\u0645\u064F\u062F");
        stage.Put(0, 0);
        stage.Key(Qt::Key_Delete);
        QVERIFY(stage.field.Text() == u"\u062F");
        stage.Key(Qt::Key_Delete);
        stage.Key(Qt::Key_Delete);
        stage.Key(Qt::Key_Backspace);
        QVERIFY(stage.field.Text().empty());
        QVERIFY(stage.Agree());
    }

    void ACharacterOfTwoUnitsGoesWhole()
    {
        EditorStage stage(u"a");
        stage.Put(1, 1);
        stage.Key(0, {}, QString::fromUtf16(u"\xD83D\xDE00"));
        QCOMPARE(stage.field.Size(), 3);
        stage.Key(Qt::Key_Left);
        QCOMPARE(stage.Caret(), 1);
        stage.Key(Qt::Key_Right);
        stage.Key(Qt::Key_Backspace);
        QVERIFY(stage.field.Text() == u"a");
    }

    void ReturnEndsALine()
    {
        EditorStage stage(u"ab");
        stage.Put(1, 1);
        stage.Key(Qt::Key_Return, {}, QStringLiteral("\r"));
        QVERIFY(stage.field.Text() == u"a\r\nb");
        QCOMPARE(stage.Caret(), 3);
        stage.Key(Qt::Key_Enter, Qt::KeypadModifier, QStringLiteral("\r"));
        QVERIFY(stage.field.Text() == u"a\r\n\r\nb");
        QVERIFY(stage.Agree());
    }

    void ReturnThatIsReportedChangesNothing()
    {
        EditorStage stage(u"ab");
        stage.editor.SetReturn(FieldEditor::Return::IsReported);
        QSignalSpy reported(&stage.editor, &FieldEditor::returnPressed);
        stage.Put(0, 2);
        stage.Key(Qt::Key_Return, {}, QStringLiteral("\r"));
        QCOMPARE(reported.count(), 1);
        QVERIFY(stage.field.Text() == u"ab");
        QCOMPARE(stage.edits, 0);
        // What the window then does to the record can be undone.
        stage.field.Select(1, 0);
        stage.field.Replace(1, 0, u"\u0691\r\n");
        stage.editor.Show(stage.field);
        QVERIFY(stage.Agree());
        QCOMPARE(stage.Caret(), 4);
        stage.Key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(stage.field.Text() == u"ab");
        QVERIFY(stage.Agree());
    }

    void KeysThatAreNotTheEditorsGoOn()
    {
        EditorStage stage(u"ab");
        for (const int key : {Qt::Key_Escape, Qt::Key_F1, Qt::Key_Shift, Qt::Key_Backtab}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(&stage.editor, &event);
            QVERIFY(!event.isAccepted());
        }
        QKeyEvent odd(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(0)));
        QApplication::sendEvent(&stage.editor, &odd);
        QKeyEvent menu(QEvent::KeyPress, Qt::Key_F, Qt::AltModifier, QStringLiteral("f"));
        QApplication::sendEvent(&stage.editor, &menu);
        QCOMPARE(stage.edits, 0);
        stage.Key(Qt::Key_Tab, {}, QStringLiteral("\t"));
        QVERIFY(stage.field.Text() == u"\tab");
        QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_C, Qt::ControlModifier);
        shortcut.ignore();
        QApplication::sendEvent(&stage.editor, &shortcut);
        QVERIFY(shortcut.isAccepted());
    }

    void TheLamAlefKeyGivesTwoLetters()
    {
        EditorStage stage(u"", true);
        stage.Type(u"\uFEFB\uFEF7\uFEF9\uFEF5");
        QVERIFY(stage.field.Text() == u"\u0644\u0627\u0644\u0623\u0644\u0625\u0644\u0622");
        QVERIFY(stage.Agree());
    }

    void PastedLineEndsOfAnyKindBecomeCrLf()
    {
        EditorStage stage(u"<>");
        stage.Put(1, 1);
        SetClipboard(u"a\nb\r\nc\rd\u2028e\u2029f");
        stage.Key(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(stage.field.Text() == u"<a\r\nb\r\nc\r\nd\r\ne\r\nf>");
        QVERIFY(stage.Agree());
        stage.Key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(stage.field.Text() == u"<>");
    }

    void PastedUnitsArriveAsTheyAre()
    {
        const std::u16string odd(u"\uFEFFa\0\uFFFC\xD800\u202E\uFDD0z", 8);
        EditorStage stage(u"");
        SetClipboard(odd);
        stage.Key(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(stage.field.Text() == odd);
        QVERIFY(stage.Agree());
    }

    void OnlyPlainTextIsPasted()
    {
        EditorStage stage(u"");
        auto* rich = new QMimeData;
        rich->setHtml(QStringLiteral("<b>x</b>"));
        QGuiApplication::clipboard()->setMimeData(rich);
        stage.Key(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(stage.field.Text().find(u'<') == std::u16string::npos);
        QVERIFY(stage.Agree());
    }

    void CopyAndCutGiveTheSelectionWithPlainLineEnds()
    {
        EditorStage stage(u"one\u0691\r\ntwo");
        stage.Put(2, 8);
        stage.Key(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(ClipboardText() == u"e\u0691\ntw");
        QCOMPARE(stage.edits, 0);
        stage.Key(Qt::Key_X, Qt::ControlModifier);
        QVERIFY(stage.field.Text() == u"ono");
        QVERIFY(stage.Agree());
        stage.Key(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(stage.field.Text() == u"one\u0691\r\ntwo");
        SetClipboard(u"kept");
        stage.Key(Qt::Key_C, Qt::ControlModifier); // nothing is selected
        QVERIFY(ClipboardText() == u"kept");
    }

    void WhatDoesNotFitIsLeftOut()
    {
        EditorStage stage(u"");
        SetClipboard(std::u16string(FieldEditor::mostUnits - 1, u'a') + u"\nbc");
        stage.Key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(stage.field.Size(), FieldEditor::mostUnits - 1); // no half line end
        stage.Type(u"xy");
        QCOMPARE(stage.field.Size(), FieldEditor::mostUnits);
        QVERIFY(stage.field.Text().back() == u'x');
        QVERIFY(stage.Agree());
    }

    void AFieldThatMayNotBeEditedStaysAsItIs()
    {
        EditorStage stage(u"one two");
        stage.field.readOnly = true;
        stage.editor.Show(stage.field);
        stage.Put(0, 3);
        SetClipboard(u"x");
        stage.Type(u"a");
        stage.Key(Qt::Key_Backspace);
        stage.Key(Qt::Key_X, Qt::ControlModifier);
        stage.Key(Qt::Key_V, Qt::ControlModifier);
        stage.Key(Qt::Key_Return);
        QCOMPARE(stage.edits, 0);
        QVERIFY(stage.editor.Canvas().Text() == u"one two");
        stage.Key(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(ClipboardText() == u"one");
    }

    void InputMethodsWorkOnlyWhereTheyAreAllowed()
    {
        EditorStage stage(u"ab");
        QVERIFY(!stage.editor.inputMethodQuery(Qt::ImEnabled).toBool());
        stage.editor.AllowInputMethod(true);
        QVERIFY(stage.editor.inputMethodQuery(Qt::ImEnabled).toBool());
        QVERIFY(stage.editor.testAttribute(Qt::WA_InputMethodEnabled));
        stage.field.readOnly = true;
        stage.editor.Show(stage.field);
        QVERIFY(!stage.editor.inputMethodQuery(Qt::ImEnabled).toBool());
    }

    void ComposedTextIsToldOnlyWhenItIsFinished()
    {
        EditorStage stage(u"ab\r\ncd");
        stage.editor.AllowInputMethod(true);
        stage.Put(5, 5);
        QInputMethodEvent composing(QStringLiteral("xyz"), {});
        QApplication::sendEvent(&stage.editor, &composing);
        QVERIFY(stage.editor.Canvas().Text() == u"ab\r\ncxyzd");
        QCOMPARE(stage.edits, 0);
        QCOMPARE(stage.editor.inputMethodQuery(Qt::ImSurroundingText).toString(),
                 QStringLiteral("cxyzd"));
        stage.editor.Show(stage.field); // the window shows its record now and then
        QVERIFY(stage.editor.Canvas().Text() == u"ab\r\ncxyzd");
        QInputMethodEvent done;
        done.setCommitString(QStringLiteral("\u00E9"));
        QApplication::sendEvent(&stage.editor, &done);
        QVERIFY(stage.field.Text() == u"ab\r\nc\u00E9d");
        QVERIFY(stage.Agree());
        QCOMPARE(stage.editor.inputMethodQuery(Qt::ImCursorPosition).toInt(), 2);
        QInputMethodEvent replacing;
        replacing.setCommitString(QStringLiteral("e"), -1, 1);
        QApplication::sendEvent(&stage.editor, &replacing);
        QVERIFY(stage.field.Text() == u"ab\r\nced");
    }

    void AKeyEndsComposing()
    {
        EditorStage stage(u"ab");
        stage.editor.AllowInputMethod(true);
        stage.Put(1, 1);
        QInputMethodEvent composing(QStringLiteral("xyz"), {});
        QApplication::sendEvent(&stage.editor, &composing);
        stage.Type(u"c");
        QVERIFY(stage.field.Text() == u"acb");
        QVERIFY(stage.Agree());
    }

    void TheProgramsChangeIsShownAndNotTold()
    {
        EditorStage stage(u"one two");
        QSignalSpy selected(&stage.editor, &FieldEditor::selected);
        stage.field.SetText(u"another text");
        stage.field.Select(3, 2);
        stage.editor.Show(stage.field);
        QVERIFY(stage.Agree());
        QCOMPARE(stage.edits, 0);
        QCOMPARE(selected.count(), 0);
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::FieldEditorTest)

#include "FieldEditorTest.moc"
