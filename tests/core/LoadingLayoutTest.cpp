// Where loading puts the controls, what it shows and what it hides.
#include "LessonFixture.h"
#include "session/Loading.h"

#include <gtest/gtest.h>

namespace keyfluent::session
{

inline void PrintTo(const Box& box, std::ostream* out)
{
    *out << box.left << ", " << box.top << ", " << box.width << " x " << box.height;
}

namespace
{

using namespace fixtures;

using LoadingLayoutTest = LessonFixture;

Box DesignBox(int cap)
{
    const auto& design = keyboard::CapDesigns()[static_cast<std::size_t>(cap)];
    return {design.left, design.top, design.width, design.height};
}

TEST_F(LoadingLayoutTest, ControlsStandWhereTheyAreDesigned)
{
    Open();
    const Lesson& lesson = It();
    EXPECT_EQ(lesson.txtOrigin.box, (Box{1305, 795, 9405, 465}));
    EXPECT_EQ(lesson.txtTest.box, (Box{1305, 1245, 9405, 465}));
    EXPECT_EQ(lesson.label7.box, (Box{3915, 8265, 4170, 330}));
    EXPECT_EQ(lesson.lblTitle.box, (Box{3098, 75, 5805, 420}));
    EXPECT_EQ(lesson.pbMark.box, (Box{1560, 7035, 2985, 285}));
    EXPECT_EQ(lesson.pbSpeed.box, (Box{7440, 7035, 2985, 285}));
    EXPECT_EQ(lesson.lblTimer.box, (Box{5490, 7020, 1020, 270}));
    EXPECT_EQ(lesson.shape1.box, (Box{1350, 6735, 9300, 975}));
    for (int cap = 0; cap < keyboard::capCount; ++cap) {
        EXPECT_EQ(lesson.caps.box[static_cast<std::size_t>(cap)], DesignBox(cap)) << cap;
    }
}

TEST_F(LoadingLayoutTest, TheWindowIsTheSmallestScreen)
{
    EXPECT_EQ(lessonWidth, 800 * 15);
    EXPECT_EQ(lessonHeight, 600 * 15);
}

TEST_F(LoadingLayoutTest, WhatIsHiddenAtFirst)
{
    Open();
    EXPECT_FALSE(It().label7.visible);
    EXPECT_FALSE(It().imgResume.visible);
    EXPECT_TRUE(It().imgRest.Reachable());
    EXPECT_TRUE(It().imgStop.Reachable());
    EXPECT_TRUE(It().txtOrigin.visible);
    EXPECT_TRUE(It().txtTest.visible);
    EXPECT_TRUE(It().txtOrigin.readOnly);
    EXPECT_TRUE(It().txtTest.readOnly);
}

TEST_F(LoadingLayoutTest, PicturesShowTheirPlainLooks)
{
    Open();
    EXPECT_EQ(It().imgStop.bitmap, 107);
    EXPECT_EQ(It().imgRest.bitmap, 201);
    EXPECT_EQ(It().imgResume.bitmap, 203);
}

TEST_F(LoadingLayoutTest, BothFieldsCarryTheCustomPointer)
{
    Open();
    EXPECT_EQ(It().txtOrigin.cursor, 101);
    EXPECT_EQ(It().txtTest.cursor, 101);
}

TEST_F(LoadingLayoutTest, TheHandsRestInTheChosenSet)
{
    Open(8, 5, Language::English); // an empty row: nothing to strike
    EXPECT_EQ(It().imgLeftHand.bitmap, 113);
    EXPECT_EQ(It().imgRightHand.bitmap, 119);
    context.colouredHands = true;
    Open();
    EXPECT_EQ(It().imgLeftHand.bitmap, 1113);
    EXPECT_EQ(It().imgRightHand.bitmap, 1119);
    EXPECT_EQ(It().handPictureOffset, 1000);
}

// Before the window comes to the front there is no character to show.
TEST_F(LoadingLayoutTest, TheHandsRestUntilTheWindowIsActive)
{
    context.colouredHands = true;
    LoadOnly();
    EXPECT_EQ(It().imgLeftHand.bitmap, 1113);
    EXPECT_EQ(It().imgRightHand.bitmap, 1119);
}

TEST_F(LoadingLayoutTest, AChangeOfTheHandsCountsFromTheNextExercise)
{
    Open(1, 1, Language::English);
    context.colouredHands = true;
    Type(u"a");
    EXPECT_EQ(It().imgLeftHand.bitmap, 117);
    Open();
    EXPECT_EQ(It().imgLeftHand.bitmap, 1118);
}

TEST_F(LoadingLayoutTest, WithoutTheKeyCapsTheCapsAreOutOfSightWithTheirTexts)
{
    context.optKeyCaps = false;
    Open(1, 1, Language::English);
    for (int cap = 0; cap < keyboard::capCount; ++cap) {
        Box expected = DesignBox(cap);
        expected.top += 10000;
        EXPECT_EQ(It().caps.box[static_cast<std::size_t>(cap)], expected) << cap;
    }
    EXPECT_EQ(CapText(48), "a");
}

TEST_F(LoadingLayoutTest, WithoutTheHandsBothAreHidden)
{
    Open();
    EXPECT_TRUE(It().imgLeftHand.visible);
    EXPECT_TRUE(It().imgRightHand.visible);
    context.optHands = false;
    Open();
    EXPECT_FALSE(It().imgLeftHand.visible);
    EXPECT_FALSE(It().imgRightHand.visible);
}

TEST_F(LoadingLayoutTest, TheClockAndTheCounterAreShownAsTheirAidsSay)
{
    for (const bool counter : {false, true}) {
        for (const bool clock : {false, true}) {
            context.optCounter = counter;
            context.optClock = clock;
            Open();
            EXPECT_EQ(It().lblTimer.visible, clock);
            for (int number = 1; number <= 6; ++number) {
                EXPECT_EQ(It().ScaleMark(number).visible, counter) << number;
            }
            EXPECT_EQ(It().lblSpeed.visible, counter);
            EXPECT_EQ(It().lblChar.visible, counter);
            EXPECT_EQ(It().lblMark.visible, counter);
            EXPECT_EQ(It().lblResulotion.visible, counter);
            EXPECT_EQ(It().pbMark.visible, counter);
            EXPECT_EQ(It().pbSpeed.visible, counter);
            EXPECT_EQ(It().shape1.visible, counter || clock);
        }
    }
}

TEST_F(LoadingLayoutTest, ASizeOfTwelveKeepsTheDesign)
{
    for (const int size : {1, 8, 12}) {
        context.fontSize = size;
        Open();
        EXPECT_EQ(It().txtOrigin.fontSize, size);
        EXPECT_EQ(It().txtTest.fontSize, size);
        EXPECT_EQ(It().txtOrigin.box, (Box{1305, 795, 9405, 465}));
        EXPECT_EQ(It().caps.box[0], DesignBox(0));
    }
}

TEST_F(LoadingLayoutTest, ASizeBelowOneIsShownAsTheDesignsAndKept)
{
    for (const int size : {0, -1, -2147483647}) {
        context.fontSize = size;
        Open();
        EXPECT_EQ(It().txtOrigin.fontSize, 12);
        EXPECT_EQ(It().txtTest.fontSize, 12);
        EXPECT_EQ(context.fontSize, size);
        EXPECT_EQ(It().txtOrigin.box, (Box{1305, 795, 9405, 465}));
    }
}

TEST_F(LoadingLayoutTest, FromThirteenOnTheFieldsAreWide)
{
    for (const int size : {13, 72}) {
        context.fontSize = size;
        Open();
        EXPECT_EQ(It().txtOrigin.fontSize, size);
        EXPECT_EQ(It().txtTest.fontSize, size);
        EXPECT_EQ(It().txtOrigin.box, (Box{150, 450, 11700, 485}));
        EXPECT_EQ(It().txtTest.box, (Box{150, 936, 11700, 540}));
        EXPECT_EQ(It().lblSpeed.box.left, 9900);
        EXPECT_EQ(It().lblMark.box.left, 2760);
    }
}

TEST_F(LoadingLayoutTest, FromThirteenOnTheCapsStandLower)
{
    context.fontSize = 13;
    Open();
    for (int cap = 0; cap < keyboard::capCount; ++cap) {
        Box expected = DesignBox(cap);
        expected.top += cap <= 15 ? 255 : 180;
        if (cap == 86) {
            expected.top = DesignBox(0).top + 255;
        }
        EXPECT_EQ(It().caps.box[static_cast<std::size_t>(cap)], expected) << cap;
    }
}

TEST_F(LoadingLayoutTest, FromThirteenOnTheHandsStandLowerSideBySide)
{
    Open();
    const Box left = It().imgLeftHand.box;
    context.fontSize = 13;
    Open();
    EXPECT_EQ(It().imgLeftHand.box.top, left.top + 135);
    EXPECT_EQ(It().imgRightHand.box.top, It().imgLeftHand.box.top);
    EXPECT_EQ(It().imgLeftHand.box.left, left.left);
}

TEST_F(LoadingLayoutTest, BothSetsOfHandsEndAtTheFrameOfTheWideLayout)
{
    for (const bool coloured : {false, true}) {
        context.colouredHands = coloured;
        context.fontSize = 13;
        Open();
        for (const Box& hand : {It().imgLeftHand.box, It().imgRightHand.box}) {
            EXPECT_EQ(hand.top + hand.height, It().shape1.box.top);
        }
        EXPECT_EQ(It().imgLeftHand.box.left + It().imgLeftHand.box.width - lessonWidth / 2,
                  lessonWidth / 2 - It().imgRightHand.box.left);
    }
}

TEST_F(LoadingLayoutTest, MarksStandOverTheirPlacesOfTheGauges)
{
    Open();
    const auto middle = [](const Box& box) { return 2 * box.left + box.width; };
    const Box& mark = It().pbMark.box;
    const Box& speed = It().pbSpeed.box;
    for (int number = 1; number <= scaleMarkCount; ++number) { // between the frame and the gauges
        const Box& label = It().ScaleMark(number).box;
        EXPECT_GT(label.top, It().shape1.box.top) << number;
        EXPECT_EQ(label.height, 225) << number; // a line of eight points
        EXPECT_LE(label.top + label.height, mark.top) << number;
    }
    EXPECT_NEAR(middle(It().ScaleMark(1).box), middle(mark), 15); // half
    EXPECT_EQ(It().ScaleMark(3).box.left, mark.left);
    EXPECT_EQ(It().ScaleMark(2).box.left + It().ScaleMark(2).box.width, mark.left + mark.width);
    EXPECT_NEAR(middle(It().ScaleMark(6).box), 2 * (speed.left + speed.width / 6.0), 15); // 50
    EXPECT_EQ(It().ScaleMark(4).box.left, speed.left);
    EXPECT_EQ(It().ScaleMark(5).box.left + It().ScaleMark(5).box.width, speed.left + speed.width);
}

TEST_F(LoadingLayoutTest, ThePassagesOfTheLastLessonHaveTallFields)
{
    for (const Language language : {Language::English, Language::Arabic}) {
        context.fontSize = 12;
        Open(15, 1, language);
        EXPECT_EQ(It().txtOrigin.box, (Box{1305, 795, 9405, 2355}));
        EXPECT_EQ(It().txtTest.box, (Box{1305, 3165, 9405, 2355}));
        context.fontSize = 14;
        Open();
        EXPECT_EQ(It().txtOrigin.box, (Box{150, 450, 11700, 2415}));
        EXPECT_EQ(It().txtTest.box, (Box{150, 2880, 11700, 2415}));
    }
    context.fontSize = 12;
    for (const int exercise : {2, 3, 4, 5}) {
        Open(15, exercise, Language::Arabic);
        EXPECT_EQ(It().txtOrigin.box.height, 2355) << exercise;
    }
}

TEST_F(LoadingLayoutTest, OtherExercisesKeepTheirFields)
{
    Open(14, 1, Language::English);
    EXPECT_EQ(It().txtOrigin.box, (Box{1305, 795, 9405, 465}));
    for (const int exercise : {3, 4, 5}) {
        Open(15, exercise, Language::English); // without a flag
        EXPECT_EQ(It().txtOrigin.box, (Box{1305, 795, 9405, 465})) << exercise;
        EXPECT_EQ(It().txtTest.box, (Box{1305, 1245, 9405, 465})) << exercise;
    }
    context.freeTextChars = u"abc";
    context.englishAnagram = true;
    Open(15, 1, Language::English);
    EXPECT_EQ(It().txtOrigin.box, (Box{1305, 795, 9405, 465}));
    context.englishAnagram = false;
    context.arabicAnagram = true;
    context.anagramLanguage = true;
    Open(15, 5, Language::English);
    EXPECT_EQ(It().txtOrigin.box, (Box{1305, 795, 9405, 465}));
}

TEST_F(LoadingLayoutTest, FreeTextIsOneTallEditor)
{
    context.freeText = true;
    for (const int lesson : {12, 15}) {
        context.fontSize = 12;
        Open(lesson, 4, Language::English);
        EXPECT_FALSE(It().txtTest.visible);
        EXPECT_FALSE(It().txtOrigin.readOnly);
        EXPECT_EQ(It().txtOrigin.Text(), u"");
        EXPECT_EQ(It().txtOrigin.box, (Box{1305, 795, 9405, 5 * 465 - 60}));
        context.fontSize = 13;
        Open();
        EXPECT_EQ(It().txtOrigin.box, (Box{150, 450, 11700, 5 * 485 - 60}));
    }
}

TEST_F(LoadingLayoutTest, FreeTextCarriedToATextStartsWithItsFirstRow)
{
    context.freeText = true;
    Open(1, 1, Language::English);
    EXPECT_EQ(It().txtOrigin.Text(), u"asdf ");
    EXPECT_FALSE(It().txtOrigin.readOnly);
}

} // namespace
} // namespace keyfluent::session
