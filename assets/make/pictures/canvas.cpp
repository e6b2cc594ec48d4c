#include "assets/make/pictures/canvas.h"

#include <QPainter>
#include <QPainterPathStroker>

#include <cmath>

namespace quillet::artwork
{

namespace
{

// One pass of a running mean along a line of the mask. Three passes approximate a Gaussian blur.
void smoothLine(std::vector<float>& line, int reach)
{
    const int count = static_cast<int>(line.size());
    std::vector<float> result(line.size());
    double sum = 0;
    const auto value = [&](int i) {
        return i >= 0 && i < count ? double{line[static_cast<std::size_t>(i)]} : 0.0;
    };
    for (int i = -reach; i < reach; ++i)
        sum += value(i);
    for (int i = 0; i < count; ++i) {
        sum += value(i + reach);
        result[static_cast<std::size_t>(i)] = static_cast<float>(sum / (2 * reach + 1));
        sum -= value(i - reach);
    }
    line = std::move(result);
}

} // namespace

Colour rgb(unsigned hex, double alpha)
{
    const auto part = [hex](unsigned shift) {
        return static_cast<float>((hex >> shift) & 255U) / 255.0F;
    };
    return {part(16), part(8), part(0), static_cast<float>(alpha)};
}

Colour mix(const Colour& from, const Colour& to, double share)
{
    const auto t = static_cast<float>(std::clamp(share, 0.0, 1.0));
    return {from.r + (to.r - from.r) * t, from.g + (to.g - from.g) * t,
            from.b + (to.b - from.b) * t, from.a + (to.a - from.a) * t};
}

Colour lit(const Colour& colour, double factor)
{
    const auto f = static_cast<float>(factor);
    return {std::min(colour.r * f, 1.0F), std::min(colour.g * f, 1.0F),
            std::min(colour.b * f, 1.0F), colour.a};
}

Mask::Mask(QRect bounds)
    : m_bounds(bounds),
      m_cover(static_cast<std::size_t>(bounds.width()) * static_cast<std::size_t>(bounds.height()))
{
}

std::size_t Mask::index(int x, int y) const
{
    return static_cast<std::size_t>(y - m_bounds.top()) *
               static_cast<std::size_t>(m_bounds.width()) +
           static_cast<std::size_t>(x - m_bounds.left());
}

float Mask::at(int x, int y) const
{
    return m_bounds.contains(x, y) ? m_cover[index(x, y)] : 0;
}

void Mask::set(int x, int y, float cover)
{
    m_cover[index(x, y)] = cover;
}

Mask Mask::blurred(double radius) const
{
    const int reach = std::max(1, static_cast<int>(std::lround(radius / 2)));
    const int margin = 3 * reach;
    Mask result(m_bounds.adjusted(-margin, -margin, margin, margin));
    const QRect area = result.m_bounds;
    std::vector<float> line;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        line.clear();
        for (int x = area.left(); x <= area.right(); ++x)
            line.push_back(at(x, y));
        for (int pass = 0; pass < 3; ++pass)
            smoothLine(line, reach);
        for (int x = area.left(); x <= area.right(); ++x)
            result.set(x, y, line[static_cast<std::size_t>(x - area.left())]);
    }
    for (int x = area.left(); x <= area.right(); ++x) {
        line.clear();
        for (int y = area.top(); y <= area.bottom(); ++y)
            line.push_back(result.at(x, y));
        for (int pass = 0; pass < 3; ++pass)
            smoothLine(line, reach);
        for (int y = area.top(); y <= area.bottom(); ++y)
            result.set(x, y, line[static_cast<std::size_t>(y - area.top())]);
    }
    return result;
}

Mask Mask::shifted(int dx, int dy) const
{
    Mask result = *this;
    result.m_bounds.translate(dx, dy);
    return result;
}

Mask Mask::without(const Mask& other) const
{
    Mask result = *this;
    for (int y = m_bounds.top(); y <= m_bounds.bottom(); ++y)
        for (int x = m_bounds.left(); x <= m_bounds.right(); ++x)
            result.set(x, y, at(x, y) * (1 - other.at(x, y)));
    return result;
}

Canvas::Canvas(QSize size, double scale)
    : m_width(static_cast<int>(std::lround(size.width() * scale))),
      m_height(static_cast<int>(std::lround(size.height() * scale))), m_scale(scale),
      m_pixels(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height),
               Colour{0, 0, 0, 0})
{
}

Mask Canvas::mask(const QPainterPath& shape) const
{
    const QRectF outline = shape.boundingRect();
    const QRectF scaled(outline.topLeft() * m_scale, outline.size() * m_scale);
    const QRect area = scaled.toAlignedRect().adjusted(-1, -1, 1, 1).intersected(bounds());
    Mask result(area);
    if (area.isEmpty())
        return result;
    QImage image(area.size(), QImage::Format_Grayscale8);
    image.fill(0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    painter.scale(m_scale, m_scale);
    painter.fillPath(shape, Qt::white);
    painter.end();
    for (int y = 0; y < area.height(); ++y) {
        const uchar* line = image.constScanLine(y);
        for (int x = 0; x < area.width(); ++x)
            result.set(area.left() + x, area.top() + y, static_cast<float>(line[x]) / 255.0F);
    }
    return result;
}

void Canvas::fill(const Mask& mask, const Colour& colour)
{
    shade(mask, [&colour](double, double) { return colour; });
}

void Canvas::lay(int x, int y, const Colour& colour, float cover)
{
    Colour& under = m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                             static_cast<std::size_t>(x)];
    const float alpha = colour.a * cover;
    const float rest = 1 - alpha;
    under = {colour.r * alpha + under.r * rest, colour.g * alpha + under.g * rest,
             colour.b * alpha + under.b * rest, alpha + under.a * rest};
}

QImage Canvas::toImage() const
{
    QImage image(m_width, m_height, QImage::Format_ARGB32);
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x) {
            const Colour& pixel =
                m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                         static_cast<std::size_t>(x)];
            const auto byte = [&pixel](float part) {
                const float straight = pixel.a > 0 ? part / pixel.a : 0;
                return static_cast<int>(std::lround(std::clamp(straight, 0.0F, 1.0F) * 255));
            };
            image.setPixel(x, y,
                           qRgba(byte(pixel.r), byte(pixel.g), byte(pixel.b),
                                 static_cast<int>(std::lround(pixel.a * 255))));
        }
    return image;
}

QPainterPath stroked(const QPainterPath& path, double width, Qt::PenCapStyle cap,
                     Qt::PenJoinStyle join)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(cap);
    stroker.setJoinStyle(join);
    stroker.setCurveThreshold(0.02);
    return stroker.createStroke(path);
}

} // namespace quillet::artwork
