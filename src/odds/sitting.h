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

// The chance of each outcome of one hand, as a way to play gives it, and what each pays.
struct OneHand {
    std::array<double, outcomes> chance{};
    Pays pays{};

    // In wagers of five credits.
    [[nodiscard]] double returned() const;
    [[nodiscard]] double variance() const;

    // To get the outcome in so many hands.
    [[nodiscard]] double chanceOfAtLeastOne(std::size_t outcome, std::int64_t hands) const;

    // After so many hands what is to be expected of the edge is 1.96 standard deviations of chance;
    // nothing when there is no edge.
    [[nodiscard]] std::optional<double> handsUntilTheEdgeShows() const;
};

[[nodiscard]] OneHand oneHand(const OutcomeChances& chances, const Pays& pays);

// Takes the share of the work that is done.
using WorkProgress = std::function<void(double)>;

// How every chance below may be off: by what lies outside the window that is worked out, and by
// rounding.
inline constexpr double sittingBound = 1e-9;

inline constexpr std::int64_t mostHands = 10'000'000;

// What a sitting of so many hands comes to, 1..mostHands, each five credits: the distribution of
// credits won less credits paid. It is the power of one hand's distribution, through its Fourier
// transform.
class Sitting
{
public:
    // Throws BadInput when there are too many possible results for the memory.
    Sitting(const OneHand& hand, std::int64_t hands, const WorkProgress& progress = {});

    // Between two possible results, in credits.
    [[nodiscard]] std::int64_t unit() const { return m_unit; }
    // That the net lies from the one to the other, both included.
    [[nodiscard]] double chanceOf(std::int64_t least, std::int64_t most) const;
    // The least net that so large a share of the sittings does not exceed.
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

// The chance that a bankroll is too small for another hand within so many of them, after each
// tenth of them, the last one for all. Throws BadInput when it would take too long.
[[nodiscard]] std::array<double, 10> chancesOfRuin(const OneHand& hand, std::int64_t hands,
                                                   std::int64_t bankroll,
                                                   const WorkProgress& progress = {});

} // namespace quillet::odds
