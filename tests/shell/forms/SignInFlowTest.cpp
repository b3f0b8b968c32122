// Signing in by name, for the first time and again, and giving it up half way.
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"
#include "shell/platform/TextConversion.h"

#include "tests/shell/forms/FormsHarness.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>

namespace keyfluent::shell
{

class SignInFlowTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void ANewStudentIsGreetedAndSignedIn();
    void AKnownStudentIsWelcomedAndSignedIn();
    void GreetingAndNameGivenUpSignTheFirstNameIn();
    void GreetingGivenUpAndAnotherNameTaken();
    void GreetingGivenUpAndAKnownNameTaken();
    void GreetingGivenUpThriceUnwindsToTheFirst();
    void EmptyAndBlankNamesBeepAndStay();
    void LongNamesBeepAtEachChange();
    void TheFieldTakesSixtyUnits();
    void BlanksAtTheEndsAreNoPartOfTheName();
    void NoCharacterOfANameIsRefused();
    void ANameThatCannotBeAFileIsNoNewStudent();
    void CancelAfterALogOutLeavesNobodySignedIn();
    void ASecondStudentSignsInWithNothingOfTheFirst();
    void TheNameFieldHasTheFocusWheneverTheWindowComes();
};

namespace
{

bool StudentSignedIn(World& world, const char16_t* name)
{
    frmBlack* main = world.program().MainWindow();
    return main != nullptr && main->isVisible() && world.state().studentName == name &&
           !Item(*main, "mnuFileA").isEnabled() && Item(*main, "mnuFileLogout").isEnabled() &&
           main->findChild<QMenu*>("mnuLessons")->isEnabled() &&
           Picture(*main, "imgExercise").isEnabled();
}

Script::Action EnterName(const QString& name)
{
    return [name](QWidget& window) {
        Type(window, name);
        Click(window, "imgOK");
    };
}

} // namespace

void SignInFlowTest::ANewStudentIsGreetedAndSignedIn()
{
    for (const char* answer : {"cmdOK", "lblOK"}) {
        World world;
        world.WritePreferences(false);
        Script script(world);
        script.At("frmEName", EnterName(QStringLiteral("Ali"))).Click("DlgWelcome", answer);
        QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
        QVERIFY(StudentSignedIn(world, u"Ali"));
        const frmBlack& main = *world.program().MainWindow();
        for (const char* button : {"imgBack", "imgNext", "imgDuplicate"}) {
            QVERIFY(!Shows(main, button));
            QVERIFY(Picture(main, button).isEnabled());
        }
        QVERIFY(!world.endStatus.has_value());
        QVERIFY2(!world.HasStudent(QStringLiteral("Ali")), "nothing is written at a sign-in");
        QCOMPARE(world.state().reachedLessonWin, 1);
        QCOMPARE(world.state().reachedLessonMac, 1);
    }
}

void SignInFlowTest::AKnownStudentIsWelcomedAndSignedIn()
{
    for (const char* answer : {"cmdOK", "lblOK"}) {
        World world;
        world.WritePreferences(false);
        context::StudentTable table = TableAt(6);
        table.Record(22)[3] = 77;
        world.WriteStudent(QStringLiteral("Mona"), table);
        Script script(world);
        script.At("frmEName", EnterName(QStringLiteral("Mona")))
            .At("frmWelcome", [&](QWidget& window) {
                QVERIFY2(world.program().MainWindow() == nullptr, "not before OK");
                QVERIFY2(world.state().studentTable == table, "read as the window loads");
                shell::Click(window, answer);
            });
        QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
        QVERIFY(StudentSignedIn(world, u"Mona"));
        QCOMPARE(world.state().lessonNo, 6);
        QVERIFY(!Shows(*world.program().MainWindow(), "imgBack"));
        QVERIFY(!world.state().sessionRun);
    }
}

// Meant: what follows the greeting follows it however the greeting ended.
void SignInFlowTest::GreetingAndNameGivenUpSignTheFirstNameIn()
{
    World world;
    world.WritePreferences(false);
    Script script(world);
    script.At("frmEName", EnterName(QStringLiteral("Ali")))
        .Click("DlgWelcome", "cmdCansel")
        .At("frmEName", [](QWidget& window) {
            Type(window, QStringLiteral("Omar"));
            shell::Click(window, "imgCansel");
        });
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
    QVERIFY(StudentSignedIn(world, u"Ali"));
    QVERIFY(world.state().studentTable == TableAt(1));
}

void SignInFlowTest::GreetingGivenUpAndAnotherNameTaken()
{
    World world;
    world.WritePreferences(false);
    Script script(world);
    script.At("frmEName", EnterName(QStringLiteral("Ali")))
        .Click("DlgWelcome", "lblCansel")
        .At("frmEName", EnterName(QStringLiteral("Omar")))
        .Click("DlgWelcome", "cmdOK");
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
    QVERIFY(StudentSignedIn(world, u"Omar"));
}

void SignInFlowTest::GreetingGivenUpAndAKnownNameTaken()
{
    World world;
    world.WritePreferences(false);
    world.WriteStudent(QStringLiteral("Mona"), TableAt(3));
    Script script(world);
    script.At("frmEName", EnterName(QStringLiteral("Ali")))
        .Click("DlgWelcome", "cmdCansel")
        .At("frmEName", EnterName(QStringLiteral("Mona")))
        .Click("frmWelcome", "cmdOK");
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
    QVERIFY(StudentSignedIn(world, u"Mona"));
    QVERIFY(world.state().studentTable == TableAt(3));
}

void SignInFlowTest::GreetingGivenUpThriceUnwindsToTheFirst()
{
    World world;
    world.WritePreferences(false);
    Script script(world);
    for (const char* name : {"One", "Two", "Three"}) {
        script.At("frmEName", EnterName(QString::fromLatin1(name)))
            .Press("DlgWelcome", Qt::Key_Escape);
    }
    script.Press("frmEName", Qt::Key_Escape);
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
    // The fourth window was opened with the third name standing.
    QVERIFY(StudentSignedIn(world, u"Three"));
}

void SignInFlowTest::EmptyAndBlankNamesBeepAndStay()
{
    World world;
    world.WritePreferences(false);
    Script script(world);
    script.At("frmEName", [&](QWidget& window) {
        shell::Click(window, "imgOK");
        QCOMPARE(world.beeps, 1);
        Type(window, QStringLiteral("   "));
        shell::Click(window, "lblOK");
        QCOMPARE(world.beeps, 2);
        Key(window, Qt::Key_Return);
        PassTime(400);
        QCOMPARE(world.beeps, 3);
        QVERIFY(window.isVisible());
        shell::Click(window, "imgCansel");
    });
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
}

void SignInFlowTest::LongNamesBeepAtEachChange()
{
    World world;
    world.WritePreferences(false);
    Script script(world);
    script.At("frmEName", [&](QWidget& window) {
        Type(window, QString(56, u'n'));
        QCOMPARE(world.beeps, 0);
        Type(window, QStringLiteral("nnnn")); // 57 to 60
        QCOMPARE(world.beeps, 4);
        Key(window, Qt::Key_Backspace);
        QCOMPARE(world.beeps, 5);
        QCOMPARE(world.state().studentName.size(), std::size_t{59});
        QVERIFY(world.state().studentNameCopy == world.state().studentName);
        shell::Click(window, "imgCansel");
    });
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
}

void SignInFlowTest::TheFieldTakesSixtyUnits()
{
    World world;
    world.WritePreferences(false);
    const QString name(60, u'ض');
    Script script(world);
    script
        .At("frmEName",
            [&](QWidget& window) {
                Type(window, name + QStringLiteral("more"));
                QCOMPARE(static_cast<QLineEdit&>(Control(window, "txtName")).text(), name);
                shell::Click(window, "imgOK");
            })
        .Click("DlgWelcome", "cmdOK");
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
    QVERIFY(StudentSignedIn(world, FromQString(name).c_str()));
}

void SignInFlowTest::BlanksAtTheEndsAreNoPartOfTheName()
{
    World world;
    world.WritePreferences(false);
    world.WriteStudent(QStringLiteral("Abu Bakr"), TableAt(2));
    Script script(world);
    script.At("frmEName", EnterName(QStringLiteral("  Abu Bakr "))).Click("frmWelcome", "cmdOK");
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
    QVERIFY(StudentSignedIn(world, u"Abu Bakr"));
}

void SignInFlowTest::NoCharacterOfANameIsRefused()
{
    for (const char16_t* name : {u"<b>x<br>", u"a&b", u"*?\\:", u"..", u"\u202Eabc", u"é ض ñ"}) {
        World world;
        world.WritePreferences(false);
        Script script(world);
        script.At("frmEName", EnterName(QString::fromUtf16(name)))
            .At("DlgWelcome", [&](QWidget& window) {
                const TextLabel& greeting = Label(window, "lblWelcomeMsg");
                QVERIFY(greeting.text().contains(QString::fromUtf16(name)));
                QCOMPARE(greeting.textFormat(), Qt::PlainText);
                shell::Click(window, "cmdOK");
            });
        QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
        QVERIFY(StudentSignedIn(world, name));
    }
}

// What cannot be a file's name counts as known, and fails when the file is read.
void SignInFlowTest::ANameThatCannotBeAFileIsNoNewStudent()
{
    World world;
    world.WritePreferences(false);
    Script script(world);
    script.At("frmEName", EnterName(QStringLiteral("../Ali")));
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
    QCOMPARE(world.failures.size(), 1);
    QVERIFY(world.failures.front().contains(QStringLiteral("../Ali")));
    QCOMPARE(world.endStatus, std::optional<int>(1));
}

void SignInFlowTest::CancelAfterALogOutLeavesNobodySignedIn()
{
    World world;
    frmBlack& main = world.SignIn();
    Script script(world);
    script.Choose("mnuFileLogout")
        .Click("frmLeave", "cmdNo")
        .Choose("mnuFileA")
        .At("frmEName", [&](QWidget& window) {
            QCOMPARE(Label(window, "lblName").text(), QStringLiteral("How are you, your name?"));
            Type(window, QStringLiteral("x"));
            shell::Click(window, "lblCansel");
        });
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(world.state().studentName.empty());
    QVERIFY(main.isVisible());
    QVERIFY(Item(main, "mnuFileA").isEnabled());
    QVERIFY(!Item(main, "mnuFileLogout").isEnabled());
    QVERIFY(!main.findChild<QMenu*>("mnuLessons")->isEnabled());
    QVERIFY(!world.endStatus.has_value());
}

void SignInFlowTest::ASecondStudentSignsInWithNothingOfTheFirst()
{
    World world;
    world.WritePreferences(false);
    context::StudentTable table = TableAt(9);
    table.Record(1)[1] = 100;
    table.Record(20)[0] = 66;
    world.WriteStudent(QStringLiteral("Mona"), table);
    Script script(world);
    script.At("frmEName", EnterName(QStringLiteral("Mona")))
        .Click("frmWelcome", "cmdOK")
        .At("frmBlack",
            [&](QWidget& main) {
                QVERIFY(Item(main, "mnuFileViewDiploma").isEnabled());
                QVERIFY(Item(main, "mnuLesson9").isEnabled());
            })
        .Choose("mnuFileLogout")
        .Click("frmLeave", "cmdOK")
        .Choose("mnuFileA")
        .At("frmEName", EnterName(QStringLiteral("Ali")))
        .Click("DlgWelcome", "cmdOK");
    QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
    QVERIFY(StudentSignedIn(world, u"Ali"));
    QVERIFY(world.state().studentTable == TableAt(1));
    const frmBlack& main = *world.program().MainWindow();
    QVERIFY(!Item(main, "mnuFileViewDiploma").isEnabled());
    QVERIFY(Item(main, "mnuLesson1").isEnabled());
    QVERIFY(!Item(main, "mnuLesson2").isEnabled());
    QCOMPARE(world.ReadStudent(QStringLiteral("Mona")).Record(20)[0], 66);
    QVERIFY(!world.HasStudent(QStringLiteral("Ali")));
}

void SignInFlowTest::TheNameFieldHasTheFocusWheneverTheWindowComes()
{
    for (const bool arabic : {false, true}) {
        World world;
        world.WritePreferences(arabic);
        Script script(world);
        script.At("frmEName", [&](QWidget& window) {
            QVERIFY(Control(window, "txtName").hasFocus());
            shell::Click(window, "imgCansel");
        });
        QVERIFY2(script.Run([&] { world.program().StartUp(); }), script.Report());
    }
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::SignInFlowTest)

#include "SignInFlowTest.moc"
