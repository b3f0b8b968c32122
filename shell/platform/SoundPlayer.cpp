#include "shell/platform/SoundPlayer.h"

#include "shell/platform/PulseOutput.h"
#include "shell/platform/SoundWishes.h"
#include "shell/platform/SoundWorker.h"

#include <chrono>
#include <condition_variable>
#include <csignal>
#include <mutex>
#include <utility>

namespace keyfluent::shell
{
namespace
{

using context::Player;
using context::PlayerCommand;
using Clock = SoundWorker::Clock;

constexpr std::chrono::milliseconds longestEnd(300);

// The program's signals are the main thread's.
std::thread ThreadWithoutSignals(auto run)
{
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread thread(std::move(run));
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return thread;
}

} // namespace

// Owned by both sides, as either may outlive the other. The thread holds the mutex for moments
// only, never while it works.
struct SoundPlayer::Shared {
    std::mutex mutex;
    std::condition_variable wake;
    std::condition_variable end;
    SoundWishes wishes;
    bool ending = false;
    bool ended = false;

    // At the longest until a time, unless that is `never`. False when the thread is to end.
    bool WaitForWishes(SoundWishes& taken, Clock::time_point until)
    {
        std::unique_lock lock(mutex);
        const auto needed = [this] { return ending || wishes.NeedTheThread(); };
        if (until != SoundWorker::never) {
            wake.wait_until(lock, until, needed);
        } else {
            wake.wait(lock, needed);
        }
        taken = std::exchange(wishes, SoundWishes{});
        return !ending;
    }

    void SayEnded()
    {
        const std::lock_guard lock(mutex);
        ended = true;
        end.notify_all();
    }
};

SoundPlayer::SoundPlayer() : SoundPlayer(MakePulseOutput()) {}

SoundPlayer::SoundPlayer(std::unique_ptr<SoundOutput> output) : shared_(std::make_shared<Shared>())
{
    thread_ = ThreadWithoutSignals([shared = shared_, output = std::move(output)]() mutable {
        {
            SoundWorker worker(std::move(output));
            SoundWishes wishes;
            while (shared->WaitForWishes(wishes, worker.NextCall())) {
                worker.Fulfil(wishes);
            }
        }
        shared->SayEnded();
    });
}

SoundPlayer::~SoundPlayer()
{
    std::unique_lock lock(shared_->mutex);
    shared_->ending = true;
    shared_->wake.notify_all();
    const bool ended = shared_->end.wait_for(lock, longestEnd, [this] { return shared_->ended; });
    lock.unlock();
    if (ended) {
        thread_.join();
    } else {
        thread_.detach();
    }
}

void SoundPlayer::Open(Player player, const QString& file)
{
    const std::lock_guard lock(shared_->mutex);
    shared_->wishes.Of(player).Open(file);
    shared_->wishes.rest = false;
    shared_->wake.notify_all();
}

void SoundPlayer::Command(Player player, PlayerCommand command)
{
    const std::lock_guard lock(shared_->mutex);
    if (command == PlayerCommand::Prev) {
        shared_->wishes.Of(player).Rewind();
        return;
    }
    shared_->wishes.Of(player).Play();
    shared_->wishes.rest = false;
    shared_->wake.notify_all();
}

void SoundPlayer::Rest()
{
    const std::lock_guard lock(shared_->mutex);
    shared_->wishes.rest = true;
    shared_->wake.notify_all();
}

} // namespace keyfluent::shell
