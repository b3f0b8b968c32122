// The five players of key sounds and what is heard of them together. A player that starts cuts off
// its own last playing and nobody else's.
#pragma once

#include "context/Platform.h"
#include "shell/platform/WaveFile.h"

#include <array>
#include <chrono>
#include <cstddef>

namespace keyfluent::shell
{

class SoundMixer
{
public:
    using Clock = std::chrono::steady_clock;

    // The player is silent and at its start; an empty sound leaves it silent for good.
    void SetSound(context::Player player, Samples sound);

    // The next playing begins at the start; a playing that is under way goes on.
    void Rewind(context::Player player);

    // The player sounds from now on from where it stands to its end, where it stands afterwards.
    // Nothing happens when it stands there already. Returns whether there is something to hear.
    bool Start(context::Player player, Clock::time_point now);

    // As if it had played: the player stands at its end, and nothing more is heard of it.
    void Skip(context::Player player);

    // All that is to be heard from now on, in one; empty for silence. Valid until the next call.
    const Samples& Mix(Clock::time_point now);

private:
    struct Voice {
        Samples sound;
        std::size_t position = 0;  // frame at which the next playing begins
        std::size_t from = 0;      // frame at which the last playing began
        Clock::time_point since{}; // when it began
        bool started = false;

        std::size_t FrameCount() const { return sound.size() / soundChannels; }
        std::size_t FrameHeard(Clock::time_point now) const;
    };

    Voice& VoiceOf(context::Player player) { return voices_.at(static_cast<std::size_t>(player)); }

    std::array<Voice, context::playerCount> voices_;
    Samples mixed_;
};

} // namespace keyfluent::shell
