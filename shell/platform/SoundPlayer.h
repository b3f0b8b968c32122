// The sounds of the keys, played by a thread of their own: whatever the sound server does, no call
// here waits for it. The thread sleeps while there is nothing to play.
#pragma once

#include "context/Platform.h"
#include "shell/platform/SoundOutput.h"

#include <QString>

#include <memory>
#include <thread>

namespace keyfluent::shell
{

class SoundPlayer
{
public:
    // Through the desktop's sound server; silent where there is none.
    SoundPlayer();
    explicit SoundPlayer(std::unique_ptr<SoundOutput> output);

    // Waits 300 ms at most for the thread to end. A thread that the sound server holds up longer is
    // left behind; it touches nothing but its own.
    ~SoundPlayer();

    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    // Gives the player a wave file, anew each time, and makes the output ready. The file is read by
    // the thread; a missing or broken one makes the player silent.
    void Open(context::Player player, const QString& file);

    // "Prev" rewinds and leaves a playing that is under way alone, "Play" plays from where the
    // player stands and cuts off its own last playing. For each player one playing at most is kept
    // waiting, and given up when it could not begin within a quarter of a second.
    void Command(context::Player player, context::PlayerCommand command);

    // Lets go of the sound server until the next file or playing, so that the server may sleep too;
    // what sounds is heard to its end.
    void Rest();

private:
    struct Shared;

    std::shared_ptr<Shared> shared_;
    std::thread thread_;
};

} // namespace keyfluent::shell
