#include "shell/text/Cells.h"

#include "tests/shell/text/FieldTestSupport.h"

#include <QFontMetricsF>

#include <cmath>

namespace keyfluent::shell
{
namespace
{

constexpr double width = 600;

// One line in the exercise font, or in a face that draws lam-alef as a single sign.
class OneLine
{
public:
    OneLine(std::u16string_view text, bool rightToLeft, const char* face = nullptr)
    {
        QFont font = FieldFont(ExerciseTestFont(), 14, rightToLeft);
        if (face) {
            font.setFamilies({QString::fromLatin1(face)});
        }
        flow_.SetLook(font, width, rightToLeft);
        flow_.Replace(0, 0, text);
    }

    FlowLine Line() { return flow_.LineAt(0); }
    std::vector<Cell> All() { return CellsOf(Line(), 0, Line().end); }
    Cell At(int position) { return CellsOf(Line(), position, position + 1).front(); }
    double Edge(int position) { return EdgeAt(Line(), position, flow_); }
    int Hit(double x) { return PositionAt(Line(), x); }

private:
    TextFlow flow_;
};

bool Near(double one, double other)
{
    return std::abs(one - other) < 0.1;
}

std::string Describe(const Cell& cell)
{
    return std::to_string(cell.position) + "+" + std::to_string(cell.length) + " " +
           std::to_string(cell.left) + ".." + std::to_string(cell.right);
}

} // namespace

class CellsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void initTestCase() { QVERIFY(HasTestFaces()); }

    void LatinLettersStandSideBySide()
    {
        OneLine line(u"asdf jkl; Wave.", false);
        double left = 0;
        for (const Cell& cell : line.All()) {
            QVERIFY2(Near(cell.left, left), Describe(cell).c_str());
            QVERIFY(!cell.rightToLeft && cell.length == 1 && cell.right > cell.left);
            left = cell.right;
        }
        QVERIFY(Near(line.Edge(15), left));
    }

    void NoTwoLatinLettersBecomeOneSign()
    {
        OneLine line(u"office", false);
        for (const int at : {1, 2, 3}) {
            OneLine alone(std::u16string(1, u"office"[at]), false);
            const double own = alone.At(0).right - alone.At(0).left;
            const Cell cell = line.At(at);
            QVERIFY2(Near(cell.right - cell.left, own), Describe(cell).c_str());
        }
    }

    void JoinedArabicLettersStandSideBySideFromTheRight()
    {
        OneLine line(u"\u0643\u062A\u0628 \u0627\u0644\u062A\u0644\u0645\u064A\u0630 \u0691", true);
        double right = width;
        for (const Cell& cell : line.All()) {
            QVERIFY2(Near(cell.right, right), Describe(cell).c_str());
            QVERIFY(cell.rightToLeft && cell.length == 1 && cell.right > cell.left);
            right = cell.left;
        }
        QVERIFY(Near(line.Edge(13), right));
    }

    void LamAndAlefHaveHalfOfTheirSignEach_data()
    {
        QTest::addColumn<QString>("face");
        QTest::newRow("alef without a width") << QStringLiteral("Noto Naskh Arabic");
        QTest::newRow("one sign for both") << QStringLiteral("DejaVu Sans");
    }

    void LamAndAlefHaveHalfOfTheirSignEach()
    {
        QFETCH(QString, face);
        for (const char16_t alef : u"\u0627\u0623\u0625\u0622") {
            if (alef == 0) {
                continue;
            }
            const std::u16string text = std::u16string(u"\u0648\u0644") + alef + u" \u0645";
            OneLine line(text, true, face.toLatin1().constData());
            const Cell waw = line.At(0);
            const Cell lam = line.At(1);
            const Cell second = line.At(2);
            const Cell blank = line.At(3);
            QVERIFY2(Near(lam.right, waw.left), Describe(lam).c_str());
            QVERIFY2(Near(second.right, lam.left), Describe(second).c_str());
            QVERIFY2(Near(blank.right, second.left), Describe(blank).c_str());
            QVERIFY2(lam.right - lam.left > 2, Describe(lam).c_str());
            QVERIFY(Near(lam.right - lam.left, second.right - second.left));
        }
    }

    void AMarkBelongsToItsLetter()
    {
        // meem damma, dal fatha, reh shadda kasra
        OneLine line(u"\u0645\u064F\u062F\u064E\u0631\u0651\u0650", true);
        const std::vector<Cell> cells = line.All();
        QCOMPARE(cells.size(), std::size_t(3));
        double right = width;
        for (const Cell& cell : cells) {
            QVERIFY2(Near(cell.right, right) && cell.right - cell.left > 3, Describe(cell).c_str());
            right = cell.left;
        }
        QCOMPARE(line.At(2).position, 2); // dal alone
        QCOMPARE(line.At(3).position, 2); // its fatha
        QVERIFY(Near(line.At(2).left, line.At(3).left));
        QCOMPARE(line.At(6).position, 4);
        QCOMPARE(line.At(6).length, 3);
    }

    void AMarkedLamAndItsAlefShareTheirSign()
    {
        OneLine line(u"\u0644\u064E\u0627\u0645", true); // lam fatha alef meem
        const Cell lam = line.At(0);
        const Cell alef = line.At(2);
        QCOMPARE(lam.length, 2);
        QVERIFY2(Near(lam.right, width) && Near(alef.right, lam.left), Describe(alef).c_str());
        QVERIFY(alef.right - alef.left > 2);
    }

    void DigitsInArabicStandFromLeftToRight()
    {
        OneLine line(u"\u0639\u062F 123 \u0648", true);
        const QFontMetricsF metrics(FieldFont(ExerciseTestFont(), 14, true));
        const Cell before = line.At(2);
        const Cell after = line.At(6);
        double left = after.right;
        for (int i = 3; i < 6; ++i) {
            const Cell digit = line.At(i);
            const double advance = metrics.horizontalAdvance(QChar(u'1' + i - 3));
            QVERIFY2(Near(digit.left, left) && !digit.rightToLeft, Describe(digit).c_str());
            QVERIFY2(Near(digit.right - digit.left, advance), Describe(digit).c_str());
            left = digit.right;
        }
        QVERIFY2(Near(left, before.left), Describe(before).c_str());
    }

    void ArabicInALatinLineStandsFromRightToLeft()
    {
        OneLine line(u"a \u0643\u062A\u0628 b", false);
        QVERIFY(Near(line.At(4).left, line.At(1).right));
        QVERIFY(Near(line.At(3).left, line.At(4).right));
        QVERIFY(Near(line.At(2).left, line.At(3).right));
        QVERIFY(Near(line.At(5).left, line.At(2).right));
        QVERIFY(line.At(2).rightToLeft && !line.At(5).rightToLeft);
    }

    void EveryLetterIsFoundWhereItStands_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<QString>("text");
        QTest::newRow("latin") << false << QStringLiteral("The quick (13) brown fox ");
        QTest::newRow("arabic") << true << QString::fromStdU16String(arabicRow);
        QTest::newRow("vowelled") << true << QString::fromStdU16String(vowelledRow);
        QTest::newRow("tab") << false << QStringLiteral("a\tb");
    }

    void EveryLetterIsFoundWhereItStands()
    {
        QFETCH(bool, rightToLeft);
        QFETCH(QString, text);
        OneLine line(text.toStdU16String(), rightToLeft);
        for (const Cell& cell : line.All()) {
            const double quarter = (cell.Trailing() - cell.Leading()) / 4;
            QCOMPARE(line.Hit(cell.Leading() + quarter), cell.position);
            QCOMPARE(line.Hit(cell.Trailing() - quarter), cell.End());
            QVERIFY2(Near(line.Edge(cell.position), cell.Leading()), Describe(cell).c_str());
        }
        QCOMPARE(line.Hit(rightToLeft ? width + 50 : -50), 0);
        QCOMPARE(line.Hit(rightToLeft ? -50 : width + 50), static_cast<int>(text.size()));
    }

    void TheEndOfAWrappedLineIsBeforeItsLastLetter()
    {
        TextFlow flow;
        flow.SetLook(FieldFont(ExerciseTestFont(), 14, false), 60, false);
        flow.Replace(0, 0, u"some words");
        const FlowLine line = flow.LineAt(0);
        QCOMPARE(line.end, 5);
        QCOMPARE(PositionAt(line, 500), 4);
    }

    void AnEmptyLineHasItsEdgeOnly()
    {
        OneLine latin(u"", false);
        QVERIFY(latin.All().empty());
        QCOMPARE(latin.Edge(0), 0.0);
        QCOMPARE(latin.Hit(99), 0);
        OneLine arabic(u"", true);
        QCOMPARE(arabic.Edge(0), width);
    }

    void OddUnitsHaveCellsToo()
    {
        const std::u16string text(u"a\0\u200F\uFFFC\xD83D\xDE00\xD800z\uFEFF\x01", 10);
        OneLine line(text, false);
        const std::vector<Cell> cells = line.All();
        int at = 0;
        for (const Cell& cell : cells) {
            QCOMPARE(cell.position, at);
            QVERIFY(cell.right >= cell.left);
            at = cell.End();
        }
        QCOMPARE(at, 10);
        QCOMPARE(line.At(5).position, 4); // the second half of a character of two units
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::CellsTest)

#include "CellsTest.moc"
