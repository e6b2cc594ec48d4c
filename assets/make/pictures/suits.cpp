#include "assets/make/pictures/suits.h"

#include "cards/pips.h"

#include <QTransform>

namespace quillet::artwork
{

// Qt joins outlines with a tolerance that would be visible in marks as small as those of the cards.
QPainterPath suitMark(Suit suit, QPointF centre, double height)
{
    constexpr double large = 20;
    const double scale = height / suitMarkHeight / large;
    const QPainterPath mark = QTransform::fromScale(large, large).map(pipOutline(suit));
    return QTransform::fromTranslate(centre.x(), centre.y())
        .scale(scale, scale)
        .map(mark.simplified());
}

} // namespace quillet::artwork
