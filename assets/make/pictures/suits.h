#pragma once

#include "cards/card_numbers.h"

#include <QPainterPath>

namespace quillet::artwork
{

// The suit mark of the cards, `height` high, centred on the point.
[[nodiscard]] QPainterPath suitMark(Suit suit, QPointF centre, double height);

} // namespace quillet::artwork
