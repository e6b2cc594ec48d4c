#pragma once

#include "odds/fair_odds.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace quillet::odds
{

// Deals whose draws have the same chances.
struct Draw {
    OutcomeChances chances;
    std::int64_t deals = 0;

    [[nodiscard]] double share() const
    {
        return static_cast<double>(deals) / static_cast<double>(FairOdds::deals);
    }
};

// The draws of one way to play, each once. Perfect play has 1,279.
using Draws = std::vector<Draw>;

// Returns the hold that a player chooses. May be called from several threads at once.
using Player = std::function<Hold(const DealtHand&)>;

// The draws of each player.
[[nodiscard]] std::vector<Draws> drawsOf(const HeldCards& heldCards,
                                         const std::vector<Player>& players);

// The chance to get the outcome on any line in this number of rounds.
[[nodiscard]] double chanceOfAtLeastOne(const Draws& draws, std::size_t outcome, std::int64_t lines,
                                        std::int64_t rounds);

} // namespace quillet::odds
