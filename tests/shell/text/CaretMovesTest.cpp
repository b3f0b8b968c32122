#include "shell/text/CaretMoves.h"

#include "tests/shell/text/EditorStage.h"

namespace keyfluent::shell
{
namespace
{

constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers shift = Qt::ShiftModifier;

} // namespace

// The steps as the keys ask for them.
class CaretMovesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void initTestCase() { QVERIFY(HasTestFaces()); }

    void ArrowsGoByLetters()
    {
        EditorStage stage(u"ab\r\ncd");
        const int places[] = {1, 2, 4, 5, 6, 6};
        for (const int place : places) {
            stage.Key(Qt::Key_Right);
            QCOMPARE(stage.Caret(), place);
        }
        for (const int place : {5, 4, 2, 1, 0, 0}) {
            stage.Key(Qt::Key_Left);
            QCOMPARE(stage.Caret(), place);
        }
        QVERIFY(stage.Agree());
    }

    void InRightToLeftTextTheLeftArrowGoesOn()
    {
        EditorStage stage(u"\u0645\u064F\u062F \u0642\u0644\u0645", true);
        stage.Key(Qt::Key_Left);
        QCOMPARE(stage.Caret(), 2); // over the letter with its mark
        stage.Key(Qt::Key_Left);
        QCOMPARE(stage.Caret(), 3);
        stage.Key(Qt::Key_Right);
        QCOMPARE(stage.Caret(), 2);
        stage.Key(Qt::Key_Left, ctrl);
        QCOMPARE(stage.Caret(), 4);
        stage.Key(Qt::Key_Right, ctrl | shift);
        QCOMPARE(stage.field.SelectionStart(), 0);
        QCOMPARE(stage.field.SelectionLength(), 4);
    }

    void AnArrowLeavesTheSelectionAtItsEnd()
    {
        EditorStage stage(u"abcdef");
        stage.Put(4, 1);
        stage.Key(Qt::Key_Right);
        QCOMPARE(stage.Caret(), 4);
        QVERIFY(!stage.editor.Canvas().HasSelection());
        stage.Put(1, 4);
        stage.Key(Qt::Key_Left);
        QCOMPARE(stage.Caret(), 1);
        QVERIFY(stage.Agree());
    }

    void WordsSignsAndBlanksAreSteps()
    {
        EditorStage stage(u"one  two, three\r\nfour");
        for (const int place : {5, 8, 10, 15, 17, 21, 21}) {
            stage.Key(Qt::Key_Right, ctrl);
            QCOMPARE(stage.Caret(), place);
        }
        for (const int place : {17, 15, 10, 8, 5, 0, 0}) {
            stage.Key(Qt::Key_Left, ctrl);
            QCOMPARE(stage.Caret(), place);
        }
    }

    void WordsCanBeErased()
    {
        EditorStage stage(u"one two three");
        stage.Put(7, 7);
        stage.Key(Qt::Key_Backspace, ctrl);
        QVERIFY(stage.field.Text() == u"one  three");
        stage.Key(Qt::Key_Delete, ctrl);
        QVERIFY(stage.field.Text() == u"one three");
        QVERIFY(stage.Agree());
    }

    void HomeAndEndGoByLinesAndByTheText()
    {
        EditorStage stage(u"one\r\ntwo\r\nthree");
        stage.Put(6, 6);
        stage.Key(Qt::Key_End);
        QCOMPARE(stage.Caret(), 8);
        stage.Key(Qt::Key_Home);
        QCOMPARE(stage.Caret(), 5);
        stage.Key(Qt::Key_End, ctrl);
        QCOMPARE(stage.Caret(), 15);
        stage.Key(Qt::Key_Home, ctrl | shift);
        QCOMPARE(stage.field.SelectionStart(), 0);
        QCOMPARE(stage.field.SelectionLength(), 15);
        QCOMPARE(stage.Caret(), 0);
    }

    void TheEndOfAWrappedLineIsOnThatLine()
    {
        EditorStage stage(std::u16string(20, u'w') + u" words", false, {200, 157});
        TextFlow& flow = stage.editor.Canvas().Flow();
        QVERIFY(flow.LineOf(26) > 0);
        stage.Key(Qt::Key_End);
        QCOMPARE(flow.LineOf(stage.Caret()), 0);
        stage.Key(Qt::Key_Right);
        QCOMPARE(flow.LineOf(stage.Caret()), 1);
        stage.Key(Qt::Key_Home);
        QCOMPARE(flow.LineOf(stage.Caret()), 1);
    }

    void UpAndDownKeepTheirPlaceOverShortLines()
    {
        EditorStage stage(u"a long line\r\nab\r\n\r\na long line");
        stage.Put(8, 8);
        stage.Key(Qt::Key_Down);
        QCOMPARE(stage.Caret(), 15); // the end of "ab"
        stage.Key(Qt::Key_Down);
        QCOMPARE(stage.Caret(), 17);
        stage.Key(Qt::Key_Down, shift);
        QCOMPARE(stage.Caret(), 19 + 8);
        QCOMPARE(stage.editor.Canvas().Anchor(), 17);
        stage.Key(Qt::Key_Up);
        stage.Key(Qt::Key_Up);
        stage.Key(Qt::Key_Up);
        QCOMPARE(stage.Caret(), 8);
        stage.Key(Qt::Key_Up);
        QCOMPARE(stage.Caret(), 8); // no line above
        stage.Key(Qt::Key_Down);
        stage.Key(Qt::Key_Left); // forgets the place
        stage.Key(Qt::Key_Up);
        QCOMPARE(stage.Caret(), 1);
    }

    void PagesLeaveOneLineInView()
    {
        EditorStage stage(Passage(false, 20));
        TextCanvas& canvas = stage.editor.Canvas();
        const int page = canvas.Rows() - 1;
        stage.Key(Qt::Key_PageDown);
        QCOMPARE(canvas.Flow().LineOf(stage.Caret()), page);
        stage.Key(Qt::Key_PageDown);
        QCOMPARE(canvas.Flow().LineOf(stage.Caret()), 2 * page);
        QVERIFY(!canvas.CaretRect(stage.Caret()).isEmpty());
        stage.Key(Qt::Key_PageUp, shift);
        QCOMPARE(canvas.Flow().LineOf(stage.Caret()), page);
        QVERIFY(canvas.HasSelection());
        for (int i = 0; i < 10; ++i) {
            stage.Key(Qt::Key_PageUp);
        }
        QCOMPARE(canvas.TopLine(), 0);
        QVERIFY(stage.Agree());
    }

    void AllCanBeSelected()
    {
        EditorStage stage(u"one\r\ntwo");
        stage.Key(Qt::Key_A, ctrl);
        QCOMPARE(stage.field.SelectionLength(), 8);
        QVERIFY(stage.Agree());
    }

    void WordsAreFoundAroundAPosition()
    {
        TextCanvas canvas(ExerciseTestFont());
        canvas.SetText(u"one  two,\r\n\r\n\u0645\u064F\u062F");
        using Range = std::pair<int, int>;
        QVERIFY(WordAround(canvas, 1) == Range(0, 3));
        QVERIFY(WordAround(canvas, 4) == Range(3, 5));
        QVERIFY(WordAround(canvas, 8) == Range(8, 9));
        QVERIFY(WordAround(canvas, 9) == Range(8, 9)); // before the line end
        QVERIFY(WordAround(canvas, 11) == Range(11, 11));
        QVERIFY(WordAround(canvas, 14) == Range(13, 16));
        QVERIFY(WordAround(canvas, 16) == Range(13, 16));
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::CaretMovesTest)

#include "CaretMovesTest.moc"
