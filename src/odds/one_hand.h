#pragma once

#include "odds/fair_odds.h"
#include "odds/pays.h"

#include <array>
#include <cstdint>
#include <optional>

namespace quillet::odds
{

// The chance and the pay of each outcome of one hand, for one way to play.
struct OneHand {
    std::array<double, outcomeCount> chance{};
    Pays pays{};

    // In wagers of five credits.
    [[nodiscard]] double returned() const;
    [[nodiscard]] double variance() const;

    // The chance to get the outcome at least once in this number of hands.
    [[nodiscard]] double chanceOfAtLeastOne(std::size_t outcome, std::int64_t hands) const;

    // The number of hands after which the expected gain or loss equals 1.96 standard deviations;
    // nothing when the game is fair.
    [[nodiscard]] std::optional<double> handsUntilTheEdgeShows() const;
};

[[nodiscard]] OneHand oneHand(const OutcomeChances& chances, const Pays& pays);

// The largest number of credits that divides all pays and `with`.
[[nodiscard]] std::int64_t unitOf(const OneHand& hand, std::int64_t with);

// The cumulant generating function of one hand's win in units of `unit` credits: the logarithm of
// the mean of e^(slope * win).
[[nodiscard]] double cumulant(const OneHand& hand, std::int64_t unit, double slope);

} // namespace quillet::odds
