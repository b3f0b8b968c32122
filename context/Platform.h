// What the core asks of the machine it runs on. The shell, the console and the tests each fill in
// one such record; the core reads no clock and no other outside thing but through it (and the two
// kinds of files that progress/ reads and writes).
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace keyfluent::context
{

struct CalendarDate {
    int year = 2000; // four digits, Gregorian
    int month = 1;   // 1 to 12
    int day = 1;     // 1 to 31

    bool operator==(const CalendarDate&) const = default;
};

// The five players of key sounds, in the order in which a lesson opens them.
enum class Player { Enter, Char, Space, Caps, Back };
inline constexpr int playerCount = 5;

// "Prev" rewinds a player to its start, "Play" starts it and cuts off its own last playing.
enum class PlayerCommand { Prev, Play };

struct Platform {
    // Seconds since midnight, 0 up to 86400, with their fraction.
    std::function<double()> secondsSinceMidnight;
    std::function<CalendarDate()> today;

    // Mixes a number of seconds into the generator; then each call gives a number in [0, 1).
    std::function<void(double seconds)> seedRandom;
    std::function<double()> random;

    // The state of the Caps Lock key: bit 0 is the toggle.
    std::function<std::int16_t()> capsLockState;

    // file is a path below the program's folder, such as "/enter.wav".
    std::function<void(Player, const std::u16string& file)> openPlayer;
    std::function<void(Player, PlayerCommand)> commandPlayer;
    std::function<void()> beep;
};

// The time of day as the marks and the pauses reckon with it.
inline float TimeOfDay(const Platform& platform)
{
    return static_cast<float>(platform.secondsSinceMidnight());
}

} // namespace keyfluent::context
