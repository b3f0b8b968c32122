// The way out: quitting, logging out and closing the main window, in each state of the program.
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"

#include "tests/shell/forms/FormsHarness.h"

#include <QAction>
#include <QDir>
#include <QMenu>

namespace keyfluent::shell
{

class LeavingFlowTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void QuitWithYesSavesAndSaysADrawnGoodBye_data();
    void QuitWithYesSavesAndSaysADrawnGoodBye();
    void QuitWithNoSavesNothingAndSaysThePlainGoodBye();
    void QuitAndCancelGoesOnSignedIn();
    void NobodySignedInQuitsWithoutAWord_data();
    void NobodySignedInQuitsWithoutAWord();
    void TheGoodByeEndsTheProcessHoweverItCloses();
    void LogOutWithYesSavesAndLeavesTheWindowOpen();
    void LogOutWithNoSavesNothing();
    void LogOutAndCancelChangesNothing();
    void ANoAtALogOutKeepsTheGoodByePlain();
    void ACancelMakesTheGoodByeDrawnAgain();
    void ACloseRequestOfTheQuestionIsItsCancel();
    void TheMainWindowRefusesToCloseWhileAWindowStandsOnIt();
    void QuitAfterACancelledQuitAsksAgain();
    void AFileThatCannotBeWrittenIsToldAndEndsTheProcess();
};

namespace
{

constexpr const char* ways[] = {"mnuFileQuit", "mnuLessonStop", "close"};

// Asks to quit: by a menu item or by the window's frame.
Script::Action Quit(const char* way)
{
    return [way](QWidget& main) {
        if (qstrcmp(way, "close") == 0) {
            RequestClose(main);
        } else {
            Item(main, way).trigger();
        }
    };
}

void AddWays()
{
    QTest::addColumn<int>("way");
    for (int i = 0; i < 3; ++i) {
        QTest::newRow(ways[i]) << i;
    }
}

// A student who has a mark that is not on the disk yet.
void SignInWithMark(World& world)
{
    world.SignIn();
    world.state().studentTable.Record(17)[0] = 93;
}

bool NobodySignedIn(World& world)
{
    const frmBlack& main = *world.program().MainWindow();
    return main.isVisible() && world.state().studentName.empty() &&
           Item(main, "mnuFileA").isEnabled() && !Item(main, "mnuFileLogout").isEnabled() &&
           !main.findChild<QMenu*>("mnuLessons")->isEnabled() &&
           !Picture(main, "imgExercise").isEnabled() &&
           Picture(main, "imgExercise").Bitmap() == 111;
}

const QString plainGoodBye = QStringLiteral("See you Ali\nas soon as possible, Insha Allah.");

} // namespace

void LeavingFlowTest::QuitWithYesSavesAndSaysADrawnGoodBye_data()
{
    AddWays();
}

void LeavingFlowTest::QuitWithYesSavesAndSaysADrawnGoodBye()
{
    QFETCH(int, way);
    for (const char* answer : {"cmdOK", "lblOK"}) {
        World world;
        SignInWithMark(world);
        Script script(world);
        world.Draw(3, 1, 5);
        script.At("frmBlack", Quit(ways[way]))
            .At("frmLeave",
                [&](QWidget& window) {
                    QCOMPARE(Label(window, "lblTitle").text(), QStringLiteral("Quit"));
                    shell::Click(window, answer);
                })
            .At("DlgGBye", [&](QWidget& window) {
                QVERIFY2(world.HasStudent(QStringLiteral("Ali")), "saved before the good-bye");
                QVERIFY(!world.endStatus.has_value());
                QCOMPARE(Label(window, "lblByeMsg").text(),
                         QStringLiteral("I hope you did not get bored!\n"
                                        "See you as soon as possible and you are fine"));
                shell::Click(window, "cmdGoodBye");
            });
        QVERIFY2(script.Run(), script.Report());
        QCOMPARE(world.endStatus, std::optional<int>(0));
        QCOMPARE(world.ReadStudent(QStringLiteral("Ali")).Record(17)[0], 93);
    }
}

void LeavingFlowTest::QuitWithNoSavesNothingAndSaysThePlainGoodBye()
{
    for (const char* answer : {"cmdNo", "lblNo"}) {
        World world;
        SignInWithMark(world);
        Script script(world);
        script.Choose("mnuFileQuit").Click("frmLeave", answer).At("DlgGBye", [](QWidget& window) {
            QCOMPARE(Label(window, "lblByeMsg").text(), plainGoodBye);
            shell::Click(window, "lblGoodBye");
        });
        QVERIFY2(script.Run(), script.Report());
        QCOMPARE(world.endStatus, std::optional<int>(0));
        QVERIFY(!world.HasStudent(QStringLiteral("Ali")));
    }
}

void LeavingFlowTest::QuitAndCancelGoesOnSignedIn()
{
    for (const char* answer : {"cmdCancel", "lblCancel"}) {
        World world;
        SignInWithMark(world);
        Script script(world);
        script.Choose("mnuFileQuit").Click("frmLeave", answer);
        QVERIFY2(script.Run(), script.Report());
        QVERIFY(!world.endStatus.has_value());
        QVERIFY(world.state().studentName == u"Ali");
        QVERIFY(world.state().quitting); // until the next log-out
        const frmBlack& main = *world.program().MainWindow();
        QVERIFY(main.isVisible());
        QVERIFY(Item(main, "mnuFileLogout").isEnabled());
        QCOMPARE(Picture(main, "imgExercise").Bitmap(), 110);
    }
}

void LeavingFlowTest::NobodySignedInQuitsWithoutAWord_data()
{
    AddWays();
}

void LeavingFlowTest::NobodySignedInQuitsWithoutAWord()
{
    QFETCH(int, way);
    World world;
    world.SignIn();
    Script script(world);
    script.Choose("mnuFileLogout").Click("frmLeave", "cmdNo").At("frmBlack", Quit(ways[way]));
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(world.endStatus, std::optional<int>(0));
    QVERIFY(!world.program().MainWindow()->isVisible());
    QVERIFY(TopWindow(world.program()) == nullptr);
}

void LeavingFlowTest::TheGoodByeEndsTheProcessHoweverItCloses()
{
    const Script::Action ends[] = {
        [](QWidget& window) { shell::Click(window, "cmdGoodBye"); },
        [](QWidget& window) { shell::Click(window, "lblGoodBye"); },
        [](QWidget& window) { RequestClose(window); },
        [](QWidget& window) { Key(window, Qt::Key_Return); },
        [](QWidget& window) { Key(window, Qt::Key_Escape); },
    };
    for (const Script::Action& end : ends) {
        World world;
        world.SignIn();
        Script script(world);
        script.Choose("mnuFileQuit").Click("frmLeave", "cmdNo").At("DlgGBye", end);
        QVERIFY2(script.Run(), script.Report());
        QCOMPARE(world.endStatus, std::optional<int>(0));
    }
}

void LeavingFlowTest::LogOutWithYesSavesAndLeavesTheWindowOpen()
{
    World world;
    SignInWithMark(world);
    Script script(world);
    script.Choose("mnuFileLogout").At("frmLeave", [](QWidget& window) {
        QCOMPARE(Label(window, "lblTitle").text(), QStringLiteral("Loggin Out"));
        shell::Click(window, "cmdOK");
    });
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(!world.endStatus.has_value());
    QVERIFY(NobodySignedIn(world));
    QVERIFY(world.state().loggedOut);
    QCOMPARE(world.ReadStudent(QStringLiteral("Ali")).Record(17)[0], 93);
    const frmBlack& main = *world.program().MainWindow();
    for (const char* button : {"imgBack", "imgNext", "imgDuplicate"}) {
        QVERIFY(!Shows(main, button));
    }
}

void LeavingFlowTest::LogOutWithNoSavesNothing()
{
    World world;
    SignInWithMark(world);
    Script script(world);
    script.Choose("mnuFileLogout").Click("frmLeave", "cmdNo");
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(NobodySignedIn(world));
    QVERIFY(!world.HasStudent(QStringLiteral("Ali")));
}

void LeavingFlowTest::LogOutAndCancelChangesNothing()
{
    World world;
    SignInWithMark(world);
    Script script(world);
    script.Choose("mnuFileLogout").Press("frmLeave", Qt::Key_Escape);
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(world.state().studentName == u"Ali");
    QVERIFY(!world.state().loggedOut);
    QVERIFY(Item(*world.program().MainWindow(), "mnuFileLogout").isEnabled());
    QVERIFY(Picture(*world.program().MainWindow(), "imgExercise").isEnabled());
}

namespace
{

// Logs out by No and in again, then quits, answering as told; the good-bye's words.
QString GoodByeAfter(World& world, std::initializer_list<const char*> answers)
{
    world.SignIn();
    QString words;
    Script script(world);
    world.Draw(3, 1, 5);
    script.Choose("mnuFileLogout")
        .Click("frmLeave", "cmdNo")
        .Choose("mnuFileA")
        .At("frmEName",
            [](QWidget& window) {
                Type(window, QStringLiteral("Ali"));
                Click(window, "imgOK");
            })
        .Click("DlgWelcome", "cmdOK");
    for (const char* answer : answers) {
        script.Choose("mnuFileQuit").Click("frmLeave", answer);
    }
    script.At("DlgGBye", [&](QWidget& window) {
        words = Label(window, "lblByeMsg").text();
        Click(window, "cmdGoodBye");
    });
    return script.Run() ? words : QString::fromLatin1(script.Report());
}

} // namespace

void LeavingFlowTest::ANoAtALogOutKeepsTheGoodByePlain()
{
    World world;
    QCOMPARE(GoodByeAfter(world, {"cmdOK"}), plainGoodBye);
}

void LeavingFlowTest::ACancelMakesTheGoodByeDrawnAgain()
{
    World world;
    QVERIFY(GoodByeAfter(world, {"cmdCancel", "cmdOK"}).startsWith("I hope you did not"));
}

void LeavingFlowTest::ACloseRequestOfTheQuestionIsItsCancel()
{
    World world;
    world.SignIn();
    Script script(world);
    script.Choose("mnuFileQuit").At("frmLeave", [](QWidget& window) { RequestClose(window); });
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(world.state().studentName == u"Ali");
    QVERIFY(!world.state().leaveConfirmed);
    QVERIFY(!world.state().leaveNoSave);
}

// The desktop may ask a window that stands behind; the request must not overtake what is asked.
void LeavingFlowTest::TheMainWindowRefusesToCloseWhileAWindowStandsOnIt()
{
    World world;
    world.SignIn();
    Script script(world);
    script.Choose("mnuFilePrefs").At("frmPrefs", [&](QWidget& window) {
        world.program().MainWindow()->close();
        QCOMPARE(TopWindow(world.program()), &window);
        QVERIFY(window.isVisible());
        shell::Click(window, "cmdCansel");
    });
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(!world.endStatus.has_value());
    QVERIFY(!world.state().quitting);
}

void LeavingFlowTest::QuitAfterACancelledQuitAsksAgain()
{
    World world;
    world.SignIn();
    Script script(world);
    script.Choose("mnuFileQuit")
        .Click("frmLeave", "cmdCancel")
        .At("frmBlack", Quit("close"))
        .Click("frmLeave", "cmdNo")
        .Click("DlgGBye", "cmdGoodBye");
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(world.endStatus, std::optional<int>(0));
}

void LeavingFlowTest::AFileThatCannotBeWrittenIsToldAndEndsTheProcess()
{
    World world;
    world.SignIn();
    // No file can be made there any more.
    QVERIFY(QDir(world.Folder() + QStringLiteral("/Students")).removeRecursively());
    Script script(world);
    script.Choose("mnuFileQuit").Click("frmLeave", "cmdOK");
    // A failure leaves the toolkit's functions without clearing up what they hold: their copy of
    // the click and their hold on the button.
    const LeaksAreForgiven forgiven;
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(world.failures.size(), 1);
    QVERIFY(world.failures.front().contains(QStringLiteral("Ali.W")));
    QCOMPARE(world.endStatus, std::optional<int>(1));
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::LeavingFlowTest)

#include "LeavingFlowTest.moc"
