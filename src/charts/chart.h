#pragma once

#include "charts/row_kinds.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::charts
{

inline constexpr std::size_t mostRows = 64;

// The rows of a chart, best first. A deal is played by the first row that one of its holds fits.
// The last row keeps nothing, so that every deal is played.
using Chart = std::vector<RowKindId>;

// A text that is no chart; what() says in which line and why.
class BadChart : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Reads a chart: one row a line; what follows # is a comment and empty lines are none. A chart
// that does not end with the row for nothing gets it.
[[nodiscard]] Chart parseChart(std::string_view text);

// The trainer's own.
[[nodiscard]] Chart trainersChart();

// The rows as parseChart reads them, one a line.
[[nodiscard]] std::string chartText(const Chart& chart);

} // namespace quillet::charts
