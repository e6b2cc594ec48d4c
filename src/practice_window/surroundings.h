#pragma once

#include "charts/chart.h"
#include "platform/browser_opener.h"
#include "settings/settings_store.h"
#include "sound/sound_output.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace quillet::practice_window
{

// The dependencies of the window. main.cpp fills in the real ones, tests their own.
struct Surroundings {
    SettingsStore& store;
    PageOpener openPage;
    SoundOutput& sound;
    charts::Chart rules; // plays every deal perfectly with the trainer's pay table
    std::filesystem::path journal;
    std::string programFolder; // wavs/ and the help lie in it
    std::uint64_t seed = 0;
    std::function<std::chrono::sys_seconds()> now;
};

} // namespace quillet::practice_window
