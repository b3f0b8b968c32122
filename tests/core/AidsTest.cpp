#include "course/Aids.h"

#include "course/Lessons.h"

#include <gtest/gtest.h>

#include <string>

namespace keyfluent::course
{
namespace
{

using context::SessionContext;

// A plan as five signs in the order of the options dialog: + on, - off, ? free.
std::string Signs(const AidPlan& plan)
{
    std::string signs;
    for (const Aid aid : allAids) {
        signs += plan[aid] == AidRule::On ? '+' : plan[aid] == AidRule::Off ? '-' : '?';
    }
    return signs;
}

// The five aids of a context in the same order: 1 true, 0 false.
std::string Values(const SessionContext& context)
{
    std::string values;
    for (const bool value :
         {bool(context.optKeyCaps), bool(context.optHands), bool(context.optCounter),
          bool(context.optClock), bool(context.optSound)}) {
        values += value ? '1' : '0';
    }
    return values;
}

// A lesson a line, its exercises from 1 to 5: key caps, hands, counter, clock, sound.
const std::string arabicPlans[lessonCount][exerciseCount] = {
    {"++???", "++???", "++???", "++???", "+-???"}, // 1
    {"++???", "++???", "++???", "++???", "+-???"}, // 2
    {"++???", "++???", "++???", "++???", "++???"}, // 3
    {"++???", "++???", "++???", "++???", "++???"}, // 4
    {"++???", "++???", "++???", "++???", "++???"}, // 5
    {"++???", "++???", "++???", "++???", "++++?"}, // 6
    {"++++?", "++++?", "++++?", "++???", "++???"}, // 7
    {"++???", "++++?", "++???", "++++?", "++???"}, // 8
    {"++???", "++???", "++???", "++++?", "++???"}, // 9
    {"++++?", "++???", "++++?", "++++?", "++???"}, // 10
    {"++???", "++???", "++???", "++???", "++???"}, // 11
    {"+????", "+????", "+????", "+????", "+-???"}, // 12
    {"+?++?", "+?++?", "+?++?", "+-++?", "+-++?"}, // 13
    {"+-++?", "+-++?", "+-++?", "+-++?", "+-++?"}, // 14
    {"--++?", "--++?", "--++?", "--++?", "--++?"}, // 15
};
const std::string englishPlans[lessonCount][exerciseCount] = {
    {"++???", "++???", "++???", "++???", "+-???"}, // 1
    {"++???", "++???", "++???", "++???", "+-???"}, // 2
    {"++???", "++???", "++???", "++???", "+-++?"}, // 3
    {"++???", "++???", "++???", "++???", "+-???"}, // 4
    {"++???", "++???", "++???", "++???", "+-???"}, // 5
    {"++???", "++???", "++???", "++???", "--++?"}, // 6
    {"++++?", "++++?", "++++?", "++???", "?-???"}, // 7
    {"++???", "++++?", "++???", "++++?", "-----"}, // 8
    {"++???", "++???", "++???", "++++?", "-----"}, // 9
    {"++++?", "++???", "++++?", "-----", "-----"}, // 10
    {"++???", "++???", "++???", "++???", "-----"}, // 11
    {"+????", "+????", "-----", "-----", "-----"}, // 12
    {"+????", "+????", "-----", "-----", "-----"}, // 13
    {"+????", "?-???", "-----", "-----", "-----"}, // 14
    {"--++?", "--++?", "-----", "-----", "-----"}, // 15
};

const std::string& PlanAt(int lesson, int exercise, bool arabic)
{
    return (arabic ? arabicPlans : englishPlans)[lesson - 1][exercise - 1];
}

TEST(Aids, EachPlaceHasItsPlan)
{
    for (const bool arabic : {false, true}) {
        for (int lesson = 1; lesson <= lessonCount; ++lesson) {
            for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
                EXPECT_EQ(Signs(AidsOfPlace(lesson, exercise, arabic)),
                          PlanAt(lesson, exercise, arabic))
                    << (arabic ? "Arabic " : "English ") << lesson << "." << exercise;
            }
        }
    }
}

TEST(Aids, SoundIsFreeWhereverThereIsAPlan)
{
    for (const bool arabic : {false, true}) {
        for (int lesson = 1; lesson <= lessonCount; ++lesson) {
            for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
                if (!IsSpecialExercise(lesson, exercise, arabic)) {
                    EXPECT_EQ(AidsOfPlace(lesson, exercise, arabic)[Aid::Sound], AidRule::Free);
                }
            }
        }
    }
}

TEST(Aids, OnlyTwoTextsLeaveTheKeyCapsToTheStudent)
{
    std::string places;
    for (const bool arabic : {false, true}) {
        for (int lesson = 1; lesson <= lessonCount; ++lesson) {
            for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
                if (AidsOfPlace(lesson, exercise, arabic)[Aid::KeyCaps] == AidRule::Free) {
                    places += (arabic ? " Arabic " : " English ") + std::to_string(lesson) + "." +
                              std::to_string(exercise);
                }
            }
        }
    }
    EXPECT_EQ(places, " English 7.5 English 14.2");
}

TEST(Aids, OutsideTheCourseAllAreOffAndFixed)
{
    for (const bool arabic : {false, true}) {
        for (const auto& [lesson, exercise] :
             {std::pair(0, 1), std::pair(16, 1), std::pair(1, 0), std::pair(1, 6), std::pair(-1, 1),
              std::pair(255, 255), std::pair(1, -47)}) {
            EXPECT_EQ(Signs(AidsOfPlace(lesson, exercise, arabic)), "-----")
                << lesson << "." << exercise;
        }
    }
}

SessionContext At(int lesson, int exercise, bool arabic)
{
    SessionContext context;
    context.lessonNo = static_cast<std::uint8_t>(lesson);
    context.exerciseNo = static_cast<std::uint8_t>(exercise);
    context.arabicExercise = arabic;
    return context;
}

std::string Flags(const SessionContext& context)
{
    return std::string(context.englishAnagram ? "e" : "") + (context.freeText ? "f" : "") +
           (context.arabicAnagram ? "a" : "");
}

TEST(Aids, TheDialogTurnsOnWhatIsFixedOnAndAllElseOff)
{
    for (const bool arabic : {false, true}) {
        for (int lesson = 1; lesson <= lessonCount; ++lesson) {
            for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
                if (IsSpecialExercise(lesson, exercise, arabic) && lesson == 15) {
                    continue; // there it raises a flag first
                }
                SessionContext context = At(lesson, exercise, arabic);
                for (const Aid aid : allAids) {
                    AidValue(context, aid) = true;
                }
                const AidPlan plan = DecideAids(context);
                EXPECT_EQ(Signs(plan), PlanAt(lesson, exercise, arabic));
                std::string expected;
                for (const char sign : PlanAt(lesson, exercise, arabic)) {
                    expected += sign == '+' ? '1' : '0';
                }
                EXPECT_EQ(Values(context), expected) << lesson << "." << exercise;
                EXPECT_EQ(Flags(context), "") << lesson << "." << exercise;
            }
        }
    }
}

TEST(Aids, ASpecialKindOverrulesThePlanOfEveryPlace)
{
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
            for (const bool arabic : {false, true}) {
                if (IsSpecialExercise(lesson, exercise, arabic) && lesson == 15) {
                    continue; // the place decides there
                }
                SessionContext context = At(lesson, exercise, arabic);
                context.englishAnagram = true;
                EXPECT_EQ(Signs(DecideAids(context)), "?????") << lesson << "." << exercise;
                EXPECT_EQ(Values(context), "00000");
                EXPECT_EQ(Flags(context), "e");

                context = At(lesson, exercise, arabic);
                context.arabicAnagram = true;
                EXPECT_EQ(Signs(DecideAids(context)), "+????") << lesson << "." << exercise;
                EXPECT_EQ(Values(context), "10000");
                EXPECT_EQ(Flags(context), "a");

                context = At(lesson, exercise, arabic);
                context.freeText = true;
                EXPECT_EQ(Signs(DecideAids(context)), "--???") << lesson << "." << exercise;
                EXPECT_EQ(Values(context), "00000");
                EXPECT_EQ(Flags(context), "f");
            }
        }
    }
}

TEST(Aids, InEnglishLessonFifteenTheDialogRaisesTheFlagOfThePlace)
{
    const std::pair<int, std::string> raised[] = {{3, "e"}, {4, "f"}, {5, "a"}};
    for (const auto& [exercise, flag] : raised) {
        for (const std::string before : {"", "e", "f", "a"}) {
            SessionContext context = At(15, exercise, false);
            context.englishAnagram = before == "e";
            context.freeText = before == "f";
            context.arabicAnagram = before == "a";
            const AidPlan plan = DecideAids(context);
            EXPECT_EQ(Flags(context), flag) << exercise << " after " << before;
            EXPECT_EQ(Signs(plan), flag == "e"   ? "?????"
                                   : flag == "f" ? "--???"
                                                 : "+????")
                << exercise;
        }
    }
}

TEST(Aids, TheTextsOfEnglishLessonFifteenKeepTheFlagThatStands)
{
    for (const int exercise : {1, 2}) {
        SessionContext context = At(15, exercise, false);
        context.englishAnagram = true;
        EXPECT_EQ(Signs(DecideAids(context)), "?????");
        EXPECT_EQ(Flags(context), "e");
        context.englishAnagram = false;
        EXPECT_EQ(Signs(DecideAids(context)), "--++?");
    }
}

TEST(Aids, AfterAnArabicDrillLessonFifteenRaisesNothing)
{
    for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
        SessionContext context = At(15, exercise, true);
        EXPECT_EQ(Signs(DecideAids(context)), "--++?");
        EXPECT_EQ(Flags(context), "") << exercise;
        context.arabicAnagram = true;
        EXPECT_EQ(Signs(DecideAids(context)), "+????");
        EXPECT_EQ(Flags(context), "a") << exercise;
    }
}

TEST(Aids, ASpecialPlaceReachedWithoutItsFlagHasNoAids)
{
    for (int lesson = 8; lesson <= 14; ++lesson) {
        for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
            if (IsSpecialExercise(lesson, exercise, false)) {
                SessionContext context = At(lesson, exercise, false);
                context.optSound = true;
                EXPECT_EQ(Signs(DecideAids(context)), "-----") << lesson << "." << exercise;
                EXPECT_EQ(Values(context), "00000");
                EXPECT_EQ(Flags(context), "");
            }
        }
    }
}

TEST(Aids, EachAidIsAFieldOfItsOwn)
{
    for (const Aid aid : allAids) {
        SessionContext context;
        AidValue(context, aid) = true;
        std::string expected = "00000";
        expected[static_cast<std::size_t>(aid)] = '1';
        EXPECT_EQ(Values(context), expected);
    }
}

TEST(Aids, AClickTurnsAFreeAidOver)
{
    SessionContext context = At(7, 5, false);
    const AidPlan plan = DecideAids(context);
    for (const Aid aid : {Aid::KeyCaps, Aid::Counter, Aid::Clock, Aid::Sound}) {
        TurnAid(context, plan, aid);
        EXPECT_TRUE(AidValue(context, aid));
    }
    EXPECT_EQ(Values(context), "10111");
    TurnAid(context, plan, Aid::Counter);
    EXPECT_EQ(Values(context), "10011");
}

TEST(Aids, AClickOnAFixedAidDoesNothing)
{
    SessionContext context = At(15, 1, true);
    const AidPlan plan = DecideAids(context);
    ASSERT_EQ(Values(context), "00110");
    for (const Aid aid : {Aid::KeyCaps, Aid::Hands, Aid::Counter, Aid::Clock}) {
        TurnAid(context, plan, aid);
    }
    EXPECT_EQ(Values(context), "00110");
}

TEST(Aids, WhatWasTurnedOnIsOffAtTheNextOpening)
{
    SessionContext context = At(1, 1, false);
    TurnAid(context, DecideAids(context), Aid::Sound);
    ASSERT_TRUE(context.optSound);
    DecideAids(context);
    EXPECT_FALSE(context.optSound);
}

} // namespace
} // namespace keyfluent::course
