#pragma once

#include "charts/chart.h"
#include "odds/dealt_hand.h"

#include <array>
#include <optional>
#include <vector>

namespace quillet::charts
{

// A deal that shows what a row is about, and what it tells to keep.
struct RowExample {
    std::array<odds::DeckPlace, 5> places{}; // ascending
    odds::Hold hold = 0;
};

// One for each row of the chart, none for a row that never plays: where there is such a deal, one
// that the row plays perfectly and that only one hold fits. Always the same.
[[nodiscard]] std::vector<std::optional<RowExample>> rowExamples(const odds::HeldCards& heldCards,
                                                                 const Chart& chart);

} // namespace quillet::charts
