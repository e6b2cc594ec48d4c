#pragma once

#include <QImage>
#include <QPainterPath>
#include <QPointF>
#include <QRect>
#include <QSize>

#include <cstddef>
#include <vector>

namespace quillet::artwork
{

struct Colour {
    float r = 0;
    float g = 0;
    float b = 0;
    float a = 1;
};

[[nodiscard]] Colour rgb(unsigned hex, double alpha = 1);
[[nodiscard]] Colour mix(const Colour& from, const Colour& to, double share);
[[nodiscard]] Colour lit(const Colour& colour, double factor);

// The coverage of each pixel by a shape, 0 to 1; 0 outside its bounds.
class Mask
{
public:
    explicit Mask(QRect bounds);

    [[nodiscard]] QRect bounds() const { return m_bounds; }
    [[nodiscard]] float at(int x, int y) const;
    void set(int x, int y, float cover);

    // All widths and distances in pixels.
    [[nodiscard]] Mask blurred(double radius) const;
    [[nodiscard]] Mask shifted(int dx, int dy) const;
    [[nodiscard]] Mask without(const Mask& other) const;

private:
    [[nodiscard]] std::size_t index(int x, int y) const;

    QRect m_bounds;
    std::vector<float> m_cover;
};

// A picture that is painted in its own units, at any resolution. Qt supplies only the outlines of
// shapes. Colours are computed here, so that every processor gives the same bytes.
class Canvas
{
public:
    Canvas(QSize size, double scale);

    [[nodiscard]] double scale() const { return m_scale; }
    [[nodiscard]] QRect bounds() const { return {0, 0, m_width, m_height}; }
    [[nodiscard]] Mask mask(const QPainterPath& shape) const;

    // The shader returns the colour at a point, in the canvas's units.
    template <typename Shader>
    void shade(const Mask& mask, const Shader& shader)
    {
        const QRect area = mask.bounds().intersected(bounds());
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x) {
                const float cover = mask.at(x, y);
                if (cover > 0)
                    lay(x, y, shader((x + 0.5) / m_scale, (y + 0.5) / m_scale), cover);
            }
    }
    template <typename Shader>
    void shade(const QPainterPath& shape, const Shader& shader)
    {
        shade(mask(shape), shader);
    }
    void fill(const Mask& mask, const Colour& colour);
    void fill(const QPainterPath& shape, const Colour& colour) { fill(mask(shape), colour); }

    [[nodiscard]] QImage toImage() const;

private:
    void lay(int x, int y, const Colour& colour, float cover);

    int m_width;
    int m_height;
    double m_scale;
    std::vector<Colour> m_pixels; // premultiplied
};

// The outline of a line drawn along the path.
[[nodiscard]] QPainterPath stroked(const QPainterPath& path, double width,
                                   Qt::PenCapStyle cap = Qt::FlatCap,
                                   Qt::PenJoinStyle join = Qt::MiterJoin);

} // namespace quillet::artwork
