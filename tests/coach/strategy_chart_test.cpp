#include "coach/strategy_chart.h"

#include <gtest/gtest.h>

namespace quillet::test
{

TEST(StrategyChart, rowsStackFromTheBottomWithRoomForTwoMore)
{
    const auto places = StrategyChart::layoutChartRows(2300);
    EXPECT_DOUBLE_EQ(places[20].top, 2200);
    EXPECT_DOUBLE_EQ(places[0].top, 200);
    for (const ChartRowPlace& place : places)
        EXPECT_DOUBLE_EQ(place.height, 100);
}

TEST(StrategyChart, highlightsLightTheirRowUntilTheReset)
{
    StrategyChart chart;
    int changes = 0;
    chart.onRowChanged([&](int) { ++changes; });

    chart.highlightBestPlay(21);
    EXPECT_EQ(chart.colours(20), (ChartRowColours{0xC0C0FF, 0}));
    chart.resetChartColors();
    EXPECT_EQ(chart.colours(20), (ChartRowColours{0x808080, 0xFFFFFF}));
    EXPECT_EQ(chart.colours(19), (ChartRowColours{0xE0E0E0, windowTextColour}));
    chart.highlightMissedPlay(1);
    EXPECT_EQ(chart.colours(0), (ChartRowColours{0x0000FF, 0}));
    EXPECT_EQ(changes, 3) << "rows that stay as they are are not painted again";

    chart.highlightWinner(2);
    EXPECT_EQ(chart.colours(1), (ChartRowColours{0x00FF00, 0}));
    chart.highlightWinner(1);
    EXPECT_EQ(chart.colours(0), (ChartRowColours{0x00C000, 0}));
    chart.highlightBestPlay(0);
    EXPECT_EQ(changes, 5);
}

} // namespace quillet::test
