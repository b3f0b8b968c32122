// The mouse on the editor, and what the editor paints.
#include "shell/text/FieldEditor.h"

#include "shell/platform/TextConversion.h"
#include "tests/shell/text/EditorStage.h"

#include <QSignalSpy>
#include <QStyleHints>
#include <QWheelEvent>

namespace keyfluent::shell
{

class FieldEditorMouseTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void initTestCase() { QVERIFY(HasTestFaces()); }

    void AClickPutsTheCaretBeforeTheLetter_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("latin") << ToQString(latinRow + u"\r\n" + latinRow) << false;
        QTest::newRow("arabic") << ToQString(arabicRow + u"\r\n" + arabicRow) << true;
    }

    void AClickPutsTheCaretBeforeTheLetter()
    {
        QFETCH(QString, text);
        QFETCH(bool, rightToLeft);
        EditorStage stage(FromQString(text), rightToLeft);
        for (int at = 0; at < stage.field.Size(); ++at) {
            const char16_t unit = stage.field.Text()[static_cast<std::size_t>(at)];
            const bool digit = rightToLeft && unit >= u'0' && unit <= u'9';
            if (digit || unit == u'\n') {
                continue; // digits begin on their left, and a line end is one place
            }
            QTest::mouseClick(&stage.editor, Qt::LeftButton, {}, stage.PointOf(at));
            QCOMPARE(stage.Caret(), at);
            QVERIFY(stage.Agree());
        }
    }

    void DraggingSelects()
    {
        EditorStage stage(u"one two\r\nthree four");
        QTest::mousePress(&stage.editor, Qt::LeftButton, {}, stage.PointOf(12));
        Drag(stage, stage.PointOf(4));
        QTest::mouseRelease(&stage.editor, Qt::LeftButton, {}, stage.PointOf(4));
        QCOMPARE(stage.editor.Canvas().Anchor(), 12);
        QCOMPARE(stage.Caret(), 4);
        QVERIFY(stage.Agree());
        Drag(stage, stage.PointOf(1)); // no button is down
        QCOMPARE(stage.Caret(), 4);
        QTest::mouseClick(&stage.editor, Qt::LeftButton, Qt::ShiftModifier, stage.PointOf(10));
        QCOMPARE(stage.editor.Canvas().Anchor(), 12);
        QCOMPARE(stage.Caret(), 10);
    }

    void ADoubleClickSelectsAWordAndAThirdAParagraph()
    {
        EditorStage stage(u"one two\r\nthree");
        QTest::mouseDClick(&stage.editor, Qt::LeftButton, {}, stage.PointOf(5));
        QCOMPARE(stage.field.SelectionStart(), 4);
        QCOMPARE(stage.field.SelectionLength(), 3);
        Drag(stage, stage.PointOf(1));
        QCOMPARE(stage.field.SelectionStart(), 0);
        QCOMPARE(stage.field.SelectionLength(), 7);
        QTest::mouseRelease(&stage.editor, Qt::LeftButton, {}, stage.PointOf(1));

        SendPress(stage, QEvent::MouseButtonDblClick, stage.PointOf(5), 1000);
        SendPress(stage, QEvent::MouseButtonPress, stage.PointOf(5), 1050);
        QCOMPARE(stage.field.SelectionStart(), 0);
        QCOMPARE(stage.field.SelectionLength(), 9); // with its line end
        SendPress(stage, QEvent::MouseButtonPress, stage.PointOf(5), 1100);
        QCOMPARE(stage.field.SelectionLength(), 0);
        SendPress(stage, QEvent::MouseButtonDblClick, stage.PointOf(5), 2000);
        const auto later =
            2001 + static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        SendPress(stage, QEvent::MouseButtonPress, stage.PointOf(5), later);
        QCOMPARE(stage.field.SelectionLength(), 0);
        QVERIFY(stage.Agree());
    }

    void ADragBelowTheFieldScrollsOn()
    {
        EditorStage stage(Passage(false, 20));
        QTest::mousePress(&stage.editor, Qt::LeftButton, {}, stage.PointOf(3));
        Drag(stage, {100, 400});
        QTRY_COMPARE(stage.Caret() > stage.field.Size() / 2, true);
        QCOMPARE(stage.editor.Canvas().Anchor(), 3);
        QTest::mouseRelease(&stage.editor, Qt::LeftButton, {}, {100, 400});
        const int caret = stage.Caret();
        QTest::qWait(150);
        QCOMPARE(stage.Caret(), caret);
        QVERIFY(stage.Agree());
    }

    void TheWheelScrollsAndATypedLetterComesBack()
    {
        EditorStage stage(Passage(false, 20));
        QWheelEvent wheel({10, 10}, stage.editor.mapToGlobal(QPointF(10, 10)), {}, {0, -240},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&stage.editor, &wheel);
        QCOMPARE(stage.editor.Canvas().TopLine(), 6);
        QCOMPARE(stage.Caret(), 0);
        stage.Type(u"a");
        QCOMPARE(stage.editor.Canvas().TopLine(), 0);
    }

    void ButtonsAreTold()
    {
        EditorStage stage(u"one");
        QSignalSpy pressed(&stage.editor, &FieldEditor::pressed);
        QSignalSpy clicked(&stage.editor, &FieldEditor::clicked);
        QTest::mouseClick(&stage.editor, Qt::RightButton, {}, {5, 5});
        QTest::mouseClick(&stage.editor, Qt::LeftButton, {}, {5, 5});
        QCOMPARE(pressed.count(), 2);
        QCOMPARE(clicked.count(), 2);
        QCOMPARE(pressed.at(0).at(0).value<Qt::MouseButton>(), Qt::RightButton);
    }

    void ATypedLetterPaintsItsLineOnly()
    {
        for (const bool oneParagraph : {false, true}) {
            std::u16string text = Passage(false, 4);
            if (oneParagraph) {
                text.clear();
                for (int i = 0; i < 60; ++i) {
                    text += u"words ";
                }
            }
            EditorStage stage(text);
            stage.Put(80, 80);
            PaintLog log(stage.editor);
            const QRect line = stage.editor.Canvas().LetterRect(80);
            stage.Type(u"i");
            const QRegion painted = log.Take();
            const std::string state = Describe(painted);
            QVERIFY2(painted.boundingRect().top() == line.top(), state.c_str());
            QVERIFY2(painted.boundingRect().height() == line.height(), state.c_str());
            QCOMPARE(log.Screen(), Picture(stage.editor));
        }
    }

    void AMovedCaretPaintsTwoCarets()
    {
        EditorStage stage(Passage(true, 4), true);
        stage.Put(20, 20);
        TextCanvas& canvas = stage.editor.Canvas();
        PaintLog log(stage.editor);
        const QRect before = canvas.CaretRect(20);
        stage.Put(90, 90);
        const QRegion painted = log.Take();
        QCOMPARE(painted, QRegion(before) + canvas.CaretRect(90));
        QCOMPARE(log.Screen(), Picture(stage.editor));
    }

    void TheCaretBlinksAndNothingElseIsPainted()
    {
        EditorStage stage(u"one");
        const int flash = QGuiApplication::styleHints()->cursorFlashTime();
        QGuiApplication::styleHints()->setCursorFlashTime(40);
        stage.Put(1, 1);
        PaintLog log(stage.editor);
        QRegion painted;
        QVERIFY(QTest::qWaitFor([&] { return !(painted = log.Take()).isEmpty(); }));
        QCOMPARE(painted, QRegion(stage.editor.Canvas().CaretRect(1)));
        stage.editor.clearFocus();
        QTest::qWait(50);
        log.Take();
        QTest::qWait(100);
        QVERIFY(log.Take().isEmpty());
        QGuiApplication::styleHints()->setCursorFlashTime(flash);
    }

    void AnEditorLooksAsTheRowViewDoes()
    {
        EditorStage stage(Passage(true, 3), true);
        stage.editor.clearFocus();
        TextCanvas canvas(ExerciseTestFont());
        canvas.Resize(stage.editor.size());
        canvas.SetLook(12, true);
        canvas.SetText(stage.field.Text());
        QImage image(stage.editor.size(), QImage::Format_RGB32);
        QPainter painter(&image);
        canvas.TakeDamage();
        canvas.Paint(painter, QRect({0, 0}, stage.editor.size()));
        painter.end();
        QCOMPARE(Picture(stage.editor), image);
    }

private:
    static void Drag(EditorStage& stage, QPoint point)
    {
        const Qt::MouseButtons buttons =
            QGuiApplication::mouseButtons() & Qt::LeftButton ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent move(QEvent::MouseMove, point, stage.editor.mapToGlobal(QPointF(point)),
                         Qt::NoButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(&stage.editor, &move);
    }

    static void SendPress(EditorStage& stage, QEvent::Type type, QPoint point, quint64 time)
    {
        QMouseEvent press(type, point, stage.editor.mapToGlobal(QPointF(point)), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        press.setTimestamp(time);
        QApplication::sendEvent(&stage.editor, &press);
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::FieldEditorMouseTest)

#include "FieldEditorMouseTest.moc"
