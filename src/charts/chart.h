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
    bool sharesLine = false; // with the row before it

    bool operator==(const Row&) const = default;
};

// The rows of a chart, best first. A deal is played by the first line that one of its holds fits;
// any hold that fits any row of that line may be taken. The last row keeps nothing and has no
// conditions, so every deal is played.
using Chart = std::vector<Row>;

// Reads a chart: rows of one line have slashes between them, and a slash at the start of a line
// continues the line before it. A row has conditions on the discards after a semicolon, separated
// by commas. # starts a comment, and empty lines are ignored. The last row "nothing" is added if it
// is missing. Throws BadInput with the line of the text and the reason.
[[nodiscard]] Chart parseChart(std::string_view text);

// The trainer's own: row 0 is that of play code 1, and so on.
[[nodiscard]] const Chart& trainersChart();

// "4 to a flush; no high, a 10"
[[nodiscard]] std::string rowText(const Row& row);

// The chart as parseChart reads it, in lines of up to 80 characters.
[[nodiscard]] std::string chartText(const Chart& chart);

[[nodiscard]] std::size_t lineCount(const Chart& chart);

// "21 lines" or "16 lines (18 rows)"
[[nodiscard]] std::string countText(const Chart& chart);

} // namespace quillet::charts
