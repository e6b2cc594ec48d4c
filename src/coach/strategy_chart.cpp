#include "coach/strategy_chart.h"

#include <cassert>
#include <cstddef>

namespace quillet
{

namespace
{

constexpr std::array<std::string_view, chartRows> captions{
    "Royal ",
    "Straight Flush",
    "4 Of a Kind",
    "Full House",
    "4 To a Royal ",
    "Flush",
    "Straight",
    "3 Of a Kind",
    "4 To a Straight Flush",
    "2 Pair",
    "High Pair",
    "3 To a Royal ",
    "4 To a Flush",
    "Low Pair",
    "4 To Outside  Straight",
    "2 High (Suited)",
    "3 To a Straight Flush",
    "2 High",
    "10/J 10/Q 10/k (Suited)",
    "1 High",
    "All Trash",
};

constexpr ChartColour black = 0x000000;
constexpr ChartRowColours evenBase{0x808080, 0xFFFFFF};
constexpr ChartRowColours oddBase{0xE0E0E0, windowTextColour};
constexpr ChartRowColours bestPlay{0xC0C0FF, black};
constexpr ChartRowColours missedPlay{0x0000FF, black};
constexpr ChartRowColours straightFlushWinner{0x00FF00, black};
constexpr ChartRowColours otherWinner{0x00C000, black};
constexpr int straightFlushRow = 1;

std::size_t indexOf(int row)
{
    assert(row >= 0 && row < chartRows);
    return static_cast<std::size_t>(row);
}

} // namespace

std::string_view StrategyChart::caption(int row)
{
    return captions[indexOf(row)];
}

std::array<ChartRowPlace, chartRows> StrategyChart::layoutChartRows(double panelHeight)
{
    const double rowHeight = panelHeight / (chartRows + 2);
    std::array<ChartRowPlace, chartRows> places{};
    double top = panelHeight;
    for (std::size_t row = chartRows; row-- > 0;) {
        top -= rowHeight;
        places[row] = {top, rowHeight};
    }
    return places;
}

void StrategyChart::resetChartColors()
{
    for (int row = 0; row < chartRows; ++row)
        setState(row, ChartRowState::base);
}

ChartRowState StrategyChart::state(int row) const
{
    return m_states[indexOf(row)];
}

ChartRowColours StrategyChart::coloursOf(int row, ChartRowState state)
{
    switch (state) {
    case ChartRowState::bestPlay:
        return bestPlay;
    case ChartRowState::missedPlay:
        return missedPlay;
    case ChartRowState::winner:
        return row == straightFlushRow ? straightFlushWinner : otherWinner;
    case ChartRowState::base:
        break;
    }
    return row % 2 == 0 ? evenBase : oddBase;
}

void StrategyChart::highlight(std::int16_t playCode, ChartRowState state)
{
    if (playCode >= 1)
        setState(playCode - 1, state);
}

void StrategyChart::setState(int row, ChartRowState state)
{
    ChartRowState& current = m_states[indexOf(row)];
    if (current == state)
        return;
    current = state;
    if (m_rowChanged)
        m_rowChanged(row);
}

} // namespace quillet
