#pragma once

#include "coach/strategy_chart.h"

#include <QLabel>

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

} // namespace quillet
