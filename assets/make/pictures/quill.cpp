#include "assets/make/pictures/quill.h"

#include "assets/make/pictures/canvas.h"

#include <QTransform>

#include <array>
#include <cmath>

namespace quillet::artwork
{

namespace
{

constexpr double vaneBegins = 0.27;

// The quill along the x axis, from its point at 0 to the feather's tip at 1, bent slightly upwards.
double spine(double x)
{
    return 0.055 - 0.22 * (x - 0.5) * (x - 0.5);
}

// The width of the vane beside the shaft. It is broader on the trailing side.
double vaneReach(double x, bool trailing)
{
    const double t = (x - vaneBegins) / (1 - vaneBegins);
    const double swell = std::pow(t, 0.42) * std::pow(1 - t, 0.62);
    return (trailing ? 0.182 : 0.098) * swell;
}

// A few gaps between the barbs, as in a used feather.
double partedReach(double x, bool trailing)
{
    constexpr std::array trailingGaps{0.47, 0.66};
    constexpr std::array leadingGaps{0.40, 0.563};
    double reach = vaneReach(x, trailing);
    for (const double gap : trailing ? trailingGaps : leadingGaps) {
        const double distance = (x - gap) / 0.022;
        if (distance > 0 && distance < 1)
            reach *= 0.58 + 0.42 * distance;
    }
    return reach;
}

// Barbs lean towards the feather's tip.
QPointF barbEnd(double x, bool trailing, double share, double breadth)
{
    const double reach = share * partedReach(x, trailing) * breadth;
    const double lean = 0.55 * reach * (1 - x);
    return {x + lean, -spine(x) + (trailing ? reach : -reach)};
}

QPainterPath vane(double breadth)
{
    constexpr int steps = 240;
    QPolygonF edge;
    for (const bool trailing : {false, true})
        for (int i = 0; i <= steps; ++i) {
            const double share = static_cast<double>(trailing ? steps - i : i) / steps;
            edge << barbEnd(vaneBegins + (1 - vaneBegins) * share, trailing, 1, breadth);
        }
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addPolygon(edge);
    path.closeSubpath();
    return path;
}

QPainterPath barbs(double breadth)
{
    QPainterPath lines;
    for (int i = 0; i < 25; ++i) {
        const double x = vaneBegins + 0.03 + 0.026 * i;
        for (const bool trailing : {false, true}) {
            lines.moveTo(x - 0.012, -spine(x - 0.012));
            lines.lineTo(barbEnd(x, trailing, 0.88, breadth));
        }
    }
    return stroked(lines, 0.0045);
}

QPainterPath shaft(double breadth)
{
    constexpr int steps = 60;
    constexpr double from = 0.115;
    QPolygonF edge;
    for (const double side : {-1.0, 1.0})
        for (int i = 0; i <= steps; ++i) {
            const double share = static_cast<double>(side < 0 ? i : steps - i) / steps;
            const double x = from + (0.975 - from) * share;
            const double half = (0.0155 * (1 - x) + 0.0015) * breadth;
            edge << QPointF(x, -spine(x) + side * half);
        }
    QPainterPath path;
    path.addPolygon(edge);
    path.closeSubpath();
    return path;
}

QPainterPath nib(double breadth)
{
    const double half = 0.0155 * breadth;
    const double y = -spine(0.12);
    QPainterPath path(QPointF(0, 0));
    path.cubicTo(0.03, y * 0.3 - 0.2 * half, 0.05, y - half, 0.125, y - half);
    path.lineTo(0.125, y + half);
    path.cubicTo(0.085, y + 1.05 * half, 0.055, y * 0.4 + 0.9 * half, 0, 0);
    path.closeSubpath();
    return path;
}

} // namespace

Quill quill(QPointF point, QPointF tip, double breadth)
{
    const QPointF along = tip - point;
    // Only rotated and scaled, never mirrored.
    const QTransform place(along.x(), along.y(), -along.y(), along.x(), point.x(), point.y());
    return {place.map(vane(breadth)), place.map(barbs(breadth)), place.map(shaft(breadth)),
            place.map(nib(breadth))};
}

} // namespace quillet::artwork
