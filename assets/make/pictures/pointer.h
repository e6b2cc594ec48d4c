#pragma once

#include "assets/make/pictures/canvas.h"

namespace quillet::artwork
{

// A hand that points up, 32 units square. StatusBar knows its fingertip.
[[nodiscard]] Canvas pointingHand(double scale);

} // namespace quillet::artwork
