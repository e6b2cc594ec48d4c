#pragma once

#include "engine/deck.h"
#include "odds/draws.h"
#include "odds/work_progress.h"

#include <array>
#include <cstdint>

namespace quillet::odds
{

// How often each outcome came up in hands played in one way.
struct PlayedHands {
    std::array<std::int64_t, outcomeCount> count{};

    void add(const PlayedHands& others);
    [[nodiscard]] std::int64_t hands() const;
    [[nodiscard]] double returned(const Pays& pays) const; // credits won per credit paid

    // Half the width of the 95 % confidence interval; too small while royals are still rare.
    [[nodiscard]] double margin(const Pays& pays) const;
};

// With fewer hands a return means little: a royal comes once in 40,000.
inline constexpr std::int64_t minMeaningfulHands = 1'000'000;

inline constexpr std::int64_t maxSimulated = 100'000'000'000; // some days on two cores

// The same deals and replacements, played in two ways.
struct Simulation {
    PlayedHands perfect; // with the holds that are best with a fair shuffle
    PlayedHands player;
};

// Plays hands from decks shuffled as the trainer shuffles them. The same seed gives the same hands
// on any number of threads.
[[nodiscard]] Simulation simulate(const HeldCards& heldCards, const Player& player,
                                  std::uint64_t seed, std::int64_t hands, unsigned threads,
                                  const WorkProgress& progress = {});

// Plays this number of hands with the random source.
[[nodiscard]] Simulation playHands(const HeldCards& heldCards, const Player& player,
                                   RandomSource& random, std::int64_t hands);

} // namespace quillet::odds
