#pragma once

#include "charts/chart_price.h"
#include "charts/mistakes.h"
#include "odds/break_even.h"
#include "odds/draws.h"
#include "odds/simulation.h"
#include "odds/work_progress.h"
#include "odds_program/report.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::odds_program
{

// Returns, variance, rows of the chart and final hands.
[[nodiscard]] Report gameReport(const charts::ChartPrice& chart, const odds::Pays& pays);

// The holds of a deal, six and the chart's or all 32, and why the best is worth more. Text has
// sentences, the other formats have more columns.
[[nodiscard]] Report handReport(const odds::HeldCards& heldCards, const odds::DealtHand& hand,
                                const charts::Play& play, bool all, Format format);

// A way to play, and the field and the heading of its column.
struct SittingPlay {
    std::string field;
    std::string heading;
    odds::Draws draws{};
};

// The options of a session.
struct Session {
    std::int64_t hands = 0;
    std::int64_t lines = 1;
    std::optional<std::int64_t> bankroll{}; // credits
    std::optional<double> bring{};          // the max chance of ruin
};

// How a session turns out for each play. With bars, the text draws the distribution for the first.
// Reports the progress of the rounds, the sitting and ruin one after another.
[[nodiscard]] Report sittingReport(const std::vector<SittingPlay>& plays, const odds::Pays& pays,
                                   const Session& session, bool bars,
                                   const odds::WorkProgress& progress);

// The royal at which perfect play returns 100 %, and those at which perfect play for the royal of
// the pays and the chart's best choice do.
[[nodiscard]] Report breakEvenReport(const std::optional<odds::BreakEven>& perfect,
                                     const charts::ChartPrice& chart, const odds::Pays& pays);

// The best hold of a deal for each royal, and the change nearest to the royal of the pays.
[[nodiscard]] Report bestHoldsReport(const std::array<odds::DeckPlace, 5>& places,
                                     const std::vector<odds::BestHold>& best,
                                     const odds::Pays& pays);

[[nodiscard]] Report mistakesReport(const std::vector<charts::Mistake>& mistakes);

[[nodiscard]] Report simulationReport(const odds::Simulation& simulation,
                                      const charts::ChartPrice& chart, const odds::Pays& pays);

// "Chart, best choice" and so on.
[[nodiscard]] std::string_view nameOf(charts::Taken taken);

// The returns of perfect play and of a chart.
[[nodiscard]] Table returnsTable(const charts::ChartPrice& price);

// The returns of a chart, and the price of each row.
[[nodiscard]] Report chartReport(const charts::Chart& chart, const charts::ChartPrice& price);

// The best chart found with at most this number of lines.
struct PricedChart {
    std::size_t lines;
    charts::Chart chart;
    charts::ChartPrice price;
};

[[nodiscard]] Report bestChartsReport(const std::vector<PricedChart>& found);

// All rows that a chart can have and all conditions on discards, with their meanings.
void reportRowKinds(std::ostream& out);

// The chart as a file, with its price in comments.
void writeChartFile(std::ostream& out, const charts::Chart& chart, const charts::ChartPrice& price);

// Each class of deals with the worst hold that fits its row of the chart, as CSV.
void reportPlays(std::ostream& out, const odds::HeldCards& heldCards, const charts::Chart& chart);

// Checks tables against the rules, and results against the same computed in another way. Prints a
// line for each check, and throws a std::runtime_error if one fails.
void selfTest(std::ostream& out);

} // namespace quillet::odds_program
