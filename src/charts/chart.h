#pragma once

#include "charts/discard_kinds.h"
#include "charts/row_kinds.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillet::charts
{

inline constexpr std::size_t maxRows = 64;

// A row of a chart: what to keep, and conditions on the discards.
struct Row {
    RowKindId kind = 0;
    DiscardSet discards = 0;

    bool operator==(const Row&) const = default;
};

// The rows of a chart, best first. A deal is played by the first row that one of its holds fits.
// The last row keeps nothing and has no conditions, so every deal is played.
using Chart = std::vector<Row>;

// Reads a chart: one row per line, with conditions on the discards after a semicolon, separated by
// commas. # starts a comment, and empty lines are ignored. The last row "nothing" is added if it is
// missing. Throws BadInput with the line and the reason.
[[nodiscard]] Chart parseChart(std::string_view text);

// The trainer's own: row 0 is that of play code 1, and so on.
[[nodiscard]] const Chart& trainersChart();

// "4 to a flush; no high, a 10"
[[nodiscard]] std::string rowText(const Row& row);

// The rows as parseChart reads them, one a line.
[[nodiscard]] std::string chartText(const Chart& chart);

} // namespace quillet::charts
