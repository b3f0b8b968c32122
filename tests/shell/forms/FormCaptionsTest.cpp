// What the windows say, against a table that is written down independently of them.
#include "course/Notes.h"
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"
#include "shell/forms/frmStopNote.h"
#include "shell/platform/TextConversion.h"

#include "tests/shell/forms/CaptionTables.h"
#include "tests/shell/forms/FormMakers.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <span>

namespace keyfluent::shell
{

class FormCaptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void EveryCaptionIsAsItIsWrittenDown_data();
    void EveryCaptionIsAsItIsWrittenDown();
    void NoLabelIsMissingInTheTable();
    void MenusAreAsTheyAreWrittenDown_data();
    void MenusAreAsTheyAreWrittenDown();
    void MainWindowsNameAndToolTips_data();
    void MainWindowsNameAndToolTips();
    void EveryWindowTellsTheDesktopItsName();
    void NamesAreAskedForDifferentlyAfterALogOut();
    void LeavingWithoutQuittingIsALogOut();
    void SpecialPlacesOfTheChooserAreNamedInBothInterfaces_data();
    void SpecialPlacesOfTheChooserAreNamedInBothInterfaces();
    void TheDateOfTheDiplomaIsNoMark();
    void TheNoteOfEveryPlaceStandsInTheOptions();
    void TheNoteOfEveryLessonStandsInItsWindow();
    void StopNotesAreArabicInBothInterfaces();
    void EveryPictureOfAWindowHasANameForThoseWhoCannotSeeIt();
};

namespace
{

std::span<const CaptionRow> Captions()
{
    return {captionRows, static_cast<std::size_t>(captionRowCount)};
}

std::span<const CaptionRow> Menus()
{
    return {menuRows, static_cast<std::size_t>(menuRowCount)};
}

QString Told(const CaptionRow& row, bool arabic)
{
    return QString::fromUtf16(arabic ? row.arabic : row.english);
}

void AddLanguages()
{
    QTest::addColumn<bool>("arabic");
    QTest::newRow("English") << false;
    QTest::newRow("Arabic") << true;
}

// Texts that are too long for a table of captions, or the program's own: other tests look at them.
constexpr const char* longTexts[] = {"frmLessonDescription.lblDescription",
                                     "dlgOptions.lblText",
                                     "frmViewRecommands.lblhelp",
                                     "frmAbout.lblTitle",
                                     "frmMore.lblTitle",
                                     "frmMore.lblText"};

} // namespace

void FormCaptionsTest::EveryCaptionIsAsItIsWrittenDown_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<bool>("arabic");
    for (const FormMaker& maker : FormMakers()) {
        for (const bool arabic : {false, true}) {
            QTest::addRow("%s, %s", maker.name, arabic ? "Arabic" : "English")
                << QByteArray(maker.name) << arabic;
        }
    }
}

void FormCaptionsTest::EveryCaptionIsAsItIsWrittenDown()
{
    QFETCH(QByteArray, form);
    QFETCH(bool, arabic);
    World world(arabic);
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, form.constData());
    QCOMPARE(window->objectName(), QString::fromLatin1(form));
    for (const CaptionRow& row : Captions()) {
        if (form == row.form) {
            const TextLabel& label = Label(*window, row.control);
            QVERIFY2(label.text() == Told(row, arabic),
                     qPrintable(QString::fromLatin1(row.control) + QStringLiteral(" says ") +
                                label.text()));
        }
    }
}

void FormCaptionsTest::NoLabelIsMissingInTheTable()
{
    for (const FormMaker& maker : FormMakers()) {
        World world;
        PlaceStudent(world);
        const std::unique_ptr<Form> window = maker.make(world);
        for (const TextLabel* label : window->findChildren<TextLabel*>()) {
            const QByteArray name = label->objectName().toLatin1();
            const bool told = std::ranges::any_of(Captions(), [&](const CaptionRow& row) {
                return qstrcmp(row.form, maker.name) == 0 && name == row.control;
            });
            const bool isLong = std::ranges::any_of(longTexts, [&](const char* text) {
                return QByteArray(maker.name) + '.' + name == text;
            });
            QVERIFY2(told != isLong, (QByteArray(maker.name) + '.' + name).constData());
        }
    }
}

void FormCaptionsTest::MenusAreAsTheyAreWrittenDown_data()
{
    AddLanguages();
}

void FormCaptionsTest::MenusAreAsTheyAreWrittenDown()
{
    QFETCH(bool, arabic);
    World world(arabic);
    const frmBlack& main = world.SignIn();
    auto row = Menus().begin();
    for (const QAction* title : main.findChild<QMenuBar*>()->actions()) {
        const QMenu* menu = title->menu();
        QCOMPARE(menu->objectName(), QString::fromLatin1(row->form));
        QCOMPARE(menu->title(), Told(*row, arabic));
        ++row;
        for (const QAction* item : menu->actions()) {
            QCOMPARE(item->objectName(), QString::fromLatin1(row->control));
            QCOMPARE(item->text(), Told(*row, arabic));
            QCOMPARE(item->isSeparator(), *row->english == u'\0');
            ++row;
        }
    }
    QVERIFY(row == Menus().end());
}

void FormCaptionsTest::MainWindowsNameAndToolTips_data()
{
    AddLanguages();
}

void FormCaptionsTest::MainWindowsNameAndToolTips()
{
    QFETCH(bool, arabic);
    World world(arabic);
    const frmBlack& main = world.SignIn();
    QCOMPARE(main.windowTitle(), arabic ? QStringLiteral("زن أورتشارد كي فلونت 1.0")
                                        : QStringLiteral("Zen Orchard KeyFluent 1.0"));
    const auto tip = [&](const char* name) { return Picture(main, name).toolTip(); };
    QCOMPARE(tip("imgNext"), arabic ? QStringLiteral("يسمح لك بالانتقال إلى التمرين التالي.")
                                    : QStringLiteral("Allows you to go to the next workout."));
    QCOMPARE(tip("imgBack"), arabic ? QStringLiteral("يسمح لك بالانتقال إلى التمرين السابق.")
                                    : QStringLiteral("Allows you to go to the previous workout."));
    QCOMPARE(tip("imgDuplicate"),
             arabic ? QStringLiteral("يسمح لك بإعادة التمرين الحالي مباشرة.")
                    : QStringLiteral("Allows you to repeat the current exercise"));
    QCOMPARE(tip("imgExercise"), QString());
}

void FormCaptionsTest::EveryWindowTellsTheDesktopItsName()
{
    for (const bool arabic : {false, true}) {
        for (const FormMaker& maker : FormMakers()) {
            World world(arabic);
            PlaceStudent(world);
            QVERIFY2(!maker.make(world)->windowTitle().isEmpty(), maker.name);
        }
    }
}

void FormCaptionsTest::NamesAreAskedForDifferentlyAfterALogOut()
{
    for (const bool arabic : {false, true}) {
        World world(arabic);
        world.state().loggedOut = true;
        QCOMPARE(Label(*MakeForm(world, "frmEName"), "lblName").text(),
                 arabic ? QStringLiteral("كيف حالك، مااسمك؟")
                        : QStringLiteral("How are you, your name?"));
    }
}

void FormCaptionsTest::LeavingWithoutQuittingIsALogOut()
{
    for (const bool arabic : {false, true}) {
        World world(arabic);
        world.SignIn();
        Script script(world);
        script.Choose("mnuFileLogout").At("frmLeave", [&](QWidget& window) {
            QCOMPARE(Label(window, "lblTitle").text(),
                     arabic ? QStringLiteral("تسجيل الخروج") : QStringLiteral("Loggin Out"));
            Key(window, Qt::Key_Escape);
        });
        QVERIFY2(script.Run(), script.Report());
    }
}

void FormCaptionsTest::SpecialPlacesOfTheChooserAreNamedInBothInterfaces_data()
{
    QTest::addColumn<int>("lesson");
    QTest::addColumn<QStringList>("english"); // the third, the fourth and the fifth button
    const QString anagram = QStringLiteral("Anagram");
    const QString freeText = QStringLiteral("Free Text");
    const QString arabic = QStringLiteral("-الجناس-");
    const QString plain; // lesson and exercise
    QTest::newRow("7") << 7 << QStringList{plain, plain, plain};
    QTest::newRow("8") << 8 << QStringList{plain, plain, anagram};
    QTest::newRow("9") << 9 << QStringList{plain, plain, arabic};
    QTest::newRow("10") << 10 << QStringList{plain, anagram, arabic};
    QTest::newRow("11") << 11 << QStringList{plain, plain, arabic};
    for (int lesson = 12; lesson <= 15; ++lesson) {
        QTest::addRow("%d", lesson) << lesson << QStringList{anagram, freeText, arabic};
    }
}

void FormCaptionsTest::SpecialPlacesOfTheChooserAreNamedInBothInterfaces()
{
    QFETCH(int, lesson);
    QFETCH(QStringList, english);
    for (const bool arabic : {false, true}) {
        World world(arabic);
        world.state().lessonNo = static_cast<std::uint8_t>(lesson);
        const std::unique_ptr<Form> window = MakeForm(world, "dlgExercise");
        const QString dash = arabic ? QStringLiteral(" - ") : QStringLiteral(" -");
        for (int i = 0; i < 5; ++i) {
            const QString plain = QString::number(lesson) + dash + QString::number(i + 1);
            const QString special = i < 2 ? QString() : english.at(i - 2);
            const QByteArray index = QByteArray::number(i);
            QCOMPARE(Label(*window, ("lblEExercise_" + index).constData()).text(),
                     special.isEmpty() ? plain : special);
            QCOMPARE(Label(*window, ("lblAExercise_" + index).constData()).text(), plain);
            QCOMPARE(Picture(*window, ("imgEExercise_" + index).constData()).accessibleName(),
                     special.isEmpty() ? plain : special);
        }
    }
}

void FormCaptionsTest::TheDateOfTheDiplomaIsNoMark()
{
    World world;
    PlaceStudent(world);
    world.state().lessonNo = 15;
    const std::unique_ptr<Form> window = MakeForm(world, "dlgExercise");
    for (const char* name : {"lblECM_2", "lblECM_3", "lblECM_4"}) {
        QCOMPARE(Label(*window, name).text(), QStringLiteral("0"));
    }
    QCOMPARE(Label(*window, "lblYourSum").text(), QStringLiteral("Your Score:0"));
}

void FormCaptionsTest::TheNoteOfEveryPlaceStandsInTheOptions()
{
    for (std::uint8_t lesson = 1; lesson <= 15; ++lesson) {
        for (std::uint8_t exercise = 1; exercise <= 5; ++exercise) {
            for (const bool arabic : {false, true}) {
                World world(!arabic); // the note does not follow the interface
                world.state().lessonNo = lesson;
                world.state().exerciseNo = exercise;
                world.state().arabicExercise = arabic;
                const std::unique_ptr<Form> window = MakeForm(world, "dlgOptions");
                const TextLabel& note = Label(*window, "lblText");
                QCOMPARE(note.text(), LabelText(course::ExerciseNote(lesson, exercise, arabic)));
                const bool arabicDrill =
                    lesson == 15 && exercise == 5; // raised as the window opens
                QCOMPARE(note.layoutDirection(),
                         arabic || arabicDrill ? Qt::RightToLeft : Qt::LeftToRight);
            }
        }
    }
}

void FormCaptionsTest::TheNoteOfEveryLessonStandsInItsWindow()
{
    for (std::uint8_t lesson = 1; lesson <= 15; ++lesson) {
        for (const bool arabic : {false, true}) {
            World world(arabic);
            world.state().lessonNo = lesson;
            const std::unique_ptr<Form> window = MakeForm(world, "frmLessonDescription");
            const TextLabel& note = Label(*window, "lblDescription");
            QCOMPARE(note.text(), LabelText(course::LessonNote(lesson)));
            // Meant: Arabic words in the sides of the interface.
            QCOMPARE(note.layoutDirection(), arabic ? Qt::RightToLeft : Qt::LeftToRight);
        }
    }
}

void FormCaptionsTest::StopNotesAreArabicInBothInterfaces()
{
    constexpr const char16_t* notes[] = {
        u"ما الفائدة إذن من المجهود الذي بذلته زن أورتشارد ؟",
        u"أتيت ... رأيت ...\nولكني لم أنتصر ...",
        u"لا تتكاسل، فلقد بدأت بالكاد بتحقيق بعض التقدم ...",
        u"نذكرك أن إيقاف التمرين قبل نهايته لا يؤثر على النتيجة التي سبق\nتسجيلها.",
        u"بكل سرعة ...\nفما زال لدي الكثير من العمل ...",
        u"ماذا ؟\nألم تذهب بعد لشرب الشاي في الغرفة المجاورة؟",
        u"قد بدأت تشنجات الأصابع ...",
        u"ماذا ؟\nألم يعجبك هذا التمرين ؟",
        u"هل بإمكانك القول للشخص المزعج الذي يحدث كل هذه الضوضاء\nأني أود التركيز على عملي بكل "
        u"هدوء ...",
        u"حذار! إنك تفرط باستخدام الأمر (توقيف)..."};
    for (int note = 1; note <= 10; ++note) {
        World world;
        const frmStopNote window(world.program(), note);
        const TextLabel& label = Label(window, "lblNote");
        QCOMPARE(label.text(), QString::fromUtf16(notes[note - 1]));
        QCOMPARE(label.layoutDirection(), Qt::RightToLeft);
        QCOMPARE(Shows(window, "imgIcon"), note == 9);
        QCOMPARE(Picture(window, "imgIcon").Bitmap(), 108);
        QCOMPARE(label.pos(), QPoint(note == 9 ? 106 : 53, 31));
        QCOMPARE(window.size(),
                 label.size() + QSize(note == 9 ? 133 : 106, 66)); // 2000 or 1600, and 1000 twips
    }
}

void FormCaptionsTest::EveryPictureOfAWindowHasANameForThoseWhoCannotSeeIt()
{
    for (const bool arabic : {false, true}) {
        for (const FormMaker& maker : FormMakers()) {
            World world(arabic);
            PlaceStudent(world);
            const std::unique_ptr<Form> window = maker.make(world);
            for (const ImageControl* image : window->findChildren<ImageControl*>()) {
                QVERIFY2(image->ControlKind() == ImageControl::Kind::Picture ||
                             !image->accessibleName().isEmpty(),
                         qPrintable(window->objectName() + u'.' + image->objectName()));
            }
        }
    }
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::FormCaptionsTest)

#include "FormCaptionsTest.moc"
