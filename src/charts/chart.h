#pragma once

#include "charts/discard_kinds.h"
#include "charts/row_kinds.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillet::charts
{

inline constexpr std::size_t mostRows = 64;

// A row as it stands in a chart: what to keep, and what to ask about the cards thrown away.
struct Row {
    RowKindId kind = 0;
    DiscardSet discards = 0;

    bool operator==(const Row&) const = default;
};

// The rows of a chart, best first. A deal is played by the first row that one of its holds fits.
// The last row keeps nothing and asks nothing, so that every deal is played.
using Chart = std::vector<Row>;

// Reads a chart: one row a line, and behind a semicolon what it asks about the cards thrown away,
// with commas between; what follows # is a comment and empty lines are none. A chart that does not
// end with the row for nothing gets it. Throws BadInput, which says in which line and why.
[[nodiscard]] Chart parseChart(std::string_view text);

// The trainer's own: row 0 is that of play code 1, and so on.
[[nodiscard]] const Chart& trainersChart();

// "4 to a flush; no high, a 10"
[[nodiscard]] std::string rowText(const Row& row);

// The rows as parseChart reads them, one a line.
[[nodiscard]] std::string chartText(const Chart& chart);

} // namespace quillet::charts
