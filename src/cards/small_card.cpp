#include "cards/small_card.h"

#include "cards/card_canvas.h"
#include "cards/index_glyphs.h"
#include "cards/pips.h"
#include "engine/card.h"

#include <cmath>

namespace quillet
{

QImage renderSmallCard(std::int32_t face, QSize deviceSize)
{
    const int rank = rankOf(face);
    const int suit = suitOf(face);
    const double middle = deviceSize.width() / 2.0;
    const double rankTall = std::round(deviceSize.height() * 0.42);
    const double suitTall = std::round(deviceSize.height() * 0.34);
    const double gap = std::round(deviceSize.height() * 0.05);
    const double top = std::floor((deviceSize.height() - rankTall - gap - suitTall) / 2);
    const double scale = rankTall / rankMarkHeight;

    CardCanvas canvas(deviceSize);
    QPainter painter;
    canvas.beginInPixels(painter);
    painter.fillPath(rankOutline(rank, middle / scale, top / scale, scale, scale),
                     QColor::fromRgba(suitColour(suit)));
    paintPip(painter, suit, {middle, top + rankTall + gap + suitTall / 2}, suitTall,
             suitColour(suit));
    painter.end();
    return canvas.image();
}

} // namespace quillet
