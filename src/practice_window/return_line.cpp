#include "practice_window/return_line.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillet::practice_window
{

namespace
{

const QColor lineColour(0x2f, 0x9e, 0x6e);

double stepFor(double range)
{
    for (const double step : {0.0005, 0.001, 0.002, 0.005, 0.01, 0.02, 0.05, 0.1}) {
        if (range / step <= 4.5)
            return step;
    }
    return 0.2;
}

} // namespace

ReturnLine::ReturnLine(const ReturnHistory& history, QWidget* parent)
    : QWidget(parent), m_history(history)
{
    setObjectName("returnLine");
    setAccessibleName("Return over time");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QPointF ReturnLine::Axes::at(double count, double returned) const
{
    return {area.left() + area.width() * count / answers,
            area.bottom() - area.height() * (returned - low) / (high - low)};
}

ReturnLine::Axes ReturnLine::axes() const
{
    const practice::Decisions& decisions = m_history.course()->decisions;
    const int left = fontMetrics().horizontalAdvance("99.5 %") + 6;
    Axes axes{
        QRectF(rect()).adjusted(left, fontMetrics().height() + 2, -6, -fontMetrics().height() - 4)};
    const double chart = decisions.chartReturn();
    axes.low = chart - 0.003;
    axes.high = decisions.perfectReturn() + 0.0005;
    for (const ReturnPoint& point : m_history.points()) {
        axes.low = std::min(axes.low, point.estimate.returned - 0.002);
        axes.answers = std::max(axes.answers, static_cast<double>(point.answers));
    }
    // The interval after a few answers would make everything else flat.
    if (!m_history.points().empty())
        axes.low = std::min(axes.low, m_history.points().back().estimate.low - 0.001);
    return axes;
}

void ReturnLine::paintEvent(QPaintEvent*)
{
    if (m_history.course() == nullptr)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Axes axes = this->axes();
    paintAxes(painter, axes);
    paintPoints(painter, axes);
    const practice::Decisions& decisions = m_history.course()->decisions;
    paintOther(painter, axes, "perfect play", decisions.perfectReturn(), true);
    paintOther(painter, axes, "trainer's chart", decisions.chartReturn(), false);
}

void ReturnLine::paintAxes(QPainter& painter, const Axes& axes) const
{
    QColor faint = palette().color(QPalette::WindowText);
    painter.setPen(faint);
    const double step = stepFor(axes.high - axes.low);
    for (double tick = std::ceil(axes.low / step) * step; tick <= axes.high; tick += step) {
        const double y = axes.at(0, tick).y();
        painter.drawText(QRectF(0, y - 10, axes.area.left() - 6, 20),
                         Qt::AlignRight | Qt::AlignVCenter,
                         QLocale::c().toString(100 * tick, 'f', step < 0.001 ? 2 : 1));
    }
    const double under = axes.area.bottom() + 3;
    const QRectF below(axes.area.left(), under, axes.area.width(), height() - under);
    painter.drawText(below, Qt::AlignLeft | Qt::AlignTop, "0");
    painter.drawText(below, Qt::AlignRight | Qt::AlignTop,
                     axes.answers == 1 ? QString("1 answer")
                                       : QString("%1 answers").arg(axes.answers));
    faint.setAlpha(40);
    painter.setPen(faint);
    for (double tick = std::ceil(axes.low / step) * step; tick <= axes.high; tick += step)
        painter.drawLine(axes.at(0, tick), axes.at(axes.answers, tick));
}

void ReturnLine::paintOther(QPainter& painter, const Axes& axes, const QString& name,
                            double returned, bool above) const
{
    const QPointF start = axes.at(0, returned);
    QColor text = palette().color(QPalette::WindowText);
    painter.setPen(QPen(text, 1, Qt::DashLine));
    painter.drawLine(start, axes.at(axes.answers, returned));
    const double height = fontMetrics().height();
    painter.drawText(
        QRectF(start.x() + 4, start.y() - (above ? height + 1 : -1), axes.area.width() - 8, height),
        Qt::AlignLeft | Qt::AlignVCenter, name);
}

void ReturnLine::paintPoints(QPainter& painter, const Axes& axes) const
{
    const auto& points = m_history.points();
    if (points.empty())
        return;
    QPolygonF line;
    QPolygonF band;
    for (const ReturnPoint& point : points) {
        const auto count = static_cast<double>(point.answers);
        line.append(axes.at(count, point.estimate.returned));
        band.append(axes.at(count, point.estimate.high));
        band.prepend(axes.at(count, point.estimate.low));
    }
    painter.save();
    painter.setClipRect(axes.area.adjusted(-4, -4, 4, 0));
    QColor shade = lineColour;
    shade.setAlpha(60);
    painter.setPen(QPen(shade, 3));
    painter.setBrush(shade);
    painter.drawPolygon(band);
    painter.setPen(QPen(lineColour, 2));
    painter.setBrush(lineColour);
    painter.drawPolyline(line);
    painter.drawEllipse(line.back(), 3.5, 3.5);
    painter.restore();
}

} // namespace quillet::practice_window
