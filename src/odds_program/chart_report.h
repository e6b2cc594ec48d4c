#pragma once

#include "charts/chart_price.h"

#include <iosfwd>

namespace quillet::odds_program
{

// Every row that a chart can have, with its meaning.
void reportRowKinds(std::ostream& out);

// The chart as a file, with its price in comments.
void writeChartFile(std::ostream& out, const charts::Chart& chart, const charts::ChartPrice& price);

// Each class of deals with the hold by which the chart plays it, the worst of those that fit, as
// comma-separated values.
void reportPlays(std::ostream& out, const odds::HeldCards& heldCards, const charts::Chart& chart);

} // namespace quillet::odds_program
