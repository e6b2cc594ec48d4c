#include "assets/make/pictures/suits.h"

#include <QTransform>

namespace quillet::artwork
{

namespace
{

// The marks are drawn in a box of 100 with the origin in its middle: Qt joins outlines with a
// tolerance that would show in a box of 1.

QPainterPath heart()
{
    QPainterPath path(QPointF(0, 50));
    path.cubicTo(-10, 30, -48, 8, -48, -21);
    path.cubicTo(-48, -38, -36, -48, -24, -48);
    path.cubicTo(-13, -48, -4, -41, 0, -28);
    path.cubicTo(4, -41, 13, -48, 24, -48);
    path.cubicTo(36, -48, 48, -38, 48, -21);
    path.cubicTo(48, 8, 10, 30, 0, 50);
    path.closeSubpath();
    return path;
}

QPainterPath diamond()
{
    QPainterPath path(QPointF(0, -52));
    path.quadTo(14, -20, 39, 0);
    path.quadTo(14, 20, 0, 52);
    path.quadTo(-14, 20, -39, 0);
    path.quadTo(-14, -20, 0, -52);
    path.closeSubpath();
    return path;
}

QPainterPath foot()
{
    QPainterPath path(QPointF(-4.5, 5));
    path.cubicTo(-3, 30, -10, 44, -22, 50);
    path.lineTo(22, 50);
    path.cubicTo(10, 44, 3, 30, 4.5, 5);
    path.closeSubpath();
    return path;
}

QPainterPath spade()
{
    QPainterPath path(QPointF(0, -50));
    path.cubicTo(10, -30, 46, -10, 46, 14);
    path.cubicTo(46, 29, 35, 36, 25, 36);
    path.cubicTo(15, 36, 5, 30, 0, 18);
    path.cubicTo(-5, 30, -15, 36, -25, 36);
    path.cubicTo(-35, 36, -46, 29, -46, 14);
    path.cubicTo(-46, -10, -10, -30, 0, -50);
    path.closeSubpath();
    return path.united(foot());
}

QPainterPath club()
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addEllipse(QPointF(0, -27), 22.5, 22.5);
    path.addEllipse(QPointF(-25, 12), 22.5, 22.5);
    path.addEllipse(QPointF(25, 12), 22.5, 22.5);
    path.addEllipse(QPointF(0, 2), 13, 13);
    return path.simplified().united(foot());
}

} // namespace

QPainterPath suitMark(Suit suit, QPointF centre, double height)
{
    QPainterPath mark;
    switch (suit) {
    case spades:
        mark = spade();
        break;
    case hearts:
        mark = heart();
        break;
    case clubs:
        mark = club();
        break;
    case diamonds:
        mark = diamond();
        break;
    }
    return QTransform::fromTranslate(centre.x(), centre.y())
        .scale(height / 100, height / 100)
        .map(mark);
}

} // namespace quillet::artwork
