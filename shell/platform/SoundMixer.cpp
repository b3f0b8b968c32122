#include "shell/platform/SoundMixer.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace keyfluent::shell
{
namespace
{

std::int16_t AddLimited(std::int16_t left, std::int16_t right)
{
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(
        std::clamp(left + right, int{Limits::min()}, int{Limits::max()}));
}

} // namespace

// Where the last playing has come to; the sound's end when there is none.
std::size_t SoundMixer::Voice::FrameHeard(Clock::time_point now) const
{
    if (!started) {
        return FrameCount();
    }
    using Frames = std::chrono::duration<std::int64_t, std::ratio<1, soundRate>>;
    const std::int64_t passed = std::chrono::duration_cast<Frames>(now - since).count();
    const auto left = static_cast<std::int64_t>(FrameCount() - from);
    return from + static_cast<std::size_t>(std::clamp<std::int64_t>(passed, 0, left));
}

void SoundMixer::SetSound(context::Player player, Samples sound)
{
    VoiceOf(player) = Voice{};
    VoiceOf(player).sound = std::move(sound);
}

void SoundMixer::Rewind(context::Player player)
{
    VoiceOf(player).position = 0;
}

bool SoundMixer::Start(context::Player player, Clock::time_point now)
{
    Voice& voice = VoiceOf(player);
    if (voice.position == voice.FrameCount()) {
        return false;
    }
    voice.from = std::exchange(voice.position, voice.FrameCount());
    voice.since = now;
    voice.started = true;
    return true;
}

void SoundMixer::Skip(context::Player player)
{
    Voice& voice = VoiceOf(player);
    voice.position = voice.FrameCount();
    voice.started = false;
}

const Samples& SoundMixer::Mix(Clock::time_point now)
{
    mixed_.clear();
    for (const Voice& voice : voices_) {
        const std::size_t heard = voice.FrameHeard(now) * soundChannels;
        const std::size_t count = voice.sound.size() - heard;
        mixed_.resize(std::max(mixed_.size(), count), 0);
        for (std::size_t index = 0; index < count; ++index) {
            mixed_[index] = AddLimited(mixed_[index], voice.sound[heard + index]);
        }
    }
    return mixed_;
}

} // namespace keyfluent::shell
