#include "shell/text/TextFlow.h"

#include "shell/platform/TextConversion.h"
#include "tests/shell/text/FieldTestSupport.h"

#include <QTextLayout>

namespace keyfluent::shell
{
namespace
{

struct Extent {
    int start;
    int end;
    int lineEnd;
    bool wraps;

    bool operator==(const Extent&) const = default;
};

std::vector<Extent> LinesOf(TextFlow& flow)
{
    std::vector<Extent> lines;
    for (int i = 0; flow.HasLine(i); ++i) {
        const FlowLine line = flow.LineAt(i);
        lines.push_back({line.start, line.end, line.lineEnd, line.wraps});
    }
    return lines;
}

TextFlow FlowOf(std::u16string_view text, double width, bool rightToLeft)
{
    TextFlow flow;
    flow.SetLook(FieldFont(ExerciseTestFont(), 12, rightToLeft), width, rightToLeft);
    flow.Replace(0, 0, text);
    return flow;
}

// Where the toolkit wraps a whole paragraph at once.
std::vector<int> WrapsOfWhole(std::u16string_view paragraph, double width, bool rightToLeft)
{
    QTextLayout layout(ToQString(paragraph), FieldFont(ExerciseTestFont(), 12, rightToLeft));
    QTextOption option;
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    std::vector<int> starts;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        starts.push_back(line.textStart());
    }
    layout.endLayout();
    return starts;
}

std::u16string Words(std::mt19937& random, int units, bool rightToLeft)
{
    std::u16string text;
    while (static_cast<int>(text.size()) < units) {
        for (auto letters = 1 + random() % 9; letters > 0; --letters) {
            text += static_cast<char16_t>((rightToLeft ? 0x627 : u'a') + random() % 20);
        }
        text += u' ';
    }
    return text;
}

} // namespace

class TextFlowTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void initTestCase() { QVERIFY(HasTestFaces()); }

    void AnEmptyTextHasOneLine()
    {
        TextFlow flow = FlowOf(u"", 300, false);
        QVERIFY(LinesOf(flow) == std::vector<Extent>({{0, 0, 0, false}}));
        QCOMPARE(flow.LineOf(0), 0);
    }

    void EachLineEndGivesALine()
    {
        TextFlow flow = FlowOf(u"ab\u0691\r\n\r\ncd\r\n", 300, false);
        const std::vector<Extent> lines = {
            {0, 3, 2, false}, {5, 5, 2, false}, {7, 9, 2, false}, {11, 11, 0, false}};
        QVERIFY(LinesOf(flow) == lines);
        QCOMPARE(flow.LineOf(3), 0);
        QCOMPARE(flow.LineOf(4), 0); // between CR and LF
        QCOMPARE(flow.LineOf(5), 1);
        QCOMPARE(flow.LineOf(9), 2);
        QCOMPARE(flow.LineOf(11), 3);
    }

    void LongParagraphsWrapWhereTheToolkitWrapsThem()
    {
        std::mt19937 random(3);
        for (const bool rightToLeft : {false, true}) {
            for (const double width : {90.0, 333.0, 610.0}) {
                const std::u16string text = Words(random, 3000, rightToLeft);
                TextFlow flow = FlowOf(text, width, rightToLeft);
                const std::vector<int> starts = WrapsOfWhole(text, width, rightToLeft);
                for (std::size_t i = 0; i < starts.size(); ++i) {
                    QCOMPARE(flow.LineAt(static_cast<int>(i)).start, starts[i]);
                }
                QVERIFY(!flow.HasLine(static_cast<int>(starts.size())));
            }
        }
    }

    void AWordLongerThanALineIsBroken()
    {
        const std::u16string word(2000, u'w');
        TextFlow flow = FlowOf(word, 200, false);
        const std::vector<int> starts = WrapsOfWhole(word, 200, false);
        QVERIFY(starts.size() > 50);
        QVERIFY(LinesOf(flow).size() == starts.size());
    }

    // After every edit the lines are those of the text laid out anew, and a line outside of the
    // range that the edit tells of holds what it held.
    void EditingIsTheSameAsLayingOutAnew_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<bool>("oneParagraph");
        QTest::newRow("left to right, paragraphs") << false << false;
        QTest::newRow("left to right, one paragraph") << false << true;
        QTest::newRow("right to left, paragraphs") << true << false;
        QTest::newRow("right to left, one paragraph") << true << true;
    }

    void EditingIsTheSameAsLayingOutAnew()
    {
        QFETCH(bool, rightToLeft);
        QFETCH(bool, oneParagraph);
        std::mt19937 random(4);
        std::u16string text = Words(random, 1500, rightToLeft);
        TextFlow flow = FlowOf(text, 250, rightToLeft);
        for (int round = 0; round < 400; ++round) {
            const auto position = random() % (text.size() + 1);
            const auto removed = std::min<std::size_t>(
                random() % 8 == 0 ? random() % 300 : random() % 3, text.size() - position);
            std::u16string inserted;
            if (text.size() < 2500) {
                inserted = Words(random, static_cast<int>(random() % 4), rightToLeft);
                const bool ends = !oneParagraph && random() % 4 == 0;
                inserted += ends ? (random() % 2 ? u"\r\n" : u"\r") : u"";
                inserted += random() % 30 == 0 ? Words(random, 700, rightToLeft) : u"";
            }
            const bool looksAtAll = random() % 2 == 0;
            const std::vector<Extent> before = looksAtAll ? LinesOf(flow) : std::vector<Extent>();

            const LineRange range =
                flow.Replace(static_cast<int>(position), static_cast<int>(removed), inserted);
            text.replace(position, removed, inserted);

            const std::string state = "round " + std::to_string(round);
            TextFlow anew = FlowOf(text, 250, rightToLeft);
            QVERIFY2(flow.Text() == text, state.c_str());
            QVERIFY2(LinesOf(flow) == LinesOf(anew), state.c_str());
            if (looksAtAll) {
                CheckRange(before, LinesOf(flow), range, static_cast<int>(position),
                           static_cast<int>(inserted.size()) - static_cast<int>(removed));
            }
            if (QTest::currentTestFailed()) {
                return;
            }
        }
    }

    void ALetterTypedIntoARowChangesItsLineOnly()
    {
        TextFlow flow = FlowOf(u"one\r\ntwo\r\nthree", 300, false);
        const LineRange range = flow.Replace(7, 0, u"x");
        QCOMPARE(range.first, 1);
        QCOMPARE(range.last, 1);
        const LineRange end = flow.Replace(static_cast<int>(flow.Text().size()), 0, u"x");
        QCOMPARE(end.first, 2);
        QCOMPARE(end.last, 2);
        QVERIFY(flow.Replace(3, 0, u"").Empty());
    }

    void NewLinesChangeAllThatFollows()
    {
        TextFlow flow = FlowOf(u"one\r\ntwo\r\nthree", 300, false);
        const LineRange range = flow.Replace(8, 0, u"\r\n");
        QCOMPARE(range.first, 1);
        QCOMPARE(range.last, LineRange::toEnd);
    }

    void WhatIsNotLookedAtIsGuessed()
    {
        std::mt19937 random(5);
        TextFlow flow = FlowOf(Words(random, 30000, false), 600, false);
        const int guess = flow.ApproximateLineCount();
        const int lines = static_cast<int>(LinesOf(flow).size());
        QVERIFY(guess > lines * 3 / 4 && guess < lines * 4 / 3);
        QCOMPARE(flow.ApproximateLineCount(), lines);
    }

private:
    static void CheckRange(const std::vector<Extent>& before, const std::vector<Extent>& after,
                           const LineRange& range, int position, int delta)
    {
        if (range.Empty()) {
            QVERIFY(before == after);
            return;
        }
        for (std::size_t i = 0; i < std::max(before.size(), after.size()); ++i) {
            const int line = static_cast<int>(i);
            if (line >= range.first && line <= range.last) {
                continue;
            }
            QVERIFY(i < before.size() && i < after.size());
            const int moved = line > range.last ? delta : 0;
            QCOMPARE(after[i].start, before[i].start + moved);
            QCOMPARE(after[i].end, before[i].end + moved);
            QVERIFY(line > range.last ? after[i].start >= position : after[i].end <= position);
        }
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::TextFlowTest)

#include "TextFlowTest.moc"
