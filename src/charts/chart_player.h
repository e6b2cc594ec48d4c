#pragma once

#include "charts/chart.h"
#include "odds/dealt_hand.h"

#include <array>
#include <cstdint>
#include <vector>

namespace quillet::charts
{

// How a chart plays one deal.
struct Play {
    std::size_t row = 0;       // of the chart, the first that fits
    odds::HoldSet fitting = 0; // that or another row of its line
};

// Finds the row and its line by which a chart plays a deal.
class ChartPlayer
{
public:
    explicit ChartPlayer(const Chart& chart);

    [[nodiscard]] Play play(const odds::DealtHand& hand) const;
    // Of the holds that fit, the one that is worth most.
    [[nodiscard]] odds::Hold bestHold(const odds::DealtHand& hand) const
    {
        return hand.bestOf(play(hand).fitting);
    }

private:
    using RowSet = std::uint64_t; // bit r for row r of the chart
    static_assert(maxRows <= 64);

    [[nodiscard]] RowSet rowsThatFit(const HoldFacts& held, RowSet candidates) const;

    const Chart m_chart;
    std::vector<RowSet> m_rowsOfClass;
    RowSet m_rowsOfFive = 0;                   // that keep five cards
    std::array<std::size_t, maxRows> m_line{}; // by row
};

// Whether the discards meet the conditions of the row, for a hold whose cards fit it.
[[nodiscard]] bool allows(const Row& row, const odds::DealtHand& hand, odds::Hold hold);

// The facts of the cards that a hold keeps.
[[nodiscard]] HoldFacts factsOf(const odds::DealtHand& hand, odds::Hold hold);

} // namespace quillet::charts
