#include "assets/make/pictures/emblem.h"

#include "assets/make/pictures/alphabet.h"
#include "assets/make/pictures/quill.h"
#include "assets/make/pictures/suits.h"

#include <cmath>

namespace quillet::artwork
{

namespace
{

QPainterPath disc(const QPointF& centre, double radius)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

QPainterPath ring(const QPointF& centre, double outer, double inner)
{
    return between(disc(centre, outer), disc(centre, inner));
}

// A ring of small lozenges, with a gap for the quill.
QPainterPath beading(const QPointF& centre, double radius)
{
    QPainterPath beads;
    constexpr int count = 60;
    for (int i = 0; i < count; ++i) {
        const double angle = 6.283185307179586 * i / count;
        beads.addEllipse(centre + QPointF(std::cos(angle), std::sin(angle)) * radius, 0.8, 0.8);
    }
    return beads;
}

void paintQuill(Canvas& canvas, const Ornament& ornament, const QPointF& point, const QPointF& tip)
{
    const Quill feather = quill(point, tip);
    QPainterPath whole = feather.vane;
    whole = whole.united(feather.shaft).united(feather.nib);
    castShadow(canvas, whole, 3, 0.7);
    inlay(canvas, feather.vane, ornament.accent);
    canvas.fill(feather.barbs, rgb(0x5a4326, 0.55));
    inlay(canvas, feather.shaft, ornament.metal);
    inlay(canvas, feather.nib, ornament.metal);
}

void paintName(Canvas& canvas, const Ornament& ornament, const QPointF& middle)
{
    const Lettering name{22, 0.125, 0.18};
    inlay(canvas, centredLettering("QUILLET", name, middle), ornament.accent);
    const Lettering motto{8, 0.15, 0.2};
    inlay(canvas, centredLettering("JACKS OR BETTER", motto, middle + QPointF(0, 20)),
          ornament.accent);
}

} // namespace

void paintEmblem(Canvas& canvas, const Ornament& ornament, const QRectF& area)
{
    const double radius = area.width() * 0.43;
    const QPointF centre(area.center().x(), area.top() + radius + 11);
    const QPainterPath field = disc(centre, radius);
    castShadow(canvas, field, 2, 0.5);
    canvas.fill(field, ornament.ground);
    sink(canvas, field, 5, 0.8);
    inlay(canvas, ring(centre, radius, radius - 2.4), ornament.metal);
    inlay(canvas, beading(centre, radius - 6), ornament.metal);
    inlay(canvas, ring(centre, radius - 9.6, radius - 10.6), ornament.metal);

    const double orbit = radius * 0.50;
    const auto mark = [&](Suit suit, double dx, double dy, const InlayMaterial& material) {
        inlay(canvas, suitMark(suit, centre + QPointF(dx, dy) * orbit, radius * 0.36), material);
    };
    mark(spades, 0.42, -0.98, ornament.metal);
    mark(hearts, 1.04, -0.30, ornament.redSuit);
    mark(diamonds, -1.04, 0.30, ornament.redSuit);
    mark(clubs, -0.42, 0.98, ornament.metal);

    paintQuill(canvas, ornament, centre + QPointF(0.83, 0.97) * radius,
               centre + QPointF(-0.88, -1.0) * radius);
    paintName(canvas, ornament, {area.center().x(), area.bottom() - 34});
}

} // namespace quillet::artwork
