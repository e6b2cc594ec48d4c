#pragma once

#include "charts/chart_price.h"
#include "charts/row_examples.h"

#include <iosfwd>

namespace quillet::odds_program
{

// Writes a chart as a page to print, A4 in SVG. Each row has an example hand, the cards to keep
// first.
void writeChartCard(std::ostream& out, const charts::Chart& chart, const charts::ChartPrice& price,
                    const charts::RowExamples& examples, const odds::Pays& pays);

} // namespace quillet::odds_program
