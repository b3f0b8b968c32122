// Wave files, read into the one format in which sounds are mixed and played.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <vector>

namespace keyfluent::shell
{

inline constexpr int soundRate = 48000; // frames a second
inline constexpr int soundChannels = 2;

// Samples of both channels in turn, left first; one of each is a frame.
using Samples = std::vector<std::int16_t>;

// A file beyond this number of bytes is not read.
inline constexpr qint64 waveFileLimit = 1024 * 1024;
// No more of a sound than this is kept.
inline constexpr int longestSound = 10 * soundRate; // frames

// The sound of a file in 16-bit PCM with one or two channels, at any rate. Empty for every other
// file, for a broken one and for none.
Samples ReadWaveFile(const QString& file);

// The same from the file's bytes.
Samples DecodeWave(QByteArrayView bytes);

} // namespace keyfluent::shell
