#include "assets/make/pictures/needlework.h"

#include <QPainterPathStroker>

#include <cmath>

namespace quillet::artwork
{

void sew(Canvas& canvas, const QPainterPath& line, const Colour& thread)
{
    QPainterPathStroker stroker;
    stroker.setWidth(1.3);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setDashPattern(QList<qreal>{3.0, 2.6}); // in thread widths
    const QPainterPath stitches = stroker.createStroke(line);
    const Mask body = canvas.mask(stitches);
    canvas.fill(body.shifted(1, 2).blurred(2), rgb(0x03150b, 0.7));
    canvas.fill(body, thread);
    canvas.fill(body.without(body.shifted(0, 1)), rgb(0xffffff, 0.35));
    canvas.fill(body.without(body.shifted(0, -1)), rgb(0x000000, 0.3));
}

void tool(Canvas& canvas, const QRectF& rectangle, const InlayMaterial& foil)
{
    constexpr double width = 0.8;
    constexpr double apart = 3.4;
    const auto line = [&](double inset) {
        const QRectF outer = rectangle.adjusted(inset, inset, -inset, -inset);
        return between(rectanglePath(outer),
                       rectanglePath(outer.adjusted(width, width, -width, -width)));
    };
    inlay(canvas, line(0), foil);
    inlay(canvas, line(apart), foil);

    QPainterPath lozenges;
    const double middle = (apart + width) / 2;
    const auto row = [&](const QPointF& from, const QPointF& to) {
        const QPointF way = to - from;
        const int count = static_cast<int>((std::abs(way.x()) + std::abs(way.y())) / 6);
        for (int i = 0; i < count; ++i) {
            const QPointF at = from + way * i / count;
            lozenges.addPolygon(QPolygonF{at + QPointF(-1.1, 0), at + QPointF(0, -1.1),
                                          at + QPointF(1.1, 0), at + QPointF(0, 1.1)});
            lozenges.closeSubpath();
        }
    };
    const QRectF path = rectangle.adjusted(middle, middle, -middle, -middle);
    row(path.topLeft(), path.topRight());
    row(path.topRight(), path.bottomRight());
    row(path.bottomRight(), path.bottomLeft());
    row(path.bottomLeft(), path.topLeft());
    inlay(canvas, lozenges, foil);
}

} // namespace quillet::artwork
