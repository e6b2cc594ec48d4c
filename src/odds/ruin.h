#pragma once

#include "odds/round.h"
#include "odds/work_progress.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace quillet::odds
{

// The chance of ruin in a session, for every bankroll. Ruin is when fewer credits are left than a
// round costs.
class Ruin
{
public:
    static constexpr std::size_t tenths = 10;

    // For `only` one bankroll it stops as soon as that one is certain to be ruined or safe.
    // Throws BadInput when it would take too long.
    Ruin(const Round& round, std::int64_t rounds, std::optional<std::int64_t> only = {},
         const WorkProgress& progress = {});

    // In this number of tenths of the rounds, 1 to 10.
    [[nodiscard]] double chance(std::int64_t bankroll, std::size_t tenth = tenths) const;

    // The smallest bankroll, in credits, whose chance of ruin is at most this.
    [[nodiscard]] std::int64_t bankrollFor(double chance) const;

private:
    std::int64_t m_unit;                                 // credits
    std::array<std::vector<double>, tenths> m_chances{}; // by bankroll in units; beyond it is 0
};

} // namespace quillet::odds
