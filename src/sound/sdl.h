#pragma once

#include <SDL.h>

namespace quillet
{

// The functions of SDL that we use. The library brings some thirty others into the process, so it
// is loaded with the first cue and not with the program.
struct Sdl {
    // Loads the library at the first call. Null on a machine without it.
    [[nodiscard]] static const Sdl* load();

    // Frees what SDL keeps for the calling thread, which no longer uses SDL.
    static void leaveThread();

    decltype(&SDL_BuildAudioCVT) buildAudioCVT;
    decltype(&SDL_CloseAudioDevice) closeAudioDevice;
    decltype(&SDL_ConvertAudio) convertAudio;
    decltype(&SDL_FreeWAV) freeWAV;
    decltype(&SDL_GetAudioDeviceStatus) getAudioDeviceStatus;
    decltype(&SDL_InitSubSystem) initSubSystem;
    decltype(&SDL_LoadWAV_RW) loadWAV_RW;
    decltype(&SDL_LogSetOutputFunction) logSetOutputFunction;
    decltype(&SDL_OpenAudioDevice) openAudioDevice;
    decltype(&SDL_PauseAudioDevice) pauseAudioDevice;
    decltype(&SDL_QuitSubSystem) quitSubSystem;
    decltype(&SDL_RWFromConstMem) rwFromConstMem;
    decltype(&SDL_SetHint) setHint;
    decltype(&SDL_TLSCleanup) tlsCleanup;
};

} // namespace quillet
