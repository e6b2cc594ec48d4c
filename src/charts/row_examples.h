#pragma once

#include "charts/chart.h"
#include "odds/dealt_hand.h"

#include <optional>
#include <vector>

namespace quillet::charts
{

// For each row of the chart a deal that it plays and the hold that it selects, none for a row that
// never applies. If possible, exactly one hold fits the deal and that hold is optimal. Always the
// same deals.
using RowExamples = std::vector<std::optional<odds::HeldDeal>>;
[[nodiscard]] RowExamples rowExamples(const odds::HeldCards& heldCards, const Chart& chart);

} // namespace quillet::charts
