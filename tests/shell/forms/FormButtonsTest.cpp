// The buttons of the windows: how they light, how keys press them, and how the keyboard reaches
// them.
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/base/Twips.h"
#include "shell/forms/frmBlack.h"

#include "tests/shell/forms/FormMakers.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>

namespace keyfluent::shell
{

class FormButtonsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void AButtonLightsUnderThePointer_data();
    void AButtonLightsUnderThePointer();
    void AButtonStaysLitWhenThePointerLeavesTheWindow();
    void OneColumnOfTheChooserHasOneLitButton();
    void ThePictureOfTheAboutWindowPutsTheButtonsOut();
    void AKeyFlashesItsButtonAndActsAfterwards_data();
    void AKeyFlashesItsButtonAndActsAfterwards();
    void AnotherPressRestartsTheFlash();
    void TheOtherKeyTakesTheFlashOver();
    void AHeldKeyIsPressedOnce();
    void KeysOfTheFlashStandBeyondTheRightEdge();
    void WindowsWithoutAFlashIgnoreReturnAndEscape_data();
    void WindowsWithoutAFlashIgnoreReturnAndEscape();
    void TabReachesEveryButtonAndSpacePressesIt_data();
    void TabReachesEveryButtonAndSpacePressesIt();
    void TheFrameShowsOnlyAfterTheKeyboardMoved();
    void TheFrameIsThereAgainAfterAWindowInFront();
    void AButtonCountsAClickOnlyFromPressToRelease();
    void OnlyTheLeftButtonPresses();
};

namespace
{

// Runs a window by itself above nothing; what act does closes it in the end.
bool RunAlone(World& world, const char* name, const Script::Action& act, QByteArray& report)
{
    Script script(world);
    script.At(name, act);
    const bool done = script.Run([&] { world.program().ShowModal(MakeForm(world, name)); });
    report = script.Report();
    return done;
}

#define KEYFLUENT_RUN_ALONE(world, name, ...)                                                      \
    do {                                                                                           \
        QByteArray report;                                                                         \
        const bool done = RunAlone(world, name, __VA_ARGS__, report);                              \
        QVERIFY2(done, report.constData());                                                        \
    } while (false)

struct Flash {
    const char* form;
    Qt::Key key;
    const char* button;
};

constexpr Flash flashes[] = {
    {"dlgOptions", Qt::Key_Return, "cmdOK"},    {"dlgOptions", Qt::Key_Escape, "cmdCansel"},
    {"DlgWelcome", Qt::Key_Return, "cmdOK"},    {"DlgWelcome", Qt::Key_Escape, "cmdCansel"},
    {"frmLeave", Qt::Key_Return, "cmdOK"},      {"frmLeave", Qt::Key_Escape, "cmdCancel"},
    {"frmEName", Qt::Key_Return, "imgOK"},      {"frmEName", Qt::Key_Escape, "imgCansel"},
    {"frmPrefs", Qt::Key_Return, "cmdOK"},      {"frmPrefs", Qt::Key_Escape, "cmdCansel"},
    {"DlgGBye", Qt::Key_Return, "cmdGoodBye"},  {"DlgGBye", Qt::Key_Escape, "cmdGoodBye"},
    {"frmNotAllowed", Qt::Key_Return, "cmdOK"}, {"frmNotAllowed", Qt::Key_Escape, "cmdOK"},
    {"frmWelcome", Qt::Key_Return, "cmdOK"},    {"frmPrefs", Qt::Key_Enter, "cmdOK"},
};

QByteArray NextWindow(const World& world)
{
    const QWidget* top = QApplication::activeModalWidget();
    const bool ended = world.endStatus.has_value();
    return ended            ? QByteArray("the end")
           : top == nullptr ? QByteArray("none")
                            : top->objectName().toLatin1();
}

} // namespace

void FormButtonsTest::AButtonLightsUnderThePointer_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QByteArray>("over"); // the picture, or the label over it
    QTest::addColumn<QByteArray>("button");
    const auto row = [](const char* form, const char* image, const char* label) {
        QTest::addRow("%s.%s", form, image)
            << QByteArray(form) << QByteArray(image) << QByteArray(image);
        QTest::addRow("%s.%s", form, label)
            << QByteArray(form) << QByteArray(label) << QByteArray(image);
    };
    row("frmScreen", "cmdThank", "lblThank");
    row("frmEName", "imgOK", "lblOK");
    row("frmEName", "imgCansel", "lblCansel");
    row("DlgWelcome", "cmdOK", "lblOK");
    row("DlgWelcome", "cmdCansel", "lblCansel");
    row("frmWelcome", "cmdOK", "lblOK");
    row("dlgExercise", "imgCansel", "lblCansel");
    row("dlgExercise", "imgAExercise_2", "lblAExercise_2");
    row("dlgExercise", "imgEExercise_4", "lblEExercise_4");
    row("dlgOptions", "cmdOK", "lblOK");
    row("dlgOptions", "cmdCansel", "lblCansel");
    row("frmFree", "cmdCansel", "lblCansel");
    row("frmNotAllowed", "cmdOK", "lblOK");
    row("frmPrefs", "cmdOK", "lblOK");
    row("frmPrefs", "cmdCansel", "lblCansel");
    row("frmDiploma", "cmdPrint", "lblPrint");
    row("frmDiploma", "cmdCansel", "lblCansel");
    row("frmViewRecommands", "cmdNext", "lblNext");
    row("frmViewRecommands", "cmdBack", "lblBack");
    row("frmViewRecommands", "cmdThank", "lblThank");
    row("frmAbout", "imgOK", "lblOK");
    row("frmAbout", "imgCansel", "lblCansel");
    row("frmLeave", "cmdOK", "lblOK");
    row("frmLeave", "cmdNo", "lblNo");
    row("frmLeave", "cmdCancel", "lblCancel");
    row("DlgGBye", "cmdGoodBye", "lblGoodBye");
    row("frmLessonDescription", "cmdThank", "lblThank");
}

void FormButtonsTest::AButtonLightsUnderThePointer()
{
    QFETCH(QByteArray, form);
    QFETCH(QByteArray, over);
    QFETCH(QByteArray, button);
    World world;
    PlaceStudent(world);
    KEYFLUENT_RUN_ALONE(world, form.constData(), [&](QWidget& window) {
        const ImageControl& image = Picture(window, button.constData());
        const QPoint bare(3, window.height() - 4);
        MoveTo(window, bare);
        QCOMPARE(image.Bitmap(), 102);
        MoveOver(window, over.constData());
        QCOMPARE(image.Bitmap(), 103);
        for (const ImageControl* other : window.findChildren<ImageControl*>()) {
            QVERIFY(other == &image || other->Bitmap() != 103);
        }
        MoveTo(window, bare);
        QCOMPARE(image.Bitmap(), 102);
        world.program().End();
    });
}

// There is no event of leaving: only the bare window puts a button out.
void FormButtonsTest::AButtonStaysLitWhenThePointerLeavesTheWindow()
{
    World world;
    KEYFLUENT_RUN_ALONE(world, "frmNotAllowed", [&](QWidget& window) {
        MoveOver(window, "cmdOK");
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&Picture(window, "cmdOK"), &leave);
        QCoreApplication::sendEvent(&window, &leave);
        PassTime(50);
        QCOMPARE(Picture(window, "cmdOK").Bitmap(), 103);
        MoveTo(window, {5, 60});
        QCOMPARE(Picture(window, "cmdOK").Bitmap(), 102);
        shell::Click(window, "cmdOK");
    });
}

void FormButtonsTest::OneColumnOfTheChooserHasOneLitButton()
{
    World world;
    PlaceStudent(world);
    KEYFLUENT_RUN_ALONE(world, "dlgExercise", [&](QWidget& window) {
        const auto lit = [&window] {
            QByteArrayList names;
            for (const ImageControl* image : window.findChildren<ImageControl*>()) {
                if (image->Bitmap() == 103) {
                    names << image->objectName().toLatin1();
                }
            }
            return names.join(' ');
        };
        MoveOver(window, "imgEExercise_0");
        QCOMPARE(lit(), QByteArray("imgEExercise_0"));
        MoveOver(window, "imgEExercise_3"); // straight from one to the other
        QCOMPARE(lit(), QByteArray("imgEExercise_3"));
        MoveOver(window, "lblAExercise_1"); // the other column is for itself
        QCOMPARE(lit(), QByteArray("imgEExercise_3 imgAExercise_1"));
        MoveOver(window, "lblAMM_4"); // between the buttons
        QCOMPARE(lit(), QByteArray());
        MoveOver(window, "imgCansel");
        QCOMPARE(lit(), QByteArray("imgCansel"));
        MoveTo(window, {3, 200});
        QCOMPARE(lit(), QByteArray());
        world.program().End();
    });
}

void FormButtonsTest::ThePictureOfTheAboutWindowPutsTheButtonsOut()
{
    World world;
    KEYFLUENT_RUN_ALONE(world, "frmAbout", [&](QWidget& window) {
        MoveOver(window, "imgOK");
        QCOMPARE(Picture(window, "imgOK").Bitmap(), 103);
        MoveOver(window, "Image1");
        QCOMPARE(Picture(window, "imgOK").Bitmap(), 102);
        shell::Click(window, "Image1");
    });
}

void FormButtonsTest::AKeyFlashesItsButtonAndActsAfterwards_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < static_cast<int>(std::size(flashes)); ++i) {
        QTest::addRow("%s, key %x", flashes[i].form, flashes[i].key) << i;
    }
}

void FormButtonsTest::AKeyFlashesItsButtonAndActsAfterwards()
{
    QFETCH(int, index);
    const Flash& flash = flashes[index];
    World world;
    PlaceStudent(world);
    bool acted = false;
    KEYFLUENT_RUN_ALONE(world, flash.form, [&](QWidget& window) {
        const ImageControl& image = Picture(window, flash.button);
        if (qstrcmp(flash.form, "frmEName") == 0) {
            Type(window, QStringLiteral("Ali"));
        }
        QList<int> faces;
        QElapsedTimer clock;
        clock.start();
        Key(window, flash.key);
        while (window.isVisible() && clock.elapsed() < 1000) {
            if (faces.isEmpty() || faces.back() != image.Bitmap()) {
                faces << image.Bitmap();
            }
            PassTime(2);
        }
        acted = !window.isVisible();
        const qint64 took = clock.elapsed();
        QVERIFY2(took >= 298 && took < 600, qPrintable(QString::number(took)));
        QCOMPARE(faces, (QList<int>{102, 103}));
        QCOMPARE(image.Bitmap(), 102);
        world.program().End();
    });
    QVERIFY(acted);
}

void FormButtonsTest::AnotherPressRestartsTheFlash()
{
    World world;
    KEYFLUENT_RUN_ALONE(world, "frmEName", [&](QWidget& window) {
        QElapsedTimer clock;
        clock.start();
        Key(window, Qt::Key_Return); // without a name: one beep, and the window stays
        PassTime(250);
        QCOMPARE(world.beeps, 0);
        Key(window, Qt::Key_Return);
        PassTime(150);
        QCOMPARE(world.beeps, 0); // the first would have acted by now
        QTRY_COMPARE(world.beeps, 1);
        QVERIFY(clock.elapsed() >= 450);
        PassTime(500);
        QCOMPARE(world.beeps, 1);
        shell::Click(window, "imgCansel");
    });
}

void FormButtonsTest::TheOtherKeyTakesTheFlashOver()
{
    World world;
    KEYFLUENT_RUN_ALONE(world, "frmEName", [&](QWidget& window) {
        Key(window, Qt::Key_Return);
        PassTime(120);
        Key(window, Qt::Key_Escape);
        QTRY_VERIFY(!window.isVisible());
    });
    QCOMPARE(world.beeps, 0);
}

// A key still down from the window before must not answer this one.
void FormButtonsTest::AHeldKeyIsPressedOnce()
{
    World world;
    KEYFLUENT_RUN_ALONE(world, "frmEName", [&](QWidget& window) {
        for (int repeat = 0; repeat < 10; ++repeat) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(window.windowHandle(), &press);
            PassTime(40);
        }
        PassTime(400);
        QCOMPARE(world.beeps, 0);
        shell::Click(window, "imgCansel");
    });
}

void FormButtonsTest::KeysOfTheFlashStandBeyondTheRightEdge()
{
    for (const char* form : {"dlgOptions", "DlgWelcome", "frmLeave", "frmEName", "frmPrefs"}) {
        World world;
        PlaceStudent(world);
        const std::unique_ptr<Form> window = MakeForm(world, form);
        for (const char* command : {"Command1", "Command2"}) {
            QCOMPARE(Control(*window, command).x(), window->width() + 400); // 6000 twips
            QVERIFY(Control(*window, command).isHidden());
        }
    }
}

void FormButtonsTest::WindowsWithoutAFlashIgnoreReturnAndEscape_data()
{
    QTest::addColumn<QByteArray>("form");
    for (const char* form :
         {"frmFree", "frmScreen", "frmDiploma", "frmViewRecommands", "frmLessonDescription",
          "frmResult", "frmStopNote", "frmAbout", "frmMore"}) {
        QTest::newRow(form) << QByteArray(form);
    }
}

void FormButtonsTest::WindowsWithoutAFlashIgnoreReturnAndEscape()
{
    QFETCH(QByteArray, form);
    World world;
    PlaceStudent(world);
    KEYFLUENT_RUN_ALONE(world, form.constData(), [&](QWidget& window) {
        Key(window, Qt::Key_Return);
        Key(window, Qt::Key_Escape);
        Key(window, Qt::Key_A);
        PassTime(400);
        QVERIFY(window.isVisible());
        world.program().End();
    });
}

void FormButtonsTest::TabReachesEveryButtonAndSpacePressesIt_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("next"); // the window that the press leads to
    const auto row = [](const char* form, const char* button, const char* next) {
        QTest::addRow("%s.%s", form, button)
            << QByteArray(form) << QByteArray(button) << QByteArray(next);
    };
    row("frmScreen", "cmdThank", "the end");
    row("frmEName", "imgCansel", "none");
    row("DlgWelcome", "cmdOK", "none");
    row("DlgWelcome", "cmdCansel", "frmEName");
    row("frmLessonDescription", "cmdThank", "frmImage");
    row("dlgExercise", "imgAExercise_3", "dlgOptions");
    row("dlgExercise", "imgEExercise_0", "dlgOptions");
    row("dlgExercise", "imgCansel", "frmImage");
    row("dlgOptions", "cmdOK", "frmLesson");
    row("dlgOptions", "cmdCansel", "dlgExercise");
    row("frmFree", "cmdCansel", "none");
    row("frmNotAllowed", "cmdOK", "none");
    row("frmPrefs", "cmdOK", "none");
    row("frmPrefs", "cmdCansel", "none");
    row("frmDiploma", "cmdPrint", "none");
    row("frmDiploma", "cmdCansel", "none");
    row("frmViewRecommands", "cmdNext", "frmViewRecommands");
    row("frmViewRecommands", "cmdBack", "frmViewRecommands");
    row("frmViewRecommands", "cmdThank", "none");
    row("frmAbout", "imgOK", "frmMore");
    row("frmAbout", "imgCansel", "frmAbout");
    row("frmLeave", "cmdOK", "DlgGBye");
    row("frmLeave", "cmdNo", "DlgGBye");
    row("frmLeave", "cmdCancel", "none");
    row("DlgGBye", "cmdGoodBye", "the end");
}

void FormButtonsTest::TabReachesEveryButtonAndSpacePressesIt()
{
    QFETCH(QByteArray, form);
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, next);
    World world;
    PlaceStudent(world);
    QDir(world.Folder()).mkdir(QStringLiteral("Students"));
    QByteArray found;
    QObject looker; // outlives the window
    KEYFLUENT_RUN_ALONE(world, form.constData(), [&](QWidget& window) {
        const ImageControl& image = Picture(window, button.constData());
        for (int tabs = 0; tabs < 20 && !image.hasFocus(); ++tabs) {
            Key(window, Qt::Key_Tab);
        }
        QVERIFY(image.ShowsFocus());
        // Looks when the chain of windows has gone on as far as it will.
        QTimer::singleShot(100, &looker, [&] {
            found = NextWindow(world);
            world.program().End();
        });
        Key(window, Qt::Key_Space);
    });
    found = found.isEmpty() ? NextWindow(world) : found; // nothing came after it
    QCOMPARE(found, next);
}

void FormButtonsTest::TheFrameShowsOnlyAfterTheKeyboardMoved()
{
    World world;
    PlaceStudent(world);
    KEYFLUENT_RUN_ALONE(world, "frmLeave", [&](QWidget& window) {
        const auto framed = [&window] {
            int frames = 0;
            for (const ImageControl* image : window.findChildren<ImageControl*>()) {
                frames += image->ShowsFocus() ? 1 : 0;
            }
            return frames;
        };
        QCOMPARE(framed(), 0);
        const QImage plain = window.grab().toImage();
        PressAt(window, MiddleOf(window, "cmdNo"));
        ReleaseAt(window, {5, 80}); // let go elsewhere: no click
        QCOMPARE(framed(), 0);
        MoveTo(window, {5, 80});
        QCOMPARE(window.grab().toImage(), plain);
        Key(window, Qt::Key_Tab);
        QCOMPARE(framed(), 1);
        QVERIFY(window.grab().toImage() != plain);
        Key(window, Qt::Key_Tab);
        QVERIFY(Picture(window, "cmdNo").ShowsFocus());
        Key(window, Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(Picture(window, "cmdOK").ShowsFocus());
        QCOMPARE(framed(), 1);
        shell::Click(window, "cmdCancel");
    });
}

void FormButtonsTest::TheFrameIsThereAgainAfterAWindowInFront()
{
    World world;
    Script script(world);
    script
        .At("frmAbout",
            [](QWidget& window) {
                Key(window, Qt::Key_Tab);
                QVERIFY(Picture(window, "imgOK").ShowsFocus());
                Key(window, Qt::Key_Space);
                QVERIFY(Picture(window, "imgOK").hasFocus());
                QVERIFY(Picture(window, "imgOK").ShowsFocus());
                shell::Click(window, "Image1");
            })
        .Press("frmMore", Qt::Key_Space);
    QVERIFY2(script.Run([&] { world.program().ShowModal(MakeForm(world, "frmAbout")); }),
             script.Report());
}

void FormButtonsTest::AButtonCountsAClickOnlyFromPressToRelease()
{
    World world;
    KEYFLUENT_RUN_ALONE(world, "frmNotAllowed", [&](QWidget& window) {
        ReleaseAt(window, MiddleOf(window, "cmdOK")); // pressed in a window before
        QVERIFY(window.isVisible());
        PressAt(window, MiddleOf(window, "cmdOK"));
        QVERIFY(window.isVisible());
        ReleaseAt(window, {5, 60});
        QVERIFY(window.isVisible());
        PressAt(window, {5, 60});
        ReleaseAt(window, MiddleOf(window, "cmdOK"));
        QVERIFY(window.isVisible());
        shell::Click(window, "lblOK");
        QVERIFY(!window.isVisible());
    });
}

void FormButtonsTest::OnlyTheLeftButtonPresses()
{
    World world;
    KEYFLUENT_RUN_ALONE(world, "frmAbout", [&](QWidget& window) {
        for (const char* control : {"imgOK", "imgCansel", "Image1"}) {
            QTest::mouseClick(window.windowHandle(), Qt::RightButton, {},
                              MiddleOf(window, control));
            QVERIFY(window.isVisible());
        }
        QCOMPARE(world.toolStarts, 0);
        QTest::mousePress(window.windowHandle(), Qt::RightButton, {}, QPoint(4, 200));
        QVERIFY(!window.isVisible()); // any button on the bare window
    });
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::FormButtonsTest)

#include "FormButtonsTest.moc"
