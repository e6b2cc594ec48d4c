#pragma once

#include "cards/device_pixels.h"

#include <QColor>
#include <QImage>
#include <QRect>
#include <QRectF>

namespace quillet
{

// An off-screen picture. Its interface uses logical pixels, its buffer holds device pixels.
// Copies are clipped; a rectangle outside the picture is no error.
class Surface
{
public:
    Surface() = default;
    // Black. The scale is device pixels per logical pixel.
    Surface(QSizeF size, double scale);

    [[nodiscard]] bool isNull() const { return m_image.isNull(); }
    [[nodiscard]] QSizeF size() const { return m_size; }
    [[nodiscard]] double scale() const { return m_scale; }
    [[nodiscard]] const QImage& image() const { return m_image; }

    void fill(const QColor& colour);
    // Clears it. Parts that are not painted stay transparent.
    void makeTransparent();

    // Copies a rectangle of this size from the source, pixel by pixel.
    void copyFrom(const Surface& source, QPointF from, QSizeF size, QPointF to);
    // The same in device pixels, without rounding.
    void copyPixels(const Surface& source, const QRect& from, QPoint to);
    // Paints a picture in device pixels, with its transparency.
    void drawPixels(const QImage& pixels, QPointF to);
    // For pixel operations of our own, in device pixels.
    [[nodiscard]] QImage& pixels() { return m_image; }

private:
    QImage m_image;
    QSizeF m_size;
    double m_scale = 1.0;
};

} // namespace quillet
