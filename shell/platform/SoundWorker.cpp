#include "shell/platform/SoundWorker.h"

#include <algorithm>
#include <utility>

namespace keyfluent::shell
{
namespace
{

using context::Player;
using namespace std::chrono_literals;

constexpr auto longestDelay = 250ms;
constexpr auto lingering = 200ms; // from the end of a sound to its end at the speakers

std::chrono::microseconds DurationOf(const Samples& samples)
{
    return std::chrono::microseconds(samples.size() / soundChannels * 1'000'000 / soundRate);
}

} // namespace

void RetryPause::Failed()
{
    next_ = Clock::now() + pause_;
    pause_ = std::clamp<Clock::duration>(2 * pause_, 1s, 60s);
}

SoundWorker::SoundWorker(std::unique_ptr<SoundOutput> output) : output_(std::move(output)) {}

void SoundWorker::Fulfil(const SoundWishes& wishes)
{
    if (ReadFiles(wishes)) {
        MakeOpen();
    }
    if (StartPlayers(wishes)) {
        PlayMix();
    }
    if (wishes.rest) {
        closing_ = open_ ? soundingUntil_ + lingering : never;
    }
    if (closing_ != never && Clock::now() >= closing_) {
        Close();
    }
}

bool SoundWorker::MakeOpen()
{
    closing_ = never;
    if (!open_ && retry_.IsOver()) {
        open_ = output_->Open();
        if (!open_) {
            retry_.Failed();
        }
    }
    return open_;
}

void SoundWorker::Close()
{
    output_->Close();
    open_ = false;
    closing_ = never;
}

// Whether there was a file to read.
bool SoundWorker::ReadFiles(const SoundWishes& wishes)
{
    bool any = false;
    for (std::size_t player = 0; player < wishes.players.size(); ++player) {
        if (const auto& file = wishes.players[player].file) {
            mixer_.SetSound(static_cast<Player>(player), ReadWaveFile(*file));
            any = true;
        }
    }
    return any;
}

// Whether something new is to be heard.
bool SoundWorker::StartPlayers(const SoundWishes& wishes)
{
    bool any = false;
    for (std::size_t index = 0; index < wishes.players.size(); ++index) {
        const auto player = static_cast<Player>(index);
        const SoundWish& wish = wishes.players[index];
        if (wish.rewindFirst) {
            mixer_.Rewind(player);
        }
        if (wish.play) {
            any = StartPlayer(player, wish.asked) || any;
        }
        if (wish.rewindAfter) {
            mixer_.Rewind(player);
        }
    }
    return any;
}

// A sound that comes long after its key only confuses.
bool SoundWorker::StartPlayer(Player player, Clock::time_point asked)
{
    if (!MakeOpen() || Clock::now() - asked > longestDelay) {
        mixer_.Skip(player);
        return false;
    }
    return mixer_.Start(player, Clock::now());
}

// A connection that turns out to be lost may be made anew, once for a playing.
void SoundWorker::PlayMix()
{
    for (int attempt = 0; attempt < 2 && MakeOpen(); ++attempt) {
        const Samples& mix = mixer_.Mix(Clock::now());
        open_ = output_->Play(mix);
        if (open_) {
            soundingUntil_ = Clock::now() + DurationOf(mix);
            retry_.Succeeded();
            return;
        }
        retry_.Failed();
    }
}

} // namespace keyfluent::shell
