#pragma once

#include "sound/cue_mixer.h"

#include <memory>

namespace quillet
{

// A sound output while it is open. The destructor closes it.
class AudioDevice
{
public:
    virtual ~AudioDevice() = default;

    // Whether it was unplugged or its server has gone.
    [[nodiscard]] virtual bool isLost() const = 0;
};

// Opens the machine's sound output through SDL. It plays what the mixer renders. Null if there is
// none. A sound server may block opening and closing, so only a thread that nobody waits for may do
// either.
[[nodiscard]] std::unique_ptr<AudioDevice> openSdlDevice(CueMixer& mixer);

} // namespace quillet
