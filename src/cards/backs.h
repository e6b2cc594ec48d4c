#pragma once

#include "cards/card_canvas.h"

namespace quillet
{

inline constexpr int hatchBack = 53;

// The see-through overlay: white and one ink, pixel by pixel.
[[nodiscard]] QImage hatchPicture(QSize deviceSize);

// Backs 54..65; any other number leaves the card as it is.
void paintBack(CardCanvas& canvas, int cardNumber);

} // namespace quillet
