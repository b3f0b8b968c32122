// What the charts tell, held against the tables that the exercises go by.
#include "PictureSupport.h"

#include "context/KeyboardKind.h"
#include "context/Text.h"
#include "keyboard/Fingers.h"
#include "keyboard/KeyCaps.h"
#include "keyboard/Layouts.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <map>
#include <string_view>

namespace keyfluent::pictures
{
namespace
{

using keyboard::handAtRest;

constexpr int wholeKeyboard = 146;
constexpr int numericPad = 147;
constexpr int guideRow = 148;
constexpr int ratio = 3;

// The keys on which the fingers rest, from left to right.
constexpr std::u16string_view guideLetters = u"شسيبتنمك";

// What a chart may show on a key: a finger's colour at this strength, or no colour.
struct Shown {
    int finger = handAtRest;
    bool strong = false;

    bool operator==(const Shown&) const = default;
};

char* toString(const Shown& shown)
{
    return QTest::toString(QStringLiteral("finger %1%2")
                               .arg(shown.finger)
                               .arg(shown.strong ? QStringLiteral(", strong") : QString()));
}

// The faces of the caps in a chart at its threefold size, by the numbers of the caps.
std::map<int, QRect> FacesIn(int chart)
{
    QFile file(QStringLiteral(CHART_SOURCES "/%1.svg").arg(chart));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    static const QRegularExpression face(QStringLiteral(
        "id=\"cap(\\d+)\" x=\"([^\"]+)\" y=\"([^\"]+)\" width=\"([^\"]+)\" height=\"([^\"]+)\""));
    std::map<int, QRect> faces;
    auto match = face.globalMatch(QString::fromUtf8(file.readAll()));
    while (match.hasNext()) {
        const QRegularExpressionMatch found = match.next();
        const auto length = [&found](int part) { return found.captured(part).toDouble() * ratio; };
        faces[found.captured(1).toInt()] =
            QRectF(length(2), length(3), length(4), length(5)).toRect();
    }
    return faces;
}

QRgb Paler(QRgb colour)
{
    const auto part = [](int value) { return qRound(value * 0.45 + 255 * 0.55); };
    return qRgb(part(qRed(colour)), part(qGreen(colour)), part(qBlue(colour)));
}

// What the upper part of a cap shows, where no hand lies: the colour that it has most of. The edge
// of the cap is left out.
Shown ShownOn(const QImage& chart, QRect face)
{
    constexpr int edge = 8;
    const QRect part = face.adjusted(edge, edge, -edge, -face.height() / 2) & chart.rect();
    Shown most;
    int largest = CountOf(chart, 0xFFFFFFFF, part);
    for (int finger = keyboard::thumb; finger <= keyboard::littleFinger; ++finger) {
        for (bool strong : {false, true}) {
            const QRgb colour = fingerColours[finger];
            const int count = CountOf(chart, strong ? colour : Paler(colour), part);
            if (count > largest) {
                largest = count;
                most = {finger, strong};
            }
        }
    }
    return largest > part.width() * part.height() / 4 ? most : Shown{-1, false};
}

// The finger that strikes a character without Shift; at rest where the tables tell none.
int StrikerOf(std::u16string_view character, bool arabic)
{
    const keyboard::Fingers fingers =
        keyboard::FingersOf(character, context::windowsKeyboard, arabic);
    return fingers.shiftCap == keyboard::noCap ? std::max(fingers.left, fingers.right) : handAtRest;
}

bool IsGuideKey(const keyboard::CharacterKey& key)
{
    return key.arabicWindows.size() == 1 &&
           guideLetters.find(key.arabicWindows) != std::u16string_view::npos;
}

} // namespace

class ChartsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyCharacterKeyHasTheColourOfItsFinger_data();
    void everyCharacterKeyHasTheColourOfItsFinger();
    void theKeyOfNoExerciseFollowsItsNeighbour();
    void spaceReturnAndShiftHaveTheColoursOfTheirFingers();
    void aKeyThatNoFingerIsToldForHasNoColour();
    void everyCapOfTheMainBlockIsInTheChartOnce();
    void onlyTheHandsThatStrikeHaveColouredFingers();
    void everyColumnOfThePadHasItsFinger_data();
    void everyColumnOfThePadHasItsFinger();
    void theGuideRowShowsTheKeysOfRestAlone();
    void aMapColoursTheKeysOfItsFingerAlone_data();
    void aMapColoursTheKeysOfItsFingerAlone();
};

void ChartsTest::initTestCase()
{
    UsePictures();
}

void ChartsTest::everyCharacterKeyHasTheColourOfItsFinger_data()
{
    QTest::addColumn<int>("cap");
    QTest::addColumn<int>("finger");
    QTest::addColumn<bool>("rest");
    for (const keyboard::CharacterKey& key : keyboard::characterKeys) {
        int finger = StrikerOf(key.arabicWindows, true);
        if (finger == handAtRest) {
            finger = StrikerOf(key.english, false);
        }
        if (finger != handAtRest) {
            QTest::addRow("%d", key.cap) << key.cap << finger << IsGuideKey(key);
        }
    }
}

void ChartsTest::everyCharacterKeyHasTheColourOfItsFinger()
{
    QFETCH(int, cap);
    QFETCH(int, finger);
    QFETCH(bool, rest);
    const QImage chart = Load(wholeKeyboard, ratio);
    QCOMPARE(ShownOn(chart, FacesIn(wholeKeyboard).at(cap)), (Shown{finger, rest}));
}

void ChartsTest::theKeyOfNoExerciseFollowsItsNeighbour()
{
    constexpr int backslash = 46;
    QCOMPARE(StrikerOf(u"\\", true), handAtRest);
    QCOMPARE(StrikerOf(u"\\", false), handAtRest);
    const QImage chart = Load(wholeKeyboard, ratio);
    const std::map<int, QRect> faces = FacesIn(wholeKeyboard);
    QCOMPARE(ShownOn(chart, faces.at(backslash)), ShownOn(chart, faces.at(backslash - 1)));
}

void ChartsTest::spaceReturnAndShiftHaveTheColoursOfTheirFingers()
{
    const QImage chart = Load(wholeKeyboard, ratio);
    const std::map<int, QRect> faces = FacesIn(wholeKeyboard);
    const auto shown = [&](int cap) { return ShownOn(chart, faces.at(cap)).finger; };
    QCOMPARE(shown(keyboard::capSpace), StrikerOf(u" ", true));
    QCOMPARE(shown(keyboard::capReturn),
             StrikerOf(std::u16string_view(&context::lineEndMark, 1), true));

    const auto shifted = [](std::u16string_view character) {
        return keyboard::FingersOf(character, context::windowsKeyboard, false);
    };
    QCOMPARE(shifted(u"K").shiftCap, keyboard::capLeftShift);
    QCOMPARE(shown(keyboard::capLeftShift), shifted(u"K").left);
    QCOMPARE(shifted(u"D").shiftCap, keyboard::capRightShift);
    QCOMPARE(shown(keyboard::capRightShift), shifted(u"D").right);
}

void ChartsTest::aKeyThatNoFingerIsToldForHasNoColour()
{
    const QImage chart = Load(wholeKeyboard, ratio);
    const std::map<int, QRect> faces = FacesIn(wholeKeyboard);
    for (int cap : {29, 33, keyboard::capCapsLock, keyboard::capLeftCtrl, 73, 74, 76, 77,
                    keyboard::capRightCtrl}) {
        QCOMPARE(ShownOn(chart, faces.at(cap)), Shown{});
    }
}

void ChartsTest::everyCapOfTheMainBlockIsInTheChartOnce()
{
    const std::map<int, QRect> faces = FacesIn(wholeKeyboard);
    std::vector<QRect> seen;
    for (int cap = 0; cap < keyboard::capCount; ++cap) {
        const bool mainBlock = (cap >= 16 && cap <= 29) || (cap >= 33 && cap <= 78);
        QCOMPARE(faces.count(cap), mainBlock ? 1U : 0U);
        if (mainBlock) {
            const QRect face = faces.at(cap);
            QVERIFY(std::none_of(seen.begin(), seen.end(),
                                 [&face](const QRect& other) { return other.intersects(face); }));
            seen.push_back(face);
        }
    }
}

void ChartsTest::onlyTheHandsThatStrikeHaveColouredFingers()
{
    const QImage chart = Load(wholeKeyboard, ratio);
    const QRect keys = FacesIn(wholeKeyboard).at(keyboard::capSpace);
    const int below = keys.bottom() + 30;
    const int third = chart.width() * 2 / 5;
    const QRect left(0, below, third, chart.height() - below);
    const QRect right = left.translated(chart.width() - third, 0);
    for (int finger = keyboard::thumb; finger <= keyboard::littleFinger; ++finger) {
        QVERIFY(CountOf(chart, fingerColours[finger], right) > 900);
        // No key is struck by the left thumb.
        QCOMPARE(CountOf(chart, fingerColours[finger], left) > 900, finger != keyboard::thumb);
    }
}

void ChartsTest::everyColumnOfThePadHasItsFinger_data()
{
    QTest::addColumn<QList<int>>("caps");
    QTest::addColumn<int>("finger");
    QTest::newRow("1 4 7") << QList<int>{99, 95, 91, 87} << keyboard::indexFinger;
    QTest::newRow("2 5 8") << QList<int>{100, 96, 92, 88} << keyboard::middleFinger;
    QTest::newRow("3 6 9 and the point")
        << QList<int>{101, 97, 93, 89, 104} << keyboard::ringFinger;
    QTest::newRow("Enter, plus, minus")
        << QList<int>{keyboard::capPadEnter, 98, 94, 90} << keyboard::littleFinger;
    QTest::newRow("0") << QList<int>{103} << keyboard::thumb;
}

void ChartsTest::everyColumnOfThePadHasItsFinger()
{
    QFETCH(QList<int>, caps);
    QFETCH(int, finger);
    const QImage chart = Load(numericPad, ratio);
    const std::map<int, QRect> faces = FacesIn(numericPad);
    for (int cap : caps) {
        const bool rest = cap >= 95 && cap <= 98; // 4, 5, 6 and plus
        QCOMPARE(ShownOn(chart, faces.at(cap)), (Shown{finger, rest}));
    }
}

void ChartsTest::theGuideRowShowsTheKeysOfRestAlone()
{
    const QImage chart = Load(guideRow, ratio);
    const std::map<int, QRect> faces = FacesIn(guideRow);
    int guideKeys = 0;
    for (const keyboard::CharacterKey& key : keyboard::characterKeys) {
        const bool homeRow = key.cap >= 48 && key.cap <= 58;
        if (!homeRow) {
            continue;
        }
        const bool rest = IsGuideKey(key);
        guideKeys += rest;
        const Shown expected = rest ? Shown{StrikerOf(key.arabicWindows, true), true} : Shown{};
        QCOMPARE(ShownOn(chart, faces.at(key.cap)), expected);
    }
    QCOMPARE(guideKeys, static_cast<int>(guideLetters.size()));
}

void ChartsTest::aMapColoursTheKeysOfItsFingerAlone_data()
{
    QTest::addColumn<int>("map");
    QTest::addColumn<int>("mapped");
    QTest::newRow("index") << 138 << keyboard::indexFinger;
    QTest::newRow("middle") << 139 << keyboard::middleFinger;
    QTest::newRow("ring") << 140 << keyboard::ringFinger;
    QTest::newRow("little") << 141 << keyboard::littleFinger;
}

void ChartsTest::aMapColoursTheKeysOfItsFingerAlone()
{
    QFETCH(int, map);
    QFETCH(int, mapped);
    const QImage chart = Load(map, ratio);
    const std::map<int, QRect> faces = FacesIn(map);
    int coloured = 0;
    for (const keyboard::CharacterKey& key : keyboard::characterKeys) {
        int finger = StrikerOf(key.arabicWindows, true);
        if (finger == handAtRest) {
            finger = StrikerOf(key.english, false);
        }
        // The map of the index fingers ends before the ends of the keyboard.
        const QRect face = faces.at(key.cap);
        if (finger == handAtRest || !chart.rect().contains(face)) {
            continue;
        }
        const bool own = finger == mapped;
        coloured += own;
        QCOMPARE(ShownOn(chart, face), own ? (Shown{finger, IsGuideKey(key)}) : Shown{});
    }
    QVERIFY(coloured >= 8);
}

} // namespace keyfluent::pictures

QTEST_GUILESS_MAIN(keyfluent::pictures::ChartsTest)
#include "ChartsTest.moc"
