// The preferences dialog: what it shows of the file, what it takes, and what it leaves behind.
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"
#include "shell/forms/frmPrefs.h"

#include "tests/shell/forms/FormMakers.h"

#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLineEdit>

namespace keyfluent::shell
{

class PrefsFormTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void TicksStandForTheStoredValues_data();
    void TicksStandForTheStoredValues();
    void ABoxTurnsOverByItsPictureAndItsLabel();
    void OnlyOKSaves();
    void AnEmptyFileGetsTheDefaultRecordEvenOnCancel();
    void SizesAreBroughtIntoTheLimits_data();
    void SizesAreBroughtIntoTheLimits();
    void TheSizeFieldTakesDigitsAndBackspace();
    void WhatIsPastedIsNotFiltered();
    void TheColourDialogBeginsWithTheSwatchsColour();
    void PickedColoursAreSaved();
    void AChangedLanguageShowsAtOnce();
    void TheKeyboardTakesEffectInTheMainWindow();
    void ACloseRequestIsACancel();
};

namespace
{

QString PreferencesFile(const World& world)
{
    return world.Folder() + QStringLiteral("/KeyFluent Preference.prf");
}

QByteArray FileBytes(const World& world)
{
    QFile file(PreferencesFile(world));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteBytes(const World& world, const QByteArray& bytes)
{
    QFile file(PreferencesFile(world));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("The preferences cannot be written.");
    }
}

QByteArray Record(const char* fields)
{
    return QByteArray::fromHex(fields).append(532 - 20, '\0');
}

QLineEdit& SizeField(QWidget& window)
{
    return static_cast<QLineEdit&>(Control(window, "txtSize"));
}

bool IsTicked(QWidget& window, const char* box)
{
    return Picture(window, box).Bitmap() == 127;
}

// Opens the dialog from the main window's menu.
bool OpenFromMenu(World& world, const Script::Action& act, QByteArray& report)
{
    Script script(world);
    script.Choose("mnuFilePrefs").At("frmPrefs", act);
    const bool done = script.Run();
    report = script.Report();
    return done;
}

#define KEYFLUENT_IN_PREFERENCES(world, ...)                                                       \
    do {                                                                                           \
        QByteArray report;                                                                         \
        const bool done = OpenFromMenu(world, __VA_ARGS__, report);                                \
        QVERIFY2(done, report.constData());                                                        \
    } while (false)

} // namespace

void PrefsFormTest::TicksStandForTheStoredValues_data()
{
    QTest::addColumn<QByteArray>("fields"); // the record's first twenty bytes
    QTest::addColumn<bool>("english");
    QTest::addColumn<bool>("macintosh");
    QTest::addColumn<bool>("colouredHands");
    QTest::newRow("Arabic, Windows, coloured")
        << QByteArray("ffff c0000000 0e000000 00000000 ff000000 ffff") << false << false << true;
    QTest::newRow("English, Macintosh, plain")
        << QByteArray("0000 00000000 0e000000 00000000 ff000000 0000") << true << true << false;
    QTest::newRow("English, Windows, coloured")
        << QByteArray("0000 c0000000 0e000000 00000000 ff000000 ffff") << true << false << true;
}

void PrefsFormTest::TicksStandForTheStoredValues()
{
    QFETCH(QByteArray, fields);
    QFETCH(bool, english);
    QFETCH(bool, macintosh);
    QFETCH(bool, colouredHands);
    World world;
    world.SignIn();
    WriteBytes(world, Record(fields));
    KEYFLUENT_IN_PREFERENCES(world, [&](QWidget& window) {
        QCOMPARE(IsTicked(window, "imgInterface"), english);
        QCOMPARE(IsTicked(window, "imgSystem"), macintosh);
        QCOMPARE(IsTicked(window, "imgHand"), colouredHands);
        QCOMPARE(Picture(window, "imgHand").IsChecked(), colouredHands);
        QCOMPARE(SizeField(window).text(), QStringLiteral("14"));
        shell::Click(window, "cmdCansel");
    });
}

void PrefsFormTest::ABoxTurnsOverByItsPictureAndItsLabel()
{
    World world;
    world.SignIn();
    world.WritePreferences(false);
    const QByteArray before = FileBytes(world);
    KEYFLUENT_IN_PREFERENCES(world, [&](QWidget& window) {
        for (const auto& [picture, label] :
             {std::pair{"imgInterface", "lblInterface"}, std::pair{"imgSystem", "lblSystem"},
              std::pair{"imgHand", "lblHand"}}) {
            const bool ticked = IsTicked(window, picture);
            shell::Click(window, picture);
            QCOMPARE(IsTicked(window, picture), !ticked);
            shell::Click(window, label);
            QCOMPARE(IsTicked(window, picture), ticked);
            Picture(window, picture).setFocus(Qt::TabFocusReason);
            Key(window, Qt::Key_Space);
            QCOMPARE(IsTicked(window, picture), !ticked);
        }
        QCOMPARE(FileBytes(world), before); // a tick saves nothing
        shell::Click(window, "cmdCansel");
    });
    QCOMPARE(FileBytes(world), before);
}

void PrefsFormTest::OnlyOKSaves()
{
    World world;
    world.SignIn();
    WriteBytes(world, Record("0000 c0000000 0e000000 00000000 ff000000 ffff"));
    KEYFLUENT_IN_PREFERENCES(world, [&](QWidget& window) {
        shell::Click(window, "imgSystem");
        shell::Click(window, "imgHand");
        SizeField(window).setText(QStringLiteral("17"));
        shell::Click(window, "lblOK");
    });
    QCOMPARE(FileBytes(world), Record("0000 00000000 11000000 00000000 ff000000 0000"));
    QCOMPARE(world.state().keyboardKind, 0);
    QCOMPARE(world.state().fontSize, 17);
    QVERIFY(!world.state().colouredHands);
    QVERIFY(!world.state().arabicInterface);
}

void PrefsFormTest::AnEmptyFileGetsTheDefaultRecordEvenOnCancel()
{
    const QByteArray defaults =
        QByteArray::fromHex("ffff c0000000 0e000000 00000000 ff000000 ffff ffff").append(510, ' ');
    for (const int length : {0, 266}) {
        World world;
        world.SignIn();
        WriteBytes(world, QByteArray(length, '\x01'));
        KEYFLUENT_IN_PREFERENCES(world, [](QWidget& window) {
            QVERIFY(!IsTicked(window, "imgInterface"));
            QVERIFY(!IsTicked(window, "imgSystem"));
            QVERIFY(IsTicked(window, "imgHand"));
            QCOMPARE(SizeField(window).text(), QStringLiteral("14"));
            shell::Click(window, "lblCansel");
        });
        QCOMPARE(FileBytes(world), defaults);
        QVERIFY(!world.state().arabicInterface); // takes effect at the next start
    }
    World world;
    world.SignIn();
    WriteBytes(world, QByteArray(267, '\0'));
    KEYFLUENT_IN_PREFERENCES(world, [](QWidget& window) {
        QCOMPARE(SizeField(window).text(), QStringLiteral("0")); // a record, as it stands
        shell::Click(window, "cmdCansel");
    });
    QCOMPARE(FileBytes(world), QByteArray(267, '\0'));
}

void PrefsFormTest::SizesAreBroughtIntoTheLimits_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("saved");
    QTest::newRow("nothing") << QString() << 1;
    QTest::newRow("0") << QStringLiteral("0") << 1;
    QTest::newRow("1") << QStringLiteral("1") << 1;
    QTest::newRow("20") << QStringLiteral("20") << 20;
    QTest::newRow("21") << QStringLiteral("21") << 20;
    QTest::newRow("many digits") << QString(40, u'9') << 20;
    QTest::newRow("digits and letters") << QStringLiteral("12abc") << 12;
    QTest::newRow("letters") << QStringLiteral("abc") << 1;
}

void PrefsFormTest::SizesAreBroughtIntoTheLimits()
{
    QFETCH(QString, typed);
    QFETCH(int, saved);
    World world;
    world.SignIn();
    world.WritePreferences(false);
    KEYFLUENT_IN_PREFERENCES(world, [&](QWidget& window) {
        SizeField(window).setText(typed);
        shell::Click(window, "cmdOK");
        // Still there for the moment before the window goes.
        QCOMPARE(SizeField(window).text(), QString::number(saved));
    });
    QCOMPARE(world.state().fontSize, saved);
    QVERIFY(world.messages.isEmpty());
    QCOMPARE(world.beeps, 0);
}

void PrefsFormTest::TheSizeFieldTakesDigitsAndBackspace()
{
    World world;
    world.SignIn();
    world.WritePreferences(false);
    KEYFLUENT_IN_PREFERENCES(world, [&](QWidget& window) {
        QLineEdit& field = SizeField(window);
        field.clear();
        field.setFocus();
        Type(window, QStringLiteral("1a b-2.,+é٣ض"));
        QCOMPARE(field.text(), QStringLiteral("12"));
        Key(window, Qt::Key_Backspace);
        QCOMPARE(field.text(), QStringLiteral("1"));
        Key(window, Qt::Key_Space);
        QCOMPARE(field.text(), QStringLiteral("1"));
        QVERIFY2(!field.inputMethodQuery(Qt::ImEnabled).toBool(), "letters past the keys");
        Key(window, Qt::Key_Tab); // leaves the field
        QVERIFY(!field.hasFocus());
        field.setFocus();
        Key(window, Qt::Key_Escape); // and Escape is the window's
        QTRY_VERIFY(!window.isVisible());
    });
}

void PrefsFormTest::WhatIsPastedIsNotFiltered()
{
    World world;
    world.SignIn();
    world.WritePreferences(false);
    KEYFLUENT_IN_PREFERENCES(world, [&](QWidget& window) {
        QLineEdit& field = SizeField(window);
        field.clear();
        field.setFocus();
        QGuiApplication::clipboard()->setText(QStringLiteral("7 apples"));
        QTest::keyClick(window.windowHandle(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(field.text(), QStringLiteral("7 apples"));
        shell::Click(window, "cmdOK");
    });
    QCOMPARE(world.state().fontSize, 7);
}

void PrefsFormTest::TheColourDialogBeginsWithTheSwatchsColour()
{
    World world;
    world.SignIn();
    WriteBytes(world, Record("0000 c0000000 0e000000 11223300 aabbcc00 ffff"));
    const QByteArray before = FileBytes(world);
    KEYFLUENT_IN_PREFERENCES(world, [&](QWidget& window) {
        shell::Click(window, "lblHilite");
        QCOMPARE(world.coloursOffered.back(), QColor(0x11, 0x22, 0x33)); // red lowest
        shell::Click(window, "lblWarn");
        QCOMPARE(world.coloursOffered.back(), QColor(0xAA, 0xBB, 0xCC));
        shell::Click(window, "lblHilite"); // the Cancel of before has left it as it was
        QCOMPARE(world.coloursOffered.back(), QColor(0x11, 0x22, 0x33));
        const QImage shot = window.grab().toImage();
        QCOMPARE(shot.pixelColor(MiddleOf(window, "lblHilite")), QColor(0x11, 0x22, 0x33));
        QCOMPARE(shot.pixelColor(MiddleOf(window, "lblWarn")), QColor(0xAA, 0xBB, 0xCC));
        QVERIFY(window.isVisible());
        shell::Click(window, "cmdOK");
    });
    QCOMPARE(FileBytes(world), before);
    QVERIFY(world.criticals.isEmpty() && world.messages.isEmpty());
}

void PrefsFormTest::PickedColoursAreSaved()
{
    World world;
    world.SignIn();
    world.WritePreferences(false);
    KEYFLUENT_IN_PREFERENCES(world, [&](QWidget& window) {
        world.pickedColour = QColor(1, 2, 3);
        shell::Click(window, "lblHilite");
        world.pickedColour = QColor(250, 128, 7);
        Picture(window, "lblWarn").setFocus(Qt::TabFocusReason);
        Key(window, Qt::Key_Space);
        const QImage shot = window.grab().toImage();
        QCOMPARE(shot.pixelColor(MiddleOf(window, "lblHilite")), QColor(1, 2, 3));
        shell::Click(window, "cmdOK");
    });
    QCOMPARE(FileBytes(world), Record("0000 c0000000 0e000000 01020300 fa800700 ffff"));
    QCOMPARE(world.state().trueKeyColour, 0x030201);
    QCOMPARE(world.state().errKeyColour, 0x0780FA);
}

void PrefsFormTest::AChangedLanguageShowsAtOnce()
{
    World world;
    frmBlack& main = world.SignIn();
    world.WritePreferences(false);
    Script script(world);
    script.Choose("mnuFilePrefs")
        .At("frmPrefs",
            [](QWidget& window) {
                QCOMPARE(Label(window, "lblTitle").text(), QStringLiteral("Preferences"));
                shell::Click(window, "imgInterface");
                shell::Click(window, "cmdOK");
            })
        .At("frmBlack",
            [](QWidget& window) {
                QCOMPARE(Item(window, "mnuFileQuit").text(), QStringLiteral("إنهاء"));
                QCOMPARE(window.windowTitle(), QStringLiteral("زن أورتشارد كي فلونت 1.0"));
                Item(window, "mnuFilePrefs").trigger();
            })
        .At("frmPrefs", [](QWidget& window) {
            QCOMPARE(Label(window, "lblTitle").text(), QStringLiteral("التفضيلات"));
            QVERIFY(!IsTicked(window, "imgInterface"));
            shell::Click(window, "imgInterface");
            shell::Click(window, "cmdOK");
        });
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(Item(main, "mnuFileQuit").text(), QStringLiteral("Quit"));
}

void PrefsFormTest::TheKeyboardTakesEffectInTheMainWindow()
{
    World world;
    frmBlack& main = world.SignIn();
    world.state().reachedLessonMac = 1;
    world.state().reachedLessonWin = 6;
    world.WritePreferences(false);
    Script script(world);
    script.Choose("mnuFilePrefs").At("frmPrefs", [](QWidget& window) {
        shell::Click(window, "lblSystem");
        shell::Click(window, "cmdOK");
    });
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(Item(main, "mnuFileMacKeyboard").isChecked());
    QVERIFY(!Item(main, "mnuLesson2").isEnabled());
}

void PrefsFormTest::ACloseRequestIsACancel()
{
    World world;
    world.SignIn();
    world.WritePreferences(false);
    const QByteArray before = FileBytes(world);
    KEYFLUENT_IN_PREFERENCES(world, [](QWidget& window) {
        shell::Click(window, "imgHand");
        RequestClose(window);
    });
    QCOMPARE(FileBytes(world), before);
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::PrefsFormTest)

#include "PrefsFormTest.moc"
