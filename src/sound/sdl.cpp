#include "sound/sdl.h"

#include <atomic>
#include <dlfcn.h>
#include <memory>

namespace quillet
{

namespace
{

std::atomic<const Sdl*> loaded = nullptr;

// Converts to a function of any type.
struct Symbol {
    void* address;

    template <typename Function>
    operator Function*() const // NOLINT(google-explicit-constructor,hicpp-explicit-conversions)
    {
        return reinterpret_cast<Function*>(address);
    }
};

std::unique_ptr<const Sdl> loadLibrary()
{
    void* library = dlopen("libSDL2-2.0.so.0", RTLD_NOW | RTLD_LOCAL);
    if (!library)
        return nullptr;
    const auto find = [library](const char* name) { return Symbol{dlsym(library, name)}; };
    return std::make_unique<const Sdl>(
        Sdl{find("SDL_BuildAudioCVT"), find("SDL_CloseAudioDevice"), find("SDL_ConvertAudio"),
            find("SDL_FreeWAV"), find("SDL_GetAudioDeviceStatus"), find("SDL_InitSubSystem"),
            find("SDL_LoadWAV_RW"), find("SDL_LogSetOutputFunction"), find("SDL_OpenAudioDevice"),
            find("SDL_PauseAudioDevice"), find("SDL_QuitSubSystem"), find("SDL_RWFromConstMem"),
            find("SDL_SetHint"), find("SDL_TLSCleanup")});
}

} // namespace

const Sdl* Sdl::load()
{
    static const std::unique_ptr<const Sdl> library = loadLibrary();
    loaded = library.get();
    return library.get();
}

void Sdl::leaveThread()
{
    if (const Sdl* sdl = loaded)
        sdl->tlsCleanup();
}

} // namespace quillet
