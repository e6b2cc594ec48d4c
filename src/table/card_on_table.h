#pragma once

#include <cstdint>

namespace quillet
{

// What a card place shows, so that it can be painted again for a display of another scale.
struct CardOnTable {
    enum class Side { none, back, face };

    Side side = Side::none;
    std::int32_t number = 0; // card number of the back or face
    bool hatched = false;    // with the crosshatch of a finished hand
};

} // namespace quillet
