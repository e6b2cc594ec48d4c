#pragma once

#include "engine/counters.h"

#include <cstdint>

namespace quillet
{

// Everything on the screen except the cards, and the pauses.
class GameScreen
{
public:
    virtual ~GameScreen() = default;

    // Lays out window, chart and table for a new game: no card shown, the deck in place.
    virtual void layOutGame() = 0;
    // Step 1..25 of the status text's fade from black.
    virtual void fadeStatusText(int step) = 0;
    virtual void showCounters(const Counters& counters) = 0;
    // Waits this many milliseconds. Other events run before this returns, so any state may have
    // changed. May return early if the hand state's epoch has changed.
    virtual void shortDelay(std::int32_t delayTime) = 0;
};

} // namespace quillet
