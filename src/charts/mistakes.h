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

// Deals that a chart plays by the same row, and perfect play by the same other kind of hold. The
// cost is in credits per credit paid over all deals of the game, so that kinds add up.
struct Mistake {
    std::string row;          // of the chart
    std::string_view instead; // what perfect play holds, in the words of charts
    std::int64_t deals = 0;
    odds::Fraction cost;
    odds::Fraction costliest;                 // in credits, of the example
    std::array<odds::DeckPlace, 5> example{}; // the dearest deal
    odds::Hold played = 0;                    // of the example, by the chart
    odds::Hold best = 0;                      // of the example, by perfect play
};

// All deals in which the best hold that a chart allows is not the perfect one, each in one kind,
// the dearest kind first.
[[nodiscard]] std::vector<Mistake> mistakesOf(const odds::HeldCards& heldCards, const Chart& chart);

} // namespace quillet::charts
