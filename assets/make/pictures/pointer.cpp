#include "assets/make/pictures/pointer.h"

namespace quillet::artwork
{

namespace
{

QPainterPath hand()
{
    QPainterPath path(QPointF(10, 19.4));
    path.lineTo(10, 10);
    path.cubicTo(10, 7.33, 14, 7.33, 14, 10);
    path.lineTo(14, 14);
    path.lineTo(17, 14);
    path.quadTo(18.5, 14, 18.5, 15);
    path.lineTo(21, 15);
    path.quadTo(22.5, 15, 22.5, 16);
    path.lineTo(24, 16);
    path.quadTo(26, 16, 26, 18);
    path.lineTo(26, 22);
    path.cubicTo(26, 25.2, 24, 26.4, 24, 30);
    path.lineTo(13, 30);
    path.cubicTo(12.8, 26.8, 9.4, 24, 6.8, 20.4);
    path.cubicTo(5.5, 18.5, 6.7, 16.7, 8.3, 17.4);
    path.cubicTo(9.1, 17.8, 9.7, 18.6, 10, 19.4);
    path.closeSubpath();
    return path;
}

QPainterPath creases()
{
    QPainterPath lines;
    for (const QPointF& top : {QPointF(14.5, 14.5), QPointF(18.5, 15), QPointF(22.5, 16)}) {
        lines.moveTo(top);
        lines.lineTo(top.x(), 21);
    }
    return lines;
}

} // namespace

Canvas pointingHand(double scale)
{
    Canvas canvas(QSize(32, 32), scale);
    const Colour outline = rgb(0x1d1712);
    canvas.fill(stroked(hand(), 2, Qt::RoundCap, Qt::RoundJoin), outline);
    canvas.fill(hand(), rgb(0xffffff));
    canvas.fill(stroked(creases(), 1), outline);
    return canvas;
}

} // namespace quillet::artwork
