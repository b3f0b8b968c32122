#include "course/Aids.h"

#include "course/Lessons.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace keyfluent::course
{
namespace
{

constexpr AidRule on = AidRule::On;
constexpr AidRule off = AidRule::Off;
constexpr AidRule open = AidRule::Free;

constexpr AidPlan nothing{off, off, off, off, off};

// One row of the plan: the lessons and exercises that it holds for (exercises as digits), then key
// caps, hands, counter and clock. Sound is free in every row.
struct PlanRow {
    int firstLesson;
    int lastLesson;
    std::string_view exercises;
    AidRule keyCaps, hands, counter, clock;
};

// clang-format off
constexpr PlanRow arabicPlan[] = {
    { 1,  2, "1234",  on,  on,   open, open},
    { 1,  2, "5",     on,  off,  open, open},
    { 3,  5, "12345", on,  on,   open, open},
    { 6,  6, "1234",  on,  on,   open, open},
    { 6,  6, "5",     on,  on,   on,   on},
    { 7,  7, "123",   on,  on,   on,   on},
    { 7,  7, "45",    on,  on,   open, open},
    { 8,  8, "135",   on,  on,   open, open},
    { 8,  8, "24",    on,  on,   on,   on},
    { 9,  9, "1235",  on,  on,   open, open},
    { 9,  9, "4",     on,  on,   on,   on},
    {10, 10, "134",   on,  on,   on,   on},
    {10, 10, "25",    on,  on,   open, open},
    {11, 11, "12345", on,  on,   open, open},
    {12, 12, "1234",  on,  open, open, open},
    {12, 12, "5",     on,  off,  open, open},
    {13, 13, "123",   on,  open, on,   on},
    {13, 13, "45",    on,  off,  on,   on},
    {14, 14, "12345", on,  off,  on,   on},
    {15, 15, "12345", off, off,  on,   on},
};

// Meant: the aids go earlier than in Arabic (lesson 3 exercise 5, 6 exercise 5, 7 exercise 5).
constexpr PlanRow englishPlan[] = {
    { 1,  2, "1234",  on,   on,   open, open},
    { 1,  2, "5",     on,   off,  open, open},
    { 3,  3, "1234",  on,   on,   open, open},
    { 3,  3, "5",     on,   off,  on,   on},
    { 4,  5, "1234",  on,   on,   open, open},
    { 4,  5, "5",     on,   off,  open, open},
    { 6,  6, "1234",  on,   on,   open, open},
    { 6,  6, "5",     off,  off,  on,   on},
    { 7,  7, "123",   on,   on,   on,   on},
    { 7,  7, "4",     on,   on,   open, open},
    { 7,  7, "5",     open, off,  open, open},
    { 8,  8, "13",    on,   on,   open, open},
    { 8,  8, "24",    on,   on,   on,   on},
    { 9,  9, "123",   on,   on,   open, open},
    { 9,  9, "4",     on,   on,   on,   on},
    {10, 10, "13",    on,   on,   on,   on},
    {10, 10, "2",     on,   on,   open, open},
    {11, 11, "1234",  on,   on,   open, open},
    {12, 13, "12",    on,   open, open, open},
    {14, 14, "1",     on,   open, open, open},
    {14, 14, "2",     open, off,  open, open},
    {15, 15, "12",    off,  off,  on,   on},
};
// clang-format on

constexpr bool Holds(const PlanRow& row, int lesson, int exercise)
{
    return lesson >= row.firstLesson && lesson <= row.lastLesson &&
           row.exercises.find(static_cast<char>('0' + exercise)) != std::string_view::npos;
}

// No row stands in the way of another one.
constexpr int RowsOf(std::span<const PlanRow> plan, int lesson, int exercise)
{
    return static_cast<int>(std::ranges::count_if(
        plan, [=](const PlanRow& row) { return Holds(row, lesson, exercise); }));
}
static_assert([] {
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
            const int arabic = RowsOf(arabicPlan, lesson, exercise);
            const int english = RowsOf(englishPlan, lesson, exercise);
            if (arabic != 1 || english > 1) {
                return false;
            }
        }
    }
    return true;
}());

// In English lesson 15 the flag follows the place even when it was reached by stepping. Elsewhere
// the flags stay as the chooser left them.
void RaiseFlagOfLastLesson(context::SessionContext& context)
{
    if (context.lessonNo != lessonCount) {
        return;
    }
    const SpecialKind kind =
        SpecialKindOf(context.lessonNo, context.exerciseNo, context.arabicExercise);
    if (kind == SpecialKind::None) {
        return;
    }
    context.englishAnagram = kind == SpecialKind::EnglishAnagram;
    context.freeText = kind == SpecialKind::FreeText;
    context.arabicAnagram = kind == SpecialKind::ArabicAnagram;
}

// At most one flag is true; were more set, the last of them would rule.
AidPlan PlanInForce(const context::SessionContext& context)
{
    if (context.freeText) {
        return {off, off, open, open, open};
    }
    if (context.arabicAnagram) {
        return {on, open, open, open, open};
    }
    if (context.englishAnagram) {
        return {open, open, open, open, open};
    }
    return AidsOfPlace(context.lessonNo, context.exerciseNo, context.arabicExercise);
}

} // namespace

AidPlan AidsOfPlace(int lesson, int exercise, bool arabicExercise)
{
    if (exercise < 1 || exercise > exerciseCount) {
        return nothing;
    }
    const std::span<const PlanRow> plan = arabicExercise ? std::span<const PlanRow>(arabicPlan)
                                                         : std::span<const PlanRow>(englishPlan);
    for (const PlanRow& row : plan) {
        if (Holds(row, lesson, exercise)) {
            return {row.keyCaps, row.hands, row.counter, row.clock, open};
        }
    }
    return nothing;
}

AidPlan DecideAids(context::SessionContext& context)
{
    RaiseFlagOfLastLesson(context);
    const AidPlan plan = PlanInForce(context);
    for (const Aid aid : allAids) {
        AidValue(context, aid) = plan[aid] == AidRule::On;
    }
    return plan;
}

context::Boolean16& AidValue(context::SessionContext& context, Aid aid)
{
    switch (aid) {
    case Aid::KeyCaps:
        return context.optKeyCaps;
    case Aid::Hands:
        return context.optHands;
    case Aid::Counter:
        return context.optCounter;
    case Aid::Clock:
        return context.optClock;
    case Aid::Sound:
        break;
    }
    return context.optSound;
}

void TurnAid(context::SessionContext& context, const AidPlan& plan, Aid aid)
{
    if (plan[aid] == AidRule::Free) {
        context::Boolean16& value = AidValue(context, aid);
        value = !value;
    }
}

} // namespace keyfluent::course
