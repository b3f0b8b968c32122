// How the main window fills its place at any size, and what it does when nothing happens.
#include "shell/base/ImageControl.h"
#include "shell/forms/frmBlack.h"

#include "tests/shell/forms/FormsHarness.h"

#include <QMenuBar>
#include <QPaintEvent>

namespace keyfluent::shell
{

class MainWindowLayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void LayoutFollowsTheSizeOfTheWindow_data();
    void LayoutFollowsTheSizeOfTheWindow();
    void NothingIsAskedOfTheProcessorWhileItIdles();
    void OnlyWhatChangesIsPaintedAnew();
};

namespace
{

class PaintedArea : public QObject
{
public:
    explicit PaintedArea(QWidget& window) { window.installEventFilter(this); }

    QRegion painted;
    int times = 0;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            ++times;
            painted |= static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
};

frmBlack& EnterAfterAnExercise(World& world)
{
    frmBlack& main = world.SignIn();
    world.state().sessionRun = true;
    main.ShowStepButtons(true, true, true);
    PassTime(50);
    return main;
}

} // namespace

void MainWindowLayoutTest::LayoutFollowsTheSizeOfTheWindow_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize& size : {QSize(800, 600), QSize(1024, 768), QSize(1366, 768),
                              QSize(1600, 1200), QSize(2560, 1080), QSize(3840, 2160)}) {
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }
}

void MainWindowLayoutTest::LayoutFollowsTheSizeOfTheWindow()
{
    QFETCH(QSize, size);
    World world;
    frmBlack& main = EnterAfterAnExercise(world);
    main.showNormal();
    main.resize(size);
    QTRY_COMPARE(main.size(), size);
    const int top = size.height() - 127; // 1910 twips
    QCOMPARE(Picture(main, "imgExercise").pos(), QPoint(10, top));
    const int back = size.width() - (3 * 90 + 73);
    QCOMPARE(Picture(main, "imgBack").pos(), QPoint(back, top));
    QCOMPARE(Picture(main, "imgNext").pos(), QPoint(back + 90 + 26, top));
    QCOMPARE(Picture(main, "imgDuplicate").pos(), QPoint(back + 2 * (90 + 26), top - 3));

    const QImage shot = main.grab().toImage();
    const int bandTop = size.height() - 129;
    constexpr QRgb stripes[] = {0xFFF4F4F4, 0xFFFFFFFF, 0xFFF3F3F3, 0xFFEEEEEE};
    for (int y = bandTop; y < size.height(); ++y) {
        for (const int x : {2, size.width() / 2}) {
            QCOMPARE(shot.pixel(x, y), stripes[(y - bandTop) % 4]);
        }
    }
    // Above the band the picture is everywhere, from edge to edge.
    const int menu = main.findChild<QMenuBar*>()->height();
    for (const QPoint& place : {QPoint(0, menu), QPoint(size.width() - 1, menu),
                                QPoint(0, bandTop - 1), QPoint(size.width() - 1, bandTop - 1)}) {
        const QColor colour = shot.pixelColor(place);
        QVERIFY2(colour.blue() > colour.red(), "no piece of the picture");
    }
}

void MainWindowLayoutTest::NothingIsAskedOfTheProcessorWhileItIdles()
{
    World world;
    frmBlack& main = EnterAfterAnExercise(world);
    for (const QTimer* timer : main.findChildren<QTimer*>()) {
        QVERIFY(!timer->isActive());
    }
    const PaintedArea area(main);
    PassTime(300);
    QCOMPARE(area.times, 0);
}

void MainWindowLayoutTest::OnlyWhatChangesIsPaintedAnew()
{
    World world;
    frmBlack& main = EnterAfterAnExercise(world);
    const PaintedArea area(main);
    MoveOver(main, "imgNext");
    QTRY_VERIFY(area.times > 0);
    QCOMPARE(area.painted.boundingRect(), Picture(main, "imgNext").geometry());
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::MainWindowLayoutTest)

#include "MainWindowLayoutTest.moc"
