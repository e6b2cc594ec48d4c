#pragma once

#include "engine/hand_evaluation.h"
#include "odds/dealt_hand.h"
#include "odds/fraction.h"

#include <array>
#include <cstdint>

namespace quillet::odds
{

enum class Strategy { perfect, chartBest, chartAverage, chartWorst };
inline constexpr std::size_t strategies = 4;

// One row of the chart over all deals that it decides. The losses are against perfect play, in
// credits per credit paid over all deals of the game, so that the rows add up.
struct RowOdds {
    std::int64_t deals = 0;
    std::array<Fraction, strategies> loss;
    Fraction costliest; // in credits, with the best hold that is accepted
    std::array<DeckPlace, 5> example{};
};

// The worth of the game and of its chart, exactly, for a fairly shuffled deck. Where the coach
// accepts more than one hold the chart's player takes the best, the worst or any of them.
struct FairOdds {
    static constexpr std::int64_t deals = choose[5][52];

    std::array<Fraction, strategies> returned; // credits won per credit paid
    std::array<std::array<Fraction, outcomes>, strategies> chances;
    std::array<RowOdds, playCodes> rows;
    std::int64_t dealsWithAChoice = 0;     // those for which several holds are accepted
    std::int64_t dealsPlayedPerfectly = 0; // those for which the best accepted hold costs nothing

    [[nodiscard]] const Fraction& returnOf(Strategy strategy) const
    {
        return returned[static_cast<std::size_t>(strategy)];
    }
    [[nodiscard]] const Fraction& chanceOf(Strategy strategy, std::size_t outcome) const
    {
        return chances[static_cast<std::size_t>(strategy)][outcome];
    }
};

[[nodiscard]] FairOdds fairOdds(const HeldCards& heldCards);

} // namespace quillet::odds
