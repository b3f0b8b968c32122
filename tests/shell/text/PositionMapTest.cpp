#include "shell/text/PositionMap.h"

#include "tests/shell/FailOnWarning.h"

#include <random>

namespace keyfluent::shell
{
namespace
{

std::u16string RandomText(std::mt19937& random, int length)
{
    static const std::u16string units = u"ab \r\n\r\n\u2028\u2029\u0644\u0691";
    std::u16string text;
    for (int i = 0; i < length; ++i) {
        text += units[random() % units.size()];
    }
    return text;
}

// The same question answered by reading the whole text: how many line ends have ended at or before
// position, and how far position lies behind the last of them.
DocumentPosition PlaceByReading(const std::u16string& text, int position)
{
    DocumentPosition place;
    for (int at = 0; at < position;) {
        const char16_t unit = text[static_cast<std::size_t>(at)];
        const bool pair = unit == u'\r' && at + 1 < static_cast<int>(text.size()) &&
                          text[static_cast<std::size_t>(at + 1)] == u'\n';
        if (pair && at + 1 == position) {
            break;
        }
        if (pair || unit == u'\r' || unit == u'\n' || unit == u'\u2028' || unit == u'\u2029') {
            at += pair ? 2 : 1;
            ++place.paragraph;
            place.column = 0;
        } else {
            ++at;
            ++place.column;
        }
    }
    return place;
}

bool SameParagraphs(const PositionMap& one, const PositionMap& other)
{
    bool same = one.ParagraphCount() == other.ParagraphCount();
    for (int i = 0; same && i < one.ParagraphCount(); ++i) {
        same = one.ParagraphOf(i) == other.ParagraphOf(i);
    }
    return same;
}

} // namespace

class PositionMapTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void AnEmptyTextIsOneEmptyParagraph();
    void CrLfIsOneBorder();
    void EveryKindOfLineEndEndsAParagraph();
    void EveryPositionOfRandomTextsGoesThereAndBack();
    void PlacesBeyondTheTextAreLimitedToIt();
    void ReplacingIsTheSameAsReadingTheTextAnew();
    void ACrAndALfThatMeetBecomeOne();
    void LineEndsOfAnyKindBecomeTheOneAskedFor();
};

void PositionMapTest::AnEmptyTextIsOneEmptyParagraph()
{
    const PositionMap map;
    QCOMPARE(map.Size(), 0);
    QCOMPARE(map.ParagraphCount(), 1);
    QVERIFY(map.ParagraphOf(0) == (Paragraph{0, 0, 0}));
    QVERIFY(map.ToDocument(0) == (DocumentPosition{0, 0}));
}

void PositionMapTest::CrLfIsOneBorder()
{
    const PositionMap map(u"ab\u0691\r\ncd");
    QCOMPARE(map.ParagraphCount(), 2);
    QVERIFY(map.ParagraphOf(0) == (Paragraph{0, 3, 2}));
    QVERIFY(map.ParagraphOf(1) == (Paragraph{5, 2, 0}));
    QVERIFY(map.ToDocument(3) == (DocumentPosition{0, 3}));
    QVERIFY(map.ToDocument(4) == (DocumentPosition{0, 3})); // between CR and LF
    QVERIFY(map.ToDocument(5) == (DocumentPosition{1, 0}));
    QCOMPARE(map.ToText({0, 3}), 3);
    QCOMPARE(map.ToText({1, 0}), 5);
    QCOMPARE(map.CaretPlace(4), 3);
    QCOMPARE(map.CaretPlace(5), 5);
}

void PositionMapTest::EveryKindOfLineEndEndsAParagraph()
{
    const PositionMap map(u"a\rb\nc\u2028d\u2029e\r\r\n\n");
    QCOMPARE(map.ParagraphCount(), 8);
    const int lineEnds[] = {1, 1, 1, 1, 1, 2, 1, 0};
    for (int i = 0; i < 8; ++i) {
        QCOMPARE(map.ParagraphOf(i).lineEnd, lineEnds[i]);
    }
    QCOMPARE(map.Size(), 13);
}

void PositionMapTest::EveryPositionOfRandomTextsGoesThereAndBack()
{
    std::mt19937 random(1);
    for (int round = 0; round < 500; ++round) {
        const std::u16string text = RandomText(random, static_cast<int>(random() % 40));
        const PositionMap map(text);
        for (int at = 0; at <= static_cast<int>(text.size()); ++at) {
            const DocumentPosition place = map.ToDocument(at);
            const std::string state = "text " + std::to_string(round) + " at " + std::to_string(at);
            QVERIFY2(place == PlaceByReading(text, at), state.c_str());
            const bool insidePair = at > 0 && LineEndAt(text, at - 1) == 2;
            QVERIFY2(map.ToText(place) == (insidePair ? at - 1 : at), state.c_str());
        }
        for (int index = 0; index < map.ParagraphCount(); ++index) {
            for (int column = 0; column <= map.ParagraphOf(index).length; ++column) {
                const DocumentPosition place{index, column};
                QVERIFY(map.ToDocument(map.ToText(place)) == place);
            }
        }
    }
}

void PositionMapTest::PlacesBeyondTheTextAreLimitedToIt()
{
    const PositionMap map(u"ab\r\nc");
    QVERIFY(map.ToDocument(-3) == (DocumentPosition{0, 0}));
    QVERIFY(map.ToDocument(99) == (DocumentPosition{1, 1}));
    QCOMPARE(map.ToText({-1, 5}), 2);
    QCOMPARE(map.ToText({0, 9}), 2);
    QCOMPARE(map.ToText({0, -9}), 0);
    QCOMPARE(map.ToText({9, 9}), 5);
}

void PositionMapTest::ReplacingIsTheSameAsReadingTheTextAnew()
{
    std::mt19937 random(2);
    std::u16string text;
    PositionMap map;
    for (int round = 0; round < 20000; ++round) {
        const auto position = random() % (text.size() + 1);
        const auto removed = std::min<std::size_t>(random() % 5, text.size() - position);
        const bool grow = text.size() < 60;
        const std::u16string inserted = RandomText(random, static_cast<int>(random() % 5) * grow);
        text.replace(position, removed, inserted);
        map.Replace(text, static_cast<int>(position), static_cast<int>(removed),
                    static_cast<int>(inserted.size()));
        QVERIFY2(SameParagraphs(map, PositionMap(text)), std::to_string(round).c_str());
    }
}

void PositionMapTest::ACrAndALfThatMeetBecomeOne()
{
    PositionMap map(u"a\rx\nb");
    QCOMPARE(map.ParagraphCount(), 3);
    map.Replace(u"a\r\nb", 2, 1, 0);
    QCOMPARE(map.ParagraphCount(), 2);
    QCOMPARE(map.ParagraphOf(0).lineEnd, 2);
    map.Replace(u"a\ry\nb", 2, 0, 1);
    QCOMPARE(map.ParagraphCount(), 3);
}

void PositionMapTest::LineEndsOfAnyKindBecomeTheOneAskedFor()
{
    const std::u16string mixed = u"a\r\nb\nc\rd\u2028e\u2029\r\r\nf";
    QVERIFY(WithLineEnds(mixed, u"\r\n") == u"a\r\nb\r\nc\r\nd\r\ne\r\n\r\n\r\nf");
    QVERIFY(WithLineEnds(mixed, u"\n") == u"a\nb\nc\nd\ne\n\n\nf");
    QVERIFY(WithLineEnds(u"", u"\r\n").empty());
}

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::PositionMapTest)

#include "PositionMapTest.moc"
