#include "cards/backs.h"

#include "cards/back_field.h"
#include "cards/card_art.h"

#include <QPainterPath>
#include <QPen>

namespace quillet
{

void paintField(CardCanvas& canvas, QRgb ground, QRgb frame,
                const std::function<void(QPainter&)>& paint)
{
    const double left = canvas.snappedX(fieldLeft);
    const double top = canvas.snappedY(fieldTop);
    const QRectF area(left, top, cardArtWidth - 2 * left, cardArtHeight - 2 * top);
    constexpr double radius = 2.5;

    QPainter painter;
    canvas.begin(painter);
    QPainterPath outline;
    outline.addRoundedRect(area, radius, radius);
    painter.fillPath(outline, QColor::fromRgba(ground));
    painter.save();
    painter.setClipPath(outline);
    paint(painter);
    painter.restore();

    const double width = canvas.lineWidth(1);
    const double insetX = width / 2 / canvas.scaleX();
    const double insetY = width / 2 / canvas.scaleY();
    QPen pen(QColor::fromRgba(frame), width);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(insetX, insetY, -insetX, -insetY), radius, radius);
}

void paintBack(CardCanvas& canvas, int cardNumber)
{
    switch (cardNumber) {
    case 54:
        return paintPlaid(canvas);
    case 55:
        return paintWeave(canvas);
    case 56:
        return paintRobot(canvas);
    case 57:
        return paintRoses(canvas);
    case 58:
    case 59:
        return paintIvy(canvas, cardNumber == 59);
    case 60:
    case 61:
        return paintFish(canvas, cardNumber == 61);
    case 62:
        return paintShell(canvas);
    case 63:
        return paintCastle(canvas);
    case 64:
        return paintBeach(canvas);
    case 65:
        return paintSleeve(canvas);
    default:
        return;
    }
}

} // namespace quillet
