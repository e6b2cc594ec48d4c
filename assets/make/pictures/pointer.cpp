#include "assets/make/pictures/pointer.h"

namespace quillet
{

namespace
{

QPainterPath hand()
{
    QPainterPath path(QPointF(10.0, 19.4));
    path.lineTo(10.0, 10.3);
    path.cubicTo(10.0, 7.4, 14.4, 7.4, 14.4, 10.3);
    path.lineTo(14.4, 16.2);
    path.cubicTo(14.4, 13.7, 18.3, 13.7, 18.3, 16.4);
    path.cubicTo(18.3, 14.3, 22.0, 14.5, 22.0, 17.2);
    path.cubicTo(22.0, 15.4, 25.4, 15.7, 25.4, 18.4);
    path.lineTo(25.4, 22.0);
    path.cubicTo(25.4, 25.2, 23.8, 26.4, 23.6, 29.6);
    path.lineTo(12.8, 29.6);
    path.cubicTo(12.6, 26.6, 9.4, 24.0, 6.8, 20.4);
    path.cubicTo(5.5, 18.5, 6.7, 16.7, 8.3, 17.4);
    path.cubicTo(9.1, 17.8, 9.7, 18.6, 10.0, 19.4);
    path.closeSubpath();
    return path;
}

QPainterPath creases()
{
    QPainterPath lines;
    for (const QPointF& top : {QPointF(14.4, 16.2), QPointF(18.3, 16.4), QPointF(22.0, 17.2)}) {
        lines.moveTo(top);
        lines.lineTo(top.x(), 21.2);
    }
    return lines;
}

} // namespace

Canvas pointingHand(double scale)
{
    Canvas canvas(QSize(32, 32), scale);
    const Color outline = rgb(0x1d1712);
    canvas.fill(stroked(hand(), 2.4, Qt::RoundCap, Qt::RoundJoin), outline);
    canvas.fill(hand(), rgb(0xffffff));
    canvas.fill(stroked(creases(), 1.1, Qt::RoundCap, Qt::RoundJoin), outline);
    return canvas;
}

} // namespace quillet
