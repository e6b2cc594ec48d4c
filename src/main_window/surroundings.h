#pragma once

#include "engine/deck.h"
#include "faults/run_time_error.h"
#include "platform/clock.h"
#include "platform/page_opener.h"
#include "platform/screen_metrics.h"
#include "settings/settings_store.h"
#include "sound/sound_output.h"

#include <functional>
#include <string>

namespace quillet
{

// All that the window asks of the world around it. main.cpp fills in the real ones, the tests
// their own; everything outlives the window.
struct Surroundings {
    SettingsStore& store;
    PageOpener& pages;
    SoundOutput& sound;
    ErrorBox& errorBox;
    Clock& clock;
    DeckSource& decks;
    ScreenMetrics metrics;
    std::string programFolder; // pics/, wavs/ and quillet.hlp lie in it
    // Waits for so many milliseconds while events run, or until the question is answered with yes.
    std::function<void(std::int32_t, const std::function<bool()>&)> shortDelay;
    std::function<void(int code)> endProcess; // ends at once; returns in tests only
    std::string helpFile = {};                // set at the start
};

} // namespace quillet
