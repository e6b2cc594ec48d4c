#pragma once

#include "coach/strategy_chart.h"
#include "engine/counters.h"

#include <QLabel>
#include <QWidget>

#include <array>

namespace quillet
{

// One row of the chart: centred text on its colour. A lit row also has a mark, so that colour is
// not the only sign.
class ChartRow : public QLabel
{
    Q_OBJECT

public:
    static constexpr int markRoom = 9; // pixels at the left, for the mark of a lit row

    ChartRow(int row, QWidget* parent);

    void show(ChartRowColours colours, ChartRowState state);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QColor textColour() const;

    ChartRowColours m_colours{};
    ChartRowState m_state = ChartRowState::base;
};

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
