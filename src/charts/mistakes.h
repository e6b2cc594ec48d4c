#pragma once

#include "charts/chart.h"
#include "odds/dealt_hand.h"
#include "odds/fraction.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::charts
{

// Deals misplayed by the same row of a chart, for which perfect play makes the same kind of hold.
// The cost is in credits per credit bet over all deals of the game, so that groups add up.
struct Mistake {
    std::string row;          // of the chart
    std::string_view instead; // what perfect play holds, as charts name it
    std::int64_t deals = 0;
    odds::Fraction cost;
    odds::Fraction costliest;                 // in credits, of the example
    std::array<odds::DeckPlace, 5> example{}; // the costliest deal
    odds::Hold played = 0;                    // of the example, by the chart
    odds::Hold best = 0;                      // of the example, by perfect play
};

// All deals in which the best hold that a chart allows is not the perfect one, each in one group,
// the costliest group first.
[[nodiscard]] std::vector<Mistake> mistakesOf(const odds::HeldCards& heldCards, const Chart& chart);

} // namespace quillet::charts
