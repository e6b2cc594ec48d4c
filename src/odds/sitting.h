#pragma once

#include "odds/fair_odds.h"
#include "odds/pays.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

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

// Called with the share of the work done, 0 to 1.
using WorkProgress = std::function<void(double)>;

// Error bound of every chance below, from cut tails and rounding.
inline constexpr double sittingBound = 1e-9;

inline constexpr std::int64_t maxHands = 10'000'000;

// The distribution of credits won less credits paid over a sitting of 1..maxHands hands at five
// credits each, computed as a power of one hand's characteristic function.
class Sitting
{
public:
    // Throws BadInput when memory is too small for all possible results.
    Sitting(const OneHand& hand, std::int64_t hands, const WorkProgress& progress = {});

    // The step between possible results, in credits.
    [[nodiscard]] std::int64_t unit() const { return m_unit; }
    // The chance of a result from `least` to `most`, both included.
    [[nodiscard]] double chanceOf(std::int64_t least, std::int64_t most) const;
    // The least result that this share of the sittings does not exceed.
    [[nodiscard]] std::int64_t quantile(double share) const;

private:
    [[nodiscard]] std::int64_t netOf(std::size_t index) const
    {
        return (m_first + static_cast<std::int64_t>(index)) * m_unit - m_paid;
    }

    std::int64_t m_unit = 1;  // credits
    std::int64_t m_first = 0; // units won at index 0
    std::int64_t m_paid = 0;  // credits
    std::vector<double> m_chance;
};

// The chance of ruin, when the bankroll is too small for another hand, after each tenth of the
// hands; the last entry is for all of them. Throws BadInput when it would take too long.
[[nodiscard]] std::array<double, 10> chancesOfRuin(const OneHand& hand, std::int64_t hands,
                                                   std::int64_t bankroll,
                                                   const WorkProgress& progress = {});

} // namespace quillet::odds
