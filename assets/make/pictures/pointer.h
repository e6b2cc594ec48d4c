#pragma once

#include "assets/make/pictures/canvas.h"

namespace quillet::artwork
{

// A hand that points up, 32 units square. The fingertip is the hot spot.
inline constexpr QPoint handHotSpot{12, 9};

[[nodiscard]] Canvas pointingHand(double scale);

} // namespace quillet::artwork
