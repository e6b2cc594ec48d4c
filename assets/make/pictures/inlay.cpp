#include "assets/make/pictures/inlay.h"

#include <cmath>

namespace quillet::artwork
{

InlayMaterial brass()
{
    return {rgb(0xf2d79a), rgb(0xb98d45), 1};
}

InlayMaterial silver()
{
    return {rgb(0xeef1f4), rgb(0x9fa9b8), 1};
}

InlayMaterial ivory()
{
    return {rgb(0xf8efdb), rgb(0xe2d2b0), 0.6};
}

void inlay(Canvas& canvas, const QPainterPath& shape, const InlayMaterial& material)
{
    const Mask body = canvas.mask(shape);
    canvas.fill(body.blurred(2).without(body), rgb(0x120802, 0.9));
    canvas.shade(body, [&](double x, double y) {
        const double sheen =
            0.6 + 0.22 * std::sin(0.021 * x + 0.043 * y) + 0.12 * std::sin(0.11 * x - 0.05 * y);
        return mix(material.dark, material.light, 0.35 + 0.65 * sheen);
    });
    canvas.fill(body.without(body.shifted(1, 1)), rgb(0xffffff, 0.30 * material.bevel));
    canvas.fill(body.without(body.shifted(-1, -1)), rgb(0x2a1600, 0.35 * material.bevel));
}

void sink(Canvas& canvas, const QPainterPath& shape, double depth, double strength)
{
    const Mask field = canvas.mask(shape);
    const int shift = static_cast<int>(std::lround(depth * canvas.scale() * 0.35));
    const Mask open = field.shifted(shift, shift).blurred(depth * canvas.scale());
    canvas.fill(field.without(open), rgb(0x0c0502, strength));
}

void castShadow(Canvas& canvas, const QPainterPath& shape, double distance, double strength)
{
    const Mask body = canvas.mask(shape);
    const int shift = static_cast<int>(std::lround(distance * canvas.scale() * 0.5));
    const Mask shadow = body.shifted(shift, shift).blurred(distance * canvas.scale());
    canvas.fill(shadow.without(body), rgb(0x0c0502, strength));
}

QPainterPath rectanglePath(const QRectF& rectangle)
{
    QPainterPath path;
    path.addRect(rectangle);
    return path;
}

QPainterPath roundedPath(const QRectF& rectangle, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rectangle, radius, radius);
    return path;
}

QPainterPath scoopedPath(const QRectF& rectangle, double radius)
{
    const auto corner = [&](const QPointF& at) {
        return QRectF(at.x() - radius, at.y() - radius, 2 * radius, 2 * radius);
    };
    QPainterPath path;
    path.moveTo(rectangle.left() + radius, rectangle.top());
    path.arcTo(corner(rectangle.topRight()), 180, 90);
    path.arcTo(corner(rectangle.bottomRight()), 90, 90);
    path.arcTo(corner(rectangle.bottomLeft()), 0, 90);
    path.arcTo(corner(rectangle.topLeft()), 270, 90);
    path.closeSubpath();
    return path;
}

QPainterPath between(const QPainterPath& outer, const QPainterPath& inner)
{
    QPainterPath band = outer;
    band.addPath(inner);
    band.setFillRule(Qt::OddEvenFill);
    return band;
}

} // namespace quillet::artwork
