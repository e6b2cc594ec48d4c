#pragma once

#include <cstdint>
#include <limits>

namespace quillet
{

// Largest delay whose number of passes fits in 32 bits.
inline constexpr std::int32_t maxDelay = std::numeric_limits<std::int32_t>::max() / 1000;

// Counts from 1 to delay * 1000, the unit of the calibrated delays. One pass takes about 9 ns. A
// delay of 0 or less counts nothing. Throws RunTimeError if the product exceeds 32 bits.
void countingLoop(std::int32_t delay);

} // namespace quillet
