#pragma once

#include "charts/chart_price.h"

#include <iosfwd>

namespace quillet::odds_program
{

// All rows that a chart can have and all conditions on discards, with their meanings.
void reportRowKinds(std::ostream& out);

// The chart as a file, with its price in comments.
void writeChartFile(std::ostream& out, const charts::Chart& chart, const charts::ChartPrice& price);

// Each class of deals with the worst hold that fits its row of the chart, as CSV.
void reportPlays(std::ostream& out, const odds::HeldCards& heldCards, const charts::Chart& chart);

} // namespace quillet::odds_program
