#pragma once

#include "cards/card_canvas.h"

#include <QImage>
#include <QSize>

#include <cstdint>

namespace quillet
{

// The see-through overlay, without antialiasing: every opaque pixel is white or ink.
[[nodiscard]] QImage hatchPicture(QSize deviceSize);

// Paints any back except the hatch. Other numbers paint nothing.
void paintBack(CardCanvas& canvas, std::int32_t cardNumber);

} // namespace quillet
