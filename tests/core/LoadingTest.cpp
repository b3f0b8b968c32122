#include "session/Loading.h"

#include "LessonFixture.h"
#include "progress/StandardMarks.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;

using LoadingTest = LessonFixture;

TEST_F(LoadingTest, ALoadedLessonWaitsAtItsFirstCharacter)
{
    Open(1, 1, Language::English);
    EXPECT_EQ(State(), "1/46 [a]sdf  |  | 0+0 waiting");
    Open(1, 1, Language::Arabic);
    EXPECT_EQ(State(), "1/40 [ش] س ي ب  |  | 0+0 waiting");
}

TEST_F(LoadingTest, EverythingIsCountedFromNought)
{
    Open();
    const Lesson& lesson = It();
    EXPECT_EQ(lesson.currentRow, 1);
    EXPECT_EQ(lesson.caretPos, 0);
    EXPECT_EQ(lesson.correctCount, 0);
    EXPECT_EQ(lesson.errorCount, 0);
    EXPECT_EQ(lesson.totalCount, 0);
    EXPECT_EQ(lesson.accuracyPercent, 0);
    EXPECT_EQ(lesson.speedRate, 0);
    EXPECT_EQ(lesson.startTime, 0);
    EXPECT_EQ(lesson.pauseStart, 0);
    EXPECT_EQ(lesson.pauseLength, 0);
    EXPECT_EQ(lesson.clockMinutes, 0);
    EXPECT_EQ(lesson.clockSeconds, 0);
    EXPECT_EQ(lesson.savedTestText, u"");
    EXPECT_EQ(lesson.pressedKey, Lesson::noKeyYet);
}

TEST_F(LoadingTest, NothingHasHappenedYet)
{
    Open();
    const Lesson& lesson = It();
    EXPECT_TRUE(lesson.awaitingFirstKey);
    EXPECT_FALSE(lesson.errorPending);
    EXPECT_FALSE(lesson.shiftDown);
    EXPECT_FALSE(lesson.capsOn);
    EXPECT_FALSE(lesson.paused);
    EXPECT_FALSE(lesson.resumeArmed);
    EXPECT_FALSE(lesson.reviewMode);
    EXPECT_FALSE(lesson.buttonLit);
    EXPECT_FALSE(lesson.unloaded);
}

TEST_F(LoadingTest, NoCharacterIsLitBeforeTheWindowIsActive)
{
    LoadOnly();
    EXPECT_EQ(It().litChar, u"");
    EXPECT_EQ(Looks(), "");
}

TEST_F(LoadingTest, EachRunStartsAnew)
{
    Open(1, 1, Language::English);
    Type(u"asd");
    Key(keyboard::keyShift);
    Type(u"a");
    Open();
    EXPECT_EQ(State(), "1/46 [a]sdf  |  | 0+0 waiting");
    EXPECT_EQ(CapText(48), "a");
}

TEST_F(LoadingTest, OnlyTheIdleTimerRuns)
{
    Open();
    const std::pair<TimerName, int> intervals[] = {
        {TimerName::Clock, 1000}, {TimerName::Auto, 20},   {TimerName::EraseChar, 20},
        {TimerName::ErrKey, 60},  {TimerName::Hilite, 90}, {TimerName::Selection, 500}};
    for (const auto& [name, interval] : intervals) {
        EXPECT_EQ(It().TimerOf(name).Interval(), interval);
        EXPECT_EQ(Runs(name), name == TimerName::Selection);
    }
}

TEST_F(LoadingTest, LoadingLeavesALargeNumberInTheBlinkCount)
{
    LoadOnly();
    EXPECT_EQ(It().blinkCount, 9060); // the first multiple of 60 above the window's height
}

TEST_F(LoadingTest, TheContextLearnsThatAnExerciseHasOpened)
{
    context.inExercise = true;
    context.sessionRun = false;
    Open();
    EXPECT_FALSE(context.inExercise);
    EXPECT_TRUE(context.sessionRun);
}

TEST_F(LoadingTest, TheTextDoesNotDependOnTheKeyboard)
{
    Open(2, 1, Language::Arabic);
    const course::ExerciseRows windows = It().exerciseRows;
    const int rowCount = It().rowCount;
    for (const std::int32_t kind : {0, 7, -1}) {
        context.keyboardKind = kind;
        Open();
        EXPECT_EQ(It().rowCount, rowCount);
        for (int number = 1; number <= course::maxRows; ++number) {
            EXPECT_EQ(It().exerciseRows[number], windows[number]);
        }
    }
}

TEST_F(LoadingTest, TheCapsAreLaidForTheKeyboardAndTheExercisesLanguage)
{
    context.arabicInterface = true;
    Open(1, 1, Language::English);
    EXPECT_EQ(CapText(48), "a");
    EXPECT_EQ(CapText(75), "Space");
    Open(1, 1, Language::Arabic);
    EXPECT_EQ(CapText(48), "ش");
    EXPECT_EQ(CapText(65), "لا");
    EXPECT_EQ(CapText(59), "إدخال");
    context.keyboardKind = context::macintoshKeyboard;
    Open();
    EXPECT_EQ(CapText(65), "ز");
    EXPECT_EQ(CapText(59), "الرجوع");
}

TEST_F(LoadingTest, AKindThatIsNeitherKeyboardLeavesTheArabicLettersAsDesigned)
{
    context.keyboardKind = 5;
    Open(1, 1, Language::Arabic);
    EXPECT_EQ(CapText(48), "أ");
    EXPECT_EQ(CapText(59), "إدخال");
    EXPECT_EQ(CapText(102), "\r\n8\r\n");
}

TEST_F(LoadingTest, ThereAreAHundredAndFiveCaps)
{
    Open();
    EXPECT_EQ(It().caps.text.size(), 105U);
}

TEST_F(LoadingTest, EnglishFieldsReadFromTheLeft)
{
    Open(1, 1, Language::English);
    EXPECT_FALSE(It().txtOrigin.rightToLeft);
    EXPECT_FALSE(It().txtTest.rightToLeft);
    for (const bool rightToLeft : It().caps.rightToLeft) {
        EXPECT_FALSE(rightToLeft);
    }
}

TEST_F(LoadingTest, ArabicFieldsAndTheirCapsReadFromTheRight)
{
    context.arabicInterface = false;
    Open(1, 1, Language::Arabic);
    EXPECT_TRUE(It().txtOrigin.rightToLeft);
    EXPECT_TRUE(It().txtTest.rightToLeft);
    for (int cap = 0; cap < keyboard::capCount; ++cap) {
        const bool follows = (cap >= 16 && cap <= 28) || (cap >= 33 && cap <= 78);
        EXPECT_EQ(It().caps.rightToLeft[static_cast<std::size_t>(cap)], follows) << cap;
    }
}

TEST_F(LoadingTest, TheClockStandsAtNoughtAndTheFiguresAreEmpty)
{
    Open();
    EXPECT_EQ(It().lblTimer.caption, u"00:00");
    EXPECT_EQ(It().lblSpeed.caption, u"");
    EXPECT_EQ(It().lblMark.caption, u"");
    EXPECT_EQ(It().label7.caption, u"");
    EXPECT_EQ(It().pbMark.value, 0);
    EXPECT_EQ(It().pbSpeed.value, 0);
}

TEST_F(LoadingTest, TheMarkGaugeReachesTheStandardMarkOfEachPlace)
{
    for (const Language language : {Language::English, Language::Arabic}) {
        for (int lesson = 1; lesson <= 15; ++lesson) {
            for (int exercise = 1; exercise <= 5; ++exercise) {
                Open(lesson, exercise, language);
                const int standard =
                    progress::StandardMark(lesson, exercise, language == Language::Arabic);
                const int maximum = standard == 0 ? 100 : standard;
                EXPECT_EQ(It().pbMark.maximum, maximum) << lesson << "." << exercise;
                EXPECT_EQ(It().pbSpeed.maximum, 300);
                EXPECT_EQ(Utf8(It().ScaleMark(1).caption), std::to_string(maximum / 2));
                EXPECT_EQ(Utf8(It().ScaleMark(2).caption), std::to_string(maximum));
            }
        }
    }
}

TEST_F(LoadingTest, TheScaleShowsHalfAndAllOfTheStandardMark)
{
    Open(1, 2, Language::English); // worth 50
    EXPECT_EQ(It().ScaleMark(1).caption, u"25");
    EXPECT_EQ(It().ScaleMark(2).caption, u"50");
    Open(13, 2, Language::English); // worth 500
    EXPECT_EQ(It().ScaleMark(1).caption, u"250");
    EXPECT_EQ(It().ScaleMark(2).caption, u"500");
    Open(8, 5, Language::English); // worth nothing
    EXPECT_EQ(It().ScaleMark(1).caption, u"50");
    EXPECT_EQ(It().ScaleMark(2).caption, u"100");
}

TEST_F(LoadingTest, TheOtherScaleMarksNeverChange)
{
    for (const bool arabic : {false, true}) {
        context.arabicInterface = arabic;
        Open(13, 2, Language::English);
        EXPECT_EQ(It().ScaleMark(3).caption, u"0");
        EXPECT_EQ(It().ScaleMark(4).caption, u"0");
        EXPECT_EQ(It().ScaleMark(6).caption, u"50");
        EXPECT_EQ(It().ScaleMark(5).caption, u"300");
    }
}

TEST_F(LoadingTest, TheTitleIsInTheLanguageOfTheInterface)
{
    Open(4, 2, Language::Arabic);
    EXPECT_EQ(Utf8(It().lblTitle.caption), "Lesson No: (4 ) Pinkie & Ring - Exercise No : (2 )");
    EXPECT_FALSE(It().lblTitle.rightToLeft);
    context.arabicInterface = true;
    Open(15, 1, Language::English);
    EXPECT_EQ(Utf8(It().lblTitle.caption), "الدرس رقم : (15 ) نهاية وماوس - التمرين رقم : (1 )");
    EXPECT_TRUE(It().lblTitle.rightToLeft);
}

TEST_F(LoadingTest, TheCaptionsAreInTheLanguageOfTheInterface)
{
    Open(1, 1, Language::Arabic);
    EXPECT_EQ(It().lblChar.caption, u" Chars pm. :");
    EXPECT_EQ(It().lblResulotion.caption, u" Resulotion:");
    EXPECT_EQ(It().lblSpeed.box.left, 9900);
    EXPECT_EQ(It().lblMark.box.left, 2760);
    EXPECT_EQ(It().label7.fontSize, 8);
    for (const Label* label : {&It().lblChar, &It().lblResulotion}) {
        EXPECT_FALSE(label->rightToLeft);
        EXPECT_FALSE(label->rightAligned);
    }
    context.arabicInterface = true;
    Open(1, 1, Language::English);
    EXPECT_EQ(Utf8(It().lblChar.caption), "  حرف بالدقيقة:");
    EXPECT_EQ(Utf8(It().lblResulotion.caption), "  علامة الدقة:");
    EXPECT_EQ(It().lblSpeed.box.left, 8715);
    EXPECT_EQ(It().lblMark.box.left, 1725);
    for (const Label* label : {&It().lblChar, &It().lblResulotion}) {
        EXPECT_TRUE(label->rightToLeft);
        EXPECT_TRUE(label->rightAligned);
    }
}

TEST_F(LoadingTest, ThePlayersAreOpenedInTheirOrderWhateverTheSoundAid)
{
    for (const bool sound : {false, true}) {
        context.optSound = sound;
        machine.events.clear();
        LoadOnly();
        EXPECT_EQ(TakeEvents(), (Events{"mmcEnter open /enter.wav", "mmcChar open /char.wav",
                                        "mmcSpace open /space.wav", "mmcCaps open /caps.wav",
                                        "mmcBack open /Back.wav"}));
    }
}

TEST_F(LoadingTest, TheStepButtonsLeadToTheNeighboursWithinTheLesson)
{
    for (int exercise = 1; exercise <= 5; ++exercise) {
        Open(3, exercise, Language::English);
        EXPECT_EQ(It().imgNextShown, exercise < 5) << exercise;
        EXPECT_EQ(It().imgBackShown, exercise >= 2) << exercise;
        EXPECT_TRUE(It().imgDuplicateShown) << exercise;
    }
}

TEST_F(LoadingTest, ActivationRedrawsSelectsAndHidesTheCaret)
{
    LoadOnly();
    machine.events.clear();
    machine.capsLockState = 1;
    Activate(It());
    EXPECT_EQ(TakeEvents(), (Events{"paint frmLesson", "focus txtOrigin", "HideCaret txtOrigin"}));
    EXPECT_TRUE(It().capsOn);
    EXPECT_EQ(It().imgLeftHand.bitmap, 118); // the little finger for "a"
    EXPECT_EQ(Looks(), "47 held, 48 lit");
}

TEST_F(LoadingTest, ActivationReadsCapsLockEachTime)
{
    machine.capsLockState = 1;
    Open();
    EXPECT_TRUE(It().capsOn);
    machine.capsLockState = 0;
    Activate(It());
    EXPECT_FALSE(It().capsOn);
    EXPECT_EQ(Look(47), "plain");
}

TEST_F(LoadingTest, ActivationLeavesTheCaretOfFreeTextInSight)
{
    context.freeText = true;
    Place(12, 4, Language::English);
    LoadOnly();
    machine.events.clear();
    Activate(It());
    EXPECT_EQ(TakeEvents(), (Events{"paint frmLesson", "focus txtOrigin"}));
}

TEST_F(LoadingTest, RedrawingTheBackgroundLeavesALargeNumberInTheBlinkCount)
{
    Open();
    It().blinkCount = 2;
    BackgroundDrawn(It());
    EXPECT_GE(It().blinkCount, 7);
    EXPECT_EQ(TakeEvents(), (Events{"paint frmLesson"}));
    It().blinkCount = 2;
    Activate(It());
    EXPECT_GE(It().blinkCount, 7);
}

} // namespace
} // namespace keyfluent::session
