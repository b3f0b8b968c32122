// Whatever a student does, the record that follows the editor's reports holds the same text.
#include "shell/text/FieldEditor.h"

#include "shell/platform/TextConversion.h"
#include "tests/shell/text/EditorStage.h"

#include <QInputMethodEvent>
#include <QMouseEvent>

namespace keyfluent::shell
{
namespace
{

std::u16string RandomText(std::mt19937& random, unsigned most)
{
    static const std::u16string pieces[] = {
        u"a",      u"Word ",        u"\r\n",   u"\r",           u"\n",
        u"\u2028", u"\u2029",       u"\u0691", u"\u0644\u0627", u"\u0645\u064F",
        u" ",      u"\u0643\u062A", u"12",     u"\xD83D\xDE00", u"\t"};
    std::u16string text;
    for (auto count = random() % (most + 1); count > 0; --count) {
        text += pieces[random() % std::size(pieces)];
    }
    return text;
}

// Every line end that the editor has put in is a CR LF.
bool HasOnlyWholeLineEnds(const std::u16string& text)
{
    return WithLineEnds(text, u"\r\n") == text;
}

class RandomStudent
{
public:
    RandomStudent(EditorStage& stage, unsigned seed) : stage_(stage), random_(seed) {}

    void DoSomething()
    {
        switch (random_() % 14) {
        case 0:
        case 1:
        case 2:
        case 3:
            stage_.Type(random_() % 5 ? u"x" : u"\u0628");
            break;
        case 4:
            stage_.Key(random_() % 2 ? Qt::Key_Backspace : Qt::Key_Delete,
                       random_() % 4 ? Qt::NoModifier : Qt::ControlModifier);
            break;
        case 5:
            stage_.Key(Qt::Key_Return);
            break;
        case 6:
            Move();
            break;
        case 7:
            Click();
            break;
        case 8:
            QGuiApplication::clipboard()->setText(ToQString(RandomText(random_, 8)));
            stage_.Key(Qt::Key_V, Qt::ControlModifier);
            break;
        case 9:
            stage_.Key(random_() % 3 ? Qt::Key_X : Qt::Key_C, Qt::ControlModifier);
            break;
        case 10:
            stage_.Key(Qt::Key_Z, Qt::ControlModifier);
            break;
        case 11:
            stage_.Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
            break;
        case 12:
            Compose();
            break;
        case 13:
            ChangeByProgram();
            break;
        }
    }

private:
    void Move()
    {
        static constexpr Qt::Key keys[] = {Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,
                                           Qt::Key_Down,   Qt::Key_Home,     Qt::Key_End,
                                           Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_A};
        const Qt::Key key = keys[random_() % std::size(keys)];
        Qt::KeyboardModifiers modifiers;
        modifiers.setFlag(Qt::ShiftModifier, random_() % 2);
        modifiers.setFlag(Qt::ControlModifier, random_() % 3 == 0 || key == Qt::Key_A);
        stage_.Key(key, modifiers);
    }

    void Click()
    {
        const QPoint point(static_cast<int>(random_() % 627), static_cast<int>(random_() % 157));
        const Qt::KeyboardModifiers modifiers = random_() % 2 ? Qt::ShiftModifier : Qt::NoModifier;
        if (random_() % 4) {
            QTest::mouseClick(&stage_.editor, Qt::LeftButton, modifiers, point);
        } else {
            QTest::mouseDClick(&stage_.editor, Qt::LeftButton, modifiers, point);
        }
    }

    void Compose()
    {
        QInputMethodEvent composing(ToQString(RandomText(random_, 2)), {});
        QApplication::sendEvent(&stage_.editor, &composing);
        if (random_() % 2) {
            QInputMethodEvent done;
            done.setCommitString(ToQString(RandomText(random_, 2)));
            QApplication::sendEvent(&stage_.editor, &done);
        } else {
            QInputMethodEvent given_up;
            QApplication::sendEvent(&stage_.editor, &given_up);
        }
    }

    void ChangeByProgram()
    {
        stage_.field.Replace(
            stage_.editor.Canvas().Flow().Map().CaretPlace(stage_.field.SelectionStart()), 0,
            u"\u0691\r\n");
        if (random_() % 2) {
            stage_.field.Select(static_cast<int>(random_() % 50), static_cast<int>(random_() % 9));
        }
        stage_.editor.Show(stage_.field);
    }

    EditorStage& stage_;
    std::mt19937 random_;
};

} // namespace

class FieldEditorDriftTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void initTestCase() { QVERIFY(HasTestFaces()); }

    void TenThousandEditsKeepBothSidesEqual_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("left to right") << false;
        QTest::newRow("right to left") << true;
    }

    void TenThousandEditsKeepBothSidesEqual()
    {
        QFETCH(bool, rightToLeft);
        EditorStage stage(Passage(rightToLeft, 3), rightToLeft);
        stage.editor.AllowInputMethod(true);
        RandomStudent student(stage, rightToLeft ? 8 : 7);
        for (int round = 0; round < 10000; ++round) {
            student.DoSomething();
            const std::string state = "round " + std::to_string(round);
            QVERIFY2(stage.Agree(), state.c_str());
            QVERIFY2(HasOnlyWholeLineEnds(stage.field.Text()), state.c_str());
            if (round % 500 == 0 && stage.field.Size() > 2000) {
                stage.field.SetText(Passage(rightToLeft, 2));
                stage.editor.Show(stage.field);
            }
        }
        QVERIFY(stage.edits > 5000);
    }

    // A text that holds other line ends than the editor's own keeps them as they are.
    void LineEndsOfTheProgramStayAsTheyAre()
    {
        std::mt19937 random(9);
        for (int round = 0; round < 300; ++round) {
            EditorStage stage(RandomText(random, 20), round % 2 == 0);
            RandomStudent student(stage, static_cast<unsigned>(round));
            for (int i = 0; i < 30; ++i) {
                student.DoSomething();
                QVERIFY2(stage.Agree(), std::to_string(round).c_str());
                const PositionMap map(stage.field.Text());
                QCOMPARE(stage.editor.Canvas().Flow().Map().ParagraphCount(), map.ParagraphCount());
            }
        }
    }

    void UndoingEverythingGivesTheTextOfTheStart()
    {
        for (unsigned seed = 0; seed < 20; ++seed) {
            const std::u16string start = Passage(seed % 2 == 0, 2);
            EditorStage stage(start, seed % 2 == 0);
            RandomStudent student(stage, seed);
            for (int i = 0; i < 200; ++i) {
                student.DoSomething();
            }
            const std::u16string end = stage.field.Text();
            Repeat(stage, Qt::ControlModifier);
            QVERIFY(stage.field.Text() == start);
            Repeat(stage, Qt::ControlModifier | Qt::ShiftModifier);
            Repeat(stage, Qt::ControlModifier);
            QVERIFY(stage.field.Text() == start);
            QVERIFY(stage.Agree());
        }
    }

private:
    // Undoes or redoes until nothing changes.
    static void Repeat(EditorStage& stage, Qt::KeyboardModifiers modifiers)
    {
        for (int edits = -1; edits != stage.edits;) {
            edits = stage.edits;
            stage.Key(Qt::Key_Z, modifiers);
        }
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::FieldEditorDriftTest)

#include "FieldEditorDriftTest.moc"
