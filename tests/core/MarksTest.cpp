#include "session/Marks.h"

#include "LessonFixture.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;

class MarksTest : public LessonFixture
{
protected:
    void SetUp() override { OpenRows(1, 1, Language::English, {u"asdf asdf asdf asdf asdf "}); }

    // The figures after so many right and wrong keys in so many seconds.
    void Count(int right, int wrong, double seconds)
    {
        It().correctCount = right;
        It().errorCount = wrong;
        It().startTime = 36000;
        machine.SetTimeOfDay(36000 + seconds);
        ComputeMarks(It());
    }

    // totalCount, accuracyPercent, speedRate
    std::string Figures()
    {
        return std::to_string(It().totalCount) + " " + std::to_string(It().accuracyPercent) + " " +
               std::to_string(It().speedRate);
    }

    // What the gauges and their labels show: mark and speed.
    std::string Shown()
    {
        return std::to_string(It().pbMark.value) + " " + Utf8(It().lblMark.caption) + ", " +
               std::to_string(It().pbSpeed.value) + " " + Utf8(It().lblSpeed.caption);
    }

    void ExpectShown(int mark, int speed)
    {
        EXPECT_EQ(It().pbMark.value, static_cast<float>(mark));
        EXPECT_EQ(Utf8(It().lblMark.caption), std::to_string(mark));
        EXPECT_EQ(It().pbSpeed.value, static_cast<float>(speed));
        EXPECT_EQ(Utf8(It().lblSpeed.caption), std::to_string(speed));
    }
};

TEST_F(MarksTest, AHundredAndTwentyRightAndThreeWrongInAMinute)
{
    Count(120, 3, 60);
    EXPECT_EQ(Figures(), "123 98 118");
}

TEST_F(MarksTest, NothingCountedIsNothing)
{
    Count(0, 0, 60);
    EXPECT_EQ(Figures(), "0 0 0");
}

TEST_F(MarksTest, AFirstKeyThatIsRightFillsTheSpeedGauge)
{
    Count(1, 0, 0);
    EXPECT_EQ(Figures(), "1 100 300");
    Count(1, 0, 50); // whenever it came
    EXPECT_EQ(Figures(), "1 100 300");
}

TEST_F(MarksTest, AFirstKeyThatIsWrongIsNoSpeed)
{
    Count(0, 1, 0);
    EXPECT_EQ(Figures(), "1 0 0");
    Count(0, 1, 5);
    EXPECT_EQ(Figures(), "1 0 0");
}

TEST_F(MarksTest, OneRightKeyAfterAWrongOneIsNoFirstKey)
{
    Count(1, 1, 2);
    EXPECT_EQ(Figures(), "2 50 0"); // 30 less 50
}

TEST_F(MarksTest, LessThanASecondCountsAsOne)
{
    Count(3, 0, 0);
    EXPECT_EQ(Figures(), "3 100 180");
    Count(3, 0, 0.9);
    EXPECT_EQ(Figures(), "3 100 180");
    Count(3, 0, 1.5);
    EXPECT_EQ(Figures(), "3 100 120");
}

TEST_F(MarksTest, TheShareOfErrorsIsTakenOffTheSpeed)
{
    Count(60, 0, 60);
    EXPECT_EQ(Figures(), "60 100 60");
    Count(60, 20, 60);
    EXPECT_EQ(Figures(), "80 75 35");
}

TEST_F(MarksTest, ManyErrorsHoldTheSpeedAtNought)
{
    Count(40, 60, 60);
    EXPECT_EQ(Figures(), "100 40 0");
    Count(10, 1000, 60);
    EXPECT_EQ(Figures(), "1010 1 0");
}

TEST_F(MarksTest, SpeedStaysWithinThreeHundred)
{
    Count(300, 0, 60);
    EXPECT_EQ(Figures(), "300 100 300");
    Count(301, 0, 60);
    EXPECT_EQ(Figures(), "301 100 300");
    Count(30000, 0, 60);
    EXPECT_EQ(Figures(), "30000 100 300");
}

TEST_F(MarksTest, AccuracyIsRoundedWithHalvesToTheEvenNeighbour)
{
    Count(1, 199, 60); // 0.5
    EXPECT_EQ(It().accuracyPercent, 0);
    Count(3, 197, 60); // 1.5
    EXPECT_EQ(It().accuracyPercent, 2);
    Count(97, 103, 60); // 48.5
    EXPECT_EQ(It().accuracyPercent, 48);
    Count(99, 101, 60); // 49.5
    EXPECT_EQ(It().accuracyPercent, 50);
    Count(199, 1, 60); // 99.5
    EXPECT_EQ(It().accuracyPercent, 100);
}

TEST_F(MarksTest, SpeedIsRoundedWithHalvesToTheEvenNeighbour)
{
    Count(5, 0, 120); // 2.5
    EXPECT_EQ(It().speedRate, 2);
    Count(7, 0, 120); // 3.5
    EXPECT_EQ(It().speedRate, 4);
}

TEST_F(MarksTest, EachStepOfTheRateIsHeldInThirtyTwoBits)
{
    // Reckoned without rounding on the way these are halves, and go to the other neighbour.
    Count(49, 0, 24);
    EXPECT_EQ(It().speedRate, 123);
    Count(49, 1, 24);
    EXPECT_EQ(It().speedRate, 121);
    Count(19, 5, 18);
    EXPECT_EQ(It().speedRate, 43);
    Count(21, 3, 10);
    EXPECT_EQ(It().speedRate, 113);
    Count(42, 0, 80);
    EXPECT_EQ(It().speedRate, 31);
}

TEST_F(MarksTest, TheTimeOfDayIsHeldInThirtyTwoBits)
{
    Count(5, 0, 1.6); // read as 1.6015625 at this time of the day
    EXPECT_EQ(It().speedRate, 187);
}

TEST_F(MarksTest, AnExerciseOverMidnightCountsItsTimeTheWrongWayRound)
{
    It().correctCount = 1000;
    It().startTime = 86390;
    machine.SetTimeOfDay(10);
    ComputeMarks(It());
    EXPECT_EQ(It().speedRate, 1); // 86380 seconds
}

TEST_F(MarksTest, CountingShowsNothingYet)
{
    Count(120, 3, 60);
    EXPECT_EQ(It().lblMark.caption, u"");
    EXPECT_EQ(It().pbSpeed.value, 0);
}

TEST_F(MarksTest, TheMarkIsTheAccuracyInPartsOfTheStandardMark)
{
    struct Case {
        int maximum;
        int percent;
        int mark;
    };
    const Case cases[] = {{200, 98, 196}, {50, 98, 49},  {50, 99, 50},   {50, 97, 48},
                          {100, 73, 73},  {300, 33, 99}, {500, 99, 495}, {500, 100, 500},
                          {50, 0, 0},     {50, 100, 50}};
    for (const Case& wanted : cases) {
        It().pbMark.maximum = wanted.maximum;
        It().accuracyPercent = wanted.percent;
        It().speedRate = 118;
        ShowMarks(It());
        ExpectShown(wanted.mark, 118);
    }
}

TEST_F(MarksTest, TheNumbersStandInTheLabelsAsPlainDigits)
{
    It().accuracyPercent = 0;
    It().speedRate = 0;
    ShowMarks(It());
    ExpectShown(0, 0);
    It().accuracyPercent = 100;
    It().speedRate = 300;
    ShowMarks(It());
    ExpectShown(100, 300);
}

TEST_F(MarksTest, EveryJudgedKeyIsCountedAndShown)
{
    Wait(1000);
    Type(u"a");
    EXPECT_EQ(Figures(), "1 100 300");
    ExpectShown(100, 300);
    Wait(2000);
    Key('X');
    EXPECT_EQ(Figures(), "2 50 0"); // 30 less 50
    ExpectShown(50, 0);
}

TEST_F(MarksTest, TheEndOfABlinkCountsAgainWithTheClockFurtherOn)
{
    Type(u"asdf asdf a");
    Wait(4000);
    Key('X');
    EXPECT_EQ(Figures(), "12 92 157"); // 11 in 4 seconds, less 8.33
    Wait(420);
    EXPECT_EQ(Figures(), "12 92 141"); // in 4.42 seconds
    ExpectShown(92, 141);
}

TEST_F(MarksTest, KeysWithoutACapAndModifiersChangeNoFigure)
{
    Type(u"as");
    Wait(3000);
    const std::string figures = Figures();
    const std::string shown = Shown();
    for (const int code : {16, 17, 20, 8, 9, 18, 37, 46, 96, 300}) {
        Key(code);
        Up(code);
        EXPECT_EQ(Figures(), figures) << code;
        EXPECT_EQ(Shown(), shown) << code;
    }
}

TEST_F(MarksTest, ABackspaceInALateExerciseCountsFiveErrors)
{
    OpenRows(14, 1, Language::English, {u"asdf asdf "});
    Type(u"asdf asd");
    Wait(6000);
    Backspace();
    EXPECT_EQ(Figures(), "13 62 42"); // 8 in 6 seconds are 80, less 38.46
    ExpectShown(124, 42);
}

TEST_F(MarksTest, HiddenGaugesAreKeptAllTheSame)
{
    context.optCounter = false;
    OpenRows(1, 1, Language::English, {u"as "});
    Type(u"a");
    EXPECT_FALSE(It().pbMark.visible);
    ExpectShown(100, 300);
}

TEST_F(MarksTest, APauseChangesNoFigure)
{
    Type(u"asdf ");
    Wait(2000);
    Type(u"a");
    const std::string figures = Figures();
    const std::string shown = Shown();
    It().paused = true;
    Wait(60000);
    Key('S');
    EXPECT_EQ(Figures(), figures);
    EXPECT_EQ(Shown(), shown);
}

TEST_F(MarksTest, FreeTextIsAlwaysAccurateAndItsSpeedPlain)
{
    context.freeText = true;
    Open(12, 4, Language::English);
    Key('A');
    EXPECT_EQ(Figures(), "1 100 300");
    Wait(1500);
    Key('X');
    Key('1');
    EXPECT_EQ(Figures(), "3 100 120");
    ExpectShown(100, 120);
}

} // namespace
} // namespace keyfluent::session
