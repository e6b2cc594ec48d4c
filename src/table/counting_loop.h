#pragma once

#include <cstdint>
#include <limits>

namespace quillet
{

// The largest delay whose passes are a number of 32 bits.
inline constexpr std::int32_t longestDelay = std::numeric_limits<std::int32_t>::max() / 1000;

// Counts from 1 to delay * 1000, which is what the calibrated delays are made of; one pass takes
// about 9 ns. A delay of 0 or less counts nothing. Throws RunTimeError when the product leaves 32
// bits.
void countingLoop(std::int32_t delay);

} // namespace quillet
