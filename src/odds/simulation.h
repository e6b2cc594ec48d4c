#pragma once

#include "engine/deck.h"
#include "odds/held_cards.h"

#include <array>
#include <cstdint>
#include <functional>

namespace quillet
{

// What so many hands of one way to play came to.
struct PlayedHands {
    std::array<std::int64_t, outcomes> count{};

    [[nodiscard]] std::int64_t hands() const;
    [[nodiscard]] double returned() const; // credits won per credit paid

    // The return lies within so much of returned() with a chance of 95 %, as far as the rare
    // large wins have come up often enough.
    [[nodiscard]] double margin() const;
};

// The same deals and replacements, held in two ways: by the hold that is best for a fairly
// shuffled deck, and by the best of those that the coach accepts.
struct Simulation {
    PlayedHands perfect;
    PlayedHands chart;
};

// Plays hands from decks shuffled as the trainer shuffles them. Reports now and then how many are
// done.
[[nodiscard]] Simulation simulate(const HeldCards& heldCards, RandomSource& random,
                                  std::int64_t hands,
                                  const std::function<void(std::int64_t)>& progress);

} // namespace quillet
