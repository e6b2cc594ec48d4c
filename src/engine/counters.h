#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace quillet
{

// The three counters above the chart. They stop at the limits of 16 bits.
struct Counters {
    std::int16_t total = 0; // credits, lblTotal
    std::int16_t hands = 0; // hands dealt, lblHands
    std::int16_t won = 0;   // winning hands, lblWon
};

[[nodiscard]] inline std::int16_t saturatingAdd(std::int16_t counter, int change)
{
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(
        std::clamp(int{counter} + change, int{Limits::min()}, int{Limits::max()}));
}

} // namespace quillet
