#pragma once

#include "coach/strategy_chart.h"
#include "engine/counters.h"

#include <QLabel>
#include <QWidget>

#include <array>

namespace quillet
{

class ChartRow;

// The strategy chart beside the table, with the three counters above it. Display only; takes no
// input.
class ChartPanel : public QWidget
{
    Q_OBJECT

public:
    ChartPanel(StrategyChart& chart, QWidget* parent);

    // Lays the rows out for the panel's current height.
    void layoutChartRows();
    void showCounters(const Counters& counters);

private:
    void showRow(int row);
    void fitRowFont();
    QLabel* addCounter(const QString& captionName, const QString& caption, double captionLeft,
                       double captionWidth, const QString& valueName);

    StrategyChart& m_chart;
    std::array<ChartRow*, chartRows> m_rows{}; // children
    QLabel* m_lblHands;
    QLabel* m_lblWon;
    QLabel* m_lblTotal;
};

} // namespace quillet
