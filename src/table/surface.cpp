#include "table/surface.h"

#include <QPainter>

#include <algorithm>
#include <cstring>

namespace quillet
{

Surface::Surface(QSizeF size, double scale)
    : m_image(std::max(1, deviceSize(size.width(), scale)),
              std::max(1, deviceSize(size.height(), scale)), QImage::Format_RGB32),
      m_size(size), m_scale(scale)
{
    m_image.fill(Qt::black);
}

void Surface::fill(const QColor& colour)
{
    // fill() would first copy pixels that are shared with another picture.
    if (!m_image.isDetached())
        m_image = QImage(m_image.size(), m_image.format());
    m_image.fill(colour);
}

void Surface::makeTransparent()
{
    m_image.convertTo(QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
}

void Surface::copyFrom(const Surface& source, QPointF from, QSizeF size, QPointF to)
{
    copyPixels(source, deviceRect({from, size}, m_scale),
               {deviceOrigin(to.x(), m_scale), deviceOrigin(to.y(), m_scale)});
}

void Surface::copyPixels(const Surface& source, const QRect& from, QPoint to)
{
    const QPoint shift = to - from.topLeft();
    const QRect readable = from & source.m_image.rect();
    const QRect writable = readable.translated(shift) & m_image.rect();
    if (writable.isEmpty())
        return;

    const auto bytes = static_cast<std::size_t>(writable.width()) * sizeof(QRgb);
    for (int y = writable.top(); y <= writable.bottom(); ++y) {
        const auto* line =
            reinterpret_cast<const QRgb*>(source.m_image.constScanLine(y - shift.y()));
        auto* into = reinterpret_cast<QRgb*>(m_image.scanLine(y));
        std::memmove(into + writable.left(), line + writable.left() - shift.x(), bytes);
    }
}

void Surface::drawPixels(const QImage& pixels, QPointF to)
{
    QPainter painter(&m_image);
    painter.drawImage(deviceOrigin(to.x(), m_scale), deviceOrigin(to.y(), m_scale), pixels);
}

} // namespace quillet
