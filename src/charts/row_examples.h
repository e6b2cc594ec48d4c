#pragma once

#include "charts/chart.h"
#include "odds/dealt_hand.h"

#include <array>
#include <optional>
#include <vector>

namespace quillet::charts
{

// A deal that illustrates a row, and the hold that the row selects.
struct RowExample {
    std::array<odds::DeckPlace, 5> places{}; // ascending
    odds::Hold hold = 0;
};

// One for each row of the chart, none for a row that never applies. If possible, exactly one hold
// fits the deal and that hold is optimal. Always the same deals.
[[nodiscard]] std::vector<std::optional<RowExample>> rowExamples(const odds::HeldCards& heldCards,
                                                                 const Chart& chart);

} // namespace quillet::charts
