// The windows before an exercise: its options, and the letters of an anagram.
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/dlgOptions.h"
#include "shell/forms/frmFree.h"
#include "shell/platform/TextConversion.h"

#include "tests/shell/forms/FormMakers.h"

#include <QLineEdit>

namespace keyfluent::shell
{

class OptionsFormTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void AidsLookAsTheirPlaceHasThem_data();
    void AidsLookAsTheirPlaceHasThem();
    void AFreeAidTurnsOverAndAFixedOneStays();
    void ChoicesAreNotRememberedFromOneOpeningToTheNext();
    void LettersAlwaysBeginOnArabicAndEmpty();
    void TheBoxOfTheLettersTurnsTheKeyboard();
    void OKIsEnabledByAnyText();
    void BlankLettersBeepAndStay();
    void TenLettersAreTaken_data();
    void TenLettersAreTaken();
    void LettersGivenUpAreNone();
};

namespace
{

struct AidControl {
    const char* image;
    const char* label;
};

constexpr AidControl aidControls[] = {{"imgKeys", "lblKeys"},
                                      {"imgHands", "lblHands"},
                                      {"imgCounter", "lblCounter"},
                                      {"imgTimer", "lblTimer"},
                                      {"imgSound", "lblSound"}};

// The five aids of a place: "1" on, "0" off, "?" the student's to choose.
QByteArray AidsOf(const QWidget& window)
{
    QByteArray aids;
    for (const AidControl& aid : aidControls) {
        const int bitmap = Picture(window, aid.image).Bitmap();
        const bool free = Label(window, aid.label).isEnabled();
        aids += bitmap == 128 && !free   ? '1'
                : bitmap == 125 && !free ? '0'
                : bitmap == 126 && free  ? '?'
                                         : 'x';
    }
    return aids;
}

void SetPlace(World& world, std::uint8_t lesson, std::uint8_t exercise, bool arabic)
{
    world.state().lessonNo = lesson;
    world.state().exerciseNo = exercise;
    world.state().arabicExercise = arabic;
}

QLineEdit& Letters(const QWidget& window)
{
    return static_cast<QLineEdit&>(Control(window, "txtFree"));
}

// Opens the letters alone; what act does closes them.
bool AskLetters(World& world, const Script::Action& act)
{
    Script script(world);
    script.At("frmFree", act);
    return script.Run([&] { world.program().Show<frmFree>(); });
}

} // namespace

void OptionsFormTest::AidsLookAsTheirPlaceHasThem_data()
{
    QTest::addColumn<int>("lesson");
    QTest::addColumn<int>("exercise");
    QTest::addColumn<bool>("arabic");
    QTest::addColumn<QByteArray>("aids"); // key caps, hands, counter, clock, sound
    const auto row = [](int lesson, int exercise, bool arabic, const char* aids) {
        QTest::addRow("%s %d.%d", arabic ? "Arabic" : "English", lesson, exercise)
            << lesson << exercise << arabic << QByteArray(aids);
    };
    row(1, 1, true, "11???");
    row(1, 5, true, "10???");
    row(6, 5, true, "1111?");
    row(12, 1, true, "1????");
    row(13, 2, true, "1?11?");
    row(15, 3, true, "0011?");
    row(3, 5, false, "1011?");
    row(6, 5, false, "0011?");
    row(7, 5, false, "?0???");
    row(14, 2, false, "?0???");
    row(12, 5, false, "00000"); // a place without a text, reached without its flag
    row(15, 3, false, "?????"); // here the dialog raises the flag itself
    row(15, 4, false, "00???");
    row(15, 5, false, "1????");
}

void OptionsFormTest::AidsLookAsTheirPlaceHasThem()
{
    QFETCH(int, lesson);
    QFETCH(int, exercise);
    QFETCH(bool, arabic);
    QFETCH(QByteArray, aids);
    for (const bool arabicInterface : {false, true}) {
        World world(arabicInterface);
        SetPlace(world, static_cast<std::uint8_t>(lesson), static_cast<std::uint8_t>(exercise),
                 arabic);
        QCOMPARE(AidsOf(*MakeForm(world, "dlgOptions")), aids);
    }
}

void OptionsFormTest::AFreeAidTurnsOverAndAFixedOneStays()
{
    World world;
    SetPlace(world, 1, 1, false); // key caps and hands are on and fixed
    Script script(world);
    script.At("dlgOptions", [&](QWidget& window) {
        const auto press = [&](const char* image) {
            shell::Click(window, image);
            return Picture(window, image).Bitmap();
        };
        QCOMPARE(press("imgKeys"), 128);
        QCOMPARE(press("imgHands"), 128);
        QVERIFY(world.state().optKeyCaps && world.state().optHands);
        for (const char* image : {"imgCounter", "imgTimer", "imgSound"}) {
            QCOMPARE(press(image), 127);
            QVERIFY(Picture(window, image).IsChecked());
            QCOMPARE(press(image), 126);
            QVERIFY(!Picture(window, image).IsChecked());
        }
        Picture(window, "imgTimer").setFocus(Qt::TabFocusReason);
        Key(window, Qt::Key_Space);
        QVERIFY(world.state().optClock);
        QVERIFY(!world.state().optCounter);
        QCOMPARE(world.beeps, 0);
        world.program().End();
    });
    QVERIFY2(script.Run([&] { world.program().Show<dlgOptions>(); }), script.Report());
}

void OptionsFormTest::ChoicesAreNotRememberedFromOneOpeningToTheNext()
{
    World world;
    SetPlace(world, 1, 1, false);
    world.state().optSound = true;
    world.state().optCounter = true;
    QCOMPARE(AidsOf(*MakeForm(world, "dlgOptions")), QByteArray("11???"));
    QVERIFY(!world.state().optSound);
    QVERIFY(!world.state().optCounter);
}

void OptionsFormTest::LettersAlwaysBeginOnArabicAndEmpty()
{
    for (const bool arabic : {false, true}) {
        World world(arabic);
        world.state().anagramLanguage = false;
        world.state().freeTextChars = u"abc";
        const std::unique_ptr<Form> window = MakeForm(world, "frmFree");
        QVERIFY(world.state().anagramLanguage);
        QVERIFY(world.state().freeTextChars.empty());
        QCOMPARE(Picture(*window, "imgKeyboard").Bitmap(), 127);
        QVERIFY(Letters(*window).text().isEmpty());
    }
}

void OptionsFormTest::TheBoxOfTheLettersTurnsTheKeyboard()
{
    World world;
    QVERIFY(AskLetters(world, [&](QWidget& window) {
        shell::Click(window, "imgKeyboard");
        QVERIFY(!world.state().anagramLanguage);
        QCOMPARE(Picture(window, "imgKeyboard").Bitmap(), 126);
        shell::Click(window, "imgKeyboard");
        QVERIFY(world.state().anagramLanguage);
        QCOMPARE(Picture(window, "imgKeyboard").Bitmap(), 127);
        shell::Click(window, "cmdCansel");
    }));
}

void OptionsFormTest::OKIsEnabledByAnyText()
{
    World world;
    QVERIFY(AskLetters(world, [&](QWidget& window) {
        const auto enabled = [&window] {
            return Picture(window, "cmdOK").isEnabled() && Label(window, "lblOK").isEnabled();
        };
        QVERIFY(!Picture(window, "cmdOK").isEnabled() && !Label(window, "lblOK").isEnabled());
        shell::Click(window, "cmdOK");
        QVERIFY(window.isVisible());
        QVERIFY(Letters(window).hasFocus());
        Type(window, QStringLiteral(" "));
        QVERIFY(enabled());
        Key(window, Qt::Key_Backspace);
        QVERIFY(!enabled());
        shell::Click(window, "lblCansel");
    }));
}

void OptionsFormTest::BlankLettersBeepAndStay()
{
    World world;
    QVERIFY(AskLetters(world, [&](QWidget& window) {
        Type(window, QStringLiteral("   "));
        shell::Click(window, "cmdOK");
        QCOMPARE(world.beeps, 1);
        shell::Click(window, "lblOK");
        QCOMPARE(world.beeps, 2);
        QVERIFY(window.isVisible());
        shell::Click(window, "cmdCansel");
    }));
    QVERIFY(world.state().freeTextChars.empty());
}

void OptionsFormTest::TenLettersAreTaken_data()
{
    QTest::addColumn<bool>("arabicInterface");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("taken");
    const auto row = [](const char* name, bool arabic, const char16_t* typed,
                        const char16_t* taken) {
        QTest::newRow(name) << arabic << QString::fromUtf16(typed) << QString::fromUtf16(taken);
    };
    row("ten", false, u"abcdefghij", u"abcdefghij");
    row("the first ten", false, u"abcdefghijk", u"abcdefghij");
    row("the last ten", true, u"abcdefghijk", u"bcdefghijk");
    row("blanks count", false, u"  a b  ", u"  a b  ");
    row("another script", false, u"ضصث", u"ضصث");
}

void OptionsFormTest::TenLettersAreTaken()
{
    QFETCH(bool, arabicInterface);
    QFETCH(QString, typed);
    QFETCH(QString, taken);
    World world(arabicInterface);
    QVERIFY(AskLetters(world, [&](QWidget& window) {
        Type(window, typed);
        QCOMPARE(Letters(window).text(), typed); // the field itself has no limit
        shell::Click(window, "cmdOK");
    }));
    QCOMPARE(ToQString(world.state().freeTextChars), taken);
    QVERIFY(world.messages.isEmpty());
}

void OptionsFormTest::LettersGivenUpAreNone()
{
    for (const char* way : {"cmdCansel", "lblCansel", "close"}) {
        World world;
        QVERIFY(AskLetters(world, [&](QWidget& window) {
            Type(window, QStringLiteral("abc"));
            qstrcmp(way, "close") == 0 ? RequestClose(window) : shell::Click(window, way);
        }));
        QVERIFY(world.state().freeTextChars.empty());
    }
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::OptionsFormTest)

#include "OptionsFormTest.moc"
