#include "shell/platform/WaveFile.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace keyfluent::shell
{
namespace
{

constexpr quint16 pcm = 1;
constexpr qsizetype chunkHeaderSize = 8; // four letters and a length
constexpr qsizetype formatSize = 16;     // what of a format is looked at

template <typename Number> Number NumberAt(QByteArrayView bytes, qsizetype place)
{
    return qFromLittleEndian<Number>(bytes.data() + place);
}

// The frames of a file as they stand there.
struct Sound {
    quint32 rate = 0;
    int channels = 0;
    QByteArrayView data;

    qint64 FrameCount() const { return data.size() / (2 * channels); }

    // The frame of a mono file is the same on both sides.
    int Sample(qint64 frame, int channel) const
    {
        const qint64 index = frame * channels + std::min(channel, channels - 1);
        return NumberAt<qint16>(data, static_cast<qsizetype>(2 * index));
    }
};

bool ReadFormat(QByteArrayView chunk, Sound& sound)
{
    if (chunk.size() < formatSize) {
        return false;
    }
    sound.channels = NumberAt<quint16>(chunk, 2);
    sound.rate = NumberAt<quint32>(chunk, 4);
    const int bits = NumberAt<quint16>(chunk, 14);
    return NumberAt<quint16>(chunk, 0) == pcm && bits == 16 && sound.rate > 0 &&
           (sound.channels == 1 || sound.channels == 2);
}

// Goes from chunk to chunk; those of an odd length are followed by one byte more.
std::optional<Sound> FindSound(QByteArrayView bytes)
{
    constexpr qsizetype fileHeaderSize = 12;
    if (bytes.size() < fileHeaderSize || bytes.first(4) != "RIFF" || bytes.sliced(8, 4) != "WAVE") {
        return std::nullopt;
    }
    Sound sound;
    qsizetype place = fileHeaderSize;
    while (place + chunkHeaderSize <= bytes.size()) {
        const QByteArrayView name = bytes.sliced(place, 4);
        const qsizetype length = NumberAt<quint32>(bytes, place + 4);
        place += chunkHeaderSize;
        if (length > bytes.size() - place) {
            return std::nullopt;
        }
        const QByteArrayView chunk = bytes.sliced(place, length);
        if (name == "fmt " && !ReadFormat(chunk, sound)) {
            return std::nullopt;
        }
        if (name == "data") {
            sound.data = chunk;
            return sound.channels > 0 ? std::optional(sound) : std::nullopt;
        }
        place += length + length % 2;
    }
    return std::nullopt;
}

// Along the straight line between the two frames beside the wanted moment.
std::int16_t SampleAt(const Sound& sound, qint64 outFrame, int channel)
{
    const qint64 place = outFrame * sound.rate;
    const qint64 frame = place / soundRate;
    const qint64 beyond = place % soundRate;
    const qint64 next = std::min(frame + 1, sound.FrameCount() - 1);
    const qint64 from = sound.Sample(frame, channel);
    const qint64 to = sound.Sample(next, channel);
    return static_cast<std::int16_t>(from + (to - from) * beyond / soundRate);
}

} // namespace

Samples ReadWaveFile(const QString& name)
{
    // A pipe under the name of a file would hold the reader for ever.
    if (!QFileInfo(name).isFile()) {
        return {};
    }
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray bytes = file.read(waveFileLimit + 1);
    return bytes.size() > waveFileLimit ? Samples() : DecodeWave(bytes);
}

Samples DecodeWave(QByteArrayView bytes)
{
    const std::optional<Sound> sound = FindSound(bytes);
    if (!sound) {
        return {};
    }
    const qint64 frames = (sound->FrameCount() * soundRate + sound->rate - 1) / sound->rate;
    Samples samples;
    samples.reserve(static_cast<std::size_t>(std::min<qint64>(frames, longestSound)) *
                    soundChannels);
    for (qint64 frame = 0; frame < frames && frame < longestSound; ++frame) {
        for (int channel = 0; channel < soundChannels; ++channel) {
            samples.push_back(SampleAt(*sound, frame, channel));
        }
    }
    return samples;
}

} // namespace keyfluent::shell
