// From the start of the process to the sign-in: the opening picture, the splash, the size of the
// screen and the second instance.
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"
#include "shell/forms/frmSplash.h"

#include "tests/shell/forms/FormsHarness.h"

#include <QElapsedTimer>
#include <QFile>

namespace keyfluent::shell
{

class StartUpFlowTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void PictureAndSplashFollowOneAnotherByTimeAlone();
    void AKeyCutsTheSplashShort();
    void KeysDoNothingToTheOpeningPicture();
    void ACloseRequestLeavesTheOpeningPictureAlone();
    void SplashClosedAndItsTimerStartTheProgramOnce();
    void TooSmallAScreenIsToldInEnglishAndEndsTheProcess_data();
    void TooSmallAScreenIsToldInEnglishAndEndsTheProcess();
    void TheSmallestScreenPasses();
    void ASecondInstanceIsRefusedInTheSavedLanguage_data();
    void ASecondInstanceIsRefusedInTheSavedLanguage();
    void ASecondInstanceShowsBothPicturesFirst();
    void StartTakesThePlaceFromTheStart();
    void SignInGivenUpAtTheStartEndsTheProcess();
};

void StartUpFlowTest::PictureAndSplashFollowOneAnotherByTimeAlone()
{
    World world;
    world.WritePreferences(false);
    QElapsedTimer clock;
    qint64 opening = 0;
    qint64 splash = 0;
    Script script(world);
    script
        .At("frmIslam",
            [&](QWidget& window) {
                clock.start();
                QCOMPARE(window.findChild<QTimer*>("Timer1")->interval(), 2000);
                QCOMPARE(Picture(window, "Image1").Bitmap(), 1127);
                QCOMPARE(Picture(window, "Image1").pos(), QPoint(0, 0));
                QCOMPARE(window.size(), QSize(780, 203));
            })
        .At("frmSplash",
            [&](QWidget& window) {
                opening = clock.restart();
                QCOMPARE(window.findChild<QTimer*>("Timer1")->interval(), 2500);
                QCOMPARE(Picture(window, "Image1").Bitmap(), 204);
                QCOMPARE(Picture(window, "Image1").pos(), QPoint(0, 0));
                QCOMPARE(window.size(), QSize(450, 330));
            })
        .At("frmEName", [&](QWidget& window) {
            splash = clock.elapsed();
            shell::Click(window, "imgCansel");
        });
    QVERIFY2(script.Run([&] { world.program().Begin(); }), script.Report());
    // A busy machine may come late, but never early.
    QVERIFY2(opening >= 1950 && opening < 2400, qPrintable(QString::number(opening)));
    QVERIFY2(splash >= 2450 && splash < 2900, qPrintable(QString::number(splash)));
}

void StartUpFlowTest::AKeyCutsTheSplashShort()
{
    for (const Qt::Key key :
         {Qt::Key_A, Qt::Key_Return, Qt::Key_Escape, Qt::Key_F5, Qt::Key_Shift}) {
        World world;
        world.WritePreferences(false);
        QElapsedTimer clock;
        Script script(world);
        script
            .At("frmSplash",
                [&](QWidget& window) {
                    clock.start();
                    Key(window, key);
                })
            .At("frmEName", [&](QWidget& window) {
                QVERIFY(clock.elapsed() < 500);
                shell::Click(window, "imgCansel");
            });
        QVERIFY2(script.Run([&] { world.program().Show<frmSplash>(); }), script.Report());
        QCOMPARE(world.endStatus, std::optional<int>(0));
    }
}

void StartUpFlowTest::KeysDoNothingToTheOpeningPicture()
{
    World world;
    world.WritePreferences(false);
    QElapsedTimer clock;
    Script script(world);
    script
        .At("frmIslam",
            [&](QWidget& window) {
                clock.start();
                Key(window, Qt::Key_Return);
                Key(window, Qt::Key_Escape);
                Key(window, Qt::Key_Space);
                PressAt(window, {5, 5});
                ReleaseAt(window, {5, 5});
            })
        .At("frmSplash",
            [&](QWidget& window) {
                QVERIFY(clock.elapsed() > 1800);
                Key(window, Qt::Key_Space);
            })
        .Click("frmEName", "imgCansel");
    QVERIFY2(script.Run([&] { world.program().Begin(); }), script.Report());
}

void StartUpFlowTest::ACloseRequestLeavesTheOpeningPictureAlone()
{
    World world;
    world.WritePreferences(false);
    Script script(world);
    script
        .At("frmIslam",
            [](QWidget& window) {
                RequestClose(window);
                QVERIFY(window.isVisible());
            })
        .Press("frmSplash", Qt::Key_Space)
        .Click("frmEName", "imgCansel");
    QVERIFY2(script.Run([&] { world.program().Begin(); }), script.Report());
}

void StartUpFlowTest::SplashClosedAndItsTimerStartTheProgramOnce()
{
    World world;
    world.WritePreferences(false);
    Script script(world);
    script
        .At("frmSplash",
            [](QWidget& window) {
                Key(window, Qt::Key_A);
                Key(window, Qt::Key_B);
                RequestClose(window);
            })
        .At("frmEName", [](QWidget& window) {
            PassTime(2700); // the splash's timer would have fired by now
            shell::Click(window, "imgCansel");
        });
    QVERIFY2(script.Run([&] { world.program().Show<frmSplash>(); }), script.Report());
    QCOMPARE(world.endStatus, std::optional<int>(0));
}

void StartUpFlowTest::TooSmallAScreenIsToldInEnglishAndEndsTheProcess_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QString>("numbers");
    QTest::newRow("narrow") << QSize(799, 600)
                            << "Current Screen Width: 799.  Current Screen Height: 600";
    QTest::newRow("low") << QSize(800, 599)
                         << "Current Screen Width: 800.  Current Screen Height: 599";
    QTest::newRow("both") << QSize(640, 480)
                          << "Current Screen Width: 640.  Current Screen Height: 480";
}

void StartUpFlowTest::TooSmallAScreenIsToldInEnglishAndEndsTheProcess()
{
    QFETCH(QSize, screen);
    QFETCH(QString, numbers);
    for (const bool byClose : {false, true}) {
        World world;
        world.WritePreferences(true); // not read yet when the screen is tested
        world.screen = screen;
        Script script(world);
        script.At("frmScreen", [&](QWidget& window) {
            QCOMPARE(Label(window, "lblTitle").text(), QStringLiteral("Screen Resolution"));
            QVERIFY(Label(window, "lblText").text().endsWith(numbers));
            byClose ? RequestClose(window) : shell::Click(window, "cmdThank");
        });
        QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
        QCOMPARE(world.endStatus, std::optional<int>(0));
        QVERIFY(world.program().MainWindow() == nullptr);
        QVERIFY(world.criticals.isEmpty());
    }
}

void StartUpFlowTest::TheSmallestScreenPasses()
{
    World world;
    world.WritePreferences(false);
    world.screen = {800, 600};
    Script script(world);
    script.Click("frmEName", "imgCansel");
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
}

void StartUpFlowTest::ASecondInstanceIsRefusedInTheSavedLanguage_data()
{
    QTest::addColumn<bool>("arabic");
    QTest::addColumn<QString>("refusal");
    QTest::newRow("English") << false << "Zen Orchard KeyFluent 1.0 is already running!";
    QTest::newRow("Arabic") << true << "لا تستطيع تشغيل اكثر من نسخة من برنامج كي فلونت 1,0.";
}

void StartUpFlowTest::ASecondInstanceIsRefusedInTheSavedLanguage()
{
    QFETCH(bool, arabic);
    QFETCH(QString, refusal);
    World world;
    world.WritePreferences(arabic);
    world.firstInstance = false;
    world.program().StartUp();
    QCOMPARE(world.criticals, QStringList(refusal));
    QCOMPARE(world.endStatus, std::optional<int>(0));
    QVERIFY(TopWindow(world.program()) == nullptr);
}

void StartUpFlowTest::ASecondInstanceShowsBothPicturesFirst()
{
    World world;
    world.WritePreferences(false);
    world.firstInstance = false;
    Script script(world);
    script.At("frmIslam").At("frmSplash", [&](QWidget& window) {
        QVERIFY(world.criticals.isEmpty());
        Key(window, Qt::Key_A);
    });
    QVERIFY2(script.Run([&] { world.program().Begin(); }), script.Report());
    QCOMPARE(world.criticals.size(), 1);
    QCOMPARE(world.endStatus, std::optional<int>(0));
}

void StartUpFlowTest::StartTakesThePlaceFromTheStart()
{
    World world;
    world.WritePreferences(true, 0, 17);
    world.state().stopCount = 7;
    world.state().lessonNo = 9;
    world.state().loggedOut = true;
    Script script(world);
    script.At("frmEName", [&](QWidget& window) {
        QCOMPARE(world.state().stopCount, 0);
        QCOMPARE(world.state().lessonNo, 1);
        QVERIFY(!world.state().loggedOut);
        QVERIFY(!world.state().quitting);
        QVERIFY(!world.state().sessionRun);
        QVERIFY(world.state().arabicInterface);
        QCOMPARE(world.state().keyboardKind, 0);
        QCOMPARE(world.state().fontSize, 17);
        shell::Click(window, "imgCansel");
    });
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
}

void StartUpFlowTest::SignInGivenUpAtTheStartEndsTheProcess()
{
    for (const bool byClose : {false, true}) {
        World world;
        world.WritePreferences(false);
        Script script(world);
        script.At("frmEName", [&](QWidget& window) {
            Type(window, QStringLiteral("Ali"));
            byClose ? RequestClose(window) : shell::Click(window, "imgCansel");
        });
        QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
        QCOMPARE(world.endStatus, std::optional<int>(0));
        QVERIFY(world.program().MainWindow() == nullptr); // and nobody says good-bye
        QVERIFY(!world.HasStudent(QStringLiteral("Ali")));
    }
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::StartUpFlowTest)

#include "StartUpFlowTest.moc"
