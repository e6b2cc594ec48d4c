#pragma once

#include "engine/deck.h"
#include "faults/guarded.h"
#include "platform/browser_opener.h"
#include "platform/clock.h"
#include "settings/settings_store.h"
#include "sound/sound_output.h"

#include <functional>
#include <string>

namespace quillet
{

// The dependencies of the window. main.cpp fills in the real ones, tests their own.
struct Surroundings {
    SettingsStore& store;
    PageOpener openPage;
    SoundOutput& sound;
    ErrorBox errorBox;
    const Clock& clock;
    std::function<PokerDeck()> nextDeck;
    std::string programFolder; // pics/, wavs/ and quillet.hlp lie in it
    // Waits this many milliseconds while events run, or until the predicate is true.
    std::function<void(std::int32_t, const std::function<bool()>&)> shortDelay;
    std::function<void(int code)> endProcess; // ends at once; returns in tests only
};

} // namespace quillet
