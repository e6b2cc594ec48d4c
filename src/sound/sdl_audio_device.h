#pragma once

#include "sound/audio_device.h"
#include "sound/cue_mixer.h"

#include <memory>

namespace quillet
{

// Opens the machine's sound output, which plays what the mixer renders. Null if there is none. A
// sound server may block opening and closing, so only a thread that nobody waits for may do either.
[[nodiscard]] std::unique_ptr<AudioDevice> openSdlDevice(CueMixer& mixer);

} // namespace quillet
