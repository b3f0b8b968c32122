// The backdrop as it is laid out over a window of any size.
#include "PictureSupport.h"

#include "shell/base/Pictures.h"

#include <QTest>

namespace keyfluent::pictures
{
namespace
{

constexpr int backdrop = 112;

// The same by the slow way: the largest picture as a whole, scaled to cover, cut evenly.
QImage Expected(QSize size)
{
    const QImage covering =
        Load(backdrop, 2).scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QSize spare = covering.size() - size;
    return covering.copy(QRect(QPoint(spare.width() / 2, spare.height() / 2), size));
}

} // namespace

class BackdropTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void itCoversAWindowOfAnySize_data();
    void itCoversAWindowOfAnySize();
    void theSmallestWindowIsCovered();
    void aPictureIsLoadedAtItsScale();
    void aScaleThatIsMissingIsStoodInForByTheNextSmallerOne();
};

void BackdropTest::initTestCase()
{
    UsePictures();
}

void BackdropTest::itCoversAWindowOfAnySize_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(800, 600), QSize(1024, 768), QSize(1280, 1024), QSize(1366, 768),
                             QSize(1600, 1024), QSize(1920, 1080), QSize(2560, 1440),
                             QSize(3840, 2160), QSize(600, 1400), QSize(2500, 300)}) {
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }
}

void BackdropTest::itCoversAWindowOfAnySize()
{
    QFETCH(QSize, size);
    const QPixmap shown = shell::ScaledBackdrop(backdrop, size);
    QCOMPARE(shown.size(), size);
    QCOMPARE(shown.devicePixelRatio(), 1.0);
    const double difference = MeanDifference(shown.toImage(), Expected(size));
    QVERIFY2(difference < 1.5, qPrintable(QString::number(difference)));
}

void BackdropTest::theSmallestWindowIsCovered()
{
    QCOMPARE(shell::ScaledBackdrop(backdrop, {1, 1}).size(), QSize(1, 1));
}

void BackdropTest::aPictureIsLoadedAtItsScale()
{
    for (const int scale : {1, 2}) {
        const QPixmap picture = shell::LoadBitmap(backdrop, scale);
        QCOMPARE(picture.size(), QSize(1600, 1024) * scale);
        QCOMPARE(picture.devicePixelRatio(), double(scale));
    }
}

void BackdropTest::aScaleThatIsMissingIsStoodInForByTheNextSmallerOne()
{
    QCOMPARE(shell::LoadBitmap(backdrop, 3).size(), QSize(3200, 2048));
    QCOMPARE(shell::LoadBitmap(101, 3).size(), QSize(96, 96));
}

} // namespace keyfluent::pictures

QTEST_MAIN(keyfluent::pictures::BackdropTest)
#include "BackdropTest.moc"
