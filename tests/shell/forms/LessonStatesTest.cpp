// The states of an exercise in its real window, with real keys, clicks and timers.
#include "context/Text.h"
#include "session/Lesson.h"
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"
#include "shell/forms/frmLesson.h"

#include "tests/shell/forms/FormsHarness.h"
#include "tests/shell/forms/LessonKeys.h"

namespace keyfluent::shell
{

class LessonStatesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void TheFirstKeyStartsTheClock();
    void ARefusedKeyBlinksAndShutsKeysOut();
    void AFailedRowIsErasedAndTypedAgain();
    void APauseEndsWithTheKeyAfterResume();
    void APausedExerciseCanBeStopped();
    void ARunningExerciseEndsWithItsLastRow();
    void ARunningExerciseCanBeStopped();
    void APassageWithErrorsIsReviewedAndEndsWhenMended();
    void APassageWithoutErrorsEndsAtOnce();
    void APressOnTheFieldsIsCautionedAndTheExerciseGoesOn();
    void TheClockTicksUnderTheCaution();
    void NoTimerOutlivesTheExercise();
};

namespace
{

void RunLesson(World& world, std::uint8_t lesson, std::uint8_t exercise, Script& script)
{
    frmBlack& main = world.SignIn();
    context::SessionContext& state = world.state();
    state.reachedLessonWin = 15;
    state.lastLessonWin = state.lastLessonMac = state.lessonNo = lesson;
    state.exerciseNo = exercise;
    state.arabicExercise = false;
    state.sessionRun = true;
    state.optKeyCaps = state.optHands = state.optCounter = state.optClock = true;
    main.ShowStepButtons(true, true, true);
    script.Click("frmBlack", "imgDuplicate");
}

const session::Lesson& RecordOf(const QWidget& window)
{
    return static_cast<const frmLesson&>(window).Record();
}

bool TimerRuns(const QWidget& window, const char* name)
{
    return window.findChild<QTimer*>(QString::fromLatin1(name))->isActive();
}

void Stop(QWidget& window)
{
    PressAt(window, MiddleOf(window, "imgStop"));
}

} // namespace

void LessonStatesTest::TheFirstKeyStartsTheClock()
{
    World world;
    Script script(world);
    RunLesson(world, 1, 1, script);
    script
        .At("frmLesson",
            [&](QWidget& window) {
                QVERIFY(!TimerRuns(window, "tmrClock"));
                QVERIFY(TimerRuns(window, "tmrSelection"));
                Key(window, Qt::Key_Control); // neither of these counts
                Key(window, Qt::Key_CapsLock);
                QVERIFY(RecordOf(window).awaitingFirstKey);
                TypeRight(window, 1);
                QVERIFY(!RecordOf(window).awaitingFirstKey);
                QVERIFY(TimerRuns(window, "tmrClock"));
                PassTime(1100);
                QCOMPARE(Label(window, "lblTimer").text(), QStringLiteral("00:01"));
                Stop(window);
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
}

void LessonStatesTest::ARefusedKeyBlinksAndShutsKeysOut()
{
    World world;
    Script script(world);
    RunLesson(world, 1, 1, script);
    script
        .At("frmLesson",
            [&](QWidget& window) {
                const session::Lesson& record = RecordOf(window);
                TypeRight(window, 2);
                PassTime(400); // the winks are over
                const std::u16string typed = record.txtTest.Text();
                TypeWrong(window);
                QCOMPARE(world.beeps, 1);
                QVERIFY(TimerRuns(window, "tmrErrKey"));
                QVERIFY(record.txtTest.Text() == typed + u'q');
                TypeRight(window, 1);
                QCOMPARE(record.caretPos, 2);
                QTRY_VERIFY_WITH_TIMEOUT(!TimerRuns(window, "tmrErrKey"), 600);
                QVERIFY(record.txtTest.Text() == typed);
                TypeRight(window, 1);
                QCOMPARE(record.caretPos, 3);
                QCOMPARE(record.errorCount, 1);
                Stop(window);
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
}

void LessonStatesTest::AFailedRowIsErasedAndTypedAgain()
{
    World world;
    Script script(world);
    RunLesson(world, 3, 5, script);
    script
        .At("frmLesson",
            [&](QWidget& window) {
                const session::Lesson& record = RecordOf(window);
                const std::u16string row = record.txtOrigin.Text();
                TypeWrong(window);
                TypeRight(window, static_cast<int>(row.size()) - 1);
                QVERIFY(TimerRuns(window, "EraseChar"));
                const int written = record.txtTest.Size();
                TypeRight(window, 1); // shut out
                QVERIFY(record.txtTest.Size() <= written);
                QTRY_VERIFY_WITH_TIMEOUT(!TimerRuns(window, "EraseChar"), 3000);
                QVERIFY(record.txtTest.Text().empty());
                QCOMPARE(record.caretPos, 0);
                QVERIFY(record.txtOrigin.Text() == row);
                TypeRight(window, static_cast<int>(row.size()));
                QCOMPARE(record.currentRow, 2);
                Stop(window);
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
}

void LessonStatesTest::APauseEndsWithTheKeyAfterResume()
{
    World world;
    Script script(world);
    RunLesson(world, 1, 1, script);
    script
        .At("frmLesson",
            [&](QWidget& window) {
                const session::Lesson& record = RecordOf(window);
                TypeRight(window, 2);
                const float start = record.startTime;
                shell::Click(window, "imgRest");
                QVERIFY(!Shows(window, "imgRest"));
                QVERIFY(Shows(window, "imgResume"));
                QVERIFY(!TimerRuns(window, "tmrClock"));
                TypeRight(window, 2); // swallowed
                QCOMPARE(record.caretPos, 2);
                world.now += 60;
                shell::Click(window, "imgResume");
                QVERIFY(Shows(window, "imgRest"));
                QVERIFY(!Shows(window, "imgResume"));
                QVERIFY(record.paused);
                TypeRight(window, 1);
                QVERIFY(!record.paused);
                QVERIFY(TimerRuns(window, "tmrClock"));
                QCOMPARE(record.caretPos, 3);
                QCOMPARE(record.startTime, start + 60);
                Stop(window);
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
}

void LessonStatesTest::APausedExerciseCanBeStopped()
{
    World world;
    Script script(world);
    RunLesson(world, 1, 1, script);
    script
        .At("frmLesson",
            [](QWidget& window) {
                TypeRight(window, 2);
                shell::Click(window, "imgRest");
                Stop(window);
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(world.state().stopCount, 1);
}

void LessonStatesTest::ARunningExerciseEndsWithItsLastRow()
{
    World world;
    Script script(world);
    RunLesson(world, 2, 2, script);
    script
        .At("frmLesson",
            [](QWidget& window) {
                TypeToTheEnd(window);
                QVERIFY(!window.isVisible());
            })
        .Press("frmResult", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(world.state().inExercise);
    QCOMPARE(world.state().accuracyMark, 50);
}

void LessonStatesTest::ARunningExerciseCanBeStopped()
{
    World world;
    Script script(world);
    RunLesson(world, 2, 2, script);
    script
        .At("frmLesson",
            [](QWidget& window) {
                TypeRight(window, 4);
                Stop(window);
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(world.state().studentTable == TableAt(1));
}

void LessonStatesTest::APassageWithErrorsIsReviewedAndEndsWhenMended()
{
    World world;
    Script script(world);
    RunLesson(world, 15, 1, script);
    script
        .At("frmLesson",
            [&](QWidget& window) {
                const session::Lesson& record = RecordOf(window);
                TypeWrong(window);
                world.now += 100;
                TypeRight(window, record.txtOrigin.Size());
                QVERIFY(record.reviewMode);
                QVERIFY(Shows(window, "Label7"));
                QCOMPARE(Label(window, "Label7").text(),
                         QStringLiteral("No of Errors: 1. Please correct the text."));
                QVERIFY(!Picture(window, "imgRest").isEnabled());
                QVERIFY(!TimerRuns(window, "tmrAuto"));
                QVERIFY(!record.unloaded);
                world.now += 10; // the mark is made: nothing of this counts

                QWidget& field = Control(window, "txtTest");
                QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                                  field.mapTo(&window, QPoint(4, 8)));
                QVERIFY(field.hasFocus());
                Key(window, Qt::Key_Home, Qt::ControlModifier);
                Key(window, Qt::Key_Delete);
                QVERIFY(TimerRuns(window, "tmrAuto"));
                Type(window, QString(QChar(record.txtOrigin.Text().front())));
                QVERIFY(record.txtTest.Text() == record.txtOrigin.Text());
                QTRY_VERIFY(record.unloaded);
            })
        .Press("frmResult", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
}

void LessonStatesTest::APassageWithoutErrorsEndsAtOnce()
{
    World world;
    Script script(world);
    RunLesson(world, 15, 1, script);
    world.now = 50000;
    script
        .At("frmLesson",
            [&](QWidget& window) {
                TypeRight(window, 1);
                world.now += 100; // no bonus and no loss
                TypeToTheEnd(window);
            })
        .Press("frmResult", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(world.state().exerciseMark, 200);
}

void LessonStatesTest::APressOnTheFieldsIsCautionedAndTheExerciseGoesOn()
{
    for (const char* field : {"txtOrigin", "txtTest"}) {
        World world;
        Script script(world);
        RunLesson(world, 1, 1, script);
        script
            .At("frmLesson",
                [&, field](QWidget& window) {
                    TypeRight(window, 2);
                    PressAt(window, MiddleOf(window, field));
                    QCOMPARE(world.beeps, 1);
                    QVERIFY(window.isActiveWindow());
                    QVERIFY(Control(window, "txtOrigin").hasFocus());
                    TypeRight(window, 1);
                    QCOMPARE(RecordOf(window).caretPos, 3);
                    Stop(window);
                })
            .Click("frmNotAllowed", "cmdOK")
            .Press("frmStopNote", Qt::Key_Space);
        QVERIFY2(script.Run(), script.Report());
    }
}

void LessonStatesTest::TheClockTicksUnderTheCaution()
{
    World world;
    Script script(world);
    RunLesson(world, 1, 1, script);
    script
        .At("frmLesson",
            [](QWidget& window) {
                TypeRight(window, 2);
                PressAt(window, MiddleOf(window, "txtOrigin"));
                QCOMPARE(Label(window, "lblTimer").text(), QStringLiteral("00:02"));
                Stop(window);
            })
        .At("frmNotAllowed",
            [](QWidget& window) {
                PassTime(2300);
                shell::Click(window, "lblOK");
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
}

void LessonStatesTest::NoTimerOutlivesTheExercise()
{
    World world;
    Script script(world);
    RunLesson(world, 1, 1, script);
    script
        .At("frmLesson",
            [](QWidget& window) {
                TypeRight(window, 2);
                TypeWrong(window);
                Stop(window);
                for (const QTimer* timer : window.findChildren<QTimer*>()) {
                    QVERIFY2(!timer->isActive(), qPrintable(timer->objectName()));
                }
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::LessonStatesTest)

#include "LessonStatesTest.moc"
