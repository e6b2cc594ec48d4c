#pragma once

#include "coach/strategy_chart.h"

#include <QLabel>

namespace quillet
{

// One row of the chart: centred text on its colour. A lit row also carries a mark, so that
// colour is not the only sign.
class ChartRow : public QLabel
{
    Q_OBJECT

public:
    static constexpr int markRoom = 9; // pixels at the left, for the mark of a lit row

    ChartRow(int row, QWidget* parent);

    void show(ChartRowColors colors, ChartRowState state);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QColor textColor() const;

    ChartRowColors m_colors{};
    ChartRowState m_state = ChartRowState::base;
};

// A colour 0x00BBGGRR; with the top bit set, the one that the desktop has under the number in the
// rest.
[[nodiscard]] QColor colorOf(std::uint32_t bgr);
// The same way back.
[[nodiscard]] std::uint32_t bgrOf(const QColor& color);

} // namespace quillet
