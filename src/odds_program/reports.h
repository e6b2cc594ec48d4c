#pragma once

#include "charts/chart_price.h"
#include "charts/mistakes.h"
#include "odds/simulation.h"
#include "odds/sitting.h"
#include "odds_program/report.h"

#include <array>
#include <optional>
#include <vector>

namespace quillet::odds_program
{

// The worth of the game: returns, what one hand of it does, rows of the chart, final hands.
[[nodiscard]] Report gameReport(const charts::ChartPrice& chart, const odds::Pays& pays);

// The holds of a deal, six and the chart's or all 32, and why the best is worth more. Text has
// sentences, the other formats have more columns.
[[nodiscard]] Report handReport(const odds::HeldCards& heldCards, const odds::DealtHand& hand,
                                const charts::Play& play, bool all, Format format);

// What so many hands come to, for perfect play and the chart's best choice. With bars, the text
// draws the distribution. Reports the share of the work that is done, first for the sitting, then
// for the bankroll.
[[nodiscard]] Report sittingReport(const std::array<odds::OneHand, 2>& plays, std::int64_t hands,
                                   std::optional<std::int64_t> bankroll, bool bars,
                                   const odds::WorkProgress& progress);

[[nodiscard]] Report mistakesReport(const std::vector<charts::Mistake>& mistakes);

[[nodiscard]] Report simulationReport(const odds::Simulation& simulation,
                                      const charts::ChartPrice& chart, const odds::Pays& pays);

// What a chart is worth, and each of its rows.
[[nodiscard]] Report chartReport(const charts::Chart& chart, const charts::ChartPrice& price);

// The best chart found with at most this number of rows.
struct PricedChart {
    std::size_t rows;
    charts::Chart chart;
    charts::ChartPrice price;
};

[[nodiscard]] Report bestChartsReport(const std::vector<PricedChart>& found);

} // namespace quillet::odds_program
