// How windows open and go: in time, without leaving anything behind, and when the desktop asks them
// to close.
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"

#include "tests/shell/forms/FormMakers.h"

#include <QDir>
#include <QScreen>
#include <QWindow>

#include <ctime>

namespace keyfluent::shell
{

class FormOpeningTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void EveryWindowOpensWithinATenthOfASecond(); // first: nothing has been loaded yet
    void OpeningAHundredTimesLeavesNothingBehind_data();
    void OpeningAHundredTimesLeavesNothingBehind();
    void ACloseRequestIsTheWindowsOwnCancel_data();
    void ACloseRequestIsTheWindowsOwnCancel();
    void WindowsStandInTheMiddleOfTheScreen();
    void WindowsCannotBeMovedByTheirBackground();
    void StripesBoxAndRuleAreEverywhereButOnPictures_data();
    void StripesBoxAndRuleAreEverywhereButOnPictures();
    void TheWindowBeneathIsActiveAgain();
};

namespace
{

// What a sanitizer costs is not the program's.
#if defined(__SANITIZE_ADDRESS__)
constexpr double limit = 1000;
#else
constexpr double limit = 100;
#endif

// Milliseconds that this thread has worked: what else the machine does plays no part.
double WorkedSoFar()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1000 + static_cast<double>(time.tv_nsec) / 1e6;
}

// Shows a window until it has painted itself.
void ShowAndPaint(QWidget& window)
{
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    window.repaint();
}

} // namespace

void FormOpeningTest::EveryWindowOpensWithinATenthOfASecond()
{
    World world;
    PlaceStudent(world);
    double before = WorkedSoFar();
    world.program().EnterAsKnownStudent();
    ShowAndPaint(*world.program().MainWindow());
    QByteArray slow;
    const auto note = [&](const char* name) {
        const double took = WorkedSoFar() - before;
        if (took >= limit) {
            slow += QByteArray(name) + ' ' + QByteArray::number(took) + " ms; ";
        }
    };
    note("frmBlack");
    for (const FormMaker& maker : FormMakers()) {
        PlaceStudent(world);
        before = WorkedSoFar();
        const std::unique_ptr<Form> window = maker.make(world);
        ShowAndPaint(*window);
        note(maker.name);
    }
    QVERIFY2(slow.isEmpty(), slow.constData());
}

void FormOpeningTest::OpeningAHundredTimesLeavesNothingBehind_data()
{
    QTest::addColumn<QByteArray>("form");
    for (const FormMaker& maker : FormMakers()) {
        QTest::newRow(maker.name) << QByteArray(maker.name);
    }
}

void FormOpeningTest::OpeningAHundredTimesLeavesNothingBehind()
{
    QFETCH(QByteArray, form);
    World world;
    PlaceStudent(world);
    QDir(world.Folder()).mkdir(QStringLiteral("Students"));
    qsizetype widgets = 0;
    qsizetype windows = 0;
    for (int time = 0; time < 100; ++time) {
        PlaceStudent(world);
        bool shown = false;
        QTimer::singleShot(0, [&shown] {
            if (auto* window = qobject_cast<Form*>(QApplication::activeModalWidget())) {
                shown = window->isVisible();
                window->Abandon();
            }
        });
        world.program().ShowModal(MakeForm(world, form.constData()));
        QVERIFY(shown);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (time == 0) {
            widgets = QApplication::allWidgets().size();
            windows = QGuiApplication::allWindows().size();
        }
    }
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    QCOMPARE(QGuiApplication::allWindows().size(), windows);
}

void FormOpeningTest::ACloseRequestIsTheWindowsOwnCancel_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QByteArray>("next"); // what is on top afterwards
    const auto row = [](const char* form, const char* next) {
        QTest::newRow(form) << QByteArray(form) << QByteArray(next);
    };
    row("frmIslam", "frmIslam");
    row("frmSplash", "frmEName");
    row("frmScreen", "the end");
    row("frmEName", "none");
    row("DlgWelcome", "frmEName");
    row("frmWelcome", "frmBlack");
    row("frmLessonDescription", "frmImage");
    row("frmImage", "none");
    row("dlgExercise", "frmImage");
    row("dlgOptions", "dlgExercise");
    row("frmFree", "none");
    row("frmLesson", "frmStopNote");
    row("frmNotAllowed", "none");
    row("frmResult", "none");
    row("frmStopNote", "none");
    row("frmPrefs", "none");
    row("frmDiploma", "none");
    row("frmViewRecommands", "none");
    row("frmAbout", "none");
    row("frmMore", "none");
    row("frmLeave", "none");
    row("DlgGBye", "the end");
}

void FormOpeningTest::ACloseRequestIsTheWindowsOwnCancel()
{
    QFETCH(QByteArray, form);
    QFETCH(QByteArray, next);
    World world;
    PlaceStudent(world);
    QDir(world.Folder()).mkdir(QStringLiteral("Students"));
    Script script(world);
    script.At(form.constData(), [](QWidget& window) { RequestClose(window); });
    QByteArray found;
    QObject looker;
    QTimer::singleShot(200, &looker, [&] {
        const QWidget* top = TopWindow(world.program());
        found = top == nullptr ? QByteArray("none") : top->objectName().toLatin1();
        if (world.endStatus.has_value()) {
            found = "the end";
        }
        world.program().End();
    });
    QVERIFY2(script.Run([&] { world.program().ShowModal(MakeForm(world, form.constData())); }),
             script.Report());
    QTRY_COMPARE(found, next);
}

void FormOpeningTest::WindowsStandInTheMiddleOfTheScreen()
{
    const QPoint middle = QGuiApplication::primaryScreen()->geometry().center();
    for (const FormMaker& maker : FormMakers()) {
        World world;
        PlaceStudent(world);
        Script script(world);
        script.At(maker.name, [&](QWidget& window) {
            const QPoint off = window.geometry().center() - middle;
            QVERIFY2(off.manhattanLength() <= 2, maker.name);
            world.program().End();
        });
        QVERIFY2(script.Run([&] { world.program().ShowModal(maker.make(world)); }),
                 script.Report());
    }
}

void FormOpeningTest::WindowsCannotBeMovedByTheirBackground()
{
    World world;
    Script script(world);
    script.At("frmNotAllowed", [](QWidget& window) {
        const QPoint place = window.pos();
        PressAt(window, {20, 10}); // the strip of the title
        QTest::mouseMove(window.windowHandle(), QPoint(80, 60));
        ReleaseAt(window, {80, 60});
        QCOMPARE(window.pos(), place);
        QVERIFY(window.isVisible());
        QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
        shell::Click(window, "cmdOK");
    });
    QVERIFY2(script.Run([&] { world.program().ShowModal(MakeForm(world, "frmNotAllowed")); }),
             script.Report());
}

void FormOpeningTest::StripesBoxAndRuleAreEverywhereButOnPictures_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<bool>("striped");
    for (const FormMaker& maker : FormMakers()) {
        const QByteArray name(maker.name);
        QTest::newRow(maker.name) << name
                                  << (name != "frmIslam" && name != "frmSplash" &&
                                      name != "frmDiploma");
    }
}

void FormOpeningTest::StripesBoxAndRuleAreEverywhereButOnPictures()
{
    QFETCH(QByteArray, form);
    QFETCH(bool, striped);
    World world;
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, form.constData());
    const QImage shot = window->grab().toImage();
    constexpr QRgb stripes[] = {0xFFF4F4F4, 0xFFFFFFFF, 0xFFF3F3F3, 0xFFEEEEEE};
    constexpr QRgb black = 0xFF000000;
    const int right = shot.width() - 1;
    const int bottom = shot.height() - 1;
    bool all = true;
    for (int y = 0; y <= bottom; ++y) {
        const bool box = y == 0 || y == bottom;
        const bool rule = y == 27 || (form == "frmLesson" && y == 26);
        all = all && shot.pixel(0, y) == black && shot.pixel(right, y) == black;
        const QRgb inside = box || rule ? black : stripes[y % 4];
        all = all && shot.pixel(1, y) == inside && shot.pixel(right - 1, y) == inside;
    }
    QCOMPARE(all, striped);
}

void FormOpeningTest::TheWindowBeneathIsActiveAgain()
{
    World world;
    Script script(world);
    script.Click("frmAbout", "imgOK")
        .Press("frmMore", Qt::Key_Space)
        .At("frmAbout", [](QWidget& window) {
            QVERIFY(window.isActiveWindow());
            shell::Click(window, "Image1");
        });
    QVERIFY2(script.Run([&] { world.program().ShowModal(MakeForm(world, "frmAbout")); }),
             script.Report());
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::FormOpeningTest)

#include "FormOpeningTest.moc"
