#pragma once

#include "practice_window/return_history.h"

#include <QPolygonF>
#include <QWidget>

namespace quillet::practice_window
{

// The line of the return over the answers, with its interval as a band.
class ReturnLine : public QWidget
{
    Q_OBJECT

public:
    explicit ReturnLine(const ReturnHistory& history, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override { return {240, 120}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {160, 84}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // From figures to places.
    struct Axes {
        QRectF area;
        double low = 0; // returns
        double high = 1;
        double answers = 1;

        [[nodiscard]] QPointF at(double count, double returned) const;
    };

    [[nodiscard]] Axes axes() const;
    void paintAxes(QPainter& painter, const Axes& axes) const;
    void paintOther(QPainter& painter, const Axes& axes, const QString& name, double returned,
                    bool above) const;
    void paintPoints(QPainter& painter, const Axes& axes) const;

    const ReturnHistory& m_history;
};

} // namespace quillet::practice_window
