#include "shell/text/RowView.h"

#include "tests/shell/text/RowStage.h"

namespace keyfluent::shell
{
namespace
{

// Pixels of rect that have just that colour.
int LightPixels(const QImage& image, const QRect& rect, QColor colour)
{
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            count += image.pixelColor(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

// How dark the picture is inside its frame.
int Ink(const QImage& image)
{
    int ink = 0;
    for (int y = 1; y < image.height() - 1; ++y) {
        for (int x = 1; x < image.width() - 1; ++x) {
            ink += 255 - qGray(image.pixel(x, y));
        }
    }
    return ink;
}

} // namespace

class RowPaintingTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void initTestCase() { QVERIFY(HasTestFaces()); }

    void TheLitLetterLeavesEveryOtherPixelAsItWas_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("latin") << QString::fromStdU16String(latinRow) << false;
        QTest::newRow("arabic") << QString::fromStdU16String(arabicRow) << true;
        QTest::newRow("vowelled") << QString::fromStdU16String(vowelledRow) << true;
    }

    void TheLitLetterLeavesEveryOtherPixelAsItWas()
    {
        QFETCH(QString, text);
        QFETCH(bool, rightToLeft);
        for (const int points : {5, 12, 16, 20}) {
            Stage stage(RowView::Keep::Selection, {780, 32});
            session::TextField field = MakeField(text.toStdU16String(), rightToLeft);
            field.fontSize = points;
            stage.view.Show(field);
            const QImage plain = Picture(stage.view);
            for (int at = 0; at < field.Size(); ++at) {
                field.Select(at, 1);
                stage.view.Show(field);
                const QRect letter = stage.view.Canvas().LetterRect(at);
                const QImage lit = Picture(stage.view);
                const std::string state = std::to_string(points) + " pt, " + std::to_string(at);
                QVERIFY2(letter.width() >= 3 && letter.height() >= points, state.c_str());
                QVERIFY2(SameOutside(plain, lit, letter), state.c_str());
                // Paper of the selection, and neither ink nor paper of the rest of the row.
                QVERIFY2(LightPixels(lit, letter, selectedPaper) > letter.width(), state.c_str());
                QVERIFY2(LightPixels(lit, letter, fieldInk) == 0, state.c_str());
                const int paper = LightPixels(plain, letter, fieldPaper);
                QVERIFY2(LightPixels(lit, letter, selectedPaper) == paper, state.c_str());
            }
        }
    }

    void LettersAreLitOnTheirOwnSide()
    {
        Stage stage(RowView::Keep::Selection, rowSize);
        stage.view.Show(MakeField(latinRow, false, 0, 1));
        TextCanvas& canvas = stage.view.Canvas();
        QVERIFY(canvas.LetterRect(0).left() < 12);
        QCOMPARE(canvas.LetterRect(1).left(), canvas.LetterRect(0).right() + 1);
        stage.view.Show(MakeField(arabicRow, true, 0, 1));
        QVERIFY(canvas.LetterRect(0).right() > rowSize.width() - 12);
        QCOMPARE(canvas.LetterRect(1).right(), canvas.LetterRect(0).left() - 1);
        const int last = static_cast<int>(arabicRow.size()) - 1; // a blank
        QCOMPARE(canvas.LetterRect(last).right(), canvas.LetterRect(last - 1).left() - 1);
    }

    void TheSelectionHasEnoughContrast()
    {
        const auto light = [](const QColor& colour) {
            const auto part = [](double value) {
                return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
            };
            return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
                   0.0722 * part(colour.blueF());
        };
        QVERIFY((light(selectedInk) + 0.05) / (light(selectedPaper) + 0.05) >= 4.5);
    }

    void ALineEndIsLitAsABlank()
    {
        Stage stage(RowView::Keep::Selection, passageSize);
        const std::u16string text = u"one\u0691\r\ntwo";
        stage.view.Show(MakeField(text, false, 4, 1));
        const QRect mark = stage.view.Canvas().LetterRect(3);
        const QRect end = stage.view.Canvas().LetterRect(4);
        QCOMPARE(end.left(), mark.right() + 1);
        QVERIFY(end.width() >= 3);
        QCOMPARE(stage.view.Canvas().LetterRect(5), end);
    }

    void NothingIsPaintedWhereNothingDiffers()
    {
        Stage stage(RowView::Keep::Selection, rowSize);
        session::TextField field = MakeField(arabicRow, true, 3, 1);
        stage.view.Show(field);
        PaintLog log(stage.view);
        stage.view.Show(field);
        QVERIFY(log.Take().isEmpty());
        field.Select(3, 1);
        field.readOnly = false;
        stage.view.Show(field);
        QVERIFY(log.Take().isEmpty());
    }

    void AMovedSelectionPaintsTwoLetters()
    {
        Stage stage(RowView::Keep::Selection, rowSize);
        for (const bool rightToLeft : {false, true}) {
            session::TextField field = MakeField(rightToLeft ? arabicRow : latinRow, rightToLeft);
            field.Select(0, 1);
            stage.view.Show(field);
            PaintLog log(stage.view);
            for (int at = 1; at < field.Size(); ++at) {
                const QRegion before = stage.view.Canvas().LetterRect(at - 1);
                field.Select(at, 1);
                stage.view.Show(field);
                const QRegion both = before | stage.view.Canvas().LetterRect(at);
                const QRegion painted = log.Take();
                QVERIFY2(painted == both, (Describe(painted) + " for " + Describe(both)).c_str());
            }
        }
    }

    void ATypedLetterPaintsItsLineOnly()
    {
        Stage stage(RowView::Keep::End, passageSize);
        session::TextField field = MakeField(Passage(true, 3), true);
        stage.view.Show(field);
        PaintLog log(stage.view);
        const QRect line = stage.view.Canvas().LetterRect(field.Size() - 1);
        field.Append(u'\u0628');
        stage.view.Show(field);
        const QRect typed = log.Take().boundingRect();
        QVERIFY(!typed.isEmpty());
        QCOMPARE(typed.top(), line.top());
        QCOMPARE(typed.height(), line.height());
        field.RemoveLast(1);
        stage.view.Show(field);
        QCOMPARE(log.Take().boundingRect(), typed);
    }

    // What the paints of single changes leave on the screen is what a fresh view paints as a whole.
    void ManySmallPaintsGiveTheWholePicture_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<bool>("passage");
        QTest::newRow("latin row") << false << false;
        QTest::newRow("arabic row") << true << false;
        QTest::newRow("latin passage") << false << true;
        QTest::newRow("arabic passage") << true << true;
    }

    void ManySmallPaintsGiveTheWholePicture()
    {
        QFETCH(bool, rightToLeft);
        QFETCH(bool, passage);
        const std::u16string text =
            passage ? Passage(rightToLeft, 9) : (rightToLeft ? vowelledRow : latinRow);
        Stage stage(RowView::Keep::End, passage ? passageSize : rowSize);
        session::TextField field = MakeField(u"", rightToLeft);
        stage.view.Show(field);
        PaintLog log(stage.view);
        std::mt19937 random(6);
        int length = 0;
        for (int step = 0; step < 300; ++step) {
            const bool back = length > 0 && random() % 4 == 0;
            length = std::clamp(length + (back ? -1 : 1 + static_cast<int>(random() % 4)), 0,
                                static_cast<int>(text.size()));
            field.SetText(std::u16string_view(text).substr(0, static_cast<std::size_t>(length)));
            field.Select(static_cast<int>(random() % text.size()), static_cast<int>(random() % 3));
            stage.view.Show(field);
            log.Take();
            if (stage.view.Canvas().TopLine() == 0) {
                QVERIFY2(log.Screen() == FreshPicture(field, stage.view, RowView::Keep::End),
                         std::to_string(step).c_str());
            }
            QVERIFY2(log.Screen() == Picture(stage.view), std::to_string(step).c_str());
        }
    }

    void TheFrameIsSharpAtEveryScale()
    {
        Stage stage(RowView::Keep::Selection, rowSize);
        stage.view.Show(MakeField(latinRow, false));
        for (const int ratio : {1, 2, 3}) {
            const QImage image = Picture(stage.view, ratio);
            QCOMPARE(image.size(), rowSize * ratio);
            for (const int x : {0, ratio - 1, image.width() - ratio, image.width() - 1}) {
                QCOMPARE(image.pixelColor(x, 5), fieldFrame);
            }
            QCOMPARE(image.pixelColor(ratio, ratio), fieldPaper);
            QCOMPARE(image.pixelColor(image.width() - ratio - 1, image.height() - ratio - 1),
                     fieldPaper);
            QCOMPARE(image.pixelColor(40, image.height() - 1), fieldFrame);
        }
    }

    void NothingOfATallLetterIsCutOff()
    {
        for (const bool rightToLeft : {false, true}) {
            Stage stage(RowView::Keep::Selection, {780, 32});
            const std::u16string tall = u"\u0623\u0644\u062C\u064A \u0643";
            session::TextField field =
                MakeField(rightToLeft ? tall : std::u16string(u"Qglj"), rightToLeft);
            field.fontSize = 20;
            stage.view.Show(field);
            // The same letters in a field with room to spare.
            Stage high(RowView::Keep::Selection, {780, 47});
            high.view.FitHeight(32);
            high.view.Show(field);
            QCOMPARE(Ink(Picture(stage.view)), Ink(Picture(high.view)));
        }
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::RowPaintingTest)

#include "RowPaintingTest.moc"
