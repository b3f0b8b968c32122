// The way of one exercise, window above window, from the main window and back to it.
#include "progress/SignIn.h"
#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"
#include "shell/forms/frmBlack.h"
#include "shell/forms/frmLesson.h"

#include "tests/shell/forms/FormsHarness.h"
#include "tests/shell/forms/LessonKeys.h"

#include <QAction>
#include <QLineEdit>

namespace keyfluent::shell
{

class ExerciseFlowTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void FromTheChooserToTheResultAndBack();
    void AResultThatOpensTheNextLessonShowsAtOnce();
    void TheChooserOpensAsTheButtonGoesDown();
    void AnExerciseIsChosenAsItsButtonGoesDown();
    void TheChooserGivenUpShowsAPictureFirst_data();
    void TheChooserGivenUpShowsAPictureFirst();
    void OptionsGivenUpLeadToTheChooser();
    void NextAndBackStepAndKeepLanguageAndFlags();
    void NextGivenUpLandsInTheChooserWithTheSteppedExercise();
    void RepetitionRunsAtOnceWithTheSameAids();
    void AnAnagramAsksForItsLettersFirst();
    void AnAnagramWithoutLettersStaysInTheOptions();
    void FreeTextAsksForNothing();
    void AStoppedExerciseShowsANoteAndKeepsNothing();
    void ACloseRequestStopsTheExercise();
    void SoundsRestWhenAnExerciseHasGone_data();
    void SoundsRestWhenAnExerciseHasGone();
    void TheWholeProgramSpeaksArabicAfterAStop();
    void TheEndOfAnAnagramShowsNothing();
    void ClosingTheResult_data();
    void ClosingTheResult();
};

namespace
{

// A student before the first exercise of a lesson, the main window on top.
frmBlack& StartAt(World& world, std::uint8_t lesson)
{
    frmBlack& main = world.SignIn();
    world.state().reachedLessonWin = lesson;
    world.state().lastLessonWin = lesson;
    world.state().lessonNo = lesson;
    main.Activate();
    return main;
}

Script::Action PressOn(const char* control)
{
    return [control](QWidget& window) { PressAt(window, MiddleOf(window, control)); };
}

// As after an exercise: the three step buttons are there.
frmBlack& StartAfterAnExercise(World& world, std::uint8_t lesson, std::uint8_t exercise)
{
    frmBlack& main = StartAt(world, lesson);
    world.state().sessionRun = true;
    world.state().exerciseNo = exercise;
    world.state().arabicExercise = false;
    main.ShowStepButtons(exercise >= 2, exercise < 5, true);
    return main;
}

} // namespace

void ExerciseFlowTest::FromTheChooserToTheResultAndBack()
{
    World world;
    frmBlack& main = StartAt(world, 1);
    Script script(world);
    script.At("frmBlack", PressOn("imgExercise"))
        .At("dlgExercise",
            [&](QWidget& window) {
                QCOMPARE(Picture(main, "imgExercise").Bitmap(), 111); // grey behind a window
                PressOn("imgEExercise_1")(window);
            })
        .At("dlgOptions",
            [&](QWidget& window) {
                QCOMPARE(world.state().exerciseNo, 2);
                QVERIFY(!world.state().arabicExercise);
                shell::Click(window, "cmdOK");
            })
        .At("frmLesson",
            [&](QWidget& window) {
                QVERIFY(Shows(main, "imgBack"));
                QVERIFY(Shows(main, "imgNext"));
                QVERIFY(Shows(main, "imgDuplicate"));
                TypeToTheEnd(window);
            })
        .At("frmResult", [&](QWidget& window) {
            QCOMPARE(world.state().accuracyMark, 50);
            PressAt(window, {10, 60});
        });
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(main.isActiveWindow());
    QCOMPARE(Picture(main, "imgExercise").Bitmap(), 110);
    QCOMPARE(world.state().studentTable.Record(17)[6], 50);
}

void ExerciseFlowTest::AResultThatOpensTheNextLessonShowsAtOnce()
{
    World world;
    frmBlack& main = StartAt(world, 1);
    context::StudentRecord& marks = world.state().studentTable.Record(17);
    marks[0] = marks[1] = marks[2] = marks[3] = 125; // 500 with nothing more
    QVERIFY(!Item(main, "mnuLesson2").isEnabled());
    Script script(world);
    script.At("frmBlack", PressOn("imgExercise"))
        .At("dlgExercise", PressOn("imgEExercise_0"))
        .Click("dlgOptions", "cmdOK")
        .At("frmLesson", TypeToTheEnd)
        .At("frmResult", [](QWidget& window) {
            QVERIFY(Shows(window, "lblNote"));
            PressAt(window, {10, 60});
        });
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(world.state().reachedLessonWin, 2);
    QVERIFY(Item(main, "mnuLesson2").isEnabled());
    QVERIFY(!Item(main, "mnuLesson3").isEnabled());
    QVERIFY(Item(main, "mnuLesson1").isChecked()); // the student is not moved
}

void ExerciseFlowTest::TheChooserOpensAsTheButtonGoesDown()
{
    World world;
    StartAt(world, 1);
    Script script(world);
    script.At("frmBlack", PressOn("imgExercise")).At("dlgExercise", [](QWidget& window) {
        // The release belongs to nobody: it was not pressed here.
        ReleaseAt(window, MiddleOf(window, "imgEExercise_0"));
        ReleaseAt(window, MiddleOf(window, "imgCansel"));
        QVERIFY(window.isVisible());
        Key(window, Qt::Key_Escape);
    });
    script.At("frmImage", [](QWidget& window) { Key(window, Qt::Key_Escape); });
    QVERIFY2(script.Run(), script.Report());
}

void ExerciseFlowTest::AnExerciseIsChosenAsItsButtonGoesDown()
{
    for (int i = 0; i < 5; ++i) {
        for (const bool arabicColumn : {false, true}) {
            World world;
            StartAt(world, 2);
            Script script(world);
            const QByteArray button =
                (arabicColumn ? "imgAExercise_" : "imgEExercise_") + QByteArray::number(i);
            script.At("frmBlack", PressOn("imgExercise"))
                .At("dlgExercise", PressOn(button.constData()))
                .At("dlgOptions",
                    [&](QWidget& window) {
                        QCOMPARE(world.state().exerciseNo, i + 1);
                        QCOMPARE(static_cast<bool>(world.state().arabicExercise), arabicColumn);
                        shell::Click(window, "cmdCansel");
                    })
                .Press("dlgExercise", Qt::Key_Escape)
                .Press("frmImage", Qt::Key_Escape);
            QVERIFY2(script.Run(), script.Report());
        }
    }
}

void ExerciseFlowTest::TheChooserGivenUpShowsAPictureFirst_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("imgCansel") << 0;
    QTest::newRow("lblCansel") << 1;
    QTest::newRow("Escape") << 2;
    QTest::newRow("close request") << 3;
}

void ExerciseFlowTest::TheChooserGivenUpShowsAPictureFirst()
{
    QFETCH(int, way);
    World world;
    frmBlack& main = StartAt(world, 1);
    Script script(world);
    script.At("frmBlack", PressOn("imgExercise"))
        .At("dlgExercise",
            [&](QWidget& window) {
                switch (way) {
                case 0:
                    return shell::Click(window, "imgCansel");
                case 1:
                    return shell::Click(window, "lblCansel");
                case 2:
                    return Key(window, Qt::Key_Escape);
                default:
                    return RequestClose(window);
                }
            })
        .At("frmImage", [](QWidget& window) { shell::Click(window, "Image1"); });
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(main.isActiveWindow());
}

void ExerciseFlowTest::OptionsGivenUpLeadToTheChooser()
{
    const Script::Action ways[] = {
        [](QWidget& window) { shell::Click(window, "cmdCansel"); },
        [](QWidget& window) { shell::Click(window, "lblCansel"); },
        [](QWidget& window) { Key(window, Qt::Key_Escape); },
        [](QWidget& window) { RequestClose(window); },
    };
    for (const Script::Action& way : ways) {
        World world;
        StartAt(world, 1);
        Script script(world);
        script.At("frmBlack", PressOn("imgExercise"))
            .At("dlgExercise", PressOn("imgAExercise_0"))
            .At("dlgOptions", way)
            .Press("dlgExercise", Qt::Key_Escape)
            .Press("frmImage", Qt::Key_Escape);
        QVERIFY2(script.Run(), script.Report());
    }
}

void ExerciseFlowTest::NextAndBackStepAndKeepLanguageAndFlags()
{
    for (const bool arabic : {false, true}) {
        World world;
        StartAfterAnExercise(world, 12, 3);
        world.state().arabicExercise = arabic;
        world.state().englishAnagram = true;
        const auto stepped = [&](int exercise) {
            return [&world, exercise, arabic](QWidget& window) {
                QCOMPARE(world.state().exerciseNo, exercise);
                QCOMPARE(static_cast<bool>(world.state().arabicExercise), arabic);
                QVERIFY(world.state().englishAnagram);
                QVERIFY(!world.state().freeText);
                shell::Click(window, "cmdCansel");
            };
        };
        Script script(world);
        script.Click("frmBlack", "imgNext")
            .At("dlgOptions", stepped(4))
            .Press("dlgExercise", Qt::Key_Escape)
            .Press("frmImage", Qt::Key_Escape)
            .At("frmBlack",
                [&](QWidget& window) {
                    world.state().englishAnagram = true; // the chooser has cleared it
                    shell::Click(window, "imgBack");
                })
            .At("dlgOptions", stepped(3))
            .Press("dlgExercise", Qt::Key_Escape)
            .Press("frmImage", Qt::Key_Escape);
        QVERIFY2(script.Run(), script.Report());
    }
}

void ExerciseFlowTest::NextGivenUpLandsInTheChooserWithTheSteppedExercise()
{
    World world;
    StartAfterAnExercise(world, 2, 2);
    Script script(world);
    script.Click("frmBlack", "imgNext")
        .Press("dlgOptions", Qt::Key_Escape)
        .Press("dlgExercise", Qt::Key_Escape)
        .Press("frmImage", Qt::Key_Escape)
        .At("frmBlack",
            [&](QWidget& window) {
                QCOMPARE(world.state().exerciseNo, 3);
                shell::Click(window, "imgDuplicate");
            })
        .At("frmLesson",
            [](QWidget& window) {
                QVERIFY(Label(window, "lblTitle").text().endsWith("Exercise No : (3 )"));
                PressOn("imgStop")(window);
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
}

void ExerciseFlowTest::RepetitionRunsAtOnceWithTheSameAids()
{
    World world;
    StartAfterAnExercise(world, 2, 2);
    world.state().optKeyCaps = true;
    world.state().optHands = false;
    world.state().optCounter = true;
    world.state().optSound = true;
    Script script(world);
    script.Click("frmBlack", "imgDuplicate")
        .At("frmLesson",
            [&](QWidget& window) {
                QVERIFY(!Shows(window, "imgLeftHand"));
                QVERIFY(Shows(window, "pbMark"));
                QVERIFY(!Shows(window, "lblTimer"));
                QVERIFY(world.state().optSound);
                PressOn("imgStop")(window);
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
}

void ExerciseFlowTest::AnAnagramAsksForItsLettersFirst()
{
    World world;
    StartAt(world, 8);
    Script script(world);
    script.At("frmBlack", PressOn("imgExercise"))
        .At("dlgExercise", PressOn("imgEExercise_4"))
        .At("dlgOptions",
            [&](QWidget& window) {
                QVERIFY(world.state().englishAnagram);
                shell::Click(window, "cmdOK");
            })
        .At("frmFree",
            [&](QWidget& window) {
                QVERIFY(world.state().anagramLanguage);
                shell::Click(window, "imgKeyboard");
                QVERIFY(!world.state().anagramLanguage);
                Type(window, QStringLiteral("qwe"));
                shell::Click(window, "cmdOK");
            })
        .At("frmLesson",
            [&](QWidget& window) {
                const auto& lesson = static_cast<frmLesson&>(window).Record();
                QVERIFY(lesson.txtOrigin.Text().starts_with(u"qwe "));
                QVERIFY(!world.state().arabicExercise);
                PressOn("imgStop")(window);
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
}

void ExerciseFlowTest::AnAnagramWithoutLettersStaysInTheOptions()
{
    World world;
    StartAt(world, 9);
    Script script(world);
    script.At("frmBlack", PressOn("imgExercise"))
        .At("dlgExercise", PressOn("imgEExercise_4"))
        .At("dlgOptions",
            [&](QWidget& window) {
                QVERIFY(world.state().arabicAnagram);
                shell::Click(window, "imgSound"); // to be found again
                shell::Click(window, "cmdOK");
                QVERIFY(window.isVisible());
                QVERIFY(window.isActiveWindow());
                QVERIFY(world.state().optSound);
                QVERIFY(world.state().freeTextChars.empty());
            })
        .At("frmFree",
            [](QWidget& window) {
                Type(window, QStringLiteral("ab"));
                shell::Click(window, "cmdCansel");
            })
        .Press("dlgOptions", Qt::Key_Escape)
        .Press("dlgExercise", Qt::Key_Escape)
        .Press("frmImage", Qt::Key_Escape);
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(!world.state().sessionRun);
}

void ExerciseFlowTest::FreeTextAsksForNothing()
{
    World world;
    StartAt(world, 12);
    Script script(world);
    script.At("frmBlack", PressOn("imgExercise"))
        .At("dlgExercise", PressOn("imgEExercise_3"))
        .Click("dlgOptions", "cmdOK")
        .At("frmLesson",
            [&](QWidget& window) {
                QVERIFY(world.state().freeText);
                PressOn("imgStop")(window);
            })
        .Press("frmStopNote", Qt::Key_Space);
    QVERIFY2(script.Run(), script.Report());
}

void ExerciseFlowTest::AStoppedExerciseShowsANoteAndKeepsNothing()
{
    World world;
    frmBlack& main = StartAfterAnExercise(world, 1, 2);
    Script script(world);
    world.Draw(7, 1, 9);
    script.Click("frmBlack", "imgDuplicate")
        .At("frmLesson",
            [](QWidget& window) {
                TypeRight(window, 3);
                PressOn("imgStop")(window);
            })
        .At("frmStopNote", [](QWidget& window) {
            QCOMPARE(Label(window, "lblNote").text(), QStringLiteral("قد بدأت تشنجات الأصابع ..."));
            PressAt(window, {5, 5});
        });
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(world.state().stopCount, 1);
    QVERIFY(world.state().studentTable == TableAt(1));
    QVERIFY(main.isActiveWindow());
}

void ExerciseFlowTest::ACloseRequestStopsTheExercise()
{
    World world;
    StartAfterAnExercise(world, 1, 2);
    Script script(world);
    script.Click("frmBlack", "imgDuplicate")
        .At("frmLesson", [](QWidget& window) { RequestClose(window); })
        .At("frmStopNote", [](QWidget& window) { RequestClose(window); });
    QVERIFY2(script.Run(), script.Report());
    QCOMPARE(world.state().stopCount, 1);
}

void ExerciseFlowTest::SoundsRestWhenAnExerciseHasGone_data()
{
    QTest::addColumn<bool>("stopped");
    QTest::newRow("typed to its end") << false;
    QTest::newRow("stopped") << true;
}

// Already behind the window that comes next.
void ExerciseFlowTest::SoundsRestWhenAnExerciseHasGone()
{
    QFETCH(bool, stopped);
    World world;
    StartAfterAnExercise(world, 1, 2);
    world.state().optSound = true;
    Script script(world);
    script.Click("frmBlack", "imgDuplicate").At("frmLesson", [&](QWidget& window) {
        QVERIFY(!world.soundsRest);
        if (stopped) {
            PressOn("imgStop")(window);
        } else {
            TypeToTheEnd(window);
        }
    });
    script.At(stopped ? "frmStopNote" : "frmResult", [&](QWidget& window) {
        QVERIFY(world.soundsRest);
        PressAt(window, {10, 60});
    });
    QVERIFY2(script.Run(), script.Report());
}

// The main window keeps its captions until the preferences set them again.
void ExerciseFlowTest::TheWholeProgramSpeaksArabicAfterAStop()
{
    World world;
    frmBlack& main = StartAfterAnExercise(world, 1, 2);
    Script script(world);
    script.Click("frmBlack", "imgDuplicate")
        .At("frmLesson", PressOn("imgStop"))
        .Press("frmStopNote", Qt::Key_Space)
        .At("frmBlack", PressOn("imgExercise"))
        .At("dlgExercise",
            [](QWidget& window) {
                QCOMPARE(Label(window, "dlgTitle").text(), QStringLiteral("التمارين"));
                Key(window, Qt::Key_Escape);
            })
        .Press("frmImage", Qt::Key_Escape);
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(world.state().arabicInterface);
    QCOMPARE(Item(main, "mnuFileQuit").text(), QStringLiteral("Quit"));
}

void ExerciseFlowTest::TheEndOfAnAnagramShowsNothing()
{
    World world;
    frmBlack& main = StartAfterAnExercise(world, 8, 5);
    world.state().englishAnagram = true;
    world.state().freeTextChars = u"asd";
    world.state().anagramLanguage = false;
    Script script(world);
    script.Click("frmBlack", "imgDuplicate").At("frmLesson", TypeToTheEnd);
    QVERIFY2(script.Run(), script.Report());
    QVERIFY(main.isActiveWindow());
    QVERIFY(world.state().studentTable == TableAt(1));
}

void ExerciseFlowTest::ClosingTheResult_data()
{
    QTest::addColumn<QString>("control");
    for (const char* name : {"lblTitle", "lblRes", "lblBonus", "lblResult", "", "Space", "close"}) {
        QTest::newRow(*name != '\0' ? name : "the window itself") << QString::fromLatin1(name);
    }
}

void ExerciseFlowTest::ClosingTheResult()
{
    QFETCH(QString, control);
    World world;
    StartAfterAnExercise(world, 1, 2);
    Script script(world);
    script.Click("frmBlack", "imgDuplicate").At("frmLesson", TypeToTheEnd);
    script.At("frmResult", [&](QWidget& window) {
        if (control == QStringLiteral("Space")) {
            Key(window, Qt::Key_Space);
        } else if (control == QStringLiteral("close")) {
            RequestClose(window);
        } else if (control.isEmpty()) {
            PressAt(window, {4, 60});
        } else {
            const QByteArray name = control.toLatin1();
            const QPoint place = MiddleOf(window, name.constData());
            PressAt(window, place);
            QVERIFY2(window.isVisible(), "a label waits for the whole click");
            ReleaseAt(window, place);
        }
    });
    QVERIFY2(script.Run(), script.Report());
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::ExerciseFlowTest)

#include "ExerciseFlowTest.moc"
