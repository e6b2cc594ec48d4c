#pragma once

#include "engine/card.h"

#include <array>
#include <cstdint>

namespace quillet::test
{

struct PlayCodes {
    std::int16_t dealt = 0;
    std::int16_t final = 0;

    friend bool operator==(const PlayCodes&, const PlayCodes&) = default;
};

// Both play codes of a hand, found the long way: every row of the chart is asked for by itself.
[[nodiscard]] PlayCodes slowPlayCodes(const std::array<Card, 5>& cards);

} // namespace quillet::test
