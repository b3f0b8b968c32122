// The machine that the console pretends to run on: a clock that stands still unless it is told to
// move, queued chance, and a list of all that the core asks for.
#pragma once

#include "context/Platform.h"
#include "context/Random.h"
#include "session/Lesson.h"

#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace keyfluent::headless
{

// Milliseconds: of the day, and since the start. Setting the first leaves the second alone.
class VirtualClock
{
public:
    static constexpr std::int64_t dayLength = 86'400'000;

    double SecondsSinceMidnight() const { return static_cast<double>(ofDay_) / 1000; }
    std::int64_t SinceStart() const { return sinceStart_; }

    void SetOfDay(std::int64_t milliseconds) { ofDay_ = milliseconds % dayLength; }
    void MoveTo(std::int64_t sinceStart)
    {
        SetOfDay(ofDay_ + (sinceStart - sinceStart_));
        sinceStart_ = sinceStart;
    }

private:
    std::int64_t ofDay_ = 36'000'000; // ten o'clock
    std::int64_t sinceStart_ = 0;
};

// Fires the timers of a lesson in virtual time.
class TimerQueue
{
public:
    // Looks which timers have been started since the last look.
    void Notice(const session::Lesson& lesson, std::int64_t now);
    // Index of the timer that falls due first, at the latest at the given moment; -1 for none.
    int NextDue(const session::Lesson& lesson, std::int64_t latest) const;
    std::int64_t DueTime(int timer) const { return due_[static_cast<std::size_t>(timer)]; }
    // Puts a timer that fires off to its next interval.
    void Advance(const session::Lesson& lesson, int timer);

private:
    std::array<std::int64_t, session::timerCount> due_{};
    std::array<std::uint32_t, session::timerCount> startsSeen_{};
};

class VirtualMachine
{
public:
    VirtualMachine();
    VirtualMachine(const VirtualMachine&) = delete;
    VirtualMachine& operator=(const VirtualMachine&) = delete;

    // Opens a lesson for a context and activates it; there is none open.
    void OpenLesson(context::SessionContext& context);
    bool HasLesson() const { return lesson_ != nullptr; }
    session::Lesson& Lesson() { return *lesson_; }

    // After each thing that a lesson was told: starts its timers, and drops it when it is gone.
    void AfterEvent();

    // Lets milliseconds pass.
    void Wait(std::int64_t milliseconds);

    const context::Platform& Platform() const { return platform_; }
    VirtualClock& Clock() { return clock_; }

    // What the core asked for since the last call, oldest first.
    std::vector<std::string> TakeEvents();

    context::CalendarDate date{2026, 1, 31};
    std::deque<double> queuedRandom;
    bool capsLock = false;

private:
    void Record(std::string event) { events_.push_back(std::move(event)); }
    void FillPlatform();
    void FillWindow();

    VirtualClock clock_;
    context::RandomGenerator generator_;
    context::Platform platform_;
    session::LessonWindow window_;
    std::unique_ptr<session::Lesson> lesson_;
    TimerQueue timers_;
    std::vector<std::string> events_;
};

} // namespace keyfluent::headless
