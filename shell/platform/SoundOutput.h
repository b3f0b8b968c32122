// Where sounds go. One thread owns an output and makes all its calls; each of them may take as long
// as it likes.
#pragma once

#include "shell/platform/WaveFile.h"

namespace keyfluent::shell
{

class SoundOutput
{
public:
    virtual ~SoundOutput() = default;

    // Makes ready for playing; false when there is nothing to play to.
    virtual bool Open() = 0;

    // Plays the samples at once and in place of all that was to be heard so far. Called only
    // between Open and Close; false when the way to the speakers is lost and has closed itself.
    virtual bool Play(const Samples& samples) = 0;

    virtual void Close() = 0;
};

} // namespace keyfluent::shell
