#pragma once

#include "engine/card.h"
#include "engine/slot.h"

#include <array>
#include <cstdint>

namespace quillet
{

// Card numbers in the order in which they are used: positions 0..4 are dealt to the five slots,
// position slot + 5 is that slot's replacement, the rest never leaves the deck.
using PokerDeck = std::array<std::int16_t, 52>;

// Random numbers for the shuffle.
class RandomSource
{
public:
    virtual ~RandomSource() = default;

    // Mixes the time of day into the state. It does not restart the sequence, so two calls
    // within one tick of the clock give different draws.
    virtual void reseed() = 0;

    // Uniform in [0, 1), with at least 24 bits.
    [[nodiscard]] virtual double next() = 0;
};

// The cards in the order of their numbers.
[[nodiscard]] PokerDeck buildDeck();

[[nodiscard]] PokerDeck shuffledDeck(RandomSource& random);

// The slots in the order in which their cards arrive: left to right and right to left in turn,
// so it flips dealReversed.
[[nodiscard]] std::array<Slot, 5> dealOrder(bool& dealReversed);

[[nodiscard]] std::array<Card, 5> dealHand(const PokerDeck& deck);

// Gives every slot that is not held its replacement.
void drawReplacements(std::array<Card, 5>& hand, const PokerDeck& deck,
                      const std::array<bool, 5>& holdFlags);

} // namespace quillet
