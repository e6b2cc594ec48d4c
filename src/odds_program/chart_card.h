#pragma once

#include "charts/chart_price.h"
#include "charts/row_examples.h"

#include <iosfwd>
#include <optional>
#include <vector>

namespace quillet::odds_program
{

// A chart as a page to print: A4, upright, as SVG. Each row has a hand for an example, the cards
// to keep in front.
void writeChartCard(std::ostream& out, const charts::Chart& chart, const charts::ChartPrice& price,
                    const std::vector<std::optional<charts::RowExample>>& examples,
                    const odds::Pays& pays);

} // namespace quillet::odds_program
