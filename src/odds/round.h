#pragma once

#include "engine/pay_table.h"
#include "odds/draws.h"
#include "odds/work_progress.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quillet::odds
{

inline constexpr std::int64_t maxLines = 100;

// One deal and one hold, and for each line five credits and a draw of its own, for one way to play.
struct Round {
    struct Win {
        std::int64_t credits;
        double chance;
    };

    std::int64_t cost = wager; // credits
    std::int64_t unit = 1;     // credits that divide all wins
    std::vector<Win> wins{};   // ascending

    // In credits.
    [[nodiscard]] double meanWin() const;
    // In wagers of five credits.
    [[nodiscard]] double variance() const;

    // The number of rounds after which the expected gain or loss equals 1.96 standard deviations;
    // nothing when the game is fair.
    [[nodiscard]] std::optional<double> untilTheEdgeShows() const;
};

// Throws BadInput when it would take too long.
[[nodiscard]] Round roundOf(const Draws& draws, const Pays& pays, std::int64_t lines = 1,
                            const WorkProgress& progress = {});

// One line.
[[nodiscard]] inline Round roundOf(const OutcomeChances& chances, const Pays& pays)
{
    return roundOf(Draws{{chances, FairOdds::deals}}, pays);
}

} // namespace quillet::odds
