#pragma once

#include "engine/card.h"
#include "engine/deck.h"

#include <array>
#include <cstdint>

namespace quillet
{

// The hand on the table. The legal combinations of the flags:
//   handDealt  handBusy
//   false      false     no hand: the deck deals
//   false      true      dealing, drawing or paying: clicks are ignored
//   true       false     waiting for the draw: cards toggle their holds, the deck asks to draw
// Hold flags are set only while a hand waits for the draw; a draw leaves them as they were.
struct HandState {
    PokerDeck pokerDeck{};
    std::array<Card, 5> hand{}; // slots 0..4, left to right
    std::array<bool, 5> holdFlags{};
    std::int16_t handCode = 0; // best play after the deal, final hand after the draw
    bool handDealt = false;
    bool handBusy = false;
    bool judgePending = false; // the coach judges the next draw attempt
    bool dealReversed = false; // the next deal fills the slots right to left

    // Raised when a deal or a game starts, at unload and after an error. A sequence that finds
    // another value after a pause ends there.
    std::uint32_t epoch = 0;
};

} // namespace quillet
