// What the players of key sounds are asked for, on its way to the thread that plays.
#pragma once

#include "context/Platform.h"
#include "shell/platform/SoundMixer.h"

#include <QString>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace keyfluent::shell
{

// What one player has been asked for since the thread last looked. Whatever the number of calls, it
// comes down to this; to be fulfilled in the order of the fields.
struct SoundWish {
    std::optional<QString> file;
    bool rewindFirst = false;
    bool play = false;
    bool rewindAfter = false;
    SoundMixer::Clock::time_point asked{}; // when the playing was

    void Open(const QString& name)
    {
        *this = SoundWish();
        file = name;
    }

    void Rewind() { (play ? rewindAfter : rewindFirst) = true; }

    // A second playing takes the place of one that still waits; not rewound in between, it finds
    // nothing left to play.
    void Play()
    {
        if (!play || rewindAfter) {
            rewindFirst = rewindFirst || rewindAfter;
            rewindAfter = false;
            play = true;
            asked = SoundMixer::Clock::now();
        }
    }
};

struct SoundWishes {
    std::array<SoundWish, context::playerCount> players;
    bool rest = false; // after all that the players are asked for

    SoundWish& Of(context::Player player) { return players.at(static_cast<std::size_t>(player)); }

    // A rewinding alone can wait until there is more to do.
    bool NeedTheThread() const
    {
        return rest || std::any_of(players.begin(), players.end(), [](const SoundWish& wish) {
                   return wish.play || wish.file.has_value();
               });
    }
};

} // namespace keyfluent::shell
