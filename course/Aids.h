// The teaching plan of the aids: what helps the student at each place of the course, and what the
// student may turn on there. The aids fall away as the student advances.
#pragma once

#include "context/SessionContext.h"

#include <array>

namespace keyfluent::course
{

// On and Off are fixed; a Free aid starts off and the student may turn it.
enum class AidRule { On, Off, Free };

// In the order in which the options dialog lists them.
enum class Aid { KeyCaps, Hands, Counter, Clock, Sound };
inline constexpr int aidCount = 5;
inline constexpr std::array<Aid, aidCount> allAids = {Aid::KeyCaps, Aid::Hands, Aid::Counter,
                                                      Aid::Clock, Aid::Sound};

class AidPlan
{
public:
    constexpr AidPlan(AidRule keyCaps, AidRule hands, AidRule counter, AidRule clock, AidRule sound)
        : rules_{keyCaps, hands, counter, clock, sound}
    {
    }

    AidRule operator[](Aid aid) const { return rules_[static_cast<std::size_t>(aid)]; }
    bool operator==(const AidPlan&) const = default;

private:
    std::array<AidRule, aidCount> rules_;
};

// The plan of a place by its language, lesson and exercise alone; all Off where the course has no
// text of its own.
AidPlan AidsOfPlace(int lesson, int exercise, bool arabicExercise);

// What the options dialog settles when it opens: in English lesson 15 it raises the flag of a
// special place (and clears the other two), then the flags overrule the plan of the place, then the
// five aids of the context are set, the free ones to off. Returns the plan in force.
AidPlan DecideAids(context::SessionContext& context);

// The aid's field in the context.
context::Boolean16& AidValue(context::SessionContext& context, Aid aid);

// A click on an aid: turns it over if the plan leaves it free, else does nothing.
void TurnAid(context::SessionContext& context, const AidPlan& plan, Aid aid);

} // namespace keyfluent::course
