#pragma once

#include "engine/deck.h"
#include "odds/dealt_hand.h"

#include <array>
#include <cstdint>
#include <functional>

namespace quillet::odds
{

// What so many hands of one way to play came to.
struct PlayedHands {
    std::array<std::int64_t, outcomes> count{};

    void add(const PlayedHands& others);
    [[nodiscard]] std::int64_t hands() const;
    [[nodiscard]] double returned(const Pays& pays) const; // credits won per credit paid

    // The return lies within so much of returned() with a chance of 95 %, as far as the rare
    // large wins have come up often enough.
    [[nodiscard]] double margin(const Pays& pays) const;
};

// Fewer hands than these tell next to nothing about a return: a royal comes once in 40,000.
inline constexpr std::int64_t tellingHands = 1'000'000;

inline constexpr std::int64_t mostSimulated = 100'000'000'000; // some days on two cores

// Returns the hold that a player chooses. Called from several threads at once.
using Player = std::function<Hold(const DealtHand&)>;

// The same deals and replacements, played in two ways.
struct Simulation {
    PlayedHands perfect; // with the holds that are best with a fair shuffle
    PlayedHands player;
};

// Plays hands from decks shuffled as the trainer shuffles them, on as many threads. The same seed
// gives the same hands on any number of them. Reports now and then how many are done.
[[nodiscard]] Simulation simulate(const HeldCards& heldCards, const Player& player,
                                  std::uint64_t seed, std::int64_t hands, unsigned threads,
                                  const std::function<void(std::int64_t)>& progress);

// Plays so many with these draws.
[[nodiscard]] Simulation playHands(const HeldCards& heldCards, const Player& player,
                                   RandomSource& random, std::int64_t hands);

} // namespace quillet::odds
