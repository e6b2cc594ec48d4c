#pragma once

#include <string>

namespace quillet
{

// Plays one wave file at a time, without making the caller wait.
class SoundOutput
{
public:
    virtual ~SoundOutput() = default;

    // A cue will follow soon: opens the device, which may take a second with a wireless speaker.
    virtual void prepare() = 0;

    // Starts the file at this path and cuts off the one still playing. A file that cannot be
    // played, or a machine without sound, is silence.
    virtual void play(const std::string& path) = 0;
};

} // namespace quillet
