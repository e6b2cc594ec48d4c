#pragma once

#include <QPainter>
#include <QRect>
#include <QRectF>

namespace quillet
{

// The only place that rounds logical to device pixels. Position and size are rounded separately, so
// that equal cards have the same size everywhere.
[[nodiscard]] int deviceOrigin(double position, double scale);
[[nodiscard]] int deviceSize(double size, double scale);
[[nodiscard]] QRect deviceRect(const QRectF& logical, double scale);

// While it lives, the painter draws in device pixels, so that pictures keep their sharp edges.
class InDevicePixels
{
public:
    explicit InDevicePixels(QPainter& painter);
    ~InDevicePixels();
    InDevicePixels(const InDevicePixels&) = delete;
    InDevicePixels& operator=(const InDevicePixels&) = delete;

    // The pixels for a position and a length that the painter had before.
    [[nodiscard]] QPoint at(QPointF position) const { return m_toPixels.map(position).toPoint(); }
    [[nodiscard]] int length(double logical) const { return deviceSize(logical, m_toPixels.m11()); }

private:
    QPainter& m_painter;
    const QTransform m_toPixels;
};

} // namespace quillet
