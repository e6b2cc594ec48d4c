#pragma once

#include "odds/one_hand.h"
#include "odds/work_progress.h"

#include <array>
#include <cstdint>

namespace quillet::odds
{

// The chance of ruin, when the bankroll is too small for another hand, after each tenth of the
// hands; the last entry is for all of them. Throws BadInput when it would take too long.
[[nodiscard]] std::array<double, 10> chancesOfRuin(const OneHand& hand, std::int64_t hands,
                                                   std::int64_t bankroll,
                                                   const WorkProgress& progress = {});

} // namespace quillet::odds
