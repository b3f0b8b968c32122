#include "shell/text/RowView.h"

#include "tests/shell/text/RowStage.h"

#include <QSignalSpy>
#include <QWheelEvent>

#include <limits>

namespace keyfluent::shell
{
class RowViewTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void initTestCase() { QVERIFY(HasTestFaces()); }

    void TheExpectedLetterOfAPassageStaysInView()
    {
        for (const bool rightToLeft : {false, true}) {
            for (const int points : {12, 20}) {
                Stage stage(RowView::Keep::Selection, passageSize);
                session::TextField field = MakeField(Passage(rightToLeft, 12), rightToLeft);
                field.fontSize = points;
                stage.view.Show(field);
                TextCanvas& canvas = stage.view.Canvas();
                QVERIFY(canvas.Rows() >= 3);
                const int lines = canvas.Flow().LineOf(field.Size()) + 1;
                for (int at = 0; at < field.Size(); ++at) {
                    field.Select(at, 1);
                    stage.view.Show(field);
                    const QRect letter = canvas.LetterRect(at);
                    const std::string state = std::to_string(at);
                    QVERIFY2(stage.view.rect().contains(letter) && !letter.isEmpty(),
                             state.c_str());
                    const int line = canvas.Flow().LineOf(at);
                    QVERIFY2(line == 0 || line > canvas.TopLine(), state.c_str());
                    QVERIFY2(line == lines - 1 || line < canvas.TopLine() + canvas.Rows() - 1,
                             state.c_str());
                }
                field.Select(0, 1);
                stage.view.Show(field);
                QCOMPARE(canvas.TopLine(), 0);
            }
        }
    }

    void TheEndOfWhatIsTypedStaysInView()
    {
        Stage stage(RowView::Keep::End, passageSize);
        const std::u16string text = Passage(true, 12);
        session::TextField field = MakeField(u"", true);
        for (const char16_t unit : text) {
            field.Append(unit);
            stage.view.Show(field);
            QVERIFY(!stage.view.Canvas().CaretRect(field.Size()).isEmpty());
        }
        while (field.Size() > 0) {
            field.RemoveLast(1);
            stage.view.Show(field);
            QVERIFY(!stage.view.Canvas().CaretRect(field.Size()).isEmpty());
        }
        QCOMPARE(stage.view.Canvas().TopLine(), 0);
    }

    void ARowTooLongForItsFieldShowsTheLineOfItsLetter()
    {
        Stage stage(RowView::Keep::Selection, rowSize);
        session::TextField field = MakeField(std::u16string(40, u'w') + u" " + latinRow, false);
        for (const int at : {0, 39, 41, 50}) {
            field.Select(at, 1);
            stage.view.Show(field);
            QVERIFY(stage.view.rect().contains(stage.view.Canvas().LetterRect(at)));
        }
        QVERIFY(stage.view.Canvas().TopLine() > 0);
    }

    void OneRowStandsInTheMiddle()
    {
        Stage stage(RowView::Keep::Selection, {627, 80});
        session::TextField field = MakeField(latinRow, false, 0, 1);
        field.fontSize = 40; // one row only
        stage.view.Show(field);
        const QRect letter = stage.view.Canvas().LetterRect(0);
        QVERIFY(std::abs(letter.top() - (80 - 1 - letter.bottom())) <= 1);
    }

    // The preferences file may hold any number.
    void AnySizeOfTheTextCanBeShown()
    {
        for (const int points : {std::numeric_limits<int>::max(), 22369622, 100000, 1, 0, -1,
                                 std::numeric_limits<int>::min()}) {
            Stage stage(RowView::Keep::Selection, rowSize);
            session::TextField field = MakeField(latinRow, false, 0, 1);
            field.fontSize = points;
            stage.view.Show(field);
            QVERIFY(!stage.view.Canvas().LetterRect(0).isEmpty());
            QVERIFY(FieldFont(ExerciseTestFont(), points, false).pixelSize() <= 600);
        }
        QCOMPARE(FieldFont(ExerciseTestFont(), std::numeric_limits<int>::max(), false).pixelSize(),
                 600);
    }

    void ScrollingByHandHoldsUntilSomethingChanges()
    {
        Stage stage(RowView::Keep::Selection, passageSize);
        session::TextField field = MakeField(Passage(false, 12), false, 0, 1);
        stage.view.Show(field);
        QWheelEvent wheel({10, 10}, stage.view.mapToGlobal(QPointF(10, 10)), {}, {0, -120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&stage.view, &wheel);
        QCOMPARE(stage.view.Canvas().TopLine(), 3);
        stage.view.Show(field);
        QCOMPARE(stage.view.Canvas().TopLine(), 3);
        stage.view.BringIntoView(field.Size());
        QVERIFY(!stage.view.Canvas().CaretRect(field.Size()).isEmpty());
        field.Select(1, 1);
        stage.view.Show(field);
        QCOMPARE(stage.view.Canvas().TopLine(), 0);
    }

    void AThumbTellsWhereTheLinesInViewAre()
    {
        for (const bool rightToLeft : {false, true}) {
            Stage stage(RowView::Keep::Selection, passageSize);
            TextCanvas& canvas = stage.view.Canvas();
            stage.view.Show(MakeField(Passage(rightToLeft, 3), rightToLeft));
            QVERIFY(canvas.ThumbRect().isEmpty());
            const std::u16string text = Passage(rightToLeft, 12);
            stage.view.Show(MakeField(text, rightToLeft));
            const QRect top = canvas.ThumbRect();
            QCOMPARE(top.center().x() < 5, rightToLeft);
            QCOMPARE(top.center().x() > passageSize.width() - 6, !rightToLeft);
            QCOMPARE(Picture(stage.view).pixelColor(top.center()), fieldThumb);
            stage.view.BringIntoView(static_cast<int>(text.size()));
            const QRect bottom = canvas.ThumbRect();
            QCOMPARE(bottom.height(), top.height());
            QVERIFY(top.top() < 5 && bottom.bottom() > passageSize.height() - 6);
            QVERIFY(std::abs(top.height() - 157 * canvas.Rows() / 12) < 5);
        }
        Stage row(RowView::Keep::End, rowSize);
        row.view.Show(MakeField(Passage(false, 3), false));
        QVERIFY(row.view.Canvas().ThumbRect().isEmpty());
    }

    void WhatIsShownBeforeTheWindowIsSeenStandsRight()
    {
        const session::TextField field = MakeField(Passage(true, 12), true, 300, 1);
        QWidget window;
        RowView early(RowView::Keep::Selection, ExerciseTestFont(), &window);
        early.setGeometry(QRect({0, 0}, passageSize));
        early.Show(field);
        window.show();
        QApplication::processEvents();
        Stage late(RowView::Keep::Selection, passageSize);
        late.view.Show(field);
        QCOMPARE(Picture(early), Picture(late.view));
    }

    void ANewSizeShowsTheSameAsAFreshView()
    {
        Stage stage(RowView::Keep::Selection, rowSize);
        const session::TextField field = MakeField(Passage(true, 4), true, 60, 1);
        stage.view.Show(field);
        stage.view.resize(400, 200);
        QApplication::processEvents();
        QCOMPARE(Picture(stage.view), FreshPicture(field, stage.view, RowView::Keep::Selection));
    }

    void FontsAreMeasuredAt96DotsPerInch()
    {
        Stage stage(RowView::Keep::Selection, passageSize);
        session::TextField field = MakeField(latinRow, false);
        for (const auto& [points, pixels] :
             {std::pair(12, 16), {13, 17}, {14, 19}, {16, 21}, {20, 27}}) {
            field.fontSize = points;
            stage.view.Show(field);
            QCOMPARE(stage.view.Canvas().Font().pixelSize(), pixels);
        }
        field.fontSize = 0;
        stage.view.Show(field);
        QCOMPARE(stage.view.Canvas().Font().pixelSize(), QFontInfo(QFont()).pixelSize());
    }

    void TwoFieldsOfDifferentHeightCanHaveOneFont()
    {
        session::TextField field = MakeField(arabicRow, true);
        field.fontSize = 20;
        Stage low(RowView::Keep::Selection, {780, 32});
        Stage high(RowView::Keep::End, {780, 36});
        low.view.Show(field);
        high.view.Show(field);
        QVERIFY(low.view.Canvas().Font().pixelSize() < 27);
        high.view.FitHeight(32);
        QCOMPARE(high.view.Canvas().Font().pixelSize(), low.view.Canvas().Font().pixelSize());
    }

    void ButtonsOfTheMouseAreTold()
    {
        Stage stage(RowView::Keep::Selection, rowSize);
        QSignalSpy pressed(&stage.view, &RowView::pressed);
        QSignalSpy clicked(&stage.view, &RowView::clicked);
        QTest::mouseClick(&stage.view, Qt::RightButton, {}, {5, 5});
        QCOMPARE(pressed.count(), 1);
        QCOMPARE(pressed.at(0).at(0).value<Qt::MouseButton>(), Qt::RightButton);
        QCOMPARE(clicked.count(), 1);
        QTest::mousePress(&stage.view, Qt::LeftButton, {}, {5, 5});
        QTest::mouseRelease(&stage.view, Qt::LeftButton, {}, {5, 500});
        QCOMPARE(pressed.count(), 2);
        QCOMPARE(clicked.count(), 1);
        QTest::mouseDClick(&stage.view, Qt::LeftButton, {}, {5, 5});
        QCOMPARE(pressed.count(), 3);
    }

    void KeysGoToTheWindowAndInputMethodsAreOff()
    {
        class Window : public QWidget
        {
        public:
            int keys = 0;
            void keyPressEvent(QKeyEvent*) override { ++keys; }
        } window;
        RowView view(RowView::Keep::Selection, ExerciseTestFont(), &window);
        QTest::keyClick(&view, Qt::Key_A);
        QTest::keyClick(&view, Qt::Key_Left);
        QCOMPARE(window.keys, 2);
        QVERIFY(!view.testAttribute(Qt::WA_InputMethodEnabled));
        QVERIFY(!view.inputMethodQuery(Qt::ImEnabled).toBool());
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::RowViewTest)

#include "RowViewTest.moc"
