#pragma once

#include "engine/slot.h"

#include <cstdint>

namespace quillet
{

// The cards on the table: the deck and a card in each slot.
class CardTable
{
public:
    virtual ~CardTable() = default;

    [[nodiscard]] virtual bool isCardShowing(Slot slot) const = 0;
    // From the next picture on, the slot is empty.
    virtual void takeAway(Slot slot) = 0;
    // Flies a card from the deck to the slot, where it stays face down. Handles no events
    // meanwhile.
    virtual void flyCardTo(Slot slot) = 0;
    // Turns the slot's card up. The faces of a finished hand are crosshatched.
    virtual void showFace(Slot slot, std::int16_t cardId, bool finished) = 0;
    virtual void showHold(Slot slot, bool held) = 0;
    // Shows the deck with the back that the player has chosen.
    virtual void showDeck() = 0;
    // After an error: hides all holds and shows the deck.
    virtual void recover() = 0;
};

} // namespace quillet
