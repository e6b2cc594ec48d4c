#include "sound/audio_device.h"

#include "sound/sdl.h"

#include <dlfcn.h>
#include <mutex>

namespace quillet
{

namespace
{

class SdlAudioDevice : public AudioDevice
{
public:
    SdlAudioDevice(const Sdl& sdl, SDL_AudioDeviceID id) : m_sdl(sdl), m_id(id) {}
    ~SdlAudioDevice() override
    {
        m_sdl.closeAudioDevice(m_id);
        m_sdl.quitSubSystem(SDL_INIT_AUDIO);
    }
    SdlAudioDevice(const SdlAudioDevice&) = delete;
    SdlAudioDevice& operator=(const SdlAudioDevice&) = delete;

    [[nodiscard]] bool isLost() const override
    {
        return m_sdl.getAudioDeviceStatus(m_id) == SDL_AUDIO_STOPPED;
    }

private:
    const Sdl& m_sdl;
    const SDL_AudioDeviceID m_id;
};

void ignoreAlsaMessage(const char*, int, const char*, int, const char*, ...) {}

// ALSA reports every failed look-up on stderr, eight lines on a machine without a sound card. SDL
// uses ALSA only on some systems, so its handler is looked up and not linked.
void muteAlsa()
{
    using SetHandler = int (*)(decltype(&ignoreAlsaMessage));
    void* alsa = dlopen("libasound.so.2", RTLD_LAZY);
    if (!alsa)
        return;
    if (const auto set = reinterpret_cast<SetHandler>(dlsym(alsa, "snd_lib_error_set_handler")))
        set(ignoreAlsaMessage);
}

void prepare(const Sdl& sdl)
{
    sdl.setHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    sdl.setHint(SDL_HINT_APP_NAME, "Quillet");
    sdl.logSetOutputFunction([](void*, int, SDL_LogPriority, const char*) {}, nullptr);
    muteAlsa();
}

void renderBlock(void* mixer, Uint8* block, int bytes)
{
    static_cast<CueMixer*>(mixer)->render({reinterpret_cast<std::int16_t*>(block),
                                           static_cast<std::size_t>(bytes) / sizeof(std::int16_t)});
}

} // namespace

std::unique_ptr<AudioDevice> openSdlDevice(CueMixer& mixer)
{
    const Sdl* sdl = Sdl::load();
    if (!sdl)
        return nullptr;
    static std::once_flag prepared;
    std::call_once(prepared, prepare, *sdl);

    if (sdl->initSubSystem(SDL_INIT_AUDIO) != 0)
        return nullptr;
    SDL_AudioSpec wanted{};
    wanted.freq = soundRate;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = soundChannels;
    wanted.samples = 512;
    wanted.callback = renderBlock;
    wanted.userdata = &mixer;
    const SDL_AudioDeviceID id = sdl->openAudioDevice(nullptr, 0, &wanted, nullptr, 0);
    if (id == 0) {
        // The next attempt may find another server, so SDL must choose the driver again.
        sdl->quitSubSystem(SDL_INIT_AUDIO);
        return nullptr;
    }
    sdl->pauseAudioDevice(id, 0);
    return std::make_unique<SdlAudioDevice>(*sdl, id);
}

} // namespace quillet
