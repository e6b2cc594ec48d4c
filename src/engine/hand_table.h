#pragma once

#include "engine/counters.h"

#include <cstdint>

namespace quillet
{

// What a game asks of the table. The main window answers with pictures, the tests with a log.
// Slots are 0..4, left to right.
class HandTable
{
public:
    virtual ~HandTable() = default;

    // Lays out window, chart and table for a new game: no card shown, the deck in place.
    virtual void layOutGame() = 0;
    // Step 1..25 of the status text's fade from black.
    virtual void fadeStatusText(int step) = 0;

    // Puts the flying card at its place over the deck, hidden.
    virtual void placeFlyingCard() = 0;
    virtual void paintFlyingCard(std::int32_t backNumber) = 0;
    // Paints the top deck picture into the table itself, where it stays during flights.
    virtual void paintDeckIntoTable() = 0;
    // Flies a card from the deck to the slot; no event is handled meanwhile.
    virtual void flyCardTo(int slot) = 0;
    // Hides the flying card and refreshes the window.
    virtual void endFlights() = 0;

    [[nodiscard]] virtual bool cardShowing(int slot) const = 0;
    virtual void hideCard(int slot) = 0;
    virtual void showBack(int slot) = 0;
    virtual void paintFace(int slot, std::int16_t cardId) = 0;
    // Lays the flying card's picture over the card; its white lets the card show through.
    virtual void layOverlay(int slot) = 0;
    virtual void refreshCard(int slot) = 0;
    virtual void showHoldOutline(int slot, bool shown) = 0;

    virtual void showCounters(const Counters& counters) = 0;

    // After an error: the table can be drawn on and the deck is in sight.
    virtual void recover() = 0;

    // Other events run before this returns: any state may have changed. May return early when
    // the hand state's epoch has changed.
    virtual void shortDelay(std::int32_t delayTime) = 0;
};

} // namespace quillet
