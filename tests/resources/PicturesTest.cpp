// Every picture of the program, as the program loads it.
#include "PictureSupport.h"

#include "keyboard/Fingers.h"

#include <QCryptographicHash>
#include <QFile>
#include <QHash>
#include <QImageReader>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

namespace keyfluent::pictures
{
namespace
{

constexpr int ratios[] = {1, 2, 3};

constexpr int backdrop = 112;

// The backdrop is too large to be wanted at three times its size.
bool HasRatio(int id, int ratio)
{
    return id != backdrop || ratio < 3;
}

// Numbers from the first to the last one, of one size in pixels.
struct Group {
    int first;
    int last;
    int width;
    int height;
};

constexpr Group fixedSizes[] = {
    {101, 101, 32, 32},     {102, 103, 115, 34},    {104, 104, 90, 82},     {105, 105, 90, 90},
    {106, 111, 90, 81},     {112, 112, 1600, 1024}, {113, 124, 128, 147},   {125, 128, 23, 22},
    {129, 137, 90, 81},     {146, 146, 545, 416},   {147, 147, 220, 417},   {148, 148, 500, 270},
    {200, 203, 90, 81},     {204, 204, 450, 330},   {205, 205, 369, 397},   {1113, 1124, 142, 162},
    {1125, 1125, 700, 567}, {1126, 1126, 900, 700}, {1127, 1127, 780, 203},
};

// The pictures of the random set choose their size within these limits.
struct FreeSizes {
    int first;
    int last;
    QSize least;
    QSize largest;
};

const FreeSizes freeSizes[] = {
    {138, 145, {281, 173}, {708, 340}},
    {149, 157, {310, 340}, {700, 525}},
};

std::map<int, QSize> SizeTable()
{
    std::map<int, QSize> sizes;
    QFile file(QStringLiteral(PICTURE_SIZES));
    if (!file.open(QIODevice::ReadOnly)) {
        return sizes;
    }
    const QList<QByteArray> lines = file.readAll().trimmed().split('\n').mid(1);
    for (const QByteArray& line : lines) {
        const QList<QByteArray> cells = line.split(',');
        sizes[cells.at(0).toInt()] = QSize(cells.at(1).toInt(), cells.at(2).toInt());
    }
    return sizes;
}

bool HasColours(const QImage& picture, int least)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            colours.insert(picture.pixel(x, y));
        }
        if (colours.size() >= least) {
            return true;
        }
    }
    return false;
}

double ShareSeen(const QImage& picture)
{
    int seen = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            seen += qAlpha(picture.pixel(x, y)) > 127;
        }
    }
    return double(seen) / (picture.width() * picture.height());
}

} // namespace

class PicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theTableHoldsEveryNumberInItsSize();
    void everyPictureHasItsSizeAtEachRatio_data();
    void everyPictureHasItsSizeAtEachRatio();
    void onlyTheBackdropIsStoredForFastDecoding();
    void noPictureIsBlank_data();
    void noPictureIsBlank();
    void noTwoPicturesAreEqual();
    void everyRatioShowsTheSamePicture_data();
    void everyRatioShowsTheSamePicture();
    void theLooksOfAButtonDifferAtAGlance_data();
    void theLooksOfAButtonDifferAtAGlance();
    void theTickOfACheckBoxIsSeen_data();
    void theTickOfACheckBoxIsSeen();
    void aPictogramStandsOutFromItsFace_data();
    void aPictogramStandsOutFromItsFace();
    void theStripesOfAWindowShowRoundItsPictures_data();
    void theStripesOfAWindowShowRoundItsPictures();
    void aColouredHandMarksItsFingerInTheFingersColour_data();
    void aColouredHandMarksItsFingerInTheFingersColour();
    void aPlainHandMarksOneFinger_data();
    void aPlainHandMarksOneFinger();
    void theIconComesInTheSizesOfADesktop();
};

namespace
{

void EveryNumber()
{
    QTest::addColumn<int>("id");
    for (const auto& [id, size] : SizeTable()) {
        QTest::addRow("%d", id) << id;
    }
}

// The two hands of a set; each finger's picture follows that of the hand at rest.
void EveryHand(int leftRest)
{
    QTest::addColumn<int>("rest");
    QTest::addColumn<bool>("left");
    QTest::newRow("left") << leftRest << true;
    QTest::newRow("right") << leftRest + 6 << false;
}

// How many of the colours are to be seen as a finger.
int FingersIn(const QImage& hand, const QRgb* first, const QRgb* last)
{
    constexpr int leastArea = 900; // of a finger, at three times the size
    return static_cast<int>(std::count_if(first, last, [&hand](QRgb colour) {
        return CountOf(hand, colour, hand.rect()) > leastArea;
    }));
}

// The middle of all that has a colour, from the left edge.
double PlaceOf(const QImage& hand, QRgb colour)
{
    double sum = 0;
    double count = 0;
    for (int x = 0; x < hand.width(); ++x) {
        const int here = CountOf(hand, colour, QRect(x, 0, 1, hand.height()));
        sum += double(here) * x;
        count += here;
    }
    return sum / count;
}

// As accessibility counts it: from 1 (none) to 21 (black on white).
double Contrast(QRgb one, QRgb other)
{
    const auto luminance = [](QRgb colour) {
        return 0.2126 * Linear(qRed(colour)) + 0.7152 * Linear(qGreen(colour)) +
               0.0722 * Linear(qBlue(colour));
    };
    const double p = luminance(one);
    const double q = luminance(other);
    return (std::max(p, q) + 0.05) / (std::min(p, q) + 0.05);
}

// The colour of the finger that strikes, on a plain hand.
constexpr QRgb markColour = 0xFFF0921E;

} // namespace

void PicturesTest::initTestCase()
{
    UsePictures();
}

void PicturesTest::theTableHoldsEveryNumberInItsSize()
{
    std::map<int, QSize> sizes = SizeTable();
    for (const Group& group : fixedSizes) {
        for (int id = group.first; id <= group.last; ++id) {
            QCOMPARE(sizes[id], QSize(group.width, group.height));
            sizes.erase(id);
        }
    }
    for (const FreeSizes& group : freeSizes) {
        for (int id = group.first; id <= group.last; ++id) {
            const QSize size = sizes[id];
            QCOMPARE(size.expandedTo(group.least), size);
            QCOMPARE(size.boundedTo(group.largest), size);
            sizes.erase(id);
        }
    }
    QVERIFY(sizes.empty());
}

void PicturesTest::everyPictureHasItsSizeAtEachRatio_data()
{
    EveryNumber();
}

void PicturesTest::everyPictureHasItsSizeAtEachRatio()
{
    QFETCH(int, id);
    for (int ratio : ratios) {
        const QSize wanted = HasRatio(id, ratio) ? SizeTable()[id] * ratio : QSize(0, 0);
        QCOMPARE(Load(id, ratio).size(), wanted);
    }
}

void PicturesTest::onlyTheBackdropIsStoredForFastDecoding()
{
    for (const auto& [id, size] : SizeTable()) {
        QCOMPARE(PathOf(id, 1).endsWith(QLatin1String("jpg")), id == backdrop);
        QCOMPARE(PathOf(id, 2).endsWith(QLatin1String("jpg")), id == backdrop);
        QCOMPARE(QImageReader::imageFormat(PathOf(id, 1)),
                 id == backdrop ? QByteArray("jpeg") : QByteArray("png"));
    }
}

void PicturesTest::noPictureIsBlank_data()
{
    EveryNumber();
}

void PicturesTest::noPictureIsBlank()
{
    QFETCH(int, id);
    for (int ratio : ratios) {
        if (HasRatio(id, ratio)) {
            const QImage picture = Load(id, ratio);
            QVERIFY(HasColours(picture, 16));
            QVERIFY(ShareSeen(picture) >= 0.15);
        }
    }
}

void PicturesTest::noTwoPicturesAreEqual()
{
    for (int ratio : ratios) {
        QHash<QByteArray, int> seen;
        for (const auto& [id, size] : SizeTable()) {
            const QImage picture = Load(id, ratio);
            QCryptographicHash hash(QCryptographicHash::Sha1);
            hash.addData(QByteArray::number(picture.width()));
            hash.addData(QByteArrayView(picture.constBits(), picture.sizeInBytes()));
            const int other = seen.value(hash.result(), id);
            QVERIFY2(other == id, qPrintable(QStringLiteral("%1 equals %2").arg(id).arg(other)));
            seen.insert(hash.result(), id);
        }
    }
}

void PicturesTest::everyRatioShowsTheSamePicture_data()
{
    EveryNumber();
}

void PicturesTest::everyRatioShowsTheSamePicture()
{
    QFETCH(int, id);
    const QImage picture = Load(id, 1);
    for (int ratio : {2, 3}) {
        if (!HasRatio(id, ratio)) {
            continue;
        }
        const QImage reduced =
            Load(id, ratio).scaled(picture.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const double difference = MeanDifference(picture, reduced);
        QVERIFY2(difference < 2.5, qPrintable(QString::number(difference)));
    }
}

void PicturesTest::theLooksOfAButtonDifferAtAGlance_data()
{
    QTest::addColumn<QList<int>>("looks");
    QTest::newRow("captioned button") << QList<int>{102, 103};
    QTest::newRow("stop") << QList<int>{106, 107};
    QTest::newRow("exercises") << QList<int>{109, 110, 111};
    QTest::newRow("back") << QList<int>{129, 130, 131};
    QTest::newRow("next") << QList<int>{132, 133, 134};
    QTest::newRow("repeat") << QList<int>{135, 136, 137};
    QTest::newRow("break") << QList<int>{200, 201};
    QTest::newRow("resume") << QList<int>{202, 203};
    QTest::newRow("empty check box, to change or fixed") << QList<int>{126, 125};
    QTest::newRow("ticked check box, to change or fixed") << QList<int>{127, 128};
}

void PicturesTest::theLooksOfAButtonDifferAtAGlance()
{
    QFETCH(QList<int>, looks);
    for (int i = 0; i < looks.size(); ++i) {
        for (int j = i + 1; j < looks.size(); ++j) {
            const double difference = MeanDifference(Load(looks[i], 1), Load(looks[j], 1));
            QVERIFY2(difference > 10, qPrintable(QString::number(difference)));
        }
    }
}

void PicturesTest::theTickOfACheckBoxIsSeen_data()
{
    QTest::addColumn<int>("empty");
    QTest::addColumn<int>("ticked");
    QTest::newRow("to change") << 126 << 127;
    QTest::newRow("fixed") << 125 << 128;
}

void PicturesTest::theTickOfACheckBoxIsSeen()
{
    QFETCH(int, empty);
    QFETCH(int, ticked);
    const QImage without = OnWhite(Load(empty, 3));
    const QImage with = OnWhite(Load(ticked, 3));
    int tick = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            tick += Contrast(without.pixel(x, y), with.pixel(x, y)) >= 3;
        }
    }
    const double share = double(tick) / (with.width() * with.height());
    QVERIFY2(share > 0.06, qPrintable(QString::number(share)));
}

void PicturesTest::aPictogramStandsOutFromItsFace_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<double>("leastContrast");
    for (int id : {106, 107, 109, 110, 129, 130, 132, 133, 135, 136, 200, 201, 202, 203}) {
        QTest::addRow("%d", id) << id << 3.0;
    }
    for (int id : {111, 131, 134, 137}) {
        QTest::addRow("%d, grey", id) << id << 1.8;
    }
}

void PicturesTest::aPictogramStandsOutFromItsFace()
{
    QFETCH(int, id);
    QFETCH(double, leastContrast);
    const QImage picture = Load(id, 3);
    const QRect face(30, 30, 200, 170);
    const int bare = 27; // left of every pictogram
    int standsOut = 0;
    for (int y = face.top(); y <= face.bottom(); ++y) {
        for (int x = face.left(); x <= face.right(); ++x) {
            standsOut += Contrast(picture.pixel(x, y), picture.pixel(bare, y)) >= leastContrast;
        }
    }
    const double share = double(standsOut) / (face.width() * face.height());
    QVERIFY2(share > 0.12 && share < 0.65, qPrintable(QString::number(share)));
}

void PicturesTest::theStripesOfAWindowShowRoundItsPictures_data()
{
    QTest::addColumn<int>("id");
    for (const Group& group : {Group{102, 103, 0, 0}, Group{106, 111, 0, 0}, Group{113, 137, 0, 0},
                               Group{200, 203, 0, 0}, Group{1113, 1124, 0, 0}}) {
        for (int id = group.first; id <= group.last; ++id) {
            QTest::addRow("%d", id) << id;
        }
    }
}

void PicturesTest::theStripesOfAWindowShowRoundItsPictures()
{
    QFETCH(int, id);
    const QImage picture = Load(id, 2);
    QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(picture.pixel(picture.width() - 1, 0)), 0);
}

void PicturesTest::aColouredHandMarksItsFingerInTheFingersColour_data()
{
    EveryHand(1113);
}

void PicturesTest::aColouredHandMarksItsFingerInTheFingersColour()
{
    QFETCH(int, rest);
    QFETCH(bool, left);
    QCOMPARE(FingersIn(Load(rest, 3), fingerColours + 1, fingerColours + 6), 0);
    std::vector<double> places;
    for (int finger = keyboard::thumb; finger <= keyboard::littleFinger; ++finger) {
        const QImage hand = Load(rest + finger, 3);
        QCOMPARE(FingersIn(hand, fingerColours + 1, fingerColours + 6), 1);
        places.push_back(PlaceOf(hand, fingerColours[finger]));
    }
    // The thumbs lie inwards, the little fingers outwards.
    QVERIFY(left ? std::is_sorted(places.rbegin(), places.rend())
                 : std::is_sorted(places.begin(), places.end()));
    QVERIFY(std::abs(places.front() - places.back()) > 200);
}

void PicturesTest::aPlainHandMarksOneFinger_data()
{
    EveryHand(113);
}

void PicturesTest::aPlainHandMarksOneFinger()
{
    QFETCH(int, rest);
    QFETCH(bool, left);
    QCOMPARE(FingersIn(Load(rest, 3), &markColour, &markColour + 1), 0);
    std::vector<double> places;
    for (int finger = keyboard::thumb; finger <= keyboard::littleFinger; ++finger) {
        const QImage hand = Load(rest + finger, 3);
        QCOMPARE(FingersIn(hand, &markColour, &markColour + 1), 1);
        places.push_back(PlaceOf(hand, markColour));
    }
    QVERIFY(left ? std::is_sorted(places.rbegin(), places.rend())
                 : std::is_sorted(places.begin(), places.end()));
    QVERIFY(std::abs(places.front() - places.back()) > 180);
}

void PicturesTest::theIconComesInTheSizesOfADesktop()
{
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QImage icon(QStringLiteral(":/icons/keyfluent-%1.png").arg(size));
        QCOMPARE(icon.size(), QSize(size, size));
        QVERIFY(ShareSeen(icon.convertToFormat(QImage::Format_ARGB32)) > 0.4);
    }
}

} // namespace keyfluent::pictures

QTEST_GUILESS_MAIN(keyfluent::pictures::PicturesTest)
#include "PicturesTest.moc"
