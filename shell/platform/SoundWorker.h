// What the thread of the key sounds does.
#pragma once

#include "shell/platform/SoundMixer.h"
#include "shell/platform/SoundOutput.h"
#include "shell/platform/SoundWishes.h"

#include <memory>

namespace keyfluent::shell
{

// When a broken connection may be tried again: at once the first time, then after pauses that grow
// from a second to a minute.
class RetryPause
{
public:
    using Clock = SoundMixer::Clock;

    bool IsOver() const { return Clock::now() >= next_; }
    void Failed();
    void Succeeded() { pause_ = Clock::duration::zero(); }

private:
    Clock::time_point next_{};
    Clock::duration pause_{};
};

class SoundWorker
{
public:
    using Clock = SoundMixer::Clock;

    // Stands for no time.
    static constexpr Clock::time_point never{};

    explicit SoundWorker(std::unique_ptr<SoundOutput> output);

    // Takes as long as the output and the disk want.
    void Fulfil(const SoundWishes& wishes);

    // When Fulfil is to be called again even if nothing is wished; mostly never.
    Clock::time_point NextCall() const { return closing_; }

private:
    bool MakeOpen();
    void Close();
    bool ReadFiles(const SoundWishes& wishes);
    bool StartPlayers(const SoundWishes& wishes);
    bool StartPlayer(context::Player player, Clock::time_point asked);
    void PlayMix();

    std::unique_ptr<SoundOutput> output_;
    bool open_ = false;
    Clock::time_point closing_ = never; // so too while closed
    Clock::time_point soundingUntil_{};
    RetryPause retry_;
    SoundMixer mixer_;
};

} // namespace keyfluent::shell
