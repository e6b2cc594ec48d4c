#pragma once

#include <cstdint>

namespace quillet
{

// What has been painted into a card place, so that it can be painted again for a display with
// other pixels.
struct CardOnTable {
    enum class Side { none, back, face };

    Side side = Side::none;
    std::int32_t number = 0; // card number of the back or face
    bool hatched = false;    // carries the crosshatch of a finished hand
};

} // namespace quillet
