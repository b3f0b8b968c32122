// Every window with the longest that it can have to say: nothing is cut off, nothing stands on
// anything else, and every window has room on the smallest screen.
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/DlgGBye.h"
#include "shell/forms/frmImage.h"
#include "shell/forms/frmResult.h"
#include "shell/forms/frmStopNote.h"
#include "shell/forms/frmViewRecommands.h"
#include "shell/forms/frmWelcome.h"
#include "shell/platform/TextConversion.h"

#include "tests/shell/forms/FitCheck.h"
#include "tests/shell/forms/FormMakers.h"

namespace keyfluent::shell
{

class FormFitTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void TheCheckSeesFaults();
    void EveryWindowFitsAsItUsuallyIs_data();
    void EveryWindowFitsAsItUsuallyIs();
    void GreetingsHaveRoomForEveryName_data();
    void GreetingsHaveRoomForEveryName();
    void FarewellsHaveRoomForEveryName_data();
    void FarewellsHaveRoomForEveryName();
    void TheDiplomaHasRoomForEveryName_data();
    void TheDiplomaHasRoomForEveryName();
    void TheChooserHasRoomForEveryLessonAndLargeMarks_data();
    void TheChooserHasRoomForEveryLessonAndLargeMarks();
    void OptionsHaveRoomForEveryNote_data();
    void OptionsHaveRoomForEveryNote();
    void LessonNotesHaveRoom_data();
    void LessonNotesHaveRoom();
    void EveryPageHasRoom_data();
    void EveryPageHasRoom();
    void EveryStopNoteHasRoom();
    void TheResultHasRoomForLargeMarksAndBothNotes_data();
    void TheResultHasRoomForLargeMarksAndBothNotes();
    void TheExerciseHasRoomInEveryLesson_data();
    void TheExerciseHasRoomInEveryLesson();
    void EveryPictureHasRoomOnTheSmallestScreen();
};

namespace
{

void AddLanguages()
{
    QTest::addColumn<bool>("arabic");
    QTest::newRow("English") << false;
    QTest::newRow("Arabic") << true;
}

// The longest names there can be, and such as the toolkit could take for something else.
QStringList LongNames()
{
    const auto repeated = [](const char16_t* text, int times) {
        return QString::fromUtf16(text).repeated(times);
    };
    return {QString(60, u'W'),       QString(60, u'ض'),
            repeated(u"WWWWW ", 10), repeated(u"ضضضضض ", 10),
            repeated(u"Wض", 30),     repeated(u"ﷺ", 60),
            repeated(u"界", 60),     QStringLiteral("<b>Ali<br>"),
            QStringLiteral("A&B")};
}

void AddNames()
{
    QTest::addColumn<bool>("arabic");
    QTest::addColumn<QString>("name");
    int number = 0;
    for (const QString& name : LongNames()) {
        ++number;
        QTest::addRow("English, name %d", number) << false << name;
        QTest::addRow("Arabic, name %d", number) << true << name;
    }
}

#define KEYFLUENT_VERIFY_FIT(window, what)                                                         \
    do {                                                                                           \
        const QByteArray faults = FaultsOfFit(window);                                             \
        QVERIFY2(faults.isEmpty(), QByteArray((what) + QByteArray(":\n") + faults).constData());   \
    } while (false)

} // namespace

// A check that sees nothing would pass for ever.
void FormFitTest::TheCheckSeesFaults()
{
    World world;
    PlaceStudent(world);
    const std::unique_ptr<Form> window = MakeForm(world, "frmResult");
    QVERIFY(FaultsOfFit(*window).isEmpty());
    TextLabel& label = Label(*window, "lblRes");
    const QRect place = label.geometry();
    label.resize(label.width(), 6);
    QVERIFY(FaultsOfFit(*window).contains("lblRes is cut off"));
    label.setGeometry(place.translated(0, 30));
    QVERIFY(FaultsOfFit(*window).contains("lblRes stands on lblBonus"));
    label.setGeometry(place.translated(-80, 0));
    QVERIFY(FaultsOfFit(*window).contains("lblRes reaches out of the window"));
    const std::unique_ptr<Form> other = MakeForm(world, "frmNotAllowed");
    Label(*other, "lblOK").SetCaption(u"much too long a caption");
    QVERIFY(FaultsOfFit(*other).contains("lblOK is larger than its button"));
}

void FormFitTest::EveryWindowFitsAsItUsuallyIs_data()
{
    AddLanguages();
}

void FormFitTest::EveryWindowFitsAsItUsuallyIs()
{
    QFETCH(bool, arabic);
    for (const FormMaker& maker : FormMakers()) {
        World world(arabic);
        PlaceStudent(world);
        const std::unique_ptr<Form> window = maker.make(world);
        // Meant: this caption stands on its picture.
        const QByteArray faults = FaultsOfFit(*window, "lblT1");
        QVERIFY2(faults.isEmpty(), QByteArray(maker.name + (":\n" + faults)).constData());
    }
}

void FormFitTest::GreetingsHaveRoomForEveryName_data()
{
    AddNames();
}

void FormFitTest::GreetingsHaveRoomForEveryName()
{
    QFETCH(bool, arabic);
    QFETCH(QString, name);
    for (int draw = 1; draw <= 8; ++draw) {
        World world(arabic);
        PlaceStudent(world);
        world.state().studentName = FromQString(name);
        world.state().studentTable.Record(1)[5] = 8; // the lesson with the longest name
        world.state().studentTable.Record(24) = {99, 49, 99, 99, 199, 49, 99, 49, 299, 0};
        world.WriteStudent(name, world.state().studentTable);
        world.Draw(draw, 1, 8);
        frmWelcome window(world.program());
        KEYFLUENT_VERIFY_FIT(window, "welcome " + QByteArray::number(draw));
    }
    World world(arabic);
    world.state().studentName = FromQString(name);
    KEYFLUENT_VERIFY_FIT(*MakeForm(world, "DlgWelcome"), QByteArray("greeting"));
}

void FormFitTest::FarewellsHaveRoomForEveryName_data()
{
    AddNames();
}

void FormFitTest::FarewellsHaveRoomForEveryName()
{
    QFETCH(bool, arabic);
    QFETCH(QString, name);
    for (int draw = 0; draw <= 5; ++draw) {
        World world(arabic);
        PlaceStudent(world);
        world.state().studentName = FromQString(name);
        world.state().reachedLessonWin = 8;
        world.state().leaveNoSave = draw == 0; // the plain one
        world.Draw(draw, 1, 5);
        DlgGBye window(world.program());
        KEYFLUENT_VERIFY_FIT(window, "farewell " + QByteArray::number(draw));
    }
}

void FormFitTest::TheDiplomaHasRoomForEveryName_data()
{
    AddNames();
}

void FormFitTest::TheDiplomaHasRoomForEveryName()
{
    QFETCH(bool, arabic);
    QFETCH(QString, name);
    World world(arabic);
    PlaceStudent(world);
    context::SessionContext& state = world.state();
    state.studentName = FromQString(name);
    state.courseDoneArabicMac = state.courseDoneEnglishMac = true;
    state.gradeArabicMac = state.gradeEnglishMac = 3;
    KEYFLUENT_VERIFY_FIT(*MakeForm(world, "frmDiploma"), QByteArray("diploma"));
}

void FormFitTest::TheChooserHasRoomForEveryLessonAndLargeMarks_data()
{
    AddLanguages();
}

void FormFitTest::TheChooserHasRoomForEveryLessonAndLargeMarks()
{
    QFETCH(bool, arabic);
    for (std::uint8_t lesson = 1; lesson <= 15; ++lesson) {
        World world(arabic);
        world.state().lessonNo = lesson;
        world.state().studentTable.Record(lesson + 16).fill(2999);
        KEYFLUENT_VERIFY_FIT(*MakeForm(world, "dlgExercise"),
                             "lesson " + QByteArray::number(lesson));
    }
}

void FormFitTest::OptionsHaveRoomForEveryNote_data()
{
    AddLanguages();
}

void FormFitTest::OptionsHaveRoomForEveryNote()
{
    QFETCH(bool, arabic);
    for (std::uint8_t lesson = 1; lesson <= 15; ++lesson) {
        for (std::uint8_t exercise = 1; exercise <= 5; ++exercise) {
            for (const bool arabicExercise : {false, true}) {
                World world(arabic);
                world.state().lessonNo = lesson;
                world.state().exerciseNo = exercise;
                world.state().arabicExercise = arabicExercise;
                const std::unique_ptr<Form> window = MakeForm(world, "dlgOptions");
                const QByteArray place =
                    QByteArray::number(lesson) + '.' + QByteArray::number(exercise);
                KEYFLUENT_VERIFY_FIT(*window, place);
                // In a face that can be read: ten points at least.
                QVERIFY2(Label(*window, "lblText").font().pixelSize() >= 13, place);
            }
        }
    }
}

void FormFitTest::LessonNotesHaveRoom_data()
{
    AddLanguages();
}

void FormFitTest::LessonNotesHaveRoom()
{
    QFETCH(bool, arabic);
    for (std::uint8_t lesson = 1; lesson <= 15; ++lesson) {
        World world(arabic);
        world.state().lessonNo = lesson;
        KEYFLUENT_VERIFY_FIT(*MakeForm(world, "frmLessonDescription"),
                             "lesson " + QByteArray::number(lesson));
    }
}

void FormFitTest::EveryPageHasRoom_data()
{
    AddLanguages();
}

void FormFitTest::EveryPageHasRoom()
{
    QFETCH(bool, arabic);
    for (const bool recommendations : {false, true}) {
        World world(arabic);
        world.state().helpMode = recommendations;
        const int last = recommendations ? 6 : 11;
        for (int page = 1; page <= last; ++page) {
            world.state().helpPage = static_cast<std::uint8_t>(page);
            world.state().recommendPage = static_cast<std::uint8_t>(page);
            frmViewRecommands window(world.program());
            KEYFLUENT_VERIFY_FIT(window, QByteArray(recommendations ? "recommendation " : "help ") +
                                             QByteArray::number(page));
        }
    }
}

void FormFitTest::EveryStopNoteHasRoom()
{
    for (int note = 1; note <= 10; ++note) {
        World world(true);
        frmStopNote window(world.program(), note);
        KEYFLUENT_VERIFY_FIT(window, "note " + QByteArray::number(note));
    }
}

void FormFitTest::TheResultHasRoomForLargeMarksAndBothNotes_data()
{
    AddLanguages();
}

void FormFitTest::TheResultHasRoomForLargeMarksAndBothNotes()
{
    QFETCH(bool, arabic);
    for (const bool diploma : {false, true}) {
        World world(arabic);
        PlaceStudent(world);
        context::SessionContext& state = world.state();
        state.accuracyMark = 9999;
        state.speedBonus = -9999;
        state.exerciseMark = -9999;
        if (diploma) {
            state.lessonNo = state.reachedLessonWin = 15;
            state.studentTable.Record(31).fill(190);
        }
        frmResult window(world.program());
        QVERIFY(!Label(window, "lblNote").text().isEmpty());
        KEYFLUENT_VERIFY_FIT(window, QByteArray(diploma ? "diploma" : "next lesson"));
    }
}

void FormFitTest::TheExerciseHasRoomInEveryLesson_data()
{
    AddLanguages();
}

void FormFitTest::TheExerciseHasRoomInEveryLesson()
{
    QFETCH(bool, arabic);
    for (const int fontSize : {0, 12, 14, 20}) {
        for (std::uint8_t lesson = 1; lesson <= 15; ++lesson) {
            World world(arabic);
            world.state().fontSize = fontSize;
            world.state().lessonNo = lesson;
            world.state().exerciseNo = 2;
            const std::unique_ptr<Form> window = MakeForm(world, "frmLesson");
            // The largest numbers that the exercise can show.
            Label(*window, "lblMark").SetCaption(u"500");
            Label(*window, "lblSpeed").SetCaption(u"300");
            if (lesson == 15) {
                TextLabel& message = Label(*window, "Label7");
                message.SetCaption(arabic ? u"عدد الأخطاء : 999. الرجاء تصليح الأخطاء"
                                          : u"No of Errors: 999. Please correct the text.");
                message.show();
            }
            KEYFLUENT_VERIFY_FIT(*window, "lesson " + QByteArray::number(lesson) + ", " +
                                              QByteArray::number(fontSize) + " points");
        }
    }
}

void FormFitTest::EveryPictureHasRoomOnTheSmallestScreen()
{
    for (int bitmap = 138; bitmap <= 157; ++bitmap) {
        World world;
        world.Draw(bitmap, 138, 157);
        frmImage window(world.program());
        const QByteArray faults = FaultsOfFit(window, "lblT1");
        QVERIFY2(faults.isEmpty(), (QByteArray::number(bitmap) + ":\n" + faults).constData());
    }
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::FormFitTest)

#include "FormFitTest.moc"
