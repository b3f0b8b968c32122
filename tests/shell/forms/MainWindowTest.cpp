// The main window: its place in the course, its menus and its four picture buttons.
#include "shell/base/ImageControl.h"
#include "shell/forms/frmBlack.h"

#include "tests/shell/forms/FormsHarness.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace keyfluent::shell
{

class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void LoadingTakesTheHighestLessonOfTheKeyboard_data();
    void LoadingTakesTheHighestLessonOfTheKeyboard();
    void OnlyReachedLessonsAreEnabledAndNoneIsHidden();
    void OnlyOneLessonIsEverChecked();
    void SwitchingTheKeyboardReturnsToItsOwnLesson();
    void SwitchingNeverGoesAboveTheReachedLesson();
    void ActivationWritesTheLessonIntoTheOtherKeyboardsPlace();
    void ChoosingALesson_data();
    void ChoosingALesson();
    void StepsBeyondTheEndsDoNothing();
    void ButtonsAreGreyWhileTheWindowIsInactive();
    void LoggedOutButtonsStayGrey();
    void ButtonsLightUnderThePointerUntilItIsOverTheWindow();
    void ADisabledButtonNeitherLightsNorActs();
    void TheDiplomaIsThereFromTheActivationAfterItWasEarned();
    void PagesOfTheMenusOpenInTheViewer();
    void EveryMenuOpensItsWindow();
    void MenusWorkByMouseAndByKeyboard();
};

namespace
{

constexpr const char* stepButtons[] = {"imgBack", "imgNext", "imgDuplicate"};

const QAction& Lesson(const QWidget& main, int lesson)
{
    return Item(main, QStringLiteral("mnuLesson%1").arg(lesson).toLatin1().constData());
}

// What a known student's file makes of the program.
frmBlack& Enter(World& world, int keyboardKind, std::uint8_t reachedWin, std::uint8_t reachedMac)
{
    context::SessionContext& state = world.state();
    state.studentName = u"Mona";
    state.keyboardKind = keyboardKind;
    state.reachedLessonWin = state.lastLessonWin = reachedWin;
    state.reachedLessonMac = state.lastLessonMac = reachedMac;
    world.program().EnterAsKnownStudent();
    PassTime(20); // the desktop's own activation has come
    return *world.program().MainWindow();
}

void ShowStepButtons(World& world, frmBlack& main, std::uint8_t exercise)
{
    world.state().sessionRun = true;
    world.state().exerciseNo = exercise;
    main.ShowStepButtons(true, true, true);
}

QList<int> EnabledLessons(const QWidget& main)
{
    QList<int> enabled;
    for (int lesson = 1; lesson <= 15; ++lesson) {
        if (!Lesson(main, lesson).isVisible()) {
            enabled << -lesson; // never to be seen
        }
        if (Lesson(main, lesson).isEnabled()) {
            enabled << lesson;
        }
    }
    return enabled;
}

QList<int> CheckedLessons(const QWidget& main)
{
    QList<int> checked;
    for (int lesson = 1; lesson <= 15; ++lesson) {
        if (Lesson(main, lesson).isChecked()) {
            checked << lesson;
        }
    }
    return checked;
}

QList<int> Upto(int last)
{
    QList<int> numbers;
    for (int i = 1; i <= last; ++i) {
        numbers << i;
    }
    return numbers;
}

QByteArray Looks(const QWidget& main)
{
    QByteArray looks;
    for (const char* name : {"imgExercise", "imgBack", "imgNext", "imgDuplicate"}) {
        looks += QByteArray::number(Picture(main, name).Bitmap()) + ' ';
    }
    return looks.trimmed();
}

} // namespace

void MainWindowTest::LoadingTakesTheHighestLessonOfTheKeyboard_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("lesson");
    QTest::newRow("Windows") << 192 << 7;
    QTest::newRow("Macintosh") << 0 << 4;
}

void MainWindowTest::LoadingTakesTheHighestLessonOfTheKeyboard()
{
    QFETCH(int, kind);
    QFETCH(int, lesson);
    World world;
    frmBlack& main = Enter(world, kind, 7, 4);
    QCOMPARE(world.state().lessonNo, lesson);
    QCOMPARE(CheckedLessons(main), QList<int>{lesson});
    QCOMPARE(Item(main, "mnuFileMacKeyboard").isChecked(), kind == 0);
    QCOMPARE(Item(main, "mnuFileWinKeyboard").isChecked(), kind != 0);
    QCOMPARE(Looks(main), QByteArray("110 130 133 136"));
    for (const char* name : stepButtons) {
        QVERIFY(!Shows(main, name));
    }
}

void MainWindowTest::OnlyReachedLessonsAreEnabledAndNoneIsHidden()
{
    for (const int reached : {1, 4, 15}) {
        World world;
        const frmBlack& main = Enter(world, 0, 15, static_cast<std::uint8_t>(reached));
        QCOMPARE(EnabledLessons(main), Upto(reached));
    }
}

void MainWindowTest::OnlyOneLessonIsEverChecked()
{
    World world;
    frmBlack& main = Enter(world, 192, 15, 15);
    Script script(world);
    for (const char* item : {"mnuLesson3", "mnuLesson15", "mnuLesson1"}) {
        script.Choose(item)
            .Click("frmLessonDescription", "cmdThank")
            .Press("frmImage", Qt::Key_Escape)
            .At("frmBlack", [item](QWidget& window) {
                QCOMPARE(CheckedLessons(window).size(), 1);
                QVERIFY(Item(window, item).isChecked());
            });
    }
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(CheckedLessons(main), QList<int>{1});
}

void MainWindowTest::SwitchingTheKeyboardReturnsToItsOwnLesson()
{
    World world;
    frmBlack& main = Enter(world, 192, 9, 6);
    world.state().lessonNo = 8;
    world.state().lastLessonMac = 5; // no activation has come in between
    ShowStepButtons(world, main, 2);
    Script script(world);
    script.Choose("mnuFileMacKeyboard")
        .At("frmBlack",
            [&](QWidget& window) {
                QCOMPARE(world.state().keyboardKind, 0);
                QCOMPARE(world.state().lessonNo, 5);
                QCOMPARE(world.state().lastLessonWin, 8);
                QCOMPARE(CheckedLessons(window), QList<int>{5});
                QCOMPARE(EnabledLessons(window), Upto(6));
                QVERIFY(Item(window, "mnuFileMacKeyboard").isChecked());
                QVERIFY(!Item(window, "mnuFileWinKeyboard").isChecked());
                for (const char* name : stepButtons) {
                    QVERIFY(!Shows(window, name));
                }
            })
        .Choose("mnuFileWinKeyboard")
        .At("frmBlack", [&](QWidget& window) {
            QCOMPARE(world.state().keyboardKind, 192);
            QCOMPARE(world.state().lessonNo, 8);
            QCOMPARE(CheckedLessons(window), QList<int>{8});
            QCOMPARE(EnabledLessons(window), Upto(9));
        });
    QVERIFY2(script.Run(), script.Report());
}

void MainWindowTest::SwitchingNeverGoesAboveTheReachedLesson()
{
    World world;
    Enter(world, 192, 9, 4);
    world.state().lessonNo = 6;
    world.state().lastLessonMac = 6;
    Script script(world);
    script.Choose("mnuFileMacKeyboard").At("frmBlack", [&](QWidget&) {
        QCOMPARE(world.state().lessonNo, 4);
    });
    QVERIFY2(script.Run(), script.Report());
}

void MainWindowTest::ActivationWritesTheLessonIntoTheOtherKeyboardsPlace()
{
    World world;
    frmBlack& main = Enter(world, 192, 9, 9);
    world.state().lessonNo = world.state().lastLessonWin = 3;
    world.state().lastLessonMac = 7;
    main.Activate();
    QCOMPARE(world.state().lastLessonMac, 3);
    QCOMPARE(world.state().lessonNo, 3);
}

void MainWindowTest::ChoosingALesson_data()
{
    QTest::addColumn<QByteArray>("item");
    QTest::addColumn<int>("lesson");
    QTest::addColumn<bool>("buttonsStay");
    QTest::newRow("current") << QByteArray("mnuLesson5") << 5 << true;
    QTest::newRow("another") << QByteArray("mnuLesson2") << 2 << false;
}

void MainWindowTest::ChoosingALesson()
{
    QFETCH(QByteArray, item);
    QFETCH(int, lesson);
    QFETCH(bool, buttonsStay);
    World world;
    frmBlack& main = Enter(world, 192, 5, 5);
    ShowStepButtons(world, main, 3);
    Script script(world);
    script.Choose(item.constData())
        .At("frmLessonDescription",
            [&](QWidget& window) {
                QCOMPARE(world.state().lessonNo, lesson);
                QCOMPARE(world.state().lastLessonWin, lesson);
                QVERIFY(!world.state().lessonNoteText.empty());
                for (const char* name : stepButtons) {
                    QCOMPARE(Shows(main, name), buttonsStay);
                }
                shell::Click(window, "lblThank");
            })
        .Press("frmImage", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(CheckedLessons(main), QList<int>{lesson});
}

void MainWindowTest::StepsBeyondTheEndsDoNothing()
{
    World world;
    frmBlack& main = Enter(world, 192, 5, 5);
    for (const int exercise : {1, 5}) {
        ShowStepButtons(world, main, static_cast<std::uint8_t>(exercise));
        Click(main, exercise == 1 ? "imgBack" : "imgNext");
        QCOMPARE(world.state().exerciseNo, exercise);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }
}

void MainWindowTest::ButtonsAreGreyWhileTheWindowIsInactive()
{
    World world;
    frmBlack& main = Enter(world, 192, 5, 5);
    Script script(world);
    script.Choose("mnuFilePrefs").At("frmPrefs", [&](QWidget& window) {
        QCOMPARE(Looks(main), QByteArray("111 131 134 137"));
        shell::Click(window, "cmdCansel");
    });
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(main.isActiveWindow());
    QCOMPARE(Looks(main), QByteArray("110 130 133 136"));
}

void MainWindowTest::LoggedOutButtonsStayGrey()
{
    World world;
    frmBlack& main = Enter(world, 192, 5, 5);
    ShowStepButtons(world, main, 3);
    Script script(world);
    script.Choose("mnuFileLogout")
        .Click("frmLeave", "cmdNo")
        .Choose("mnuHelp12")
        .At("frmAbout", [](QWidget& window) { Key(window, Qt::Key_Space); });
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(main.isActiveWindow());
    QCOMPARE(Looks(main), QByteArray("111 131 134 137"));
    for (const char* name : stepButtons) {
        QVERIFY(!Shows(main, name));
    }
    MoveOver(main, "imgExercise");
    PressAt(main, MiddleOf(main, "imgExercise"));
    QCOMPARE(Looks(main), QByteArray("111 131 134 137"));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void MainWindowTest::ButtonsLightUnderThePointerUntilItIsOverTheWindow()
{
    World world;
    frmBlack& main = Enter(world, 192, 5, 5);
    ShowStepButtons(world, main, 3);
    MoveOver(main, "imgExercise");
    QCOMPARE(Looks(main), QByteArray("109 130 133 136"));
    MoveOver(main, "imgBack"); // from one to another: the first stays lit
    QCOMPARE(Looks(main), QByteArray("109 129 133 136"));
    MoveTo(main, {main.width() / 2, main.height() / 2});
    QCOMPARE(Looks(main), QByteArray("110 130 133 136"));
    MoveOver(main, "imgNext");
    MoveOver(main, "imgDuplicate");
    QCOMPARE(Looks(main), QByteArray("110 130 132 135"));
    MoveTo(main, {main.width() / 2, main.height() - 20}); // the band is the window as well
    QCOMPARE(Looks(main), QByteArray("110 130 133 136"));
}

void MainWindowTest::ADisabledButtonNeitherLightsNorActs()
{
    World world;
    frmBlack& main = Enter(world, 192, 5, 5);
    Picture(main, "imgExercise").setEnabled(false);
    MoveOver(main, "imgExercise");
    QCOMPARE(Picture(main, "imgExercise").Bitmap(), 110);
    Click(main, "imgExercise");
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void MainWindowTest::TheDiplomaIsThereFromTheActivationAfterItWasEarned()
{
    World world;
    frmBlack& main = Enter(world, 192, 15, 15);
    QVERIFY(!Item(main, "mnuFileViewDiploma").isEnabled());
    world.state().studentTable.Record(1)[1] = 99;
    main.Activate();
    QVERIFY(!Item(main, "mnuFileViewDiploma").isEnabled());
    world.state().studentTable.Record(1)[1] = 100;
    QVERIFY(!Item(main, "mnuFileViewDiploma").isEnabled());
    main.Activate();
    QVERIFY(Item(main, "mnuFileViewDiploma").isEnabled());
}

void MainWindowTest::PagesOfTheMenusOpenInTheViewer()
{
    World world;
    Enter(world, 192, 5, 5);
    Script script(world);
    const auto look = [&](bool recommendations, int page) {
        script
            .At("frmBlack",
                [=](QWidget& window) {
                    const QByteArray menu = recommendations ? "mnuRecomand1_" : "mnuHelp1_";
                    Item(window, (menu + QByteArray::number(page)).constData()).trigger();
                })
            .At("frmViewRecommands", [&world, recommendations, page](QWidget& window) {
                const context::SessionContext& state = world.state();
                QCOMPARE(static_cast<bool>(state.helpMode), recommendations);
                QCOMPARE(recommendations ? state.recommendPage : state.helpPage, page);
                shell::Click(window, page % 2 == 0 ? "cmdThank" : "lblThank");
            });
    };
    for (int page = 1; page <= 11; ++page) {
        look(false, page);
    }
    for (int page = 1; page <= 6; ++page) {
        look(true, page);
    }
    QVERIFY2(script.Run(), script.Report());
}

void MainWindowTest::EveryMenuOpensItsWindow()
{
    World world;
    Enter(world, 192, 15, 15);
    world.state().studentTable.Record(1)[1] = 100;
    world.program().MainWindow()->Activate();
    Script script(world);
    script.Choose("mnuFilePrefs")
        .Click("frmPrefs", "cmdCansel")
        .Choose("mnuFileViewDiploma")
        .Click("frmDiploma", "cmdCansel")
        .Choose("mnuHelp12")
        .Press("frmAbout", Qt::Key_Space)
        .Choose("mnuFileLogout")
        .Click("frmLeave", "cmdNo")
        .Choose("mnuFileA")
        .Click("frmEName", "imgCansel");
    QVERIFY2(script.Run(), script.Report());
}

void MainWindowTest::MenusWorkByMouseAndByKeyboard()
{
    World world;
    frmBlack& main = Enter(world, 192, 5, 5);
    auto* bar = main.findChild<QMenuBar*>();
    auto* help = main.findChild<QMenu*>(QStringLiteral("mnuHelp"));
    Script script(world);
    script
        .At("frmBlack",
            [&](QWidget& window) {
                const QPoint title = bar->actionGeometry(help->menuAction()).center();
                PressAt(window, bar->mapTo(&window, title));
                QVERIFY(help->isVisible());
                const QPoint last = help->actionGeometry(&Item(window, "mnuHelp12")).center();
                QTest::mouseClick(help->windowHandle(), Qt::LeftButton, {}, last);
                QVERIFY(!help->isVisible());
            })
        .Press("frmAbout", Qt::Key_Space)
        .At("frmBlack",
            [&](QWidget& window) {
                QTest::keyClick(window.windowHandle(), Qt::Key_Alt, Qt::AltModifier);
                QVERIFY2(bar->activeAction() != nullptr, "Alt goes to the menu bar");
                Key(window, Qt::Key_Down);
                auto* file = main.findChild<QMenu*>(QStringLiteral("mnuFile"));
                QVERIFY(file->isVisible());
                QTest::keyClick(file, Qt::Key_Down);
                QTest::keyClick(file, Qt::Key_Down);
                QCOMPARE(file->activeAction(), &Item(window, "mnuFilePrefs"));
                QTest::keyClick(file, Qt::Key_Return);
            })
        .Press("frmPrefs", Qt::Key_Escape);
    QVERIFY2(script.Run(), script.Report());
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::MainWindowTest)

#include "MainWindowTest.moc"
