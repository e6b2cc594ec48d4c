#pragma once

#include "sound/audio_device.h"
#include "sound/cue_mixer.h"

#include <cstdint>
#include <memory>

namespace quillet
{

struct Sdl;

// The machine's sound output while it is open. A sound server may block opening and closing, so
// only a thread that nobody waits for may do either.
class SdlAudioDevice : public AudioDevice
{
public:
    // Plays what the mixer renders. Null if there is none.
    [[nodiscard]] static std::unique_ptr<AudioDevice> open(CueMixer& mixer);

    ~SdlAudioDevice() override;
    SdlAudioDevice(const SdlAudioDevice&) = delete;
    SdlAudioDevice& operator=(const SdlAudioDevice&) = delete;

    [[nodiscard]] bool isLost() const override;

private:
    SdlAudioDevice(const Sdl& sdl, std::uint32_t id) : m_sdl(sdl), m_id(id) {}

    const Sdl& m_sdl;
    std::uint32_t m_id;
};

} // namespace quillet
