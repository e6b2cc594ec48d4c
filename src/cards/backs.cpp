#include "cards/backs.h"

#include "cards/back_field.h"
#include "cards/card_art.h"
#include "cards/card_numbers.h"

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

void paintBack(CardCanvas& canvas, std::int32_t cardNumber)
{
    switch (cardNumber) {
    case plaidBack:
        return paintPlaid(canvas);
    case weaveBack:
        return paintWeave(canvas);
    case robotBack:
        return paintRobot(canvas);
    case rosesBack:
        return paintRoses(canvas);
    case ivyBlackBack:
    case ivyBlueBack:
        return paintIvy(canvas, cardNumber == ivyBlueBack);
    case fishCyanBack:
    case fishBlueBack:
        return paintFish(canvas, cardNumber == fishBlueBack);
    case shellBack:
        return paintShell(canvas);
    case castleBack:
        return paintCastle(canvas);
    case beachBack:
        return paintBeach(canvas);
    case sleeveBack:
        return paintSleeve(canvas);
    default:
        return;
    }
}

} // namespace quillet
