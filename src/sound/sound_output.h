#pragma once

#include <string>

namespace quillet
{

// Plays one wave file at a time, without making the caller wait.
class SoundOutput
{
public:
    virtual ~SoundOutput() = default;

    // Opens the device for a cue that follows soon; a wireless speaker takes a second to open.
    virtual void prepare() = 0;

    // Starts the file at this path and cuts off the one still playing. A file that cannot be
    // played, or a machine without sound, is silent.
    virtual void play(const std::string& path) = 0;
};

} // namespace quillet
