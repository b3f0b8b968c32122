#include "session/Pointer.h"

#include "LessonFixture.h"
#include "context/FatalError.h"
#include "session/Review.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;
using namespace keyboard;

using PointerTest = LessonFixture;

TEST_F(PointerTest, RestSwallowsTheKeys)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Type(u"a");
    ClickRest(It());
    EXPECT_EQ(State(), "1/1 a[s]df  | a | 1+0 resting");
    EXPECT_FALSE(It().imgRest.visible);
    EXPECT_TRUE(It().imgResume.visible);
    machine.events.clear();
    for (const int code : {83, 8, 13, 16, 17, 20, 32, 37}) {
        EXPECT_EQ(Key(code), 0) << code;
    }
    EXPECT_EQ(State(), "1/1 a[s]df  | a | 1+0 resting");
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(PointerTest, AfterResumeTheNextKeyEndsThePauseAndCounts)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    machine.SetTimeOfDay(40000);
    Type(u"a");
    Wait(2000);
    ClickRest(It());
    EXPECT_EQ(It().pauseStart, 40002);
    Wait(30000);
    ClickResume(It());
    EXPECT_EQ(State(), "1/1 a[s]df  | a | 1+0 resumed");
    EXPECT_TRUE(It().imgRest.visible);
    EXPECT_FALSE(It().imgResume.visible);
    Wait(10000); // the pause goes on until the key
    Type(u"s");
    EXPECT_EQ(State(), "1/1 as[d]f  | as | 2+0 running");
    EXPECT_EQ(It().pauseLength, 40);
    EXPECT_EQ(It().startTime, 40040);
    EXPECT_TRUE(Runs(TimerName::Clock));
}

TEST_F(PointerTest, TheClockStandsStillInAPauseAndGoesOnFromThere)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Type(u"a");
    Wait(3500);
    ClickRest(It());
    Wait(60000);
    EXPECT_EQ(It().lblTimer.caption, u"00:03");
    ClickResume(It());
    Wait(60000);
    EXPECT_EQ(It().lblTimer.caption, u"00:03");
    EXPECT_FALSE(Runs(TimerName::Clock));
    Type(u"s");
    Wait(999); // a new second begins with the key
    EXPECT_EQ(It().lblTimer.caption, u"00:03");
    Wait(1);
    EXPECT_EQ(It().lblTimer.caption, u"00:04");
}

TEST_F(PointerTest, APauseBeforeTheFirstKeyIsHarmless)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    machine.SetTimeOfDay(40000);
    ClickRest(It());
    Wait(5000);
    ClickResume(It());
    Wait(5000);
    Type(u"a");
    EXPECT_EQ(State(), "1/1 a[s]df  | a | 1+0 running");
    EXPECT_EQ(It().startTime, 40010);
    EXPECT_FALSE(It().awaitingFirstKey);
}

TEST_F(PointerTest, AfterAPauseBeforeTheFirstKeyCapsLockLetsTheClockTick)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    machine.SetTimeOfDay(40000);
    ClickRest(It());
    ClickResume(It());
    Key(keyCapsLock);
    EXPECT_FALSE(It().paused);
    EXPECT_TRUE(It().awaitingFirstKey);
    EXPECT_TRUE(Runs(TimerName::Clock));
    Wait(2000);
    EXPECT_EQ(It().lblTimer.caption, u"00:02");
    Type(u"a");
    EXPECT_EQ(It().startTime, 40002);
}

TEST_F(PointerTest, APauseOverMidnightSubtractsANegativeTime)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    machine.SetTimeOfDay(86000);
    Type(u"a");
    machine.SetTimeOfDay(86380);
    ClickRest(It());
    machine.SetTimeOfDay(20);
    ClickResume(It());
    Type(u"s");
    EXPECT_EQ(It().pauseLength, -86360);
    EXPECT_EQ(It().startTime, -360);
}

TEST_F(PointerTest, ASecondRestBeforeAKeyForgetsTheFirstPartOfThePause)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    machine.SetTimeOfDay(40000);
    Type(u"a");
    ClickRest(It());
    Wait(10000);
    ClickResume(It());
    Wait(10000);
    ClickRest(It());
    EXPECT_STREQ(PhaseOf(It()), "resting");
    EXPECT_EQ(Key('S'), 0);
    Wait(10000);
    ClickResume(It());
    Type(u"s");
    EXPECT_EQ(It().startTime, 40010);
}

TEST_F(PointerTest, AHiddenPictureIsOutOfReach)
{
    Open();
    ClickResume(It());
    EXPECT_STREQ(PhaseOf(It()), "waiting");
    EXPECT_FALSE(It().resumeArmed);
    MoveOver(It(), PushPicture::Resume);
    EXPECT_FALSE(It().buttonLit);
    ClickRest(It());
    machine.Pass(5000);
    ClickRest(It());
    EXPECT_EQ(It().pauseStart, 36000);
    MoveOver(It(), PushPicture::Rest);
    EXPECT_FALSE(It().buttonLit);
}

TEST_F(PointerTest, ADisabledPictureIsOutOfReach)
{
    Open();
    It().imgRest.enabled = false;
    It().imgStop.enabled = false;
    ClickRest(It());
    MoveOver(It(), PushPicture::Rest);
    PressStop(It());
    EXPECT_FALSE(It().paused);
    EXPECT_FALSE(It().buttonLit);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(context.stopCount, 0);
}

TEST_F(PointerTest, InTheReviewThereIsNoRest)
{
    OpenRows(15, 1, Language::English, {u"abc"});
    Type(u"ax");
    Wait(2000);
    Type(u"c");
    ASSERT_STREQ(PhaseOf(It()), "review");
    ClickRest(It());
    EXPECT_FALSE(It().paused);
    EXPECT_TRUE(It().imgRest.visible);
}

TEST_F(PointerTest, ThePictureUnderThePointerLightsUp)
{
    struct Case {
        PushPicture picture;
        Image Lesson::*image;
        int lit;
        int plain;
    };
    const Case cases[] = {{PushPicture::Rest, &Lesson::imgRest, 200, 201},
                          {PushPicture::Resume, &Lesson::imgResume, 202, 203},
                          {PushPicture::Stop, &Lesson::imgStop, 106, 107}};
    for (const Case& wanted : cases) {
        Open();
        It().imgResume.visible = true;
        EXPECT_EQ((It().*wanted.image).bitmap, wanted.plain);
        MoveOver(It(), wanted.picture);
        EXPECT_TRUE(It().buttonLit);
        EXPECT_EQ((It().*wanted.image).bitmap, wanted.lit);
        MoveOverForm(It());
        EXPECT_FALSE(It().buttonLit);
        EXPECT_EQ((It().*wanted.image).bitmap, wanted.plain);
    }
}

TEST_F(PointerTest, OnlyOnePictureLightsUpUntilThePointerLeavesThem)
{
    Open();
    MoveOver(It(), PushPicture::Rest);
    MoveOver(It(), PushPicture::Stop);
    EXPECT_EQ(It().imgStop.bitmap, 107);
    EXPECT_EQ(It().imgRest.bitmap, 200);
    MoveOverForm(It());
    MoveOver(It(), PushPicture::Stop);
    EXPECT_EQ(It().imgStop.bitmap, 106);
    EXPECT_EQ(It().imgRest.bitmap, 201);
}

TEST_F(PointerTest, ThePointerOverTheBareWindowChangesNothingWhileNoneIsLit)
{
    Open();
    It().imgStop.bitmap = 5;
    MoveOverForm(It());
    EXPECT_EQ(It().imgStop.bitmap, 5);
}

TEST_F(PointerTest, AStopEndsTheLessonStoresNothingAndShowsANote)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    context.studentTable.Record(17)[5] = 60;
    context.exerciseMark = 42;
    Type(u"asd");
    machine.events.clear();
    machine.draws = {0.5};
    PressStop(It());
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeEvents(), (Events{"unload frmLesson", "show frmStopNote 5"}));
    EXPECT_EQ(context.stopCount, 1);
    EXPECT_EQ(context.studentTable.Record(17)[5], 60);
    EXPECT_EQ(context.exerciseMark, 42);
    EXPECT_FALSE(context.inExercise);
    EXPECT_TRUE(context.arabicInterface);
}

TEST_F(PointerTest, StopsAreCountedAcrossExercisesAndStudents)
{
    for (int stop = 1; stop <= 3; ++stop) {
        context.studentName = stop == 2 ? u"another" : u"one";
        Open(stop, 1, Language::English);
        PressStop(It());
        EXPECT_EQ(context.stopCount, stop);
    }
}

TEST_F(PointerTest, AStopTooManyForItsFieldEndsTheProgram)
{
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    context.stopCount = most - 1;
    Open();
    PressStop(It());
    EXPECT_EQ(context.stopCount, most);
    Open();
    EXPECT_THROW(PressStop(It()), context::FatalError);
    EXPECT_EQ(context.stopCount, most);
}

TEST_F(PointerTest, AnyPhaseCanBeStopped)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Key('X');
    PressStop(It());
    EXPECT_FALSE(IsOpen());
    OpenRows(14, 1, Language::English, {u"asdf"});
    Type(u"axdf");
    PressStop(It());
    EXPECT_FALSE(IsOpen());
    Open(1, 1, Language::English);
    ClickRest(It());
    PressStop(It());
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(context.stopCount, 3);
}

TEST_F(PointerTest, TheNoteIsDrawnFromNineUntilTheSixthStop)
{
    for (int stops = 0; stops <= 5; ++stops) {
        context.stopCount = stops;
        machine.draws = {0.0, 0.9999999};
        EXPECT_EQ(LoadStopNote(context, machine.platform), 1) << stops;
        EXPECT_EQ(LoadStopNote(context, machine.platform), 9) << stops;
    }
    for (const int stops : {6, 7, 1000000}) {
        context.stopCount = stops;
        machine.draws = {0.0, 0.9, 0.8999};
        EXPECT_EQ(LoadStopNote(context, machine.platform), 1) << stops;
        EXPECT_EQ(LoadStopNote(context, machine.platform), 10) << stops;
        EXPECT_EQ(LoadStopNote(context, machine.platform), 9) << stops;
    }
}

TEST_F(PointerTest, TheSixthStopMayShowTheWarning)
{
    context.stopCount = 4;
    machine.draws = {0.99, 0.99};
    Open();
    PressStop(It());
    Open();
    machine.events.clear();
    PressStop(It());
    EXPECT_EQ(TakeEvents(), (Events{"unload frmLesson", "show frmStopNote 10"}));
}

TEST_F(PointerTest, TheWarningIsPossibleAndNotCertain)
{
    context.stopCount = 6;
    std::set<int> notes;
    for (int i = 0; i < 1000; ++i) {
        notes.insert(LoadStopNote(context, machine.platform));
    }
    EXPECT_EQ(notes.size(), 10U);
    EXPECT_EQ(machine.seeds.size(), 1000U);
}

TEST_F(PointerTest, ANoteTurnsTheInterfaceArabic)
{
    for (const bool arabic : {false, true}) {
        context.arabicInterface = arabic;
        LoadStopNote(context, machine.platform);
        EXPECT_TRUE(context.arabicInterface);
    }
}

TEST_F(PointerTest, AButtonOnAFieldBringsTheCaution)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    for (const FieldName field : {FieldName::Origin, FieldName::Test}) {
        It().txtOrigin.Select(3, 2);
        EXPECT_TRUE(PressField(It(), field));
        EXPECT_EQ(TakeEvents(), (Events{"system beep", "show frmNotAllowed", "focus txtOrigin"}));
        EXPECT_EQ(State(), "1/1 [a]sdf  |  | 0+0 waiting");
    }
}

TEST_F(PointerTest, WhileTheCautionStandsTheFocusIsNotTaken)
{
    Open();
    machine.window.showNotAllowed = [this] {
        machine.events.push_back("caution");
        OriginLostFocus(It());
    };
    PressField(It(), FieldName::Origin);
    EXPECT_EQ(TakeEvents(),
              (Events{"system beep", "caution", "HideCaret txtOrigin", "focus txtOrigin"}));
}

TEST_F(PointerTest, InTheReviewTheFieldsMayBeClicked)
{
    OpenRows(15, 1, Language::English, {u"abc"});
    PressField(It(), FieldName::Test);
    EXPECT_EQ(TakeEvents().size(), 3U); // not yet
    Type(u"ax");
    Wait(2000);
    Type(u"c");
    machine.events.clear();
    EXPECT_FALSE(PressField(It(), FieldName::Test)); // the press is the field's own
    EXPECT_FALSE(PressField(It(), FieldName::Origin));
    ClickOrigin(It());
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(PointerTest, FreeTextHasTheCautionToo)
{
    context.freeText = true;
    Open(12, 4, Language::English);
    PressField(It(), FieldName::Origin);
    EXPECT_EQ(TakeEvents(), (Events{"system beep", "show frmNotAllowed", "focus txtOrigin"}));
    PressField(It(), FieldName::Test); // hidden there
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(PointerTest, AClickOnTheModelSelectsTheExpectedCharacter)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    It().txtOrigin.Select(3, 1);
    ClickOrigin(It());
    EXPECT_EQ(State(), "1/1 [a]sdf  |  | 0+0 waiting");
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin"}));
}

TEST_F(PointerTest, TheModelTakesTheFocusBackWithoutItsCaret)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    It().txtOrigin.Select(3, 1);
    OriginLostFocus(It());
    EXPECT_EQ(State(), "1/1 [a]sdf  |  | 0+0 waiting");
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin", "HideCaret txtOrigin"}));
    context.freeText = true;
    Open(12, 4, Language::English);
    OriginLostFocus(It());
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin"}));
}

TEST_F(PointerTest, InTheReviewTheFocusMayGo)
{
    OpenRows(15, 1, Language::English, {u"abc"});
    Type(u"ax");
    Wait(2000);
    Type(u"c");
    machine.events.clear();
    OriginLostFocus(It());
    EXPECT_EQ(TakeEvents(), (Events{"HideCaret txtOrigin"}));
}

} // namespace
} // namespace keyfluent::session
