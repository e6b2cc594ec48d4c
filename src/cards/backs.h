#pragma once

#include "cards/card_canvas.h"

#include <cstdint>

namespace quillet
{

// The see-through overlay: white and one ink, pixel by pixel.
[[nodiscard]] QImage hatchPicture(QSize deviceSize);

// Any back but the hatch; another number leaves the card as it is.
void paintBack(CardCanvas& canvas, std::int32_t cardNumber);

} // namespace quillet
